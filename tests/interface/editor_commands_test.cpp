#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using Kind = HeaderCommandKind;

/// A command with a value in every member, so that each has something to be cleared.
HeaderCommand everything(std::string name, Kind kind) {
  return {std::move(name), kind, "stray", {{"tight"}, {"maxiter", "50"}}};
}

class SetFlag : public testing::TestWithParam<EditCase> {};

TEST_P(SetFlag, GivesTheDocument) { expect_edit(GetParam()); }

const EditCase set_flag_rows[] = {
    {"AMissingCommandIsAppended", with_commands({flag("freq"), assignment("model", "m1")}),
     [](InputEditor& editor) { editor.set_flag("opt"); },
     with_commands({flag("freq"), assignment("model", "m1"), flag("opt")})},
    {"TheNameIsStoredExactlyAsPassed", with_commands({}),
     [](InputEditor& editor) { editor.set_flag(" #OPT "); }, with_commands({flag(" #OPT ")})},
    {"AFoundCommandKeepsItsSpelling", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_flag("OPT"); }, with_commands({flag("opt")})},
    {"AStoredNameIsMatchedInItsCanonicalFormToo", with_commands({list("# Opt", {{"tight"}})}),
     [](InputEditor& editor) { editor.set_flag("opt"); }, with_commands({flag("# Opt")})},
    {"OnlyOneHashIsRemovedForMatching", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_flag("##opt"); },
     with_commands({flag("opt"), flag("##opt")})},
    {"AnEmptyNameMakesANamelessCommand", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_flag(""); }, with_commands({flag("opt"), flag("")})},
    {"AHashAloneFindsTheNamelessCommand", with_commands({list("", {{"tight"}})}),
     [](InputEditor& editor) { editor.set_flag("#"); }, with_commands({flag("")})},
    {"AParameterListLosesItsParameters",
     with_commands({list("opt", {{"maxiter", "50"}, {"tight"}})}),
     [](InputEditor& editor) { editor.set_flag("opt"); }, with_commands({flag("opt")})},
    {"AnAssignmentLosesItsValue", with_commands({assignment("model", "m1")}),
     [](InputEditor& editor) { editor.set_flag("model"); }, with_commands({flag("model")})},
    {"AFlagLosesStrayContents", with_commands({everything("opt", Kind::Flag)}),
     [](InputEditor& editor) { editor.set_flag("opt"); }, with_commands({flag("opt")})},
    {"AnUnknownKindBecomesAFlag", with_commands({everything("opt", Kind{7})}),
     [](InputEditor& editor) { editor.set_flag("opt"); }, with_commands({flag("opt")})},
    {"OnlyTheFirstOfTheNameIsChanged",
     with_commands({flag("freq"), list("opt", {{"tight"}}), list("OPT", {{"loose"}})}),
     [](InputEditor& editor) { editor.set_flag("opt"); },
     with_commands({flag("freq"), flag("opt"), list("OPT", {{"loose"}})})},
};

INSTANTIATE_TEST_SUITE_P(Table, SetFlag, testing::ValuesIn(set_flag_rows), row_name<EditCase>);

class SetAssignment : public testing::TestWithParam<EditCase> {};

TEST_P(SetAssignment, GivesTheDocument) { expect_edit(GetParam()); }

const EditCase set_assignment_rows[] = {
    {"AMissingCommandIsAppended", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_assignment("basis", "b1"); },
     with_commands({flag("opt"), assignment("basis", "b1")})},
    {"NameAndValueAreStoredExactlyAsPassed", with_commands({}),
     [](InputEditor& editor) { editor.set_assignment(" #Model ", " \"M 1\" "); },
     with_commands({assignment(" #Model ", " \"M 1\" ")})},
    {"AFoundCommandKeepsItsSpelling", with_commands({assignment("model", "y")}),
     [](InputEditor& editor) { editor.set_assignment("Model", "x"); },
     with_commands({assignment("model", "x")})},
    {"AnEmptyValueIsPresent", with_commands({assignment("model", "y")}),
     [](InputEditor& editor) { editor.set_assignment("model", ""); },
     with_commands({assignment("model", "")})},
    {"AMissingValueIsGiven", with_commands({HeaderCommand{"model", Kind::Assignment}}),
     [](InputEditor& editor) { editor.set_assignment("model", "m1"); },
     with_commands({assignment("model", "m1")})},
    {"AFlagBecomesAnAssignment", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_assignment("opt", "x"); },
     with_commands({assignment("opt", "x")})},
    {"AParameterListLosesItsParameters", with_commands({list("opt", {{"tight"}, {"a", "b"}})}),
     [](InputEditor& editor) { editor.set_assignment("opt", "x"); },
     with_commands({assignment("opt", "x")})},
    {"AnAssignmentLosesStrayParameters", with_commands({everything("opt", Kind::Assignment)}),
     [](InputEditor& editor) { editor.set_assignment("opt", "x"); },
     with_commands({assignment("opt", "x")})},
    {"OnlyTheFirstOfTheNameIsChanged",
     with_commands({assignment("model", "m1"), assignment("model", "m2")}),
     [](InputEditor& editor) { editor.set_assignment("model", "m3"); },
     with_commands({assignment("model", "m3"), assignment("model", "m2")})},
    {"TheModelIsTheCommandModel", with_commands({assignment("Model", "m1"), flag("device")}),
     [](InputEditor& editor) { editor.set_model("m2"); },
     with_commands({assignment("Model", "m2"), flag("device")})},
    {"AMissingModelIsAppended", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_model("m2"); },
     with_commands({flag("opt"), assignment("model", "m2")})},
    {"AnEmptyModelIsPresent", with_commands({}), [](InputEditor& editor) { editor.set_model(""); },
     with_commands({assignment("model", "")})},
    {"TheDeviceIsTheCommandDevice", with_commands({assignment("DEVICE", "cpu"), flag("model")}),
     [](InputEditor& editor) { editor.set_device("gpu:0"); },
     with_commands({assignment("DEVICE", "gpu:0"), flag("model")})},
    {"AMissingDeviceIsAppended", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_device("cpu"); },
     with_commands({flag("opt"), assignment("device", "cpu")})},
};

