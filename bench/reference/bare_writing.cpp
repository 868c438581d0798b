#include <charconv>
#include <cstddef>
#include <iomanip>
#include <locale>
#include <sstream>
#include <string>

#include "reference/bare_loops.hpp"

namespace kelp::input::quill::bench {

namespace {

constexpr std::size_t symbol_width = 3;
constexpr std::size_t coordinate_width = 14;
constexpr std::size_t longest_coordinate = 320;
constexpr int decimals = 6;

void append_integer(std::string& out, int number) {
  char text[12];
  out.append(text, std::to_chars(text, text + sizeof text, number).ptr);
}

void append_coordinate(std::string& out, double coordinate) {
  char text[longest_coordinate];
  const char* const end =
      std::to_chars(text, text + sizeof text, coordinate, std::chars_format::fixed, decimals).ptr;
  const auto length = static_cast<std::size_t>(end - text);
  if (length < coordinate_width) out.append(coordinate_width - length, ' ');
  out.append(text, length);
}

void append_parameters(std::string& out, const std::vector<CommandParameter>& parameters) {
  const char* separator = "(";
  for (const CommandParameter& parameter : parameters) {
    out += separator;
    out += parameter.name;
    if (parameter.value) {
      out += '=';
      out += *parameter.value;
    }
    separator = ", ";
  }
  out += ')';
}

void append_command(std::string& out, const HeaderCommand& command) {
  out += '#';
  out += command.name;
  if (command.kind == HeaderCommandKind::Assignment) {
    out += " = ";
    out += *command.value;
  } else if (command.kind == HeaderCommandKind::ParameterList) {
    append_parameters(out, command.parameters);
  }
  out += '\n';
}

void append_atom(std::string& out, const AtomRecord& atom) {
  out += atom.symbol;
  if (atom.symbol.size() < symbol_width) out.append(symbol_width - atom.symbol.size(), ' ');
  append_coordinate(out, atom.x);
  append_coordinate(out, atom.y);
  append_coordinate(out, atom.z);
  out += '\n';
}

}  // namespace

std::string write_with_to_chars(const QuillInput& input) {
  constexpr std::size_t atom_line = symbol_width + 3 * coordinate_width + 1;
  constexpr std::size_t usual_command = 48;
  std::string out;
  out.reserve(input.commands.size() * usual_command + input.geometry.atoms.size() * atom_line + 16);
  for (const HeaderCommand& command : input.commands) append_command(out, command);
  if (!input.commands.empty()) out += '\n';
  append_integer(out, input.geometry.charge);
  out += ' ';
  append_integer(out, input.geometry.multiplicity);
  out += '\n';
  for (const AtomRecord& atom : input.geometry.atoms) append_atom(out, atom);
  return out;
}

std::string write_with_stream(const QuillInput& input) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out << input.geometry.charge << ' ' << input.geometry.multiplicity << '\n';
  out << std::fixed << std::setprecision(decimals);
  for (const AtomRecord& atom : input.geometry.atoms) {
    out << std::left << std::setw(symbol_width) << atom.symbol << std::right;
    for (const double coordinate : {atom.x, atom.y, atom.z})
      out << std::setw(coordinate_width) << coordinate;
    out << '\n';
  }
  return out.str();
}

}  // namespace kelp::input::quill::bench
