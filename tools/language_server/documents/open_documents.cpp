#include "language_server/documents/open_documents.hpp"

#include <utility>

#include "language_server/documents/text_positions.hpp"
#include "language_server/protocol/response_error.hpp"

namespace kelp::input::quill::language_server {

OpenDocument::OpenDocument(std::string uri, std::int64_t version, std::string text,
                           PositionEncoding encoding)
    : uri_(std::move(uri)),
      version_(version),
      encoding_(encoding),
      text_(std::move(text)),
      line_starts_(text_) {}

const std::string& OpenDocument::text() const { return snapshot_ ? snapshot_->read().text : text_; }

const Snapshot& OpenDocument::snapshot() {
  if (!snapshot_)
    snapshot_.emplace(uri_, version_, lossless::read_text(std::move(text_)),
                      std::move(line_starts_), encoding_);
  return *snapshot_;
}

/// Takes text and lines out of the snapshot.
void OpenDocument::begin_change() {
  if (!snapshot_) return;
  line_starts_ = std::move(*snapshot_).take_line_starts();
  text_ = std::move(*snapshot_).take_read().text;
  snapshot_.reset();
}

void OpenDocument::change(std::int64_t version, const Json& changes) {
  begin_change();
  version_ = version;
  for (const Json& next : changes) apply(next);
}

void OpenDocument::replace_all(std::string text) {
  text_ = std::move(text);
  line_starts_ = LineStarts(text_);
  is_lost_ = false;
}

void OpenDocument::apply(const Json& change) {
  const std::string& inserted = text_member(change, "text");
  if (find_member(change, "range").is_null()) {
    replace_all(inserted);
    return;
  }
  if (is_lost_) return;
  const PositionRange range = read_range(object_member(change, "range"));
  const auto start = find_offset(range.start, text_, line_starts_, encoding_);
  const auto end = find_offset(range.end, text_, line_starts_, encoding_);
  if (!start || !end || *end < *start)
    throw ResponseError(ErrorCode::InvalidParams, "a change does not fit the text");
  text_.replace(*start, *end - *start, inserted);
  line_starts_.replace(*start, *end - *start, inserted.size(), text_);
}

OpenDocument& OpenDocuments::open(const std::string& uri, std::int64_t version, std::string text,
                                  PositionEncoding encoding) {
  OpenDocument document(uri, version, std::move(text), encoding);
  return documents_.insert_or_assign(uri, std::move(document)).first->second;
}

void OpenDocuments::lose_all() {
  for (auto& [uri, document] : documents_) document.lose();
}

OpenDocument* OpenDocuments::find(const std::string& uri) {
  const auto document = documents_.find(uri);
  return document == documents_.end() ? nullptr : &document->second;
}

}  // namespace kelp::input::quill::language_server
