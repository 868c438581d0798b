#include "tools/properties/document_json.hpp"

#include <optional>
#include <string>

#include "lossless/properties/made_edits.hpp"
#include "properties/violation.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/utf8.hpp"
#include "support/comparison.hpp"
#include "tools/quill-inp/support/json_of.hpp"

namespace kelp::input::quill::tool {

namespace {

std::optional<QuillInput> read_document(std::string_view text) {
  try {
    return document_from_json(text);
  } catch (const Trouble& trouble) {
    require(!std::string_view(trouble.what()).empty(), "a refusal says why", text);
    return std::nullopt;
  }
}

template <typename Kind>
void make_known(Kind& kind, Kind last) {
  if (kind < Kind() || last < kind) kind = last;
}

void make_kinds_known(QuillInput& document) {
  for (HeaderCommand& command : document.commands)
    make_known(command.kind, HeaderCommandKind::ParameterList);
  make_known(document.geometry.kind, GeometryKind::XyzTrajectory);
  for (PostCommand& command : document.post_commands)
    make_known(command.kind, PostCommandKind::Raw);
}

void check_writing_and_reading(const QuillInput& document) {
  const std::string text = json_of(document);
  require(is_utf8(text), "JSON is UTF-8", text);
  const std::optional<QuillInput> read = read_document(text);
  require(read.has_value(), "what is written as JSON is read", text);
  require(*read == document, "JSON keeps the whole document", text);
  require(json_of(*read) == text, "JSON is written again as the same bytes", text);
}

}  // namespace

void check_json_text(std::string_view text) {
  if (const std::optional<QuillInput> document = read_document(text))
    check_writing_and_reading(*document);
}

void check_json_of(QuillInput document) {
  make_kinds_known(document);
  keep_signs_of_nan_alone(document);
  check_writing_and_reading(document);
}

}  // namespace kelp::input::quill::tool
