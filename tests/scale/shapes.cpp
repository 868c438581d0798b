#include "scale/shapes.hpp"

#include <cstdint>
#include <ostream>

namespace kelp::input::quill {

namespace {

constexpr std::size_t thousand = 1000;
constexpr std::size_t million = thousand * thousand;

const HeaderCommand& command_of(const ParseResult& result) { return result.input.commands.at(0); }

const PostCommand& post_command_of(const ParseResult& result) {
  return result.input.post_commands.at(0);
}

bool has_commands(const ParseResult& result, std::size_t n) {
  return result.input.commands.size() == n;
}

bool has_name_of(const ParseResult& result, std::size_t n) {
  return command_of(result).name.size() == n;
}

bool has_value_of(const ParseResult& result, std::size_t n) {
  return command_of(result).value.value().size() == n;
}

bool has_parameters(const ParseResult& result, std::size_t n) {
  return command_of(result).parameters.size() == n;
}

bool has_parameter_of(const ParseResult& result, std::size_t n) {
  return command_of(result).parameters.at(0).name.size() == n;
}

bool has_parameter_value_of(const ParseResult& result, std::size_t n) {
  return command_of(result).parameters.at(0).value.value().size() == n;
}

bool has_one_parameter(const ParseResult& result, std::size_t /*size*/) {
  return has_parameters(result, 1);
}

bool has_atoms(const ParseResult& result, std::size_t n) {
  return result.input.geometry.atoms.size() == n;
}

bool has_one_atom(const ParseResult& result, std::size_t /*size*/) { return has_atoms(result, 1); }

bool has_symbol_of(const ParseResult& result, std::size_t n) {
  return result.input.geometry.atoms.at(0).symbol.size() == n;
}

bool has_paths(const ParseResult& result, std::size_t n) {
  return result.input.geometry.xyz_files.size() == n;
}

bool has_path_of(const ParseResult& result, std::size_t n) {
  return result.input.geometry.xyz_files.at(0).size() == n;
}

bool has_post_commands(const ParseResult& result, std::size_t n) {
  return result.input.post_commands.size() == n;
}

bool has_raw_text_of(const ParseResult& result, std::size_t n) {
  return post_command_of(result).raw_text.size() == n;
}

bool has_post_file_of(const ParseResult& result, std::size_t n) {
  return post_command_of(result).post_file.size() == n;
}

bool has_short_post_file(const ParseResult& result, std::size_t /*size*/) {
  return has_post_file_of(result, 1);
}

bool has_words(const ParseResult& result, std::size_t n) {
  return has_post_file_of(result, 2 * n - 1);
}

bool has_one_atom_number(const ParseResult& result, std::size_t /*size*/) {
  return post_command_of(result).atom_indices == std::vector<std::int32_t>{1};
}

bool has_warnings(const ParseResult& result, std::size_t n) { return result.warnings.size() == n; }

bool warns_behind(const ParseResult& result, std::size_t n) {
  return result.warnings.at(0) == "Line " + std::to_string(n + 1) + ": empty QUILL header command";
}

constexpr std::string_view nul("\0", 1);

}  // namespace

void PrintTo(const Shape& shape, std::ostream* out) { *out << shape.name; }

std::string repeated(std::string_view piece, std::size_t count) {
  std::string text;
  text.reserve(piece.size() * count);
  for (; count > 0; --count) text += piece;
  return text;
}

const std::vector<Shape>& shapes() {
  static const std::vector<Shape> all = {
      // Many lines.
      {"EmptyLines", 40 * thousand, 10 * million,
       [](std::size_t n) { return repeated("\n", n) + "#"; }, warns_behind},
      {"EmptyHeaderLines", 4 * thousand, 1 * million,
       [](std::size_t n) { return repeated("#\n", n); }, has_commands},
      {"HeaderLines", 2 * thousand, 1 * million,
       [](std::size_t n) { return repeated("#opt(maxiter=50, tight)\n", n); }, has_commands},
      {"AtomLines", 2 * thousand, 4 * million,
       [](std::size_t n) { return repeated("C   -0.729000   -2.609047    2.312980\n", n); },
       has_atoms},
      {"AtomsOfNoElement", 4 * thousand, 1 * million,
       [](std::size_t n) { return repeated("Xx 0 0 0\n", n); }, has_warnings},
      {"References", 4 * thousand, 2 * million,
       [](std::size_t n) { return repeated("XYZ a.xyz\n", n); }, has_paths},
      {"ReferencesWithoutPaths", 4 * thousand, 2 * million,
       [](std::size_t n) { return repeated("XYZ\n", n); }, has_warnings},
      {"Constraints", 4 * thousand, 2 * million,
       [](std::size_t n) { return "0 1\n" + repeated("B 1 2\n", n); }, has_post_commands},
      {"MalformedConstraints", 4 * thousand, 2 * million,
       [](std::size_t n) { return "0 1\n" + repeated("B 1 x\n", n); }, has_warnings},
      {"LinesOfText", 4 * thousand, 4 * million,
       [](std::size_t n) { return "0 1\n" + repeated("x\n", n); }, has_post_commands},

      // One line.
      {"OneLongWord", 40 * thousand, 256 * million, [](std::size_t n) { return repeated("x", n); },
       has_raw_text_of},
      {"NulBytes", 40 * thousand, 256 * million, [](std::size_t n) { return repeated(nul, n); },
       has_raw_text_of},
      {"Words", 10 * thousand, 16 * million,
       [](std::size_t n) { return "POST" + repeated(" x", n); }, has_words},
      {"BlanksInside", 40 * thousand, 128 * million,
       [](std::size_t n) { return "a" + repeated(" ", n - 2) + "b"; }, has_raw_text_of},
      {"BlanksAround", 20 * thousand, 64 * million,
       [](std::size_t n) {
         return repeated("\v", n) + "#a(" + repeated("\f", n) + "b" + repeated("\r", n) + ")" +
                repeated("\t", n);
       },
       has_one_parameter},
      {"HashSigns", 40 * thousand, 128 * million,
       [](std::size_t n) { return "#" + repeated("#", n); }, has_name_of},
      {"EqualsSigns", 40 * thousand, 128 * million,
       [](std::size_t n) { return "#a=" + repeated("=", n); }, has_value_of},
      {"AQuotedValue", 40 * thousand, 128 * million,
       [](std::size_t n) { return "#a = '" + repeated("'", n) + "'"; }, has_value_of},
      {"OpeningParentheses", 40 * thousand, 64 * million,
       [](std::size_t n) { return "#a(" + repeated("(", n); }, has_parameter_of},
      {"ClosingParentheses", 40 * thousand, 64 * million,
       [](std::size_t n) { return "#a(" + repeated(")", n) + ")"; }, has_parameter_of},
      {"Parameters", 4 * thousand, 1 * million,
       [](std::size_t n) { return "#a(" + repeated("b=c, ", n) + ")"; }, has_parameters},
      {"Commas", 20 * thousand, 16 * million,
       [](std::size_t n) { return "#a(" + repeated(",", n) + "b)"; }, has_one_parameter},
      {"Quotes", 40 * thousand, 64 * million,
       [](std::size_t n) { return "#a(" + repeated("'", n) + ")"; }, has_parameter_of},
      {"CommasAfterALongName", 20 * thousand, 16 * million,
       [](std::size_t n) { return "#" + repeated("x", n) + "(" + repeated(",", n) + ")"; },
       has_name_of},
      {"CommasInQuotes", 40 * thousand, 64 * million,
       [](std::size_t n) { return "#a(b='" + repeated(",", n) + "')"; }, has_parameter_value_of},
      {"OneLongPath", 40 * thousand, 128 * million,
       [](std::size_t n) { return "XYZ " + repeated("p", n); }, has_path_of},
      {"OneLongPostFile", 40 * thousand, 128 * million,
       [](std::size_t n) { return "POST " + repeated("p", n); }, has_post_file_of},
      {"BlanksBeforeAPostFile", 40 * thousand, 128 * million,
       [](std::size_t n) { return "POST" + repeated(" ", n) + "p"; }, has_short_post_file},
      {"OneLongSymbol", 40 * thousand, 64 * million,
       [](std::size_t n) { return repeated("X", n) + " 0 0 0"; }, has_symbol_of},

      // Numbers of many digits, which are still numbers.
      {"DigitsOfAFraction", 40 * thousand, 64 * million,
       [](std::size_t n) { return "H 0 0 0." + repeated("9", n); }, has_one_atom},
      {"DigitsBeforeAnExponent", 40 * thousand, 64 * million,
       [](std::size_t n) { return "H 0 0 1" + repeated("0", n) + "e-" + std::to_string(n); },
       has_one_atom},
      {"DigitsOfAnExponent", 40 * thousand, 64 * million,
       [](std::size_t n) { return "H 0 0 1d-" + repeated("0", n) + "1"; }, has_one_atom},
      {"LeadingZerosOfAnInteger", 40 * thousand, 64 * million,
       [](std::size_t n) { return "C " + repeated("0", n) + "1"; }, has_one_atom_number},
  };
  return all;
}

}  // namespace kelp::input::quill
