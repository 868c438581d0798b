// Whether answers have the shape of the protocol: the guards of its package of types, and some for the types
// that the package has no guard for.
import assert from "node:assert/strict";
import * as types from "vscode-languageserver-types";

/// Fails unless the value has a shape, and shows it.
export function is(shape, value) {
  assert.ok(shape.is(value), `not as the protocol has it: ${JSON.stringify(value)}`);
  return value;
}

export function allAre(shape, values) {
  assert.ok(Array.isArray(values) && values.length > 0, `no list: ${JSON.stringify(values)}`);
  for (const one of values) is(shape, one);
  return values;
}

const isOptional = (value, test) => value === undefined || test(value);
const isText = (value) => typeof value === "string";

export const DocumentHighlight = {
  is: (one) => types.Range.is(one?.range) && isOptional(one.kind, (kind) => [1, 2, 3].includes(kind)),
};

const isMarkup = (value) => isText(value) || types.MarkupContent.is(value);

export const CompletionItem = {
  is: (one) =>
    isText(one?.label) &&
    isOptional(one.kind, (kind) => Number.isInteger(kind) && kind >= 1 && kind <= 25) &&
    isOptional(one.detail, isText) &&
    isOptional(one.documentation, isMarkup) &&
    isOptional(one.insertTextFormat, (format) => format === 1 || format === 2) &&
    isOptional(one.textEdit, (edit) => types.TextEdit.is(edit) || types.InsertReplaceEdit.is(edit)) &&
    isOptional(one.insertText, isText),
};

export const DocumentDiagnosticReport = {
  is: (one) =>
    (one?.kind === "unchanged" && isText(one.resultId)) ||
    (one?.kind === "full" && Array.isArray(one.items) && one.items.every((item) => types.Diagnostic.is(item))),
};

/// The tokens of a text as [line, column, length, name of the type], after a check that they are inside it, in
/// order, and of types that the server has told.
export function tokensOf(answer, legend, lines) {
  is(types.SemanticTokens, answer);
  assert.equal(answer.data.length % 5, 0);
  const tokens = [];
  let line = 0;
  let column = 0;
  for (let at = 0; at < answer.data.length; at += 5) {
    const [down, right, length, type, modifiers] = answer.data.slice(at, at + 5);
    column = down === 0 ? column + right : right;
    line += down;
    assert.ok(length > 0 && column + length <= lines[line].length, `token at ${line}:${column}`);
    assert.ok(type < legend.tokenTypes.length && modifiers < 2 ** legend.tokenModifiers.length);
    tokens.push([line, column, length, legend.tokenTypes[type]]);
  }
  return tokens;
}

/// A text after edits, none of which may overlap another one.
export function edited(text, edits) {
  allAre(types.TextEdit, edits);
  return types.TextDocument.applyEdits(types.TextDocument.create("file:///x", "quill", 1, text), edits);
}
