#ifndef KELP_INPUT_QUILL_LOSSLESS_WORDING_HPP
#define KELP_INPUT_QUILL_LOSSLESS_WORDING_HPP

/// @file
/// Messages for people: about the parts of a document, about what differs and about what cannot be
/// written. All other files pass on facts; only the texts made here are for people. They contain
/// bytes of documents unchanged, and have to be escaped before they are shown on a terminal.
///
///     const QuillInput wanted = parse_string("1 2\n").input;
///     const QuillInput found = parse_string("0 2\n").input;
///     words(compare(wanted, found).differences.front());  // "the charge is 0 instead of 1"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lines.hpp"
#include "kelp/input/quill/lossless/comparison.hpp"
#include "kelp/input/quill/lossless/export.hpp"
#include "kelp/input/quill/lossless/file_error.hpp"
#include "kelp/input/quill/lossless/file_replacement.hpp"
#include "kelp/input/quill/lossless/input_doubt.hpp"
#include "kelp/input/quill/lossless/proof.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/lossless/xyz_frames.hpp"

namespace kelp::input::quill::lossless {

/// Returns what a part is, without an article and with numbers counted from 1: "command 2", "charge
/// and multiplicity", "atom 37", "XYZ reference 1", "XYZ reference without a path", "trajectory
/// reference", "bond constraint", "raw text", "dropped", "blank".
KELP_QUILL_LOSSLESS_EXPORT std::string describe(const Part& part, const QuillInput& input);

/// Returns a kind of post-processing line without an article: "angle constraint", "scan", "raw
/// text"; "post-processing line of unknown kind" for a value outside the enumeration.
KELP_QUILL_LOSSLESS_EXPORT std::string_view noun_of(PostCommandKind kind);

/// Returns what differs: "the charge is 1 instead of 0".
KELP_QUILL_LOSSLESS_EXPORT std::string words(const Difference& difference);

/// Returns why a proof does not hold, without a full stop: "line 14 would be read as an atom of
/// element A, not as an angle constraint; put another post-processing line before it to avoid
/// that". `wanted` is the document that was to be proved.
KELP_QUILL_LOSSLESS_EXPORT std::string words(const Proof& proof, const QuillInput& wanted);

/// Returns why a text does not look like an input, and how to correct it, if that is possible, as a
/// predicate: "does not look like a QUILL input: it has no header line and no coordinates".
KELP_QUILL_LOSSLESS_EXPORT std::string words(const InputDoubt& doubt);

/// Returns why a piece of a header command cannot be written.
KELP_QUILL_LOSSLESS_EXPORT std::string words(const QuotingProblem& problem);

/// Returns what is wrong with an XYZ file, without the line: "expected an atom, a symbol and three
/// coordinates", "has 1 atom instead of 3".
KELP_QUILL_LOSSLESS_EXPORT std::string words(const XyzProblem& problem);

/// Returns the noun for a type of file, with its article: "a folder", "a pipe", "a socket" or
/// "a device".
KELP_QUILL_LOSSLESS_EXPORT std::string_view noun_of(FileType type);

/// Returns why a file could not be read or written, with the system's own words, as a predicate:
/// "cannot be opened: No such file or directory".
KELP_QUILL_LOSSLESS_EXPORT std::string words(const FileFailure& failure);

/// Returns what of a file could not be kept: "the owner could not be kept".
KELP_QUILL_LOSSLESS_EXPORT std::string words(const LostAttribute& lost);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_WORDING_HPP
