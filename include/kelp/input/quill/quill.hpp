#ifndef KELP_INPUT_QUILL_QUILL_HPP
#define KELP_INPUT_QUILL_QUILL_HPP

// Everything that the library offers.

#include "kelp/input/quill/builder.hpp"
#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/editor.hpp"
#include "kelp/input/quill/reader.hpp"
#include "kelp/input/quill/writer.hpp"

#endif  // KELP_INPUT_QUILL_QUILL_HPP
