// The text as it is edited, each line with what the reader made of it. Only the lines that can be seen are
// drawn. It is in a shadow tree, where the editor's styles are allowed although the page forbids styles
// that are not in a file.

import { defaultKeymap, history, historyKeymap } from "@codemirror/commands";
import { search, searchKeymap } from "@codemirror/search";
import { EditorSelection, EditorState, RangeSetBuilder, StateEffect, StateField }
  from "@codemirror/state";
import { Decoration, EditorView, GutterMarker, ViewPlugin, gutter, highlightActiveLine,
         highlightSpecialChars, hoverTooltip, keymap, lineNumbers } from "@codemirror/view";

import { roleClass } from "./account.js";
import { theme } from "./theme.js";

const setAccount = StateEffect.define();
const no_account = { lines: [], problems: [], ofLine: new Map() };

/// What the reader made of the text. After a change it is that of the old text until the answer comes.
const accountField = StateField.define({
  create: () => no_account,
  update(account, transaction) {
    for (const effect of transaction.effects) if (effect.is(setAccount)) return effect.value;
    return account;
  },
});

class Words extends GutterMarker {
  constructor(words, role) {
    super();
    this.words = words;
    this.elementClass = roleClass(role);
  }
  eq(other) { return other.words === this.words && other.elementClass === this.elementClass; }
  toDOM() { return document.createTextNode(this.words); }
}

function lineAccount(state, position) {
  return state.field(accountField).lines[state.doc.lineAt(position).number - 1];
}

const wordsGutter = gutter({
  class: "words",
  lineMarker(view, block) {
    const line = lineAccount(view.state, block.from);
    return line && line.role !== "blank" ? new Words(line.words, line.role) : null;
  },
  lineMarkerChange: (update) =>
    update.startState.field(accountField) !== update.state.field(accountField),
  initialSpacer: () => new Words("dihedral constraint", "blank"),
});

function decorateLine(builder, state, line) {
  const account = state.field(accountField);
  const role = account.lines[line.number - 1]?.role;
  if (role) builder.add(line.from, line.from, Decoration.line({ class: roleClass(role) }));
  const marks = (account.ofLine.get(line.number) ?? []).filter((problem) => problem.to > problem.from);
  for (const problem of marks.sort((a, b) => a.from - b.from)) {
    const [from, to] = [Math.max(problem.from, line.from), Math.min(problem.to, line.to)];
    if (from < to) builder.add(from, to, Decoration.mark({ class: `found found-${problem.severity}` }));
  }
}

function decorationsOf(view) {
  const builder = new RangeSetBuilder();
  for (const { from, to } of view.visibleRanges) {
    for (let at = from; at <= to; ) {
      const line = view.state.doc.lineAt(at);
      decorateLine(builder, view.state, line);
      at = line.to + 1;
    }
  }
  return builder.finish();
}

const roles = ViewPlugin.fromClass(class {
  constructor(view) { this.decorations = decorationsOf(view); }
  update(update) {
    const isNew = update.startState.field(accountField) !== update.state.field(accountField);
    if (update.docChanged || update.viewportChanged || isNew) this.decorations = decorationsOf(update.view);
  }
}, { decorations: (plugin) => plugin.decorations });

function problemTooltip(describe) {
  return hoverTooltip((view, position) => {
    const line = view.state.doc.lineAt(position);
    const problems = view.state.field(accountField).ofLine.get(line.number) ?? [];
    if (problems.length === 0) return null;
    return { pos: line.from, end: line.to, above: false, create: () => ({ dom: describe(problems) }) };
  });
}

function shadowOf(element) {
  return element.shadowRoot ?? element.attachShadow({ mode: "open" });
}

// Only "\n" ends a line, as for the reader, so that "\r" is kept and shown.
const line_ends = EditorState.lineSeparator.of("\n");

