import * as $3Dmol from "3dmol";
import { type Point, pointOf, type Role, shapesOf } from "./shapes";
import type { Structure } from "./structure";

const colors: Record<Role, string> = { constraint: "#e07b00", scan: "#a030c0", marked: "#ffd000" };

/// Draws a molecule into an element that has a size. Bonds are guessed from the distances: an input has none.
export class MoleculeView {
  private readonly viewer: $3Dmol.GLViewer;
  private structure: Structure = { atoms: [], constraints: [] };
  private line: number | undefined;

  /// Calls `onPick` with the line of an atom that is clicked, if it is an atom of the input.
  constructor(
    element: HTMLElement,
    background: string,
    private readonly onPick: (line: number) => void,
  ) {
    this.viewer = $3Dmol.createViewer(element, { backgroundColor: background });
  }

  /// Replaces the molecule. The direction of the view stays unless there was no molecule before.
  show(structure: Structure): void {
    const isFirst = this.structure.atoms.length === 0;
    this.structure = structure;
    this.viewer.removeAllModels();
    // The symbols are words of letters, and numbers are written in full, so no atom can break its line.
    const drawn = structure.atoms.filter((atom) => pointOf(atom) !== undefined);
    const lines = drawn.map((atom) => `${atom.symbol} ${atom.position.join(" ")}`);
    const model = this.viewer.addModel(`${drawn.length}\n\n${lines.join("\n")}\n`, "xyz");
    model.setStyle({}, { stick: { radius: 0.12 }, sphere: { scale: 0.25 } });
    model.setClickable({}, true, (atom: { index?: number }) => this.pick(drawn[atom.index ?? -1]?.line));
    if (isFirst) this.viewer.zoomTo();
    this.draw();
  }

  /// Marks the atoms that a line of the input is or names.
  mark(line: number | undefined): void {
    this.line = line;
    this.draw();
  }

  resize(): void {
    this.viewer.resize();
  }

  private draw(): void {
    this.viewer.removeAllShapes();
    for (const shape of shapesOf(this.structure, this.line)) {
      const color = colors[shape.role];
      if (shape.form === "ball") {
        this.viewer.addSphere({ center: shape.center, radius: 0.6, color, opacity: 0.5 });
      } else {
        shape.points.slice(1).forEach((end, index) => this.connect(shape.points[index], end, color));
      }
    }
    this.viewer.render();
  }

  private connect(start: Point | undefined, end: Point, color: string): void {
    this.viewer.addCylinder({ start, end, color, radius: 0.07, dashed: true, fromCap: 1, toCap: 1 });
  }

  private pick(line: number | null | undefined): void {
    if (typeof line === "number") this.onPick(line);
  }
}
