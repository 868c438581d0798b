#include "tools/quill-inp/editing/random_edits.hpp"

#include <string_view>

namespace kelp::input::quill::tool {

namespace {

const std::vector<std::string> command_names = {"opt",      "OPT", "freq", "model",
                                                "##Device", "a.b", ""};
const std::vector<std::string> parameter_names = {"maxiter", "MaxIter", "tight", "a.b", "x y"};
const std::vector<std::string> values = {"50",       "m1",       "a,b",  " blanks ", "",
                                         "'q'",      "\"q\"",    "it's", "x(y)",     "a=b",
                                         "\xC3\xA4", "\xFF\x1B", "')\"", "#"};

std::string random_header_line(Random& random) {
  const std::string name = random.any_of(command_names);
  const std::string blank = random.one_in(3) ? " " : "";
  switch (random.below(4)) {
    case 0:
      return blank + "#" + blank + name;
    case 1:
      return "#" + name + blank + "=" + blank + random.any_of(values);
    case 2:
      return "#" + name + blank + "(" + random.any_of(parameter_names) + "=" + blank +
             random.any_of(values) + "," + blank + random.any_of(parameter_names) + ")" +
             (random.one_in(8) ? " and more" : "");
    default:
      return "#" + name + "(" + random.any_of(parameter_names) + (random.one_in(4) ? "" : ")");
  }
}

std::string random_coordinate_line(Random& random, std::size_t form) {
  if (form == 1)
    return random.one_in(5) ? "XYZ" : "xyz  some file " + std::to_string(random.below(9));
  return random.any_of<std::string>({"H", "he", "C", "D", "B"}) + "  " +
         random.any_of<std::string>({"0", "1.5", "-0.123456789", "1d2"}) + " 0 " +
         std::to_string(random.below(5));
}

std::string random_post_line(Random& random) {
  return random.any_of<std::string>({"B 1 2", "b  1  2", "A 1 2 3", "D 1 2 3 4", "C x",
                                     "S 1 2 1.5 10", "POST a b", "free text", "#late", "0 1",
                                     "XYZ late", "B 1 2 3"});
}

std::string escaped(const std::string& name) {
  std::string text;
  for (const char c : name) {
    if (std::string_view(".[]=@\\").find(c) != std::string_view::npos) text += '\\';
    text += c;
  }
  return text.empty() ? "#" : text;
}

EditCall random_set(Random& random) {
  EditCall call{{"set"}, {}};
  for (std::size_t i = 1 + random.below(3); i > 0; --i) {
    const std::string name = random.any_of(command_names);
    const std::string value = random.any_of(values);
    // One leading "#" of a name on the command line is that of the line.
    const std::string stored = name.substr(0, 1) == "#" ? name.substr(1) : name;
    if (random.one_in(3)) {
      call.arguments.push_back(escaped(name) + "=" + value);
      call.meaning.emplace_back([=](InputEditor& editor) { editor.set_assignment(stored, value); });
    } else {
      const std::string parameter = random.any_of(parameter_names);
      call.arguments.push_back(escaped(name) + "." + escaped(parameter) + "=" + value);
      call.meaning.emplace_back(
          [=](InputEditor& editor) { editor.set_parameter(stored, parameter, value); });
    }
  }
  if (random.one_in(4)) {
    call.arguments.push_back("@charge=" + std::to_string(random.below(3)));
    const int charge = call.arguments.back().back() - '0';
    call.meaning.emplace_back([=](InputEditor& editor) {
      editor.set_charge_and_multiplicity(charge, editor.document().geometry.multiplicity);
    });
  }
  if (random.one_in(5)) {
    call.arguments.insert(call.arguments.end(), {"--xyz", "a b", "c"});
    call.meaning.emplace_back([](InputEditor& editor) { editor.set_xyz_files({"a b", "c"}); });
  }
  return call;
}

EditCall random_unset(Random& random) {
  const std::string name = random.any_of(command_names);
  const std::string stored = name.substr(0, 1) == "#" ? name.substr(1) : name;
  switch (random.below(3)) {
    case 0:
      return {{"unset", escaped(name)},
              {[=](InputEditor& editor) { editor.remove_command(stored); }}};
    case 1: {
      const std::string parameter = random.any_of(parameter_names);
      return {{"unset", escaped(name) + "." + escaped(parameter)},
              {[=](InputEditor& editor) { editor.remove_parameter(stored, parameter); }}};
    }
    default:
      return {{"unset", "@charge"},
              {[](InputEditor& editor) { editor.clear_charge_and_multiplicity(); }}};
  }
}

EditCall random_add(Random& random) {
  EditCall call{{"add"}, {}};
  for (std::size_t i = 1 + random.below(3); i > 0; --i) {
    switch (random.below(4)) {
      case 0:
        call.arguments.insert(call.arguments.end(), {"--bond", "3,4"});
        call.meaning.emplace_back([](InputEditor& editor) { editor.add_bond_constraint(3, 4); });
        break;
      case 1:
        call.arguments.insert(call.arguments.end(), {"--angle", "1,2,3"});
        call.meaning.emplace_back(
            [](InputEditor& editor) { editor.add_angle_constraint(1, 2, 3); });
        break;
      case 2:
        call.arguments.insert(call.arguments.end(), {"--scan", "1,2:2.5:7"});
        call.meaning.emplace_back([](InputEditor& editor) { editor.add_scan({1, 2}, 2.5, 7); });
        break;
      default: {
        const std::string text = random.any_of<std::string>({"text", "B 1 2", "0 1", "[x]", " a"});
        call.arguments.insert(call.arguments.end(), {"--raw", text});
        call.meaning.emplace_back([=](InputEditor& editor) {
          editor.add_post_command(PostCommand{PostCommandKind::Raw, {}, {}, {}, "", text});
        });
      }
    }
  }
  return call;
}

}  // namespace

std::string random_input(Random& random) {
  std::vector<std::string> lines;
  const auto add = [&](const std::string& line) {
    lines.push_back(line);
    if (random.one_in(6)) lines.push_back(random.one_in(2) ? "" : " \t");
  };
  for (std::size_t i = random.below(5); i > 0; --i) add(random_header_line(random));
  if (!random.one_in(4)) add(random.one_in(2) ? "0 1" : " -1\t 2 ");
  const std::size_t form = random.below(4);
  if (form == 2) add("XYZTRAJ path.xyz");
  if (form < 2) {
    for (std::size_t i = 1 + random.below(4); i > 0; --i) add(random_coordinate_line(random, form));
  }
  for (std::size_t i = random.below(4); i > 0; --i) add(random_post_line(random));

  const std::string line_end = random.one_in(3) ? "\r\n" : "\n";
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const bool ends = i + 1 < lines.size() || !random.one_in(3);
    text += lines[i] + (ends ? line_end : "");
  }
  return text;
}

EditCall random_call(Random& random) {
  EditCall call = random.one_in(4)   ? random_unset(random)
                  : random.one_in(3) ? random_add(random)
                                     : random_set(random);
  return call;
}

}  // namespace kelp::input::quill::tool
