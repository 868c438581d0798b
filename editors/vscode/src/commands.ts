import * as vscode from "vscode";
import type { MoleculePanel } from "./molecule/panel";
import type { Server } from "./server";

/// The commands of the editor. Those of the server have other names, because the client registers these
/// for the editor, too, and a name can be registered only once.
export function registerCommands(server: Server, molecule: MoleculePanel): vscode.Disposable[] {
  const register = vscode.commands.registerCommand;
  return [
    register("quillInp.editor.showLines", () => showText(server, "quillInp.showLines")),
    register("quillInp.editor.showCanonicalText", () => showText(server, "quillInp.canonicalText")),
    register("quillInp.editor.showMolecule", () => molecule.show()),
    register("quillInp.editor.restartServer", () => server.restart()),
  ];
}

/// Opens what the server says about the active input beside it, as a text of its own.
async function showText(server: Server, command: string): Promise<void> {
  const editor = vscode.window.activeTextEditor;
  if (editor === undefined) return;
  try {
    const content = await server.execute<string>(command, editor.document.uri);
    const document = await vscode.workspace.openTextDocument({ content });
    await vscode.window.showTextDocument(document, vscode.ViewColumn.Beside, true);
  } catch (error) {
    await vscode.window.showErrorMessage(error instanceof Error ? error.message : String(error));
  }
}
