// A client of the language server: the packages of the protocol itself, and no editor.
import { spawn } from "node:child_process";
import { once } from "node:events";
import { pathToFileURL } from "node:url";
import protocol from "vscode-languageserver-protocol/node.js";

/// How long the server may take for one answer, in milliseconds.
const patience = 10_000;

export class Client {
  /// Starts the server in a folder. `abilities` are those of the client.
  constructor(program, folder, abilities) {
    this.folder = folder;
    this.abilities = abilities;
    this.diagnostics = new Map();
    this.registrations = [];
    this.messages = [];
    this.settings = {};
    this.refusals = [];
    this.process = spawn(program, ["lsp"], { cwd: folder, stdio: ["pipe", "pipe", "inherit"] });
    this.ended = once(this.process, "exit");
    this.connection = protocol.createProtocolConnection(
      new protocol.StreamMessageReader(this.process.stdout),
      new protocol.StreamMessageWriter(this.process.stdin),
    );
    this.connection.onError(([error]) => this.refusals.push(error.message));
    this.connection.onUnhandledNotification(({ method }) => this.refusals.push(`nobody takes ${method}`));
    this.answerServer();
    this.connection.listen();
  }

  answerServer() {
    const { connection } = this;
    connection.onNotification("textDocument/publishDiagnostics", (one) => this.diagnostics.set(one.uri, one));
    connection.onNotification("window/logMessage", (one) => this.messages.push(one));
    connection.onNotification("window/showMessage", (one) => this.messages.push(one));
    connection.onNotification("$/progress", (one) => this.messages.push(one));
    connection.onRequest("client/registerCapability", ({ registrations }) => {
      this.registrations.push(...registrations);
      return null;
    });
    connection.onRequest("workspace/configuration", ({ items }) => items.map(() => this.settings));
    for (const method of [
      "window/workDoneProgress/create",
      "workspace/diagnostic/refresh",
      "workspace/inlayHint/refresh",
      "workspace/semanticTokens/refresh",
    ])
      connection.onRequest(method, () => null);
    connection.onRequest("workspace/applyEdit", ({ edit }) => {
      this.appliedEdit = edit;
      return { applied: true };
    });
  }

  /// Returns what the server says that it can do.
  async initialize() {
    const rootUri = pathToFileURL(this.folder).href;
    const result = await this.request("initialize", {
      processId: process.pid,
      rootUri,
      workspaceFolders: [{ uri: rootUri, name: "inputs" }],
      capabilities: this.abilities,
    });
    await this.notify("initialized", {});
    return result;
  }

  async request(method, params) {
    let timer;
    const late = new Promise((_, refuse) => {
      timer = setTimeout(() => refuse(new Error(`no answer to ${method}`)), patience);
    });
    try {
      return await Promise.race([this.connection.sendRequest(method, params), late]);
    } finally {
      clearTimeout(timer);
    }
  }

  notify(method, params) {
    return this.connection.sendNotification(method, params);
  }

  addressOf(name) {
    return pathToFileURL(`${this.folder}/${name}`).href;
  }

  async open(name, text) {
    const uri = this.addressOf(name);
    await this.notify("textDocument/didOpen", {
      textDocument: { uri, languageId: "quill", version: 1, text },
    });
    return uri;
  }

  /// Asks for what the server finds in a text.
  async findings(uri) {
    return (await this.request("textDocument/diagnostic", { textDocument: { uri } })).items;
  }

  /// Waits until the server has published what it found in a version of a text.
  async published(uri, version) {
    const deadline = Date.now() + patience;
    for (;;) {
      const found = this.diagnostics.get(uri);
      if (found?.version === version) return found.diagnostics;
      if (Date.now() > deadline) throw new Error(`nothing is published about version ${version} of ${uri}`);
      await new Promise((resolve) => setTimeout(resolve, 5));
    }
  }

  /// Ends the server as the protocol asks, and returns its exit code.
  async end() {
    await this.request("shutdown");
    await this.notify("exit");
    const [code] = await this.ended;
    this.connection.dispose();
    return code;
  }
}
