// Goes through everything that the server tells that it can do. PROGRAM is quill-inp.
import assert from "node:assert/strict";
import { test } from "node:test";
import protocol from "vscode-languageserver-protocol/node.js";
import { answers, careless, referring, water } from "./answers.mjs";
import { everything } from "./everything.mjs";
import { start } from "./start.mjs";

test("the server does all that it tells, as the protocol has it", async (context) => {
  const client = start(context, everything);
  const { capabilities, serverInfo } = await client.initialize();
  assert.equal(serverInfo.name, "quill-inp");
  const uris = {
    water: await client.open("water.qin", water),
    careless: await client.open("careless.qin", careless),
    referring: await client.open("referring.qin", referring),
  };
  for (const ability of Object.keys(capabilities))
    await context.test(`it answers for ${ability}`, async () => {
      assert.ok(ability in answers, "no request of this test goes through it");
      await answers[ability]({ client, uris, capabilities });
    });
  await context.test("it tells all that this test goes through", () => {
    assert.deepEqual(Object.keys(capabilities).sort(), Object.keys(answers).sort());
  });
  await context.test("what it registers later is known to this test", () => {
    const known = ["workspace/didChangeConfiguration", "workspace/didChangeWatchedFiles"];
    assert.deepEqual(client.registrations.map((one) => one.method).filter((one) => !known.includes(one)), []);
  });
  await assert.rejects(client.request("textDocument/rename", {}), { code: -32601 });
  assert.equal(await client.end(), 0);
  assert.deepEqual(client.refusals, []);
});

test("a client that offers UTF-8 gets places in bytes", async (context) => {
  const client = start(context, { ...everything, general: { positionEncodings: ["utf-8", "utf-16"] } });
  const { capabilities } = await client.initialize();
  assert.equal(capabilities.positionEncoding, "utf-8");
  const uri = await client.open("emoji.qin", "#title = \u{1F600} (x)\n0 1\nHe 0 0 0\nB 1 \u{1F600}\n");
  const [dropped] = await client.findings(uri).then((found) => found.filter((one) => one.code === "QL301"));
  assert.deepEqual(dropped.range, { start: { line: 3, character: 4 }, end: { line: 3, character: 8 } });
});

test("a request can be taken back, and the server goes on", async (context) => {
  const client = start(context, everything);
  await client.initialize();
  const uri = await client.open("water.qin", water);
  const source = new protocol.CancellationTokenSource();
  const params = { textDocument: { uri }, position: { line: 8, character: 0 } };
  const asked = client.connection.sendRequest("textDocument/hover", params, source.token);
  source.cancel();
  // It may have been answered before it is taken back.
  await asked.catch((error) => assert.equal(error.code, protocol.LSPErrorCodes.RequestCancelled));
  assert.notEqual(await client.request("textDocument/hover", params), null);
  assert.equal(await client.end(), 0);
});
