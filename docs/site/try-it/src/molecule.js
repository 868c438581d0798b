// The parts of a document that a picture shows, from the document's JSON.

import { shown } from "./text_bytes.js";

function isFinite(atom) {
  return [atom.x, atom.y, atom.z].every((value) => typeof value === "number");
}

/// Returns { atoms, marks, note }: atoms with their number in the text's order from 0; constraints and
/// scans with the same numbers; and in words what the picture cannot show.
export function moleculeOf(document) {
  const geometry = document.geometry ?? {};
  const all = geometry.atoms ?? [];
  const atoms = all.map((atom, number) => ({ ...atom, number, symbol: shown(atom.symbol ?? "") }))
    .filter(isFinite);
  const known = new Set(atoms.map((atom) => atom.number));
  const marks = (document.post_commands ?? []).map((command, index) => ({
    index, isScan: command.kind === "scan",
    atoms: (command.atom_indices ?? []).map((number) => number - 1) }))
    .filter((mark) => mark.atoms.length > 0 && mark.atoms.every((number) => known.has(number)));
  return { atoms, marks, note: noteAbout(geometry, all.length - atoms.length) };
}

function noteAbout(geometry, left) {
  const files = (geometry.xyz_files ?? []).map(shown);
  if (files.length > 0) return `The coordinates are in ${files.join(", ")}, which a page cannot read.`;
  if (left > 0) return `${left} atoms have a coordinate that is not a finite number, and are left out.`;
  return "";
}
