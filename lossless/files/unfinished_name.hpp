#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_UNFINISHED_NAME_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_UNFINISHED_NAME_HPP

#include <string>

#include "kelp/input/quill/lossless/unfinished_files.hpp"

namespace kelp::input::quill::lossless {

/// A step of which the program is told, if it wants to be.
class Step {
 public:
  explicit Step(UnfinishedFiles* observer) noexcept;
  Step(const Step&) = delete;
  Step& operator=(const Step&) = delete;
  ~Step();

 private:
  UnfinishedFiles* observer_;
};

/// The name of a new file in an open folder. Unless it is kept, the name is removed when the object
/// is destroyed. The program is told of it.
class UnfinishedName {
 public:
  /// The file must exist. The caller has a step from before it creates the file until this
  /// constructor is done, so that no signal leaves the file in the folder. Nothing is thrown here.
  UnfinishedName(int folder, std::string name, UnfinishedFiles* observer) noexcept;
  UnfinishedName(const UnfinishedName&) = delete;
  UnfinishedName& operator=(const UnfinishedName&) = delete;
  ~UnfinishedName();

  const std::string& text() const { return file_.name; }

  /// Does not remove the name any more: the file is to stay, or has another name.
  void keep();

 private:
  UnfinishedFile file_;
  UnfinishedFiles* observer_;
  bool is_kept_ = false;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_UNFINISHED_NAME_HPP
