#include "files/file_state.hpp"

namespace kelp::input::quill::lossless {

namespace {

bool is_same_time(const struct timespec& left, const struct timespec& right) {
  return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

}  // namespace

bool is_same_state(const struct stat& left, const struct stat& right) {
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino &&
         left.st_size == right.st_size && is_same_time(left.st_mtim, right.st_mtim) &&
         is_same_time(left.st_ctim, right.st_ctim);
}

}  // namespace kelp::input::quill::lossless
