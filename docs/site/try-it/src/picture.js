// The molecule on this page: the picture, its keyboard, its note, and what is marked in it.

import { makeMoleculeView } from "./molecule_view.js";

const degrees = 10;
const turns = { ArrowLeft: [-degrees, "y"], ArrowRight: [degrees, "y"], ArrowUp: [-degrees, "x"],
                ArrowDown: [degrees, "x"] };
const dark = matchMedia("(prefers-color-scheme: dark)");

function signature(molecule) {
  return JSON.stringify([molecule.atoms, molecule.marks]);
}

/// Returns { show(molecule), markAtoms(numbers), markPart(index) }. `onPick` gets the number of an atom.
export function makePicture(element, note, onPick) {
  const view = makeMoleculeView(globalThis.$3Dmol, element, { onPick: pick, isDark: () => dark.matches });
  let molecule = { atoms: [], marks: [], note: "" };
  let drawn = signature(molecule);

  function pick(number) {
    view.mark([number]);
    onPick(number);
  }

  function step(by) {
    const at = molecule.atoms.findIndex((atom) => atom.number === view.marked()[0]);
    const count = molecule.atoms.length;
    if (count > 0) pick(molecule.atoms[at < 0 ? 0 : (at + by + count) % count].number);
    element.focus();
  }

  function onKey(event) {
    const turn = turns[event.key];
    if (turn) view.turn(...turn);
    else if (event.key === "+") view.zoom(1.2);
    else if (event.key === "-" || event.key === "−") view.zoom(1 / 1.2);
    else if (event.key === "PageDown") step(1);
    else if (event.key === "PageUp") step(-1);
    else return;
    event.preventDefault();
  }

  if (view) {
    element.addEventListener("keydown", onKey);
    dark.addEventListener("change", () => view.redraw());
    new ResizeObserver(() => view.resize()).observe(element);
  }

  return {
    view,
    show(next) {
      const keepsView = next.atoms.length === molecule.atoms.length;
      molecule = next;
      const count = next.atoms.length === 0 ? "No atoms to draw." : `${next.atoms.length} atoms.`;
      note.textContent = view ? [count, next.note].filter(Boolean).join(" ")
        : "This browser draws no pictures of molecules: it has no WebGL.";
      if (!view || signature(next) === drawn) return;
      drawn = signature(next);
      view.show(next, keepsView);
    },
    markAtoms: (numbers) => view?.mark(numbers),
    markPart(index) {
      view?.mark(molecule.marks.find((mark) => mark.index === index)?.atoms ?? []);
    },
  };
}
