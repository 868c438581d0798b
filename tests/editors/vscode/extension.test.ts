import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import Module from "node:module";
import { join } from "node:path";
import { test } from "node:test";

const extension = process.env["EXTENSION"] ?? assert.fail("EXTENSION is not set");
const manifest = JSON.parse(readFileSync(join(extension, "package.json"), "utf8"));

// The stand-in has every member that is asked for.
type Anything = any;

/// Stands in for the editor where it does not matter what it does.
function anything(): Anything {
  const target: Anything = function () {};
  return new Proxy(target, {
    get: (own, key) => (key in own ? own[key] : (own[key] = anything())),
    apply: () => anything(),
    construct: () => anything(),
  });
}

function editor(isTrusted: boolean): { vscode: Anything; registered: string[]; granted: (() => void)[] } {
  const vscode = anything();
  // A bundle copies the members that are there when it is loaded.
  for (const name of ["EventEmitter", "Uri", "commands", "window", "workspace"]) vscode[name];
  const registered: string[] = [];
  const granted: (() => void)[] = [];
  vscode.commands.registerCommand = (name: string) => registered.push(name);
  vscode.workspace.isTrusted = isTrusted;
  vscode.workspace.onDidGrantWorkspaceTrust = (listener: () => void) => granted.push(listener);
  return { vscode, registered, granted };
}

async function activate(vscode: Anything): Promise<void> {
  const modules = Module as Anything;
  const load = modules._load;
  modules._load = (name: string, ...rest: unknown[]) => (name === "vscode" ? vscode : load(name, ...rest));
  try {
    const bundle = join(extension, "dist/extension.js");
    delete require.cache[bundle];
    await require(bundle).activate({ extensionUri: {}, subscriptions: [] });
  } finally {
    modules._load = load;
  }
}

test("in a folder that is not trusted, all commands are there and no program is asked for", async () => {
  const { vscode, registered, granted } = editor(false);
  vscode.workspace.getConfiguration = () => assert.fail("the path of the server is read");
  await activate(vscode);
  const contributed = manifest.contributes.commands.map((one: { command: string }) => one.command);
  assert.deepEqual(registered.sort(), contributed.sort());
  assert.equal(granted.length, 1);
});

test("the settings that name a program or an address cannot come from a folder that is not trusted", () => {
  const settings = manifest.contributes.configuration.properties;
  const restricted = ["quillInp.server.path", "quillInp.pages"];
  assert.deepEqual(manifest.capabilities.untrustedWorkspaces.restrictedConfigurations, restricted);
  for (const name of restricted) assert.equal(settings[name].scope, "machine-overridable");
  for (const [name, setting] of Object.entries<Anything>(settings))
    assert.match(setting.description ?? setting.markdownDescription, /\.$/, `${name} has a description`);
});
