#ifndef KELP_INPUT_QUILL_LOSSLESS_INPUT_DOUBT_HPP
#define KELP_INPUT_QUILL_LOSSLESS_INPUT_DOUBT_HPP

/// @file
/// Whether a text looks like a QUILL input at all.
///
///     find_input_doubt(read_text("#opt\n")).has_value();  // false
///     const std::optional<InputDoubt> doubt = find_input_doubt(read_text("#!/bin/sh\necho\n"));
///     doubt->kind == InputDoubt::Kind::Script;  // true

#include <cstddef>
#include <optional>

#include "kelp/input/quill/lossless/export.hpp"
#include "kelp/input/quill/lossless/read_text.hpp"

namespace kelp::input::quill::lossless {

/// Why a text is probably not a QUILL input. The reader accepts any text, and would read most of a
/// program or a picture as raw text. A program that is to rewrite such a text should ask its user
/// first.
struct InputDoubt {
  /// What makes it improbable.
  enum class Kind {
    ByteOrderMark,  ///< of UTF-8, which the reader takes for text, so that the first line is raw
    Utf16,          ///< with a byte order mark
    Utf16LittleEndian,  ///< without one
    Utf16BigEndian,     ///< likewise
    NulByte,
    Script,      ///< the first line names the program that runs the text
    NoSections,  ///< there is text, but no header line and no coordinate section
  };

  Kind kind = Kind::NoSections;                    ///< the first reason that applies
  std::optional<std::size_t> line = std::nullopt;  ///< counted from 1, if the doubt is about one
};

/// Returns the first reason for which a text does not look like a QUILL input, or nothing if it
/// does. A text of only blank lines is an input without content.
KELP_QUILL_LOSSLESS_EXPORT std::optional<InputDoubt> find_input_doubt(const ReadText& read);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_INPUT_DOUBT_HPP