/// Makes the editor in `element`. `events` has onChange(), onLine(number) and describe(problems), which
/// returns an element. Returns an object with `text`, the text; `version`, a value that is another one after each
/// change of the text; show(text) for another text, change(changes), account(account), the line where the cursor
/// is, and go(line).
export function makeEditor(element, events) {
  let lastLine = 0;
  const listener = EditorView.updateListener.of((update) => {
    if (update.docChanged) events.onChange();
    const line = update.state.doc.lineAt(update.state.selection.main.head).number;
    if (line !== lastLine || update.docChanged) events.onLine((lastLine = line));
  });
  // What is typed here is a text, also where a key has a meaning elsewhere on the page.
  element.addEventListener("keydown", (event) => event.key === "/" && event.stopPropagation());
  const view = new EditorView({
    parent: shadowOf(element), root: shadowOf(element),
    extensions: [
      line_ends, accountField, lineNumbers(), wordsGutter, roles, highlightActiveLine(), history(),
      search({ top: true }), highlightSpecialChars(), problemTooltip(events.describe), listener, theme,
      // Tab leaves the editor, so that a keyboard reaches what comes after it.
      keymap.of([...searchKeymap, ...historyKeymap, ...defaultKeymap]),
      EditorView.contentAttributes.of({ "aria-label": "Text of the input", tabindex: "0", spellcheck: "false",
                                        autocorrect: "off", autocapitalize: "off" }),
    ],
  });
  return {
    view,
    get text() { return view.state.sliceDoc(); },
    show(text) {
      view.dispatch({ changes: { from: 0, to: view.state.doc.length, insert: view.state.toText(text) },
                      selection: EditorSelection.cursor(0), scrollIntoView: true });
    },
    get version() { return view.state.doc; },
    change: (changes) => view.dispatch({ changes }),
    account: (account) => view.dispatch({ effects: setAccount.of(account) }),
    get line() { return view.state.doc.lineAt(view.state.selection.main.head).number; },
    go(number, position) {
      const line = view.state.doc.line(Math.min(number, view.state.doc.lines));
      const at = position ?? line.from;
      view.dispatch({ selection: EditorSelection.cursor(Math.min(at, view.state.doc.length)),
                      effects: EditorView.scrollIntoView(line.from, { y: "center" }) });
      view.focus();
    },
  };
}

/// Makes a text that can only be read in `element`; `lineClass(number, text)` gives the class of a line.
export function makeReadOnly(element, label, lineClass = () => "") {
  const colors = ViewPlugin.fromClass(class {
    constructor(view) { this.decorations = this.of(view); }
    update(update) {
      if (update.docChanged || update.viewportChanged) this.decorations = this.of(update.view);
    }
    of(view) {
      const builder = new RangeSetBuilder();
      for (const { from, to } of view.visibleRanges) {
        for (let at = from; at <= to; ) {
          const line = view.state.doc.lineAt(at);
          const name = lineClass(line.number, line.text);
          if (name) builder.add(line.from, line.from, Decoration.line({ class: name }));
          at = line.to + 1;
        }
      }
      return builder.finish();
    }
  }, { decorations: (plugin) => plugin.decorations });
  const view = new EditorView({
    parent: shadowOf(element), root: shadowOf(element),
    extensions: [
      line_ends, lineNumbers(), colors, highlightSpecialChars(), theme, EditorState.readOnly.of(true),
      EditorView.editable.of(false), keymap.of(defaultKeymap),
      EditorView.contentAttributes.of({ "aria-label": label, tabindex: "0", role: "textbox",
                                        "aria-readonly": "true", "aria-multiline": "true" }),
    ],
  });
  return {
    get text() { return view.state.sliceDoc(); },
    show(text) {
      if (text === view.state.sliceDoc()) return;
      view.dispatch({ changes: { from: 0, to: view.state.doc.length, insert: view.state.toText(text) } });
    },
    measure: () => view.requestMeasure(),
  };
}
