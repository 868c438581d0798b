#include "language_server/features/features.hpp"

namespace kelp::input::quill::language_server {

const std::vector<Feature>& all_features() {
  static const std::vector<Feature> features = {
      {"textDocument/completion", completion, "completionProvider", completion_options()},
      {"textDocument/definition", definition, "definitionProvider", true},
      {"textDocument/documentHighlight", document_highlights, "documentHighlightProvider", true},
      {"textDocument/documentLink", document_links, "documentLinkProvider", Json::object()},
      {"textDocument/documentSymbol", document_symbols, "documentSymbolProvider", true},
      {"textDocument/foldingRange", folding_ranges, "foldingRangeProvider", true},
      {"textDocument/hover", hover, "hoverProvider", true},
      {"textDocument/inlayHint", inlay_hints, "inlayHintProvider", true},
      {"textDocument/references", references, "referencesProvider", true},
      {"textDocument/selectionRange", selection_ranges, "selectionRangeProvider", true},
      {"textDocument/semanticTokens/full", semantic_tokens, "semanticTokensProvider",
       semantic_tokens_options()},
      {"textDocument/semanticTokens/range", semantic_tokens_of_range, "semanticTokensProvider",
       semantic_tokens_options()},
  };
  return features;
}

}  // namespace kelp::input::quill::language_server
