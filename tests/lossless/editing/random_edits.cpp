#include "lossless/editing/random_edits.hpp"

#include <string_view>

namespace kelp::input::quill::lossless {

namespace {

constexpr std::string_view header_lines[] = {
    "#opt",
    "#opt(maxiter=50, tight)",
    "  # OPT ( maxiter = '5,0' )  ",
    "#opt(x=\"a)b\", y= ' z ')",
    "#opt(tight",
    "#opt(a=1) trailing text",
    "#model = m1",
    "#model='b3 lyp'",
    "# Model  =  \"\"",
    "#device=gpu(0)",
    "##freq",
    "#",
    "# = 5",
    "#(a=1,,=2,b)",
    "#freq opt",
    "#opt(it's, \"x)",
    "#opt()",
    "#opt(a='1', a=2, 'q r')",
};

constexpr std::string_view charge_lines[] = {"0 1", "  -1\t2 ", "+1 0", "0 1.0"};

constexpr std::string_view coordinate_lines[] = {
    "O 0 0 0.1173", "  h  0.75720000 1d-1 -.5  ", "Xx 1 2 3", "B 1 2 3",       "Cl 1e300 nan -0.0",
    "XYZ a.xyz",    "xyz   my file.xyz ",         "XYZ",      "XYZTRAJ t.xyz", "XYZTRAJ",
};

constexpr std::string_view post_lines[] = {
    "B 1 2",      "b 1 x", "A 1 2 3",        "A 1 2 3.5", "D 1 2 3 4", "S 1 2 1.23456789 10",
    "S 1 2 3 4 ", "C 1",   "POST out file ", "POST",      "#late",     "free  text",
    "0 1",        "XYZ b", "O 0 0 0",        "1 2",       "keep\rme",  "XYZTRAJ u",
};

constexpr std::string_view blank_lines[] = {"", "", "  ", "\t", "\r", "\v \f"};

}  // namespace

std::string RandomEdits::text() {
  has_crlf_ = one_in(3);
  has_mixed_ends_ = one_in(4);
  std::string text;
  for (std::size_t section = 0; section < 4; ++section) {
    // Sections of no lines are as frequent as those of one, two and three.
    for (std::size_t count = below(section == 1 ? 2 : 4); count > 0; --count) {
      while (one_in(4)) text += std::string(any_of(blank_lines)) + terminator();
      text += line(one_in(20) ? below(4) : section) + terminator();
    }
  }
  while (one_in(4)) text += std::string(any_of(blank_lines)) + terminator();
  while (one_in(3) && !text.empty() && (text.back() == '\n' || text.back() == '\r'))
    text.pop_back();
  return text;
}

std::string RandomEdits::line(std::size_t section) {
  switch (section) {
    case 0:
      return std::string(any_of(header_lines));
    case 1:
      return std::string(any_of(charge_lines));
    case 2:
      return std::string(any_of(coordinate_lines));
    default:
      return std::string(any_of(post_lines));
  }
}

std::string RandomEdits::terminator() {
  return (has_mixed_ends_ ? one_in(2) : has_crlf_) ? "\r\n" : "\n";
}

std::string RandomEdits::command_name() {
  constexpr std::string_view names[] = {"opt",  "opt",    "OPT",  "model", "device",
                                        "freq", "freq a", "#sub", "",      " sp "};
  return std::string(any_of(names));
}

std::string RandomEdits::parameter_name() {
  constexpr std::string_view names[] = {"maxiter", "maxiter", "tight", "a",
                                        "X",       "'q r'",   "it's",  "a,b"};
  return std::string(any_of(names));
}

std::string RandomEdits::value() {
  constexpr std::string_view values[] = {
      "50",   "50",        "m2", "b3 lyp", "",    " ",      "a,b", "'a'",     "\"a\"",
      "it's", "\"",        ")",  "(1)",    "a=b", "a\n",    "x\r", "é",       "'\"",
      "\"',", "'a' , \"b", "#",  "a'",     "\v",  "a\nB 1", "1 2", "it's,\"", "a\"b'c,d"};
  if (one_in(30)) return std::string(1, '\0');
  return std::string(any_of(values));
}

std::string RandomEdits::path() {
  constexpr std::string_view paths[] = {"b.xyz", "b.xyz", "a.xyz", "my file.xyz", "",
                                        " a",    "a\nb",  "'q q'", "ü/x.xyz",     "a\r"};
  return std::string(any_of(paths));
}

double RandomEdits::coordinate() { return (static_cast<double>(below(20'000'001)) - 1e7) / 1e6; }

AtomRecord RandomEdits::atom() {
  constexpr std::string_view symbols[] = {"O", "H", "Cl", "Xx", "C", "Bq", "Uuo"};
  if (one_in(3)) return AtomRecord{"O", 0.0, 0.0, 0.1173};  // as in the text
  AtomRecord atom{std::string(any_of(symbols)), coordinate(), coordinate(), coordinate()};
  if (one_in(20)) atom.symbol = one_in(2) ? "cl" : "C1";
  return atom;
}

PostCommand RandomEdits::post_command() {
  constexpr std::string_view texts[] = {"free text", "#late", "O 0 0 0", "XYZ c",  "1 2", "B 1 x",
                                        "",          " x",    "a\nb",    "B 1 2",  "x\r", "XYZTRAJ",
                                        "#",         "é",     "A 1 2 3", "C 1 2 3"};
  const auto number = [this] { return static_cast<std::int32_t>(below(9)) - 1; };
  switch (below(7)) {
    case 0:
      return PostCommand(PostCommandKind::AtomConstraint, {number()});
    case 1:
      return PostCommand(PostCommandKind::BondConstraint, {number(), number()});
    case 2:
      return PostCommand(PostCommandKind::AngleConstraint, {number(), number(), number()});
    case 3:
      return PostCommand(PostCommandKind::DihedralConstraint,
                         {number(), number(), number(), number()});
    case 4:
      return PostCommand(PostCommandKind::Scan, {number(), number()},
                         static_cast<double>(below(1'000'000)) / 1e3, number());
    case 5:
      return PostCommand(PostCommandKind::PostFile, {}, std::nullopt, std::nullopt, path());
    default:
      return PostCommand(PostCommandKind::Raw, {}, std::nullopt, std::nullopt, {},
                         std::string(any_of(texts)));
  }
}

Edit RandomEdits::header_edit() {
  switch (below(8)) {
    case 0:
      return SetFlag{command_name()};
    case 1:
      return SetAssignment{command_name(), value()};
    case 2:
      return SetTask{command_name(), {{parameter_name(), value()}, {parameter_name()}}};
    case 3:
    case 4:
      return SetParameter{command_name(), parameter_name(), value(), below(2)};
    case 5:
      return RemoveParameter{command_name(), parameter_name(), below(2)};
    case 6:
      if (one_in(2)) return ReplaceCommand{below(3), HeaderCommand(command_name())};
      return AddCommand{HeaderCommand(command_name(), HeaderCommandKind::Assignment, value())};
    default:
      if (one_in(2)) return RemoveCommand{command_name()};
      return RemoveCommand{command_name(), below(3)};
  }
}

Edit RandomEdits::geometry_edit() {
  const auto number = [this] { return static_cast<std::int32_t>(below(3)); };
  switch (below(6)) {
    case 0:
      return SetChargeAndMultiplicity{number(), number()};
    case 1:
      return SetChargeAndMultiplicity{number()};
    case 2:
      return ClearChargeAndMultiplicity{};
    case 3:
      return SetTrajectory{path()};
    case 4: {
      std::vector<std::string> files(below(4));
      for (std::string& file : files) file = path();
      return SetXyzFiles{files};
    }
    default: {
      std::vector<AtomRecord> atoms(below(5));
      for (AtomRecord& entry : atoms) entry = atom();
      return SetAtoms{atoms};
    }
  }
}

std::vector<Edit> RandomEdits::edits() {
  std::vector<Edit> edits;
  if (one_in(4)) edits.emplace_back(RemovePostCommands{{one_in(2), one_in(2), one_in(2)}});
  for (std::size_t count = 1 + below(3); count > 0; --count) {
    switch (below(4)) {
      case 0:
        edits.emplace_back(geometry_edit());
        break;
      case 1:
        edits.emplace_back(AddPostCommand{post_command()});
        break;
      default:
        edits.emplace_back(header_edit());
    }
  }
  return edits;
}

}  // namespace kelp::input::quill::lossless
