#include "tools/lint/page_text.hpp"

#include <cstddef>
#include <sstream>

namespace kelp::input::quill::lint {

namespace {

/// UTF-8 of a character beyond ASCII in the basic plane.
std::string utf8(unsigned code_point) {
  std::string bytes;
  if (code_point >= 0x800) {
    bytes += static_cast<char>(0xE0U | code_point >> 12U);
    bytes += static_cast<char>(0x80U | (code_point >> 6U & 0x3FU));
  } else {
    bytes += static_cast<char>(0xC0U | code_point >> 6U);
  }
  bytes += static_cast<char>(0x80U | (code_point & 0x3FU));
  return bytes;
}

unsigned hexadecimal(const std::string& digits) {
  return static_cast<unsigned>(std::stoul(digits, nullptr, 16));
}

std::string unescaped(const std::string& text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\') {
      bytes += text[i];
    } else if (text[++i] == 'r') {
      bytes += '\r';
    } else if (text[i] == 'x') {
      bytes += static_cast<char>(hexadecimal(text.substr(i + 1, 2)));
      i += 2;
    } else {
      bytes += utf8(hexadecimal(text.substr(i + 1, 4)));
      i += 4;
    }
  }
  return bytes;
}

}  // namespace

std::vector<std::string> headings_of(std::string_view page) {
  std::vector<std::string> headings;
  std::istringstream lines{std::string(page)};
  bool is_code = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.compare(0, 3, "```") == 0) is_code = !is_code;
    if (!is_code && line.compare(0, 1, "#") == 0) headings.push_back(line);
  }
  return headings;
}

std::string input_below(std::string_view page, std::string_view heading) {
  std::istringstream lines{std::string(page)};
  std::string line;
  while (std::getline(lines, line) && line != heading) continue;
  while (std::getline(lines, line) && line.compare(0, 3, "```") != 0) continue;
  const bool is_escaped = line == "```escaped";
  std::string input;
  while (std::getline(lines, line) && line != "```") input += line + "\n";
  return is_escaped ? unescaped(input) : input;
}

Options options_of_pages() {
  Options options;
  options.read_reference = [](const std::string& path) {
    using State = ReferencedFile::State;
    if (path == "no_such_file.xyz") return ReferencedFile{State::Missing};
    if (path == "structures") return ReferencedFile{State::Unreadable, "is a folder"};
    if (path == "notes.txt") return ReferencedFile{State::Read, {}, "Two atoms\n"};
    return ReferencedFile{State::Read, {}, "2\n\nH 0 0 0\nH 0 0 0.741\n"};
  };
  return options;
}

}  // namespace kelp::input::quill::lint
