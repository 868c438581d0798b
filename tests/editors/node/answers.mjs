// What the client asks for each ability that the server tells, and what it must answer. The keys are those
// of the server's capabilities.
import assert from "node:assert/strict";
import * as types from "vscode-languageserver-types";
import { allAre, CompletionItem, DocumentDiagnosticReport, DocumentHighlight, edited, is, tokensOf } from "./shapes.mjs";

// Water, with a bond that is kept and a scan; "careless" has mistakes, one of which can be corrected.
export const water = `#opt(maxiter=50)
#model = small-organic

0 1
O 0.0 0.0 0.117176
H 0.0 0.756950 -0.468706
H 0.0 -0.756950 -0.468706

B 1 2
S 2 1 3 120.0 10
POST charges.dat
`;
export const careless = `#opt(maxiter=50
0 1
H 0 0 0
H 0 0 0,74
b 1 x
`;
export const referring = `#sp
0 1
XYZ water.xyz
B 1 2
`;
export const structure = `3
water
O 0 0 0
H 0 0 0.96
H 0.93 0 -0.24
`;

/// What is found in "careless".
export function checkFindings(found) {
  allAre(types.Diagnostic, found);
  assert.deepEqual(found.map((one) => [one.code, one.severity, one.source]), [
    ["QL201", 2, "quill-inp"],
    ["QL104", 1, "quill-inp"],
    ["QL301", 1, "quill-inp"],
  ]);
  assert.deepEqual(found.map((one) => one.range), [span(0, 4, 5), span(3, 6, 10), span(4, 4, 5)]);
}

const place = (line, character) => ({ position: { line, character } });
const span = (line, from, to) => ({ start: { line, character: from }, end: { line, character: to } });
const all = { start: { line: 0, character: 0 }, end: { line: 11, character: 0 } };

