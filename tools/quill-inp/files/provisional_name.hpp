#ifndef KELP_INPUT_QUILL_TOOL_FILES_PROVISIONAL_NAME_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_PROVISIONAL_NAME_HPP

#include <string>

namespace kelp::input::quill::tool {

/// A name in an open folder, in the list of those that a signal removes.
struct ListedName {
  int folder = -1;
  std::string text = {};
  ListedName* next = nullptr;
};

/// The name of a new file in an open folder. Unless it is kept, the name is removed when the object
/// goes, and on SIGINT, SIGTERM and SIGHUP, which then do what they would have done without it.
class ProvisionalName {
 public:
  /// The file is there already. So that no signal leaves it behind, they are held from before it is
  /// made until the object is, and nothing is thrown here.
  ProvisionalName(int folder, std::string text) noexcept;
  ProvisionalName(const ProvisionalName&) = delete;
  ProvisionalName& operator=(const ProvisionalName&) = delete;
  ~ProvisionalName();

  const std::string& text() const { return name_.text; }

  /// Leaves the name alone from now on: the file is to stay, or has another name.
  void keep();

 private:
  ListedName name_;
  bool is_kept_ = false;
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_PROVISIONAL_NAME_HPP
