#include "quill-inp/command_line/reading_options.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option strict{"--strict", "", "Exit with 1 if the reader warns of something"};

}  // namespace

void add_reading_options(CLI::App& verb) { add_flag(verb, strict); }

Warnings read_warnings_option(const CLI::App& verb) {
  return is_given(verb, strict) ? Warnings::AreANo : Warnings::DoNotCount;
}

ExitCode code_of(const ParseResult& result, Warnings warnings) {
  const bool counts = warnings == Warnings::AreANo && !result.warnings.empty();
  return counts ? ExitCode::No : ExitCode::Done;
}

}  // namespace kelp::input::quill::tool
