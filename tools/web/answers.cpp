#include "web/answers.hpp"

#include <string>
#include <string_view>
#include <utility>

#include "quill-inp/findings/json_form.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/text/unified_diff.hpp"
#include "web/account_json.hpp"
#include "web/examined_text.hpp"

namespace {

namespace web = kelp::input::quill::web;
namespace tool = kelp::input::quill::tool;

constexpr const char* name_of_text = "input";

/// What the page has given, and what it is given. One of each, since a page has one reader.
struct State {
  std::string room;
  web::ExaminedText examined;
  std::string answer;
};

State& state() {
  static State only;
  return only;
}

void add_to_answer(std::string_view piece) { state().answer += piece; }

}  // namespace

char* web_room(std::size_t size) {
  state() = State();
  state().room.resize(size);
  return state().room.data();
}

void web_read() { state().examined = web::examine(std::move(state().room)); }

void web_account() {
  state().answer.clear();
  web::write_account(state().examined, add_to_answer);
}

void web_findings() {
  const web::ExaminedText& examined = state().examined;
  const auto& [findings, more] = examined.found;
  state().answer.clear();
  tool::write_json_form({name_of_text, examined.read, findings, more}, add_to_answer);
}

void web_canonical_text() { state().answer = state().examined.canonical_text; }

void web_difference() {
  const web::ExaminedText& examined = state().examined;
  state().answer = tool::unified_diff(name_of_text, examined.read.text, examined.canonical_text);
}

void web_document() {
  state().answer.clear();
  tool::write_document_json(state().examined.read.result.input, add_to_answer);
}

void web_mended_text() { state().answer = web::mended_text(state().examined); }

const char* web_answer() { return state().answer.data(); }

std::size_t web_answer_size() { return state().answer.size(); }
