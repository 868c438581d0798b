#include "support/edit_case.hpp"

#include <ostream>
#include <utility>

#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

std::vector<HeaderCommand> some_commands() {
  return {list("opt", {{"maxiter", "50"}, {"tight"}}), assignment("model", "m1")};
}

GeometryBlock some_geometry() {
  return {GeometryKind::Atoms, -1, 2, true, {{"O", 0.0, 0.0, 0.1173}}, {"left-over.xyz"}};
}

std::vector<PostCommand> some_post_commands() {
  return {{PostCommandKind::BondConstraint, {1, 2}},
          {PostCommandKind::Raw, {}, {}, {}, {}, "as it stands"}};
}

}  // namespace

void PrintTo(const EditCase& row, std::ostream* out) { *out << row.name; }

void PrintTo(const RemovalCase& row, std::ostream* out) { *out << row.name; }

void expect_edit(const EditCase& row) {
  InputEditor editor(row.before);
  row.edit(editor);
  EXPECT_EQ(editor.document(), row.after);
}

void expect_removal(const RemovalCase& row) {
  InputEditor editor(row.before);
  EXPECT_EQ(row.remove(editor), row.removed);
  EXPECT_EQ(editor.document(), row.after);
}

HeaderCommand flag(std::string name) { return {std::move(name)}; }

HeaderCommand assignment(std::string name, std::string value) {
  return {std::move(name), HeaderCommandKind::Assignment, std::move(value)};
}

HeaderCommand list(std::string name, std::vector<CommandParameter> parameters) {
  return {std::move(name), HeaderCommandKind::ParameterList, std::nullopt, std::move(parameters)};
}

QuillInput with_commands(std::vector<HeaderCommand> commands) {
  return {std::move(commands), some_geometry(), some_post_commands()};
}

QuillInput with_geometry(GeometryBlock geometry) {
  return {some_commands(), std::move(geometry), some_post_commands()};
}

QuillInput with_post_commands(std::vector<PostCommand> post_commands) {
  return {some_commands(), some_geometry(), std::move(post_commands)};
}

}  // namespace kelp::input::quill
