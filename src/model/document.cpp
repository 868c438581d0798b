#include "kelp/input/quill/document.hpp"

// These members are defined here and not in the header, so that programs which only pass documents
// around carry no copy of the member-wise code.

namespace kelp::input::quill {

CommandParameter::~CommandParameter() = default;

HeaderCommand::~HeaderCommand() = default;

PostCommand::~PostCommand() = default;

QuillInput::QuillInput(const QuillInput& other) = default;

QuillInput::~QuillInput() = default;

}  // namespace kelp::input::quill
