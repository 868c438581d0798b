#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_USED_NAMES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_USED_NAMES_HPP

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::language_server {

/// The names of commands, in canonical form, and for each of them those of its parameters. Of
/// parameter names that differ only in letter case, the first one is kept.
class UsedNames {
 public:
  void add_command(std::string_view name);
  void add(const std::vector<HeaderCommand>& commands);

  /// Adds what the headers of the inputs in the folder of a file use, apart from that file: of
  /// those with the same ending, and of 100 at most, the first ones in the order of their names.
  void add_neighbours(const std::string& path);

  /// Returns the names of all commands, sorted.
  std::vector<std::string> commands() const;

  /// Returns the names of the parameters of a command, sorted; none for an unknown one.
  std::vector<std::string> parameters_of(std::string_view command) const;

 private:
  using Names = std::map<std::string, std::string>;  // as they are spelled, by their small letters

  std::map<std::string, Names> commands_ = {};
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_USED_NAMES_HPP
