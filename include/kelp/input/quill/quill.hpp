#ifndef KELP_INPUT_QUILL_QUILL_HPP
#define KELP_INPUT_QUILL_QUILL_HPP

/// @file
/// Everything that the library offers.
///
///     #include "kelp/input/quill/quill.hpp"
///
/// @namespace kelp::input::quill
/// Reading, looking up, editing, building and writing QUILL inputs. Everything in the library is
/// in this namespace, except the macro KELP_QUILL_INP_EXPORT.

#include "kelp/input/quill/builder.hpp"
#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/editor.hpp"
#include "kelp/input/quill/lines.hpp"
#include "kelp/input/quill/reader.hpp"
#include "kelp/input/quill/text_argument.hpp"
#include "kelp/input/quill/writer.hpp"

#endif  // KELP_INPUT_QUILL_QUILL_HPP
