#ifndef KELP_INPUT_QUILL_TOOL_FILES_PROVISIONAL_NAME_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_PROVISIONAL_NAME_HPP

#include <string>

namespace kelp::input::quill::tool {

/// A name in an open folder, in the list of names that are removed on a signal.
struct ListedName {
  int folder = -1;
  std::string text = {};
  ListedName* next = nullptr;
};

/// As long as an object lives, SIGINT, SIGTERM and SIGHUP are caught, and the listed names are
/// removed on them. Holding the signals is not enough for a file that is created and then listed:
/// another thread could still get one, which would end the program before the name is in the list.
class CaughtSignals {
 public:
  CaughtSignals() noexcept;
  CaughtSignals(const CaughtSignals&) = delete;
  CaughtSignals& operator=(const CaughtSignals&) = delete;
  ~CaughtSignals();
};

/// The name of a new file in an open folder. Unless it is kept, the name is removed when the object
/// is destroyed, and on SIGINT, SIGTERM and SIGHUP, which then have their usual effect.
class ProvisionalName {
 public:
  /// The file must exist. The caller holds the signals from before it creates the file until this
  /// constructor is done, so that no signal leaves the file in the folder. Nothing is thrown here.
  ProvisionalName(int folder, std::string text) noexcept;
  ProvisionalName(const ProvisionalName&) = delete;
  ProvisionalName& operator=(const ProvisionalName&) = delete;
  ~ProvisionalName();

  const std::string& text() const { return name_.text; }

  /// Does not remove the name any more: the file is to stay, or has another name.
  void keep();

 private:
  ListedName name_;
  bool is_kept_ = false;
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_PROVISIONAL_NAME_HPP
