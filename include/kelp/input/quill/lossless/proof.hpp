#ifndef KELP_INPUT_QUILL_LOSSLESS_PROOF_HPP
#define KELP_INPUT_QUILL_LOSSLESS_PROOF_HPP

/// @file
/// The proof that a text says what is wanted. It is made before the text is written anywhere.
///
///     const QuillInput wanted = parse_string("0 1\nHe 0 0 0\n\nA 1 2 3\n").input;
///     const Proof proof = prove("0 1\nHe 0 0 0\nHe 0 0 3\n", wanted);
///     if (!proof.holds()) std::cerr << words(proof, wanted) << '\n';
///
/// The text is read by the library's own reader and compared, member by member, with the document
/// that is wanted. In the QUILL format, the reader can understand a text differently from what its
/// author wanted. The explanation names the line where that happens and, if possible, how to avoid
/// it.

#include <cstddef>
#include <optional>
#include <string_view>

#include "kelp/input/quill/lines.hpp"
#include "kelp/input/quill/lossless/comparison.hpp"
#include "kelp/input/quill/lossless/export.hpp"

namespace kelp::input::quill::lossless {

/// The first thing that is not as wanted.
struct Explanation {
  /// How the text is not as wanted.
  enum class Kind {
    OtherPart,     ///< `line` would be read as `found` and not as `wanted`, or as nothing wanted
    OtherContent,  ///< `line` is read as the part it should be, with the difference `difference`
    MissingLine,   ///< no line is read as `wanted`
    Difference,    ///< no line is the cause of the difference `difference`
  };

  Kind kind = Kind::Difference;                    ///< says which members are set
  std::optional<std::size_t> line = std::nullopt;  ///< counted from 1
  Part found = {};                                 ///< what the line is read as
  std::optional<Part> wanted = std::nullopt;       ///< what it should be
  bool is_avoidable = false;                       ///< by another post-processing line before it
  std::optional<std::size_t> difference = std::nullopt;  ///< into Comparison::differences
};

/// The result of reading a text again. There is an explanation exactly when the proof does not
/// hold. `comparison` has every difference, for callers that write the text anyway, and the numbers
/// that changed. `found` is what parse_string() made of the text.
struct Proof {
  std::optional<Explanation> explanation = std::nullopt;  ///< the first reason
  Comparison comparison = {};                             ///< all that differs
  ParseResult found = {};                                 ///< what the text is read as

  /// Whether the text says what is wanted.
  bool holds() const { return comparison.is_equal(); }

  /// The line, counted from 1, that the explanation is about, if it is about one.
  std::optional<std::size_t> line() const { return explanation ? explanation->line : std::nullopt; }
};

/// Reads `text` and compares it with `wanted`; numbers may change by up to `max_change`, see
/// compare(). Lines that the reader skips, because they are blank or with a warning, are not a
/// difference unless they were written for a part of `wanted`.
KELP_QUILL_LOSSLESS_EXPORT Proof prove(std::string_view text, const QuillInput& wanted,
                                       double max_change = 0.0);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_PROOF_HPP
