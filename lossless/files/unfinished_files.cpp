#include "kelp/input/quill/lossless/unfinished_files.hpp"

namespace kelp::input::quill::lossless {

// Not in the header, so that the class has one description, in the library, for all who use it.
UnfinishedFiles::~UnfinishedFiles() = default;

}  // namespace kelp::input::quill::lossless
