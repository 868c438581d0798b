// A molecule as a picture that can be turned. Knows nothing of texts and lines, so that any page can use
// it; the page loads 3Dmol first.
//
//   const view = makeMoleculeView($3Dmol, element, { onPick: (number) => ... });
//   view.show({ atoms: [{ number: 0, symbol: "O", x: 0, y: 0, z: 0.1 }],
//               marks: [{ atoms: [0, 1], isScan: false }] });
//   view.mark([0]);
//
// Bonds are guessed from distances, as if these were in angstrom.

const most_atoms_with_balls = 1500;
const mark_colors = { light: { constraint: "#9a3c00", scan: "#6b2fa0", marked: "#b35900" },
                      dark: { constraint: "#ffb37a", scan: "#d0a6ff", marked: "#ffd479" } };

function xyzOf(atoms) {
  // 3Dmol takes a symbol that it does not know as one of carbon's size.
  const rows = atoms.map(({ symbol, x, y, z }) =>
    `${/^[A-Za-z]{1,3}$/.test(symbol) ? symbol : "X"} ${x} ${y} ${z}`);
  return [atoms.length, "", ...rows].join("\n");
}

function styleFor(count) {
  if (count > most_atoms_with_balls) return { line: {} };
  return { stick: { radius: 0.12 }, sphere: { scale: 0.25 } };
}

function hasWebGl() {
  const canvas = document.createElement("canvas");
  return Boolean(canvas.getContext("webgl2") ?? canvas.getContext("webgl"));
}

/// Returns { show, mark, redraw, turn, placeOf, zoom, resize, marked, drawn }, or null where the browser has no
/// WebGL: zoom(factor) enlarges the picture, resize() fits it to its element, marked() returns the numbers of the
/// marked atoms, and drawn() how many { atoms, shapes } are drawn. `options.onPick` is called with the number of
/// an atom that the user picks; `options.isDark` says which colours fit.
export function makeMoleculeView(library, element, options = {}) {
  // Without WebGL, some browsers give a viewer that draws nothing, and some an exception.
  const viewer = hasWebGl() ? library.createViewer(element, { backgroundAlpha: 0, antialias: true }) : null;
  if (!viewer) return null;
  let molecule = { atoms: [], marks: [] };
  let byNumber = new Map();
  let marked = [];
  let shapes = [];
  const colors = () => mark_colors[options.isDark?.() ? "dark" : "light"];

  function drawMark({ atoms, isScan }) {
    const color = isScan ? colors().scan : colors().constraint;
    const places = atoms.map((number) => byNumber.get(number));
    if (places.length === 1)
      shapes.push(viewer.addSphere({ center: places[0], radius: 0.45, color, opacity: 0.6 }));
    for (let i = 1; i < places.length; ++i) {
      shapes.push(viewer.addCylinder({ start: places[i - 1], end: places[i], radius: 0.09, color,
                                       dashed: isScan, fromCap: 1, toCap: 1 }));
    }
  }

  function drawMarked() {
    for (const number of marked) {
      const center = byNumber.get(number);
      if (center) shapes.push(viewer.addSphere({ center, radius: 0.6, color: colors().marked, opacity: 0.55 }));
    }
  }

  function redraw() {
    for (const shape of shapes) viewer.removeShape(shape);
    shapes = [];
    for (const mark of molecule.marks) drawMark(mark);
    drawMarked();
    viewer.render();
  }

  /// Shows a molecule in the place of the last one. The view is kept if `keepsView`.
  function show(next, keepsView = false) {
    molecule = next;
    byNumber = new Map(next.atoms.map((atom) => [atom.number, atom]));
    marked = marked.filter((number) => byNumber.has(number));
    viewer.removeAllModels();
    if (next.atoms.length > 0) {
      const model = viewer.addModel(xyzOf(next.atoms), "xyz");
      model.setStyle({}, styleFor(next.atoms.length));
      model.setClickable({}, true, (atom) => options.onPick?.(next.atoms[atom.index].number));
    }
    if (!keepsView) viewer.zoomTo();
    redraw();
  }

  /// Marks the atoms with these numbers, and no others.
  function mark(numbers) {
    if (numbers.join() === marked.join()) return;
    marked = numbers;
    redraw();
  }

  /// Turns the picture by degrees around an axis, "x" or "y".
  function turn(degrees, axis) {
    viewer.rotate(degrees, axis);
  }

  /// Returns where an atom is in the window.
  function placeOf(number) {
    const { x, y } = viewer.modelToScreen(byNumber.get(number));
    return { x: x - scrollX, y: y - scrollY };
  }

  return { show, mark, redraw, turn, placeOf, zoom: (factor) => viewer.zoom(factor),
           resize: () => viewer.resize(), marked: () => [...marked],
           drawn: () => ({ atoms: molecule.atoms.length, shapes: shapes.length }) };
}
