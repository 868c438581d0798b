// The page: from the text to everything that is shown about it, and back from that to the text.

import { accountOf } from "./account.js";
import { changesOf, classOfDifferenceLine } from "./difference.js";
import { makeEditor, makeReadOnly } from "./editor.js";
import { fillExamples, takeFiles } from "./inputs.js";
import { fragmentFor, textOfFragment } from "./link.js";
import { moleculeOf } from "./molecule.js";
import { makePicture } from "./picture.js";
import { describeProblems, showProblems } from "./problems.js";
import { Reader } from "./reader.js";
import { makeTabs } from "./tabs.js";
import { bytesOf, shown, textOf } from "./text_bytes.js";
import { changesBetween, changesOfEdits } from "./text_changes.js";

// Milliseconds without a change. Typing waits for the picture, which takes longer for a long text.
const pauseBeforePicture = (lineCount) => 150 + lineCount / 20;

const at = (id) => document.getElementById(id);
const reader = new Reader(globalThis.quillReaderSource, globalThis.quillReaderWasm);
let current = { bytes: new Uint8Array(), answer: null, account: { lines: [], problems: [], ofLine: new Map(), more: [] } };
let changes = changesOf("");
let answers = 0;

const editor = makeEditor(at("editor"), {
  onChange: () => examineSoon(),
  onLine: (number) => tellLine(number),
  describe: (problems) => describeProblems(problems, makeMend),
});
const canonical = makeReadOnly(at("canonical"), "Canonical text",
  (number) => (changes.added.has(number) ? "added" : ""));
const difference = makeReadOnly(at("difference"), "Difference to the canonical text", classOfDifferenceLine);
const json = makeReadOnly(at("document"), "Document as JSON");
const picture = makePicture(at("molecule"), at("molecule-note"), (number) => goToAtom(number));

// From the text to what is shown.

let isExamined = Promise.resolve();
let isPlanned = false;

function examineSoon() {
  if (isPlanned) return;
  isPlanned = true;
  isExamined = Promise.resolve().then(() => {
    isPlanned = false;
    return examine();
  });
}

/// Returns an answer of the reader. If it fails, the page says so, and this is null.
async function answerOf(asked) {
  try {
    return await asked;
  } catch (error) {
    at("failure").textContent = `The reader has failed (${error.message}). What is shown may be about an earlier text.`;
    return null;
  }
}

async function examine() {
  const { text, version } = editor;
  const bytes = bytesOf(text);
  const answer = await answerOf(reader.examine(bytes));
  if (!answer) return;
  at("failure").textContent = "";
  ++answers;
  current = { bytes, version, answer, account: accountOf(text, answer) };
  editor.account(current.account);
  tellLine(editor.line);
  tellProblems();
  tellCanonical();
  drawSoon();
}

function tellProblems() {
  const { problems, more } = current.account;
  const count = more.reduce((sum, [, others]) => sum + others, problems.length);
  at("count").textContent = count === 0 ? "None." : `${count} in all.`;
  // Findings that are not shown may have safe fixes, too, and so may one whose fix has too many edits to be listed.
  at("fix-all").disabled = !problems.some((problem) => problem.code !== null);
  showProblems(at("problems"), current.account, {
    go: (problem) => editor.go(problem.line, problem.from), mend: makeMend });
}

function tellCanonical() {
  const { answer } = current;
  const text = textOf(answer.difference);
  changes = changesOf(text);
  const { added, removed } = changes;
  at("difference-note").textContent = text === "" ? "The text is canonical: formatting changes nothing."
    : `Formatting removes ${removed} and adds ${added.size} lines; those that it adds are marked.`;
  const losses = answer.account.losses.map((loss) => {
    const row = document.createElement("li");
    row.textContent = `Not without --allow-loss: ${shown(loss.message)}`;
    return row;
  });
  at("losses").replaceChildren(...losses);
  canonical.show(textOf(answer.canonical));
  showOpenTab();
}

