#ifndef KELP_INPUT_QUILL_TESTS_LANGUAGE_SERVER_MARKS_HPP
#define KELP_INPUT_QUILL_TESTS_LANGUAGE_SERVER_MARKS_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "language_server/features/features.hpp"
#include "tools/language_server/support/snapshots.hpp"

// Texts with places in them: "^" is where the cursor is, and what is between "[[" and "]]" is what
// a feature should answer:
//
//   B ^1 2   and   [[O 0 0 0]]

namespace kelp::input::quill::language_server {

/// A text without its marks, the last place of "^" in it, and the ranges in their order.
struct MarkedSource {
  std::string text = {};
  std::size_t cursor = 0;
  std::vector<lint::Range> ranges = {};
};

inline MarkedSource without_marks(std::string_view marked) {
  MarkedSource source;
  std::vector<std::size_t> begun;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    const std::string_view two = marked.substr(i, 2);
    if (two == "[[") {
      begun.push_back(source.text.size());
      ++i;
    } else if (two == "]]") {
      source.ranges.push_back({begun.back(), source.text.size() - begun.back()});
      begun.pop_back();
      ++i;
    } else if (marked[i] == '^') {
      source.cursor = source.text.size();
    } else {
      source.text += marked[i];
    }
  }
  return source;
}

/// Returns the text with marks around ranges that do not overlap and are in their order.
inline std::string with_marks(const MarkedSource& source, const std::vector<lint::Range>& ranges) {
  std::string marked = source.text;
  for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
    marked.insert(range->end(), "]]");
    marked.insert(range->offset, "[[");
  }
  return marked;
}

/// Returns the text without the mark of the cursor.
inline std::string without_cursor(std::string_view marked) {
  std::string text(marked);
  const std::size_t cursor = text.find('^');
  if (cursor != std::string::npos) text.erase(cursor, 1);
  return text;
}

/// What a feature gets besides a text.
struct World {
  Settings settings = {};
  ClientAbilities client = {};
  std::string path = {};
  std::vector<std::string> known_commands = {};
  lint::Findings findings = {};
  std::string xyz = {};  // the content of the file "a.xyz", if it is not empty

  Surroundings surroundings() const {
    Surroundings all{settings, client};
    all.path = path;
    all.known_commands = known_commands;
    all.findings = [this]() -> const lint::Findings& { return findings; };
    all.read_reference = [this](const std::string& name) {
      lint::ReferencedFile file;
      if (name != "a.xyz" || xyz.empty()) return file;
      file.state = lint::ReferencedFile::State::Read;
      file.content = xyz;
      return file;
    };
    return all;
  }
};

/// Returns where the answers of a feature are, which have a member "range".
inline std::vector<lint::Range> ranges_of(const Json& answers, const Snapshot& snapshot) {
  std::vector<lint::Range> ranges;
  for (const Json& answer : answers)
    ranges.push_back(snapshot.range_of(read_range(answer["range"])));
  return ranges;
}

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_TESTS_LANGUAGE_SERVER_MARKS_HPP
