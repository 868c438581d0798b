#ifndef KELP_INPUT_QUILL_TESTS_LANGUAGE_SERVER_SNAPSHOTS_HPP
#define KELP_INPUT_QUILL_TESTS_LANGUAGE_SERVER_SNAPSHOTS_HPP

#include <string>

#include "language_server/documents/snapshot.hpp"

namespace kelp::input::quill::language_server {

/// Returns version 1 of a text, at "file:///job.qin".
inline Snapshot snapshot_of(const std::string& text,
                            PositionEncoding encoding = PositionEncoding::Utf16) {
  return {"file:///job.qin", 1, lossless::read_text(text), LineStarts(text), encoding};
}

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_TESTS_LANGUAGE_SERVER_SNAPSHOTS_HPP