function showOpenTab() {
  if (!current.answer) return;
  if (!at("difference-panel").hidden) difference.show(textOf(current.answer.difference));
  if (!at("document-panel").hidden) showDocument();
}

async function showDocument() {
  const document = await answerOf(reader.document(current.bytes));
  if (document) json.show(document);
}

let drawing = 0;

function drawSoon() {
  clearTimeout(drawing);
  drawing = setTimeout(draw, pauseBeforePicture(current.account.lines.length));
}

async function draw() {
  const document = await answerOf(reader.document(current.bytes));
  if (!document) return;
  picture.show(moleculeOf(JSON.parse(document)));
  markLine(editor.line);
}

// From the cursor to the picture, and back.

function tellLine(number) {
  const line = current.account.lines[number - 1];
  const problems = current.account.ofLine.get(number) ?? [];
  const words = line ? [line.words, ...problems.map((problem) => problem.message)] : ["end of the text"];
  at("line").textContent = `Line ${number}: ${words.join("; ")}`;
  markLine(number);
}

function markLine(number) {
  const line = current.account.lines[number - 1];
  if (line?.role === "atom") picture.markAtoms([line.index]);
  else picture.markPart(line?.role === "post-processing" ? line.index : null);
}

function goToAtom(number) {
  const line = current.account.lines.findIndex((one) => one.role === "atom" && one.index === number);
  if (line >= 0) editor.go(line + 1);
}

// Fixes.

/// Makes the changes if the text is still the one that they were made for, and otherwise loses nothing of it.
function change(version, changesOf) {
  if (version !== editor.version) {
    examineSoon();
    at("told").textContent = "Nothing is fixed: the text has changed since then, and is read again.";
    return;
  }
  const made = changesOf();
  if (made.length > 0) editor.change(made);
  at("told").textContent = made.length > 0 ? "Fixed. Ctrl+Z in the text takes it back."
    : "Nothing is fixed: no finding has a safe fix.";
}

/// A problem of an earlier answer, in a hint that is still open, has its places in an earlier text.
function makeMend(problem) {
  const version = current.account.problems.includes(problem) ? current.version : null;
  change(version, () => changesOfEdits(editor.text, problem.fix.edits));
}

at("fix-all").addEventListener("click", async () => {
  const { text, version } = editor;
  const bytes = await answerOf(reader.mend(bytesOf(text)));
  if (bytes) change(version, () => changesBetween(text, textOf(bytes)));
});

// Inputs and links.

function showBytes(bytes) {
  editor.show(textOf(bytes));
  examineSoon();
}

async function copyLink() {
  history.replaceState(null, "", await fragmentFor(bytesOf(editor.text)));
  try {
    await navigator.clipboard.writeText(location.href);
    at("told").textContent = "The link is copied. The text is in it, after '#'.";
  } catch {
    at("told").textContent = "The link is in the address bar. The text is in it, after '#'.";
  }
}

async function showLinked() {
  const bytes = await textOfFragment(location.hash);
  if (bytes) showBytes(bytes);
  else if (location.hash.startsWith("#text=")) at("told").textContent = "The link holds no text that can be read.";
  return bytes !== null;
}

const examples = fillExamples(at("example"), globalThis.quillExamples, showBytes);
takeFiles(at("file"), at("text"), showBytes);
makeTabs(document.querySelector("[role=tablist]"), showOpenTab);
at("copy-link").addEventListener("click", copyLink);
addEventListener("hashchange", showLinked);
showLinked().then((isShown) => isShown || examples.showFirst());

/// For tests, and for whoever opens the console: what is shown.
globalThis.tryIt = {
  editor, picture, showBytes,
  async settled() {
    let last;
    do await (last = isExamined);
    while (last !== isExamined);
  },
  document: () => reader.document(current.bytes),
  shown: () => ({ ...current.answer, answers, bytes: current.bytes, canonicalText: canonical.text }),
};
