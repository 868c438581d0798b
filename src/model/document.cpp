#include "kelp/input/quill/document.hpp"

// These members are defined here, and not in the headers, so that programs which only pass
// documents on do not contain a copy of the member-wise code.

namespace kelp::input::quill {

#ifdef _GLIBCXX_DEBUG
const bool is_compiled_with_glibcxx_debug = true;
#endif

CommandParameter::~CommandParameter() = default;

HeaderCommand::~HeaderCommand() = default;

PostCommand::~PostCommand() = default;

QuillInput::QuillInput(const QuillInput& other) = default;

QuillInput::~QuillInput() = default;

}  // namespace kelp::input::quill
