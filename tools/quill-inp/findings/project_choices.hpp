#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_PROJECT_CHOICES_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_PROJECT_CHOICES_HPP

// What a project keeps in the file .quill-inp.toml:
//
//   ignore = ["chemistry", "QL109"]
//   fail-on = "error"
//   known-commands = ["solvent", "grid"]
//   max-change = 1e-5

#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quill-inp/findings/fail_on.hpp"

namespace kelp::input::quill::tool {

inline constexpr std::string_view project_file_name = ".quill-inp.toml";

/// The choices of a project about findings. What is not in the file is empty.
struct ProjectChoices {
  std::vector<std::string> ignored = {};  // codes and groups
  std::optional<FailOn> fail_on = std::nullopt;
  std::vector<std::string> known_commands = {};
  std::optional<double> max_change = std::nullopt;
};

/// Reads the text of such a file, which is called `name` in messages. Throws Trouble, which names
/// the file and the line, for a text that is not TOML, for a key that is unknown (with the nearest
/// one that is not), and for a value without a meaning.
ProjectChoices parse_project_choices(std::string_view text, const std::string& name);

/// Returns the path of the file that counts for the input at `path`: the one in its folder or in
/// the nearest folder above it. "-" is in the current folder. Returns the empty text if there is
/// none.
std::string find_project_file(const std::string& path);

/// Reads such a file. Throws Trouble, as parse_project_choices() does and when it cannot be read.
ProjectChoices read_project_file(const std::string& file);

/// Finds the choices for inputs: those of the file in the folder of the input or in the nearest
/// folder above it. It searches once for each folder. Several threads may ask at once.
class ProjectFinder {
 public:
  /// Returns the choices for the input at `path`; "-" is in the current folder. They are empty if
  /// no file is found, and live as long as the finder. Throws Trouble, as parse_project_choices()
  /// does and when the file cannot be read.
  const ProjectChoices& choices_for(const std::string& path);

 private:
  std::mutex mutex_;
  std::map<std::string, ProjectChoices> known_;  // by the folder, as it is spelled
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_PROJECT_CHOICES_HPP
