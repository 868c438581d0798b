import assert from "node:assert/strict";
import { mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { structure } from "./answers.mjs";
import { Client } from "./client.mjs";

const program = process.env.PROGRAM ?? assert.fail("PROGRAM is not set");

/// Starts a client of a server in a folder with one structure.
export function start(context, abilities) {
  const folder = mkdtempSync(join(tmpdir(), "quill-client-"));
  writeFileSync(join(folder, "water.xyz"), structure);
  const client = new Client(program, folder, abilities);
  context.after(() => {
    client.process.kill();
    rmSync(folder, { recursive: true });
  });
  return client;
}