INSTANTIATE_TEST_SUITE_P(Table, SetAssignment, testing::ValuesIn(set_assignment_rows),
                         row_name<EditCase>);

class SetTask : public testing::TestWithParam<EditCase> {};

TEST_P(SetTask, GivesTheDocument) { expect_edit(GetParam()); }

const EditCase set_task_rows[] = {
    {"AMissingCommandIsAppended", with_commands({assignment("model", "m1")}),
     [](InputEditor& editor) {
       editor.set_task("freq", {{"hessian", "exact"}});
     },
     with_commands({assignment("model", "m1"), list("freq", {{"hessian", "exact"}})})},
    {"AnEmptyListMakesAFlag", with_commands({}),
     [](InputEditor& editor) { editor.set_task("freq", {}); }, with_commands({flag("freq")})},
    {"NoListMakesAFlag", with_commands({list("freq", {{"tight"}})}),
     [](InputEditor& editor) { editor.set_task("freq"); }, with_commands({flag("freq")})},
    {"TheNameIsStoredExactlyAsPassed", with_commands({}),
     [](InputEditor& editor) { editor.set_task(" #FREQ "); }, with_commands({flag(" #FREQ ")})},
    {"AFoundCommandKeepsItsSpelling", with_commands({flag("Opt")}),
     [](InputEditor& editor) { editor.set_task("#OPT", {{"tight"}}); },
     with_commands({list("Opt", {{"tight"}})})},
    {"TheOldParametersAreReplaced", with_commands({list("opt", {{"tight"}, {"maxiter", "50"}})}),
     [](InputEditor& editor) {
       editor.set_task("opt", {{"maxiter", "60"}});
     },
     with_commands({list("opt", {{"maxiter", "60"}})})},
    {"EqualParametersAreKept", with_commands({}),
     [](InputEditor& editor) {
       editor.set_task("opt", {{"b"}, {" A "}, {"b"}, {"", ""}});
     },
     with_commands({list("opt", {{"b"}, {" A "}, {"b"}, {"", ""}})})},
    {"AnAssignmentBecomesAParameterList", with_commands({assignment("opt", "x")}),
     [](InputEditor& editor) { editor.set_task("opt", {{"tight"}}); },
     with_commands({list("opt", {{"tight"}})})},
    {"AnAssignmentBecomesAFlag", with_commands({everything("opt", Kind::Assignment)}),
     [](InputEditor& editor) { editor.set_task("opt", {}); }, with_commands({flag("opt")})},
    {"ATaskOfAnotherNameStays", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { editor.set_task("freq"); },
     with_commands({list("opt", {{"tight"}}), flag("freq")})},
    {"ANameThatIsNotATaskIsAccepted", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_task("basis", {{"b1"}}); },
     with_commands({flag("opt"), list("basis", {{"b1"}})})},
    {"OnlyTheFirstOfTheNameIsChanged", with_commands({flag("opt"), flag("opt")}),
     [](InputEditor& editor) { editor.set_task("opt", {{"tight"}}); },
     with_commands({list("opt", {{"tight"}}), flag("opt")})},
    {"OneTaskTakesThePlaceOfAnotherAfterItsRemoval",
     with_commands({list("opt", {{"tight"}}), assignment("model", "m1")}),
     [](InputEditor& editor) {
       editor.remove_command("opt");
       editor.set_task("freq");
     },
     with_commands({assignment("model", "m1"), flag("freq")})},
};

INSTANTIATE_TEST_SUITE_P(Table, SetTask, testing::ValuesIn(set_task_rows), row_name<EditCase>);

TEST(SetTask, TakesTheParameterListOver) {
  std::vector<CommandParameter> parameters = {{"maxiter", "50"}};
  const CommandParameter* const first = parameters.data();
  InputEditor editor{QuillInput()};
  editor.set_task("opt", std::move(parameters));
  EXPECT_EQ(editor.document().commands.front().parameters.data(), first);
}

}  // namespace

}  // namespace kelp::input::quill
