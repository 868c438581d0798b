#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_OPEN_DOCUMENTS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_OPEN_DOCUMENTS_HPP

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "language_server/documents/line_starts.hpp"
#include "language_server/documents/position_encoding.hpp"
#include "language_server/documents/snapshot.hpp"
#include "language_server/protocol/json.hpp"

namespace kelp::input::quill::language_server {

/// A text that is open in the editor. It is changed in place, and read only when somebody asks what
/// is in it, so that many changes in a row cost no more than their bytes.
class OpenDocument {
 public:
  OpenDocument(std::string uri, std::int64_t version, std::string text, PositionEncoding encoding);

  const std::string& uri() const { return uri_; }
  std::int64_t version() const { return version_; }

  /// Makes the changes of a "textDocument/didChange", one after another, each to the text that the
  /// ones before it have made. Throws ResponseError, InvalidParams, if one of them does not fit;
  /// the text then has those before it. A change that gives all of the text ends that it is lost.
  void change(std::int64_t version, const Json& changes);

  /// Whether a change was lost, so that the text may differ from the one in the editor.
  bool is_lost() const { return is_lost_; }
  void lose() { is_lost_ = true; }

  /// The text, even when it is lost.
  const std::string& text() const;

  /// Returns the text as it is now, with what the reader makes of it. Valid until the next change.
  const Snapshot& snapshot();

 private:
  void apply(const Json& change);
  void replace_all(std::string text);
  void begin_change();

  std::string uri_;
  std::int64_t version_;
  PositionEncoding encoding_;
  bool is_lost_ = false;
  // Valid only while there is no snapshot, because a snapshot takes the text and its lines.
  std::string text_;
  LineStarts line_starts_;
  std::optional<Snapshot> snapshot_ = std::nullopt;
};

/// The texts that are open, by their addresses.
class OpenDocuments {
 public:
  /// Opens a text, or takes a new one for an address that is open already.
  OpenDocument& open(const std::string& uri, std::int64_t version, std::string text,
                     PositionEncoding encoding);

  void close(const std::string& uri) { documents_.erase(uri); }

  /// Returns an open text, or a null pointer. The pointer is valid until the text is closed.
  OpenDocument* find(const std::string& uri);

  /// To be called when a change was lost and nobody knows of which text.
  void lose_all();

  std::map<std::string, OpenDocument>& all() { return documents_; }

 private:
  std::map<std::string, OpenDocument> documents_;
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_OPEN_DOCUMENTS_HPP
