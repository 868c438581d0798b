#include "edit_support/part_words.hpp"

#include <charconv>

#include "edit_support/line_account.hpp"

namespace kelp::input::quill::edit_support {

std::string quoted(std::string_view text) {
  std::string out = "'";
  out += text;
  out += '\'';
  return out;
}

std::string with_article(std::string_view noun) {
  constexpr std::string_view letters_after_an = "aeiouX";  // X for XYZ, which begins with a vowel
  if (noun == describe(PostCommandKind::Raw)) return std::string(noun);
  std::string out = letters_after_an.find(noun.front()) != std::string_view::npos ? "an " : "a ";
  out += noun;
  return out;
}

std::string words(const std::string& text) { return quoted(text); }

std::string words(double number) {
  char text[32];  // the shortest form that reads back has at most 24 characters
  return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
}

std::string words(std::int32_t number) { return std::to_string(number); }

std::string words(std::size_t number) { return std::to_string(number); }

std::string words(const std::vector<std::int32_t>& numbers) {
  if (numbers.empty()) return "absent";
  std::string out;
  for (const std::int32_t number : numbers) {
    if (!out.empty()) out += ' ';
    out += std::to_string(number);
  }
  return out;
}

std::string words(HeaderCommandKind kind) {
  switch (kind) {
    case HeaderCommandKind::Flag:
      return "a flag";
    case HeaderCommandKind::Assignment:
      return "an assignment";
    case HeaderCommandKind::ParameterList:
      return "a parameter list";
  }
  return "of unknown kind";
}

std::string words(GeometryKind kind) {
  switch (kind) {
    case GeometryKind::None:
      return "absent";
    case GeometryKind::Atoms:
      return "a list of atoms";
    case GeometryKind::XyzFile:
      return "a list of XYZ references";
    case GeometryKind::XyzTrajectory:
      return "a trajectory reference";
  }
  return "of unknown kind";
}

std::string words(PostCommandKind kind) { return with_article(describe(kind)); }

}  // namespace kelp::input::quill::edit_support
