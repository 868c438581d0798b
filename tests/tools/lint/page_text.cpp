#include "tools/lint/page_text.hpp"

#include <sstream>

#include "tools/lint/escapes.hpp"

namespace kelp::input::quill::lint {

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
