#include <algorithm>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "kelp/input/quill/lossless/quoting.hpp"
#include "language_server/facts/source_of_text.hpp"
#include "language_server/features/structure.hpp"
#include "language_server/handlers/checking.hpp"
#include "language_server/handlers/handlers.hpp"
#include "language_server/project/file_address.hpp"
#include "language_server/protocol/response_error.hpp"
#include "quill-inp/summary/lines_text.hpp"

namespace kelp::input::quill::language_server {

namespace {

Json shown_lines(ServerState& /*state*/, OpenDocument& document) {
  std::string text;
  tool::write_lines_text(document.snapshot().read(), false,
                         [&](std::string_view piece) { text += piece; });
  return text;
}

Json shown_canonical_text(ServerState& /*state*/, OpenDocument& document) {
  return lossless::quote(document.snapshot().input()).document.to_string();
}

Json shown_structure(ServerState& state, OpenDocument& document) {
  std::function<lint::ReferencedFile(const std::string&)> read_reference;
  if (!path_of_address(document.uri()).empty())
    read_reference = [&](const std::string& path) { return find_reference(state, document, path); };
  const SourceOfText source(document.snapshot().read(), read_reference);
  return structure_of(document.snapshot(), *source);
}

/// A command, whose only argument is the address of an open text.
struct CommandRow {
  std::string_view name;
  Json (*run)(ServerState&, OpenDocument&);
};

constexpr CommandRow commands[] = {
    {"quillInp.showLines", shown_lines},
    {"quillInp.canonicalText", shown_canonical_text},
    {"quillInp.structure", shown_structure},
};

}  // namespace

Json command_options() {
  Json names = Json::array();
  for (const CommandRow& row : commands) names.push_back(row.name);
  return {{"commands", names}};
}

Json execute_command(ServerState& state, const Json& params) {
  const std::string& name = text_member(params, "command");
  const auto* row = std::find_if(std::begin(commands), std::end(commands),
                                 [&](const CommandRow& one) { return one.name == name; });
  if (row == std::end(commands))
    throw ResponseError(ErrorCode::InvalidParams, "the command is not known: " + name);
  const Json& arguments = list_member(params, "arguments");
  if (arguments.size() != 1 || !arguments[0].is_string())
    throw ResponseError(ErrorCode::InvalidParams, name + " takes the address of a text");
  return row->run(state, document_of(state, {{"textDocument", {{"uri", arguments[0]}}}}));
}

}  // namespace kelp::input::quill::language_server
