// Goes through everything that the server tells that it can do. PROGRAM is quill-inp.
import assert from "node:assert/strict";
import { test } from "node:test";
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
  await context.test("what it registers later is known to this test", () => {
    const known = ["workspace/didChangeConfiguration", "workspace/didChangeWatchedFiles"];
    assert.deepEqual(client.registrations.map((one) => one.method).filter((one) => !known.includes(one)), []);
  });
  await assert.rejects(client.request("textDocument/rename", {}), { code: -32601 });
  assert.equal(await client.end(), 0);
  assert.deepEqual(client.refusals, []);
});
