#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_PROJECT_PROJECT_FILES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_PROJECT_PROJECT_FILES_HPP

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "quill-inp/findings/project_choices.hpp"

namespace kelp::input::quill::language_server {

/// The choices of projects, which are read again when their files have changed.
class ProjectFiles {
 public:
  /// What a project has chosen, or why that cannot be read; then nothing is chosen.
  struct Reading {
    tool::ProjectChoices choices = {};
    std::string problem = {};
    std::uint64_t number = 0;  // differs from that of every other reading
  };

  /// Returns what counts for the input at an absolute path. Valid until the next call.
  const Reading& reading_for(const std::string& path);

 private:
  /// By what a file is known to be the one that was read.
  struct State {
    std::filesystem::file_time_type time = {};
    std::uintmax_t size = 0;

    bool operator==(const State& other) const { return time == other.time && size == other.size; }
  };
  struct Entry {
    State state = {};
    Reading reading = {};
  };

  static State state_of(const std::string& file);
  Reading read(const std::string& file);

  std::map<std::string, Entry> read_ = {};
  Reading nothing_ = {};
  std::uint64_t last_number_ = 0;
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_PROJECT_PROJECT_FILES_HPP
