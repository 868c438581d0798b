#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_CHECKS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_CHECKS_HPP

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>

#include "lint/lint.hpp"

namespace kelp::input::quill::language_server {

/// What was found in a text, and what that depends on besides the text.
struct Check {
  lint::FirstFindings found = {};
  std::set<std::string> references = {};  // the absolute paths of the files that it refers to
  std::uint64_t project = 0;              // see ProjectFiles::Reading::number
  std::uint64_t number = 0;               // differs from that of every other check
};

/// The checks of the open texts, by their addresses, and which of them the client waits for.
class Checks {
 public:
  /// Returns the check of a text as it is now, or a null pointer if it has to be made.
  const Check* find(const std::string& uri) const;

  /// Keeps a check, and gives it its number.
  const Check& keep(const std::string& uri, Check check);

  /// Forgets the check of a text that changed.
  void forget(const std::string& uri) { done_.erase(uri); }

  /// Returns the addresses of the texts that refer to a file.
  std::set<std::string> texts_with(const std::string& path) const;

  /// The texts whose findings are to be published.
  void ask_for(const std::string& uri) { wanted_.insert(uri); }
  void stop_asking_for(const std::string& uri) { wanted_.erase(uri); }
  bool are_wanted() const { return !wanted_.empty(); }
  const std::string& next_wanted() const { return *wanted_.begin(); }

 private:
  std::map<std::string, Check> done_ = {};
  std::set<std::string> wanted_ = {};
  std::uint64_t last_number_ = 0;
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_CHECKS_HPP