export const answers = {
  positionEncoding: async ({ capabilities }) => assert.equal(capabilities.positionEncoding, "utf-16"),

  textDocumentSync: async ({ client, capabilities }) => {
    const sync = capabilities.textDocumentSync;
    assert.deepEqual([sync.openClose, sync.change], [true, 2]);
    // An emoji has two units of UTF-16. The second edit is one in the text that the first one makes.
    const uri = await client.open("typed.qin", "#sp \u{1F600}\r\n0 1\r\nHe 0 0 0\r\n");
    await client.notify("textDocument/didChange", {
      textDocument: { uri, version: 2 },
      contentChanges: [{ range: span(0, 3, 6), text: " \u{1F600}\r\n#x" }, { range: span(3, 0, 1), text: "F" }],
    });
    const tokens = await client.request("textDocument/semanticTokens/full", { textDocument: { uri } });
    const lines = ["#sp \u{1F600}", "#x", "0 1", "Fe 0 0 0", ""];
    const texts = tokensOf(tokens, capabilities.semanticTokensProvider.legend, lines)
      .map(([line, column, length]) => lines[line].slice(column, column + length));
    assert.deepEqual(texts, ["#sp \u{1F600}", "#x", "0", "1", "Fe", "0", "0", "0"]);
    await client.notify("textDocument/didSave", { textDocument: { uri } });
    await client.notify("textDocument/didClose", { textDocument: { uri } });
    await assert.rejects(client.request("textDocument/hover", { textDocument: { uri }, ...place(0, 0) }), { code: -32602 });
  },

  diagnosticProvider: async ({ client, uris }) => {
    const pulled = is(DocumentDiagnosticReport, await client.request("textDocument/diagnostic", { textDocument: { uri: uris.careless } }));
    checkFindings(pulled.items);
    const again = { textDocument: { uri: uris.careless }, previousResultId: pulled.resultId };
    is(DocumentDiagnosticReport, await client.request("textDocument/diagnostic", again));
    assert.deepEqual([...client.diagnostics.keys()], [], "a client that asks is not told besides");
  },

  codeActionProvider: async ({ client, uris }) => {
    const [, comma] = await client.findings(uris.careless);
    const actions = allAre(types.CodeAction, await client.request("textDocument/codeAction", {
      textDocument: { uri: uris.careless },
      range: comma.range,
      context: { diagnostics: [comma], triggerKind: 1 },
    }));
    const mend = actions.find((one) => one.kind === "quickfix");
    is(types.WorkspaceEdit, mend.edit);
    const edits = mend.edit.changes?.[uris.careless] ?? mend.edit.documentChanges[0].edits;
    assert.equal(edited(careless, edits), careless.replace("0,74", "0.74"));
  },

  documentFormattingProvider: async ({ client, uris }) => {
    const options = { tabSize: 2, insertSpaces: true };
    const edits = await client.request("textDocument/formatting", { textDocument: { uri: uris.water }, options });
    const text = edited(water, edits);
    assert.match(text, /^#opt\(maxiter=50\)\n#model = small-organic\n\n0 1\nO {8}0\.000000 {6}0\.000000 {6}0\.117176\n/);
    assert.ok(text.endsWith("\n\nB 1 2\nS 2 1 3 120 10\nPOST charges.dat\n"), text);
    await assert.rejects(
      client.request("textDocument/formatting", { textDocument: { uri: uris.careless }, options }),
      /B 1 x|b 1 x/,
    );
  },

  documentRangeFormattingProvider: async ({ client, uris }) => {
    const edits = await client.request("textDocument/rangeFormatting", {
      textDocument: { uri: uris.water },
      range: span(9, 0, 3),
      options: { tabSize: 2, insertSpaces: true },
    });
    assert.equal(edited(water, edits), water.replace("120.0", "120"));
  },

  hoverProvider: async ({ client, uris }) => {
    const hover = async (line, character, uri = uris.water) =>
      is(types.Hover, await client.request("textDocument/hover", { textDocument: { uri }, ...place(line, character) }));
    assert.match((await hover(5, 0)).contents.value, /atom 2/);
    const bond = await hover(8, 0);
    assert.equal(bond.contents.kind, "markdown");
    // The distance of water's atoms 1 and 2.
    assert.match(bond.contents.value, /0\.957/);
    assert.match((await hover(9, 0)).contents.value, /104\.\d/);
    assert.equal(await client.request("textDocument/hover", { textDocument: { uri: uris.water }, ...place(2, 0) }), null);
  },

  completionProvider: async ({ client, uris }) => {
    const complete = async (uri, line, character) => {
      const answer = await client.request("textDocument/completion", { textDocument: { uri }, ...place(line, character) });
      return allAre(CompletionItem, answer.items ?? answer);
    };
    const uri = await client.open("unfinished.qin", `${water.replace("POST charges.dat\n", "")}\n`);
    const keywords = await complete(uri, 10, 0);
    assert.ok(keywords.some((one) => one.insertTextFormat === 2 && /\$\{?1/.test((one.textEdit ?? {}).newText ?? one.insertText)));
    assert.ok((await complete(uri, 5, 1)).some((one) => one.label.startsWith("He")));
    const name = await client.open("name.qin", "#\n");
    assert.ok((await complete(name, 0, 1)).some((one) => one.label === "opt"));
  },

  definitionProvider: async ({ client, uris }) => {
    const go = (uri, line, character) =>
      client.request("textDocument/definition", { textDocument: { uri }, ...place(line, character) });
    const [atom] = [await go(uris.water, 8, 4)].flat();
    is(types.Location, atom);
    assert.deepEqual([atom.uri, atom.range.start.line], [uris.water, 5]);
  },

  referencesProvider: async ({ client, uris }) => {
    const found = await client.request("textDocument/references", {
      textDocument: { uri: uris.water },
      ...place(5, 0),
      context: { includeDeclaration: false },
    });
    allAre(types.Location, found);
    assert.deepEqual(found.map((one) => [one.range.start.line, one.range.start.character]), [[8, 4], [9, 2]]);
  },

  documentHighlightProvider: async ({ client, uris }) => {
    const found = await client.request("textDocument/documentHighlight", { textDocument: { uri: uris.water }, ...place(8, 4) });
    allAre(DocumentHighlight, found);
    assert.deepEqual(found.map((one) => one.range.start.line).sort(), [5, 8, 9]);
  },

  documentSymbolProvider: async ({ client, uris }) => {
    const symbols = allAre(types.DocumentSymbol, await client.request("textDocument/documentSymbol", { textDocument: { uri: uris.water } }));
    const names = symbols.map((one) => `${one.name} ${one.detail ?? ""}`).join("\n");
    for (const symbol of symbols.flatMap((one) => one.children ?? [])) is(types.DocumentSymbol, symbol);
    assert.match(names, /H2O/);
  },

  documentLinkProvider: async ({ client, uris }) => {
    const [link] = allAre(types.DocumentLink, await client.request("textDocument/documentLink", { textDocument: { uri: uris.referring } }));
    assert.deepEqual(link.range, span(2, 4, 13));
    assert.equal(link.target, client.addressOf("water.xyz"));
  },

  foldingRangeProvider: async ({ client, uris }) => {
    const folds = allAre(types.FoldingRange, await client.request("textDocument/foldingRange", { textDocument: { uri: uris.water } }));
    assert.ok(folds.some((one) => one.startLine === 4 && one.endLine === 6), JSON.stringify(folds));
  },

  selectionRangeProvider: async ({ client, uris }) => {
    const positions = [{ line: 8, character: 4 }, { line: 0, character: 6 }];
    const found = allAre(types.SelectionRange, await client.request("textDocument/selectionRange", { textDocument: { uri: uris.water }, positions }));
    assert.equal(found.length, positions.length);
    assert.deepEqual(found[0].range, span(8, 4, 5));
    let last = found[0];
    while (last.parent !== undefined) last = last.parent;
    assert.deepEqual(last.range, all);
  },

  semanticTokensProvider: async ({ client, uris, capabilities }) => {
    const { legend } = capabilities.semanticTokensProvider;
    const textDocument = { uri: uris.water };
    const lines = water.split("\n");
    const tokens = tokensOf(await client.request("textDocument/semanticTokens/full", { textDocument }), legend, lines);
    const texts = tokens.map(([line, column, length]) => lines[line].slice(column, column + length));
    assert.deepEqual(texts, [
      ...["#opt", "maxiter", "50", "#model", "small-organic", "0", "1", "O", "0.0", "0.0", "0.117176"],
      ...["H", "0.0", "0.756950", "-0.468706", "H", "0.0", "-0.756950", "-0.468706", "B", "1", "2"],
      ...["S", "2", "1", "3", "120.0", "10", "POST", "charges.dat"],
    ]);
    const some = tokensOf(await client.request("textDocument/semanticTokens/range", { textDocument, range: span(8, 0, 5) }), legend, lines);
    assert.deepEqual(some, tokens.filter(([line]) => line === 8));
  },

  inlayHintProvider: async ({ client, uris }) => {
    const hints = allAre(types.InlayHint, await client.request("textDocument/inlayHint", { textDocument: { uri: uris.water }, range: all }));
    assert.deepEqual(hints.map((one) => one.position.line), [4, 5, 6]);
    assert.match(JSON.stringify(hints[1].label), /2/);
  },

  executeCommandProvider: async ({ client, uris, capabilities }) => {
    const execute = (command, uri) => client.request("workspace/executeCommand", { command, arguments: [uri] });
    const check = {
      "quillInp.showLines": async (name) => assert.match(await execute(name, uris.water), /atom/),
      "quillInp.canonicalText": async (name) => assert.match(await execute(name, uris.water), /\nS 2 1 3 120 10\n/),
      "quillInp.structure": async (name) => {
        const { atoms, constraints } = await execute(name, uris.water);
        assert.deepEqual(atoms[1], { symbol: "H", position: [0, 0.75695, -0.468706], line: 5 });
        assert.deepEqual(constraints, [
          { kind: "bond", atoms: [1, 2], line: 8 },
          { kind: "scan", atoms: [2, 1, 3], line: 9 },
        ]);
        const outside = await execute(name, uris.referring);
        assert.deepEqual(outside.atoms.map((one) => [one.symbol, one.line]), [["O", null], ["H", null], ["H", null]]);
      },
    };
    const { commands } = capabilities.executeCommandProvider;
    assert.deepEqual([...commands].sort(), Object.keys(check).sort());
    for (const name of commands) await check[name](name);
    await assert.rejects(execute("quillInp.unknown", uris.water));
    await assert.rejects(execute("quillInp.structure", client.addressOf("closed.qin")));
  },
};
