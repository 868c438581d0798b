#include "files/unfinished_name.hpp"

#include <unistd.h>

#include <utility>

namespace kelp::input::quill::lossless {

Step::Step(UnfinishedFiles* observer) noexcept : observer_(observer) {
  if (observer_ != nullptr) observer_->begin_step();
}

Step::~Step() {
  if (observer_ != nullptr) observer_->end_step();
}

UnfinishedName::UnfinishedName(int folder, std::string name, UnfinishedFiles* observer) noexcept
    : file_{folder, std::move(name)}, observer_(observer) {
  const Step step(observer_);
  if (observer_ != nullptr) observer_->add(file_);
}

UnfinishedName::~UnfinishedName() {
  if (is_kept_) return;
  const Step step(observer_);
  unlinkat(file_.folder, file_.name.c_str(), 0);
  if (observer_ != nullptr) observer_->remove(file_);
}

void UnfinishedName::keep() {
  if (is_kept_) return;
  const Step step(observer_);
  if (observer_ != nullptr) observer_->remove(file_);
  is_kept_ = true;
}

}  // namespace kelp::input::quill::lossless
