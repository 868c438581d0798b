// What the server finds in texts, and what it knows of the folder and the settings of the editor.
import assert from "node:assert/strict";
import { test } from "node:test";
import { careless, checkFindings, referring, water } from "./answers.mjs";
import { everything } from "./everything.mjs";
import { start } from "./start.mjs";

test("a client that does not ask is told what is found, with the version of the text", async (context) => {
  const { diagnostic: _, ...textDocument } = everything.textDocument;
  const client = start(context, { ...everything, textDocument });
  await client.initialize();
  const uri = await client.open("careless.qin", careless);
  checkFindings(await client.published(uri, 1));
  const end = { start: { line: 4, character: 0 }, end: { line: 5, character: 0 } };
  await client.notify("textDocument/didChange", { textDocument: { uri, version: 7 }, contentChanges: [{ range: end, text: "" }] });
  assert.deepEqual((await client.published(uri, 7)).map((one) => one.code), ["QL201", "QL104"]);
  await client.notify("textDocument/didClose", { textDocument: { uri } });
  await client.request("shutdown");
  assert.deepEqual(client.diagnostics.get(uri).diagnostics, [], "nothing is shown of a closed text");
});

test("answers know the files of the folder, the findings, and the settings", async (context) => {
  const client = start(context, everything);
  await client.initialize();
  const ask = (method, uri, line, character) =>
    client.request(`textDocument/${method}`, { textDocument: { uri }, position: { line, character } });

  const path = await client.open("path.qin", "#sp\n0 1\nXYZ wa\n");
  const offered = await ask("completion", path, 2, 6);
  assert.deepEqual((offered.items ?? offered).map((one) => one.label), ["water.xyz"]);

  const referrer = await client.open("referring.qin", referring);
  const atom = [await ask("definition", referrer, 3, 2)].flat()[0];
  assert.deepEqual([atom.uri, atom.range.start.line], [client.addressOf("water.xyz"), 2]);

  const uri = await client.open("careless.qin", careless);
  assert.match((await ask("hover", uri, 4, 4)).contents.value, /QL301/);

  const inputs = await client.open("water.qin", water);
  const range = { start: { line: 0, character: 0 }, end: { line: 11, character: 0 } };
  const hints = () => client.request("textDocument/inlayHint", { textDocument: { uri: inputs }, range });
  assert.equal((await hints()).length, 3);
  client.settings = { inlayHints: { atomNumbers: false } };
  await client.notify("workspace/didChangeConfiguration", { settings: { quillInp: client.settings } });
  // The server asks for the settings again, and answers meanwhile by the old ones.
  await new Promise((resolve) => setTimeout(resolve, 200));
  assert.deepEqual((await hints()) ?? [], []);
});
