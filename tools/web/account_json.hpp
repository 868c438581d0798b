#ifndef KELP_INPUT_QUILL_WEB_ACCOUNT_JSON_HPP
#define KELP_INPUT_QUILL_WEB_ACCOUNT_JSON_HPP

#include "quill-inp/formats/json_writer.hpp"
#include "web/examined_text.hpp"

namespace kelp::input::quill::web {

/// Writes what the reader made of a text as JSON: for each line its role, the index of its part
/// from 0 (or null), the words of `quill-inp show --lines`, and its place in bytes; the warnings of
/// the reader; and what the canonical text would lose.
void write_account(const ExaminedText& examined, const tool::JsonWriter::Sink& sink);

}  // namespace kelp::input::quill::web

#endif  // KELP_INPUT_QUILL_WEB_ACCOUNT_JSON_HPP
