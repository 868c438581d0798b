import * as vscode from "vscode";
import type { Server } from "../server";
import { moleculeHtml } from "./html";
import type { FromPage, ToPage } from "./messages";
import type { Structure } from "./structure";

/// How long the text must rest before the molecule is drawn again, in milliseconds.
const rest = 150;

/// The molecule of the input that was edited last, beside its text.
export class MoleculePanel implements vscode.Disposable {
  private panel: vscode.WebviewPanel | undefined;
  private document: vscode.TextDocument | undefined;
  private timer: NodeJS.Timeout | undefined;
  private readonly listeners: vscode.Disposable[];

  constructor(
    private readonly extension: vscode.Uri,
    private readonly server: Server,
  ) {
    this.listeners = [
      server.onStarted(() => this.refresh()),
      vscode.window.onDidChangeActiveTextEditor((editor) => this.follow(editor)),
      vscode.workspace.onDidChangeTextDocument(({ document }) => {
        if (document === this.document) this.refreshSoon();
      }),
      vscode.window.onDidChangeTextEditorSelection(({ textEditor }) => this.markCursor(textEditor)),
    ];
  }

  /// Opens the view, and shows the input of the active editor.
  show(): void {
    if (this.panel === undefined) this.open();
    this.panel?.reveal(vscode.ViewColumn.Beside, true);
    this.follow(vscode.window.activeTextEditor);
  }

  dispose(): void {
    clearTimeout(this.timer);
    this.panel?.dispose();
    for (const listener of this.listeners) listener.dispose();
  }

  private open(): void {
    const files = vscode.Uri.joinPath(this.extension, "dist");
    const panel = vscode.window.createWebviewPanel(
      "quillInp.molecule",
      "Molecule",
      { viewColumn: vscode.ViewColumn.Beside, preserveFocus: true },
      { enableScripts: true, localResourceRoots: [files], retainContextWhenHidden: true },
    );
    panel.webview.onDidReceiveMessage((message: FromPage) => this.receive(message));
    panel.onDidDispose(() => (this.panel = undefined));
    const script = panel.webview.asWebviewUri(vscode.Uri.joinPath(files, "molecule.js"));
    panel.webview.html = moleculeHtml(script.toString(), panel.webview.cspSource);
    this.panel = panel;
  }

  private receive(message: FromPage): void {
    if (message.type === "ready") void this.refresh();
    else this.select(message.line);
  }

  private follow(editor: vscode.TextEditor | undefined): void {
    if (editor?.document.languageId !== "quill") return;
    this.document = editor.document;
    void this.refresh();
  }

  private refreshSoon(): void {
    clearTimeout(this.timer);
    this.timer = setTimeout(() => void this.refresh(), rest);
  }

  private async refresh(): Promise<void> {
    const document = this.document;
    if (this.panel === undefined || document === undefined) return;
    try {
      const structure = await this.server.execute<Structure>("quillInp.structure", document.uri);
      // Another input may have been chosen meanwhile.
      if (document === this.document) this.post({ type: "show", structure });
    } catch (error) {
      this.post({ type: "explain", text: error instanceof Error ? error.message : String(error) });
    }
    for (const editor of vscode.window.visibleTextEditors) this.markCursor(editor);
  }

  private markCursor(editor: vscode.TextEditor): void {
    if (editor.document === this.document) this.post({ type: "mark", line: editor.selection.active.line });
  }

  private select(line: number): void {
    const editor = vscode.window.visibleTextEditors.find((one) => one.document === this.document);
    if (editor === undefined) return;
    const { range } = editor.document.lineAt(Math.min(line, editor.document.lineCount - 1));
    editor.selection = new vscode.Selection(range.start, range.start);
    editor.revealRange(range, vscode.TextEditorRevealType.InCenterIfOutsideViewport);
  }

  private post(message: ToPage): void {
    void this.panel?.webview.postMessage(message);
  }
}
