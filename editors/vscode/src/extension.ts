import * as vscode from "vscode";
import { registerCommands } from "./commands";
import { MoleculePanel } from "./molecule/panel";
import { Server } from "./server";

export async function activate(context: vscode.ExtensionContext): Promise<void> {
  const server = new Server();
  const molecule = new MoleculePanel(context.extensionUri, server);
  context.subscriptions.push(server, molecule, ...registerCommands(server, molecule));

  if (vscode.workspace.isTrusted) await server.start();
  context.subscriptions.push(
    vscode.workspace.onDidGrantWorkspaceTrust(() => server.start()),
    vscode.workspace.onDidChangeConfiguration(async (change) => {
      if (change.affectsConfiguration("quillInp.server")) await server.restart();
    }),
  );
}
