// Makes calls of InputEditor and InputBuilder, so that the tests of the Python package can compare
// what the same calls make there. Each line of the input is a call; the first one of a sequence is
// `InputEditor` and a document, or `InputBuilder`. Each gets a line of JSON: what the call
// returned, and the document after it.

#include <iostream>
#include <map>
#include <string>
#include <tuple>
#include <variant>
#include <vector>

#include "call_answers.hpp"
#include "call_words.hpp"
#include "kelp/core/geometry.hpp"
#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill::tests {

namespace {

/// Makes a call with the arguments that are next, and returns the JSON of its result.
template <typename Target>
using Call = std::string (*)(Target& target, CallWords& words);
template <typename Target>
using Calls = std::map<std::string, Call<Target>>;

kelp::core::Geometry core_geometry(const std::vector<AtomRecord>& atoms) {
  kelp::core::Geometry geometry;
  for (const AtomRecord& atom : atoms) {
    geometry.atoms.push_back({atom.symbol, atom.x, atom.y, atom.z});
  }
  return geometry;
}

// Arguments are read into a tuple in braces first, because their order is then that of the words.

template <typename Target>
void add_outputs(Calls<Target>& calls) {
  calls["to_string"] = [](Target& target, CallWords& /*words*/) {
    return json_of(target.to_string());
  };
  calls["write_file"] = [](Target& target, CallWords& words) {
    const std::string path = words.text();
    target.write_file(path);
    return json_of(content_of(path));
  };
}

template <typename Target>
void add_header_changes(Calls<Target>& calls) {
  calls["set_flag"] = [](Target& target, CallWords& words) {
    target.set_flag(words.text());
    return nothing;
  };
  calls["set_assignment"] = [](Target& target, CallWords& words) {
    const auto [name, value] = std::tuple{words.text(), words.text()};
    target.set_assignment(name, value);
    return nothing;
  };
  calls["set_model"] = [](Target& target, CallWords& words) {
    target.set_model(words.text());
    return nothing;
  };
  calls["set_device"] = [](Target& target, CallWords& words) {
    target.set_device(words.text());
    return nothing;
  };
  calls["set_task"] = [](Target& target, CallWords& words) {
    const auto [name, parameters] = std::tuple{words.text(), words.parameters()};
    target.set_task(name, parameters);
    return nothing;
  };
  calls["add_command"] = [](Target& target, CallWords& words) {
    target.add_command(words.command());
    return nothing;
  };
  calls["set_charge_and_multiplicity"] = [](Target& target, CallWords& words) {
    const auto [charge, multiplicity] = std::tuple{words.number(), words.number()};
    target.set_charge_and_multiplicity(charge, multiplicity);
    return nothing;
  };
  calls["clear_charge_and_multiplicity"] = [](Target& target, CallWords& /*words*/) {
    target.clear_charge_and_multiplicity();
    return nothing;
  };
}

template <typename Target>
void add_geometry_changes(Calls<Target>& calls) {
  calls["set_geometry"] = [](Target& target, CallWords& words) {
    target.set_geometry(words.atoms());
    return nothing;
  };
  calls["set_geometry_of_arrays"] = [](Target& target, CallWords& words) {
    target.set_geometry(core_geometry(words.atoms()));
    return nothing;
  };
  calls["set_xyz_files"] = [](Target& target, CallWords& words) {
    target.set_xyz_files(words.texts());
    return nothing;
  };
  calls["set_xyz_file"] = [](Target& target, CallWords& words) {
    target.set_xyz_file(words.text());
    return nothing;
  };
  calls["set_xyz_trajectory"] = [](Target& target, CallWords& words) {
    target.set_xyz_trajectory(words.text());
    return nothing;
  };
  calls["add_atom"] = [](Target& target, CallWords& words) {
    target.add_atom(words.atom());
    return nothing;
  };
}

template <typename Target>
void add_post_line_changes(Calls<Target>& calls) {
  calls["add_post_command"] = [](Target& target, CallWords& words) {
    target.add_post_command(words.post_command());
    return nothing;
  };
  calls["add_atom_constraint"] = [](Target& target, CallWords& words) {
    target.add_atom_constraint(words.number());
    return nothing;
  };
  calls["add_bond_constraint"] = [](Target& target, CallWords& words) {
    const auto [a, b] = std::tuple{words.number(), words.number()};
    target.add_bond_constraint(a, b);
    return nothing;
  };
  calls["add_angle_constraint"] = [](Target& target, CallWords& words) {
    const auto [a, b, c] = std::tuple{words.number(), words.number(), words.number()};
    target.add_angle_constraint(a, b, c);
    return nothing;
  };
  calls["add_dihedral_constraint"] = [](Target& target, CallWords& words) {
    const auto [a, b, c, d] =
        std::tuple{words.number(), words.number(), words.number(), words.number()};
    target.add_dihedral_constraint(a, b, c, d);
    return nothing;
  };
  calls["add_scan"] = [](Target& target, CallWords& words) {
    const auto [atoms, value, steps] = std::tuple{words.numbers(), words.real(), words.number()};
    target.add_scan(atoms, value, steps);
    return nothing;
  };
  calls["set_post_file"] = [](Target& target, CallWords& words) {
    target.set_post_file(words.text());
    return nothing;
  };
}

template <typename Target>
Calls<Target> calls_of_both() {
  Calls<Target> calls;
  add_outputs(calls);
  add_header_changes(calls);
  add_geometry_changes(calls);
  add_post_line_changes(calls);
  return calls;
}

void add_questions(Calls<InputEditor>& calls) {
  calls["has_command"] = [](InputEditor& target, CallWords& words) {
    return json_of(target.has_command(words.text()));
  };
  calls["has_task_command"] = [](InputEditor& target, CallWords& /*words*/) {
    return json_of(target.has_task_command());
  };
  calls["command_names"] = [](InputEditor& target, CallWords& /*words*/) {
    return json_of(target.command_names());
  };
  calls["get_assignment"] = [](InputEditor& target, CallWords& words) {
    return json_of(target.get_assignment(words.text()));
  };
  calls["model"] = [](InputEditor& target, CallWords& /*words*/) {
    return json_of(target.model());
  };
  calls["device"] = [](InputEditor& target, CallWords& /*words*/) {
    return json_of(target.device());
  };
  calls["get_parameter"] = [](InputEditor& target, CallWords& words) {
    const auto [command, parameter, occurrence] =
        std::tuple{words.text(), words.text(), words.count()};
    return json_of(target.get_parameter(command, parameter, occurrence));
  };
}

void add_changes_by_occurrence(Calls<InputEditor>& calls) {
  calls["set_parameter"] = [](InputEditor& target, CallWords& words) {
    const auto [command, parameter, value, occurrence] =
        std::tuple{words.text(), words.text(), words.text(), words.count()};
    target.set_parameter(command, parameter, value, occurrence);
    return nothing;
  };
  calls["remove_parameter"] = [](InputEditor& target, CallWords& words) {
    const auto [command, parameter, occurrence] =
        std::tuple{words.text(), words.text(), words.count()};
    return json_of(target.remove_parameter(command, parameter, occurrence));
  };
  calls["remove_command"] = [](InputEditor& target, CallWords& words) {
    const auto [name, occurrence] = std::tuple{words.text(), words.optional_count()};
    return json_of(target.remove_command(name, occurrence));
  };
  calls["clear_post_commands"] = [](InputEditor& target, CallWords& /*words*/) {
    target.clear_post_commands();
    return nothing;
  };
}

Calls<InputEditor> calls_of_editor() {
  Calls<InputEditor> calls = calls_of_both<InputEditor>();
  add_questions(calls);
  add_changes_by_occurrence(calls);
  return calls;
}

Calls<InputBuilder> calls_of_builder() {
  Calls<InputBuilder> calls = calls_of_both<InputBuilder>();
  calls["set_task_parameter"] = [](InputBuilder& builder, CallWords& words) {
    const auto [command, key, value] = std::tuple{words.text(), words.text(), words.text()};
    builder.set_task_parameter(command, key, value);
    return nothing;
  };
  return calls;
}

const Calls<InputEditor>& calls_for(const InputEditor& /*editor*/) {
  static const Calls<InputEditor> calls = calls_of_editor();
  return calls;
}

const Calls<InputBuilder>& calls_for(const InputBuilder& /*builder*/) {
  static const Calls<InputBuilder> calls = calls_of_builder();
  return calls;
}

void run() {
  std::variant<InputBuilder, InputEditor> target;
  for (std::string line; std::getline(std::cin, line);) {
    CallWords words(line);
    const std::string name = words.word();
    std::string result = nothing;
    if (name == "InputBuilder") {
      target = InputBuilder();
    } else if (name == "InputEditor") {
      target = InputEditor(words.document());
    } else {
      result = std::visit([&](auto& one) { return calls_for(one).at(name)(one, words); }, target);
    }
    const QuillInput& document =
        std::visit([](const auto& one) -> const QuillInput& { return one.document(); }, target);
    std::cout << "[" << result << ", " << json_of(document) << "]" << std::endl;
  }
}

}  // namespace

}  // namespace kelp::input::quill::tests

int main() { kelp::input::quill::tests::run(); }
