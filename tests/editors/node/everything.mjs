// The abilities of a client that has all that the protocol knows and the server may ask for.
export const everything = {
  general: { positionEncodings: ["utf-16"] },
  window: { workDoneProgress: true },
  workspace: {
    applyEdit: true,
    configuration: true,
    didChangeConfiguration: { dynamicRegistration: true },
    didChangeWatchedFiles: { dynamicRegistration: true },
    executeCommand: {},
    workspaceFolders: true,
    diagnostics: { refreshSupport: true },
    inlayHint: { refreshSupport: true },
    workspaceEdit: { documentChanges: true },
  },
  textDocument: {
    codeAction: {
      codeActionLiteralSupport: {
        codeActionKind: { valueSet: ["quickfix", "source", "source.fixAll", "refactor", "refactor.rewrite"] },
      },
      isPreferredSupport: true,
    },
    completion: {
      completionItem: { snippetSupport: true, documentationFormat: ["markdown", "plaintext"], insertReplaceSupport: true },
    },
    definition: { linkSupport: false },
    diagnostic: { relatedDocumentSupport: false },
    documentHighlight: {},
    documentLink: { tooltipSupport: true },
    documentSymbol: { hierarchicalDocumentSymbolSupport: true },
    foldingRange: { lineFoldingOnly: true },
    formatting: {},
    hover: { contentFormat: ["markdown", "plaintext"] },
    inlayHint: {},
    publishDiagnostics: {
      relatedInformation: true,
      codeDescriptionSupport: true,
      versionSupport: true,
      tagSupport: { valueSet: [1, 2] },
    },
    references: {},
    selectionRange: {},
    semanticTokens: {
      requests: { full: true, range: true },
      tokenTypes: ["keyword", "type", "number", "string", "property", "variable", "operator", "comment", "macro", "parameter", "function", "enumMember"],
      tokenModifiers: [],
      formats: ["relative"],
    },
    synchronization: { didSave: true },
  },
};
