import type { FromPage, ToPage } from "./messages";
import { MoleculeView } from "./view";

declare function acquireVsCodeApi(): { postMessage(message: FromPage): void };

const editor = acquireVsCodeApi();
const element = document.getElementById("molecule") as HTMLElement;
const note = document.getElementById("note") as HTMLElement;
const background =
  getComputedStyle(document.documentElement).getPropertyValue("--vscode-editor-background").trim() || "white";
const view = new MoleculeView(element, background, (line) => editor.postMessage({ type: "pick", line }));

window.addEventListener("message", ({ data }: MessageEvent<ToPage>) => {
  if (data.type === "explain") {
    note.textContent = data.text;
  } else if (data.type === "mark") {
    view.mark(data.line);
  } else {
    const count = data.structure.atoms.length;
    note.textContent = count === 0 ? "No atoms" : "Bonds are guessed from the distances.";
    view.show(data.structure);
  }
});
window.addEventListener("resize", () => view.resize());
editor.postMessage({ type: "ready" });
