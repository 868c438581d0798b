#include "quill-inp/editing/ambiguity_notes.hpp"

#include <cstddef>
#include <string>
#include <vector>

#include "quill-inp/editing/wording.hpp"

namespace kelp::input::quill::tool {

namespace {

std::size_t line_of(const lossless::ReadText& read, std::size_t command) {
  return 1 + lossless::find_line(read.lines, LineRole::Command, command).value();
}

}  // namespace

void note_ambiguity(Session& session, const ReadInput& input, const Ambiguity& ambiguity) {
  const Place place{input.name, line_of(input.read, ambiguity.command)};
  std::vector<std::size_t> lines;
  for (const std::size_t command : ambiguity.other_commands)
    lines.push_back(line_of(input.read, command));
  session.reporter().note(place, lines.empty() ? other_parameters_words(ambiguity)
                                               : other_commands_words(ambiguity, lines));
}

}  // namespace kelp::input::quill::tool
