#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_FEATURES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_FEATURES_HPP

#include "language_server/features/feature.hpp"

// The functions of all features; see feature.hpp.

namespace kelp::input::quill::language_server {

/// The sections of an input with more than one line: header, coordinates, post-processing.
Json folding_ranges(const Snapshot& snapshot, const Surroundings& surroundings);

/// What the reader made of a line, what is known about its atoms, and the pages of findings.
Json hover(const Snapshot& snapshot, std::size_t offset, const Surroundings& surroundings);

/// The outline of the input.
Json document_symbols(const Snapshot& snapshot, const Surroundings& surroundings);

/// The pieces of lines by what they are to the reader: of all lines, and of those in a range.
Json semantic_tokens(const Snapshot& snapshot, const Surroundings& surroundings);
Json semantic_tokens_of_range(const Snapshot& snapshot, const lint::Range& range,
                              const Surroundings& surroundings);

/// The kinds of tokens, in the order of their numbers.
Json semantic_tokens_options();

/// The files of XYZ references and trajectories.
Json document_links(const Snapshot& snapshot, const Surroundings& surroundings);

/// The line of the atom whose number is in a constraint or a scan.
Json definition(const Snapshot& snapshot, std::size_t offset, const Surroundings& surroundings);

/// The places that name an atom, of which the place is the line or a number.
Json references(const Snapshot& snapshot, const Json& params, const Surroundings& surroundings);
Json document_highlights(const Snapshot& snapshot, std::size_t offset,
                         const Surroundings& surroundings);

/// The piece of a line, the line, the section and the text around a place.
Json selection_ranges(const Snapshot& snapshot, const Json& params,
                      const Surroundings& surroundings);

/// The numbers of atoms, before their lines.
Json inlay_hints(const Snapshot& snapshot, const lint::Range& range,
                 const Surroundings& surroundings);

/// What can be typed at a place.
Json completion(const Snapshot& snapshot, std::size_t offset, const Surroundings& surroundings);

/// The characters after which editors ask at once for what can be typed.
Json completion_options();

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_FEATURES_HPP
