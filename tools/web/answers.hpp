#ifndef KELP_INPUT_QUILL_WEB_ANSWERS_HPP
#define KELP_INPUT_QUILL_WEB_ANSWERS_HPP

// The reader as a web page calls it. A text is bytes in the reader's own memory:
//
//   room = web_room(text.length), copy the text there, web_read();
//   web_account(), copy web_answer_size() bytes from web_answer()
//
// Each of the functions that make an answer replaces the last one. There is one text at a time.

#include <cstddef>

extern "C" {

/// Returns room for a text of this size; the last text is forgotten.
char* web_room(std::size_t size);

/// Reads the text that is in the room.
void web_read();

/// What the reader made of the text, see account_json.hpp.
void web_account();

/// The findings, as 'quill-inp lint --format json' prints them for a file with the name "input".
void web_findings();

/// The text that 'quill-inp fmt' prints, even if the program would refuse to print it.
void web_canonical_text();

/// The difference between the text and that one, as 'quill-inp fmt --diff' prints it.
void web_difference();

/// The document, as 'quill-inp json' prints it.
void web_document();

/// The text that 'quill-inp lint --fix' writes.
void web_mended_text();

/// The last answer.
const char* web_answer();
std::size_t web_answer_size();
}

#endif  // KELP_INPUT_QUILL_WEB_ANSWERS_HPP
