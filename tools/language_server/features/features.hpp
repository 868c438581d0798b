#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_FEATURES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_FEATURES_HPP

#include "language_server/features/feature.hpp"

// The functions of all features; see feature.hpp.

namespace kelp::input::quill::language_server {

/// The sections of an input with more than one line: header, coordinates, post-processing.
Json folding_ranges(const Snapshot& snapshot, const Surroundings& surroundings);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_FEATURES_HPP
