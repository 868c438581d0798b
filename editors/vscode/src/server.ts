import * as vscode from "vscode";
import { LanguageClient, State } from "vscode-languageclient/node";

/// The language server, `quill-inp lsp`. There is none before the folder is trusted: the folder's settings
/// may name the program.
export class Server implements vscode.Disposable {
  private client: LanguageClient | undefined;
  private readonly started = new vscode.EventEmitter<void>();

  /// Tells that a server runs, also after a restart.
  readonly onStarted = this.started.event;

  get isRunning(): boolean {
    return this.client?.state === State.Running;
  }

  async start(): Promise<void> {
    if (this.client !== undefined) return;
    const path = vscode.workspace.getConfiguration("quillInp").get("server.path", "quill-inp");
    const client = new LanguageClient(
      "quillInp",
      "QUILL inputs",
      { command: path, args: ["lsp"] },
      {
        documentSelector: [{ language: "quill" }],
        synchronize: { configurationSection: "quillInp" },
      },
    );
    this.client = client;
    try {
      await client.start();
      this.started.fire();
    } catch (error) {
      // After a restart there may be another client.
      if (this.client === client) this.client = undefined;
      await this.explain(path, error);
    }
  }

  async stop(): Promise<void> {
    const client = this.client;
    this.client = undefined;
    if (client === undefined) return;
    // A server that has ended by itself cannot be asked to.
    await client.dispose().catch(() => undefined);
  }

  async restart(): Promise<void> {
    await this.stop();
    if (vscode.workspace.isTrusted) await this.start();
  }

  /// Asks the server for what one of its commands says about a document. Throws if no server runs.
  async execute<Result>(command: string, document: vscode.Uri): Promise<Result> {
    if (this.client === undefined || !this.isRunning)
      throw new Error("The language server of QUILL inputs does not run.");
    return this.client.sendRequest<Result>("workspace/executeCommand", {
      command,
      arguments: [this.client.code2ProtocolConverter.asUri(document)],
    });
  }

  dispose(): void {
    void this.stop();
    this.started.dispose();
  }

  private async explain(path: string, error: unknown): Promise<void> {
    const reason = error instanceof Error ? error.message : String(error);
    const choice = await vscode.window.showErrorMessage(
      `The program '${path}' could not be started as a language server: ${reason}`,
      "Open Settings",
    );
    if (choice !== undefined)
      await vscode.commands.executeCommand("workbench.action.openSettings", "quillInp.server.path");
  }
}
