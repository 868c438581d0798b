import type { Atom, Constraint, Structure } from "./structure";

export interface Point {
  x: number;
  y: number;
  z: number;
}

/// What is drawn besides the atoms and bonds: a ball around an atom, or lines between atoms.
export type Shape =
  | { form: "ball"; role: Role; center: Point }
  | { form: "path"; role: Role; points: Point[] };
export type Role = "constraint" | "scan" | "marked";

/// Returns where an atom is, or undefined for one with a coordinate that is not finite.
export function pointOf(atom: Atom): Point | undefined {
  const [x, y, z] = atom.position;
  return x === null || y === null || z === null ? undefined : { x, y, z };
}

/// Returns the numbers, from 1, of the atoms that a line of the input is or names.
export function atomsOfLine(structure: Structure, line: number | undefined): number[] {
  if (line === undefined) return [];
  const own = structure.atoms.flatMap((atom, index) => (atom.line === line ? [index + 1] : []));
  const named = structure.constraints.filter((one) => one.line === line).flatMap((one) => one.atoms);
  return [...new Set([...own, ...named])];
}

/// Returns the shapes of the constraints, and of the atoms of the line where the cursor is.
export function shapesOf(structure: Structure, line: number | undefined): Shape[] {
  const constraints = structure.constraints.flatMap((one) => shapeOfConstraint(structure, one));
  const marked = pointsOf(structure, atomsOfLine(structure, line));
  return [...constraints, ...marked.map((center): Shape => ({ form: "ball", role: "marked", center }))];
}

function shapeOfConstraint(structure: Structure, constraint: Constraint): Shape[] {
  const role = constraint.kind === "scan" ? "scan" : "constraint";
  const points = pointsOf(structure, constraint.atoms);
  if (points.length < constraint.atoms.length) return [];
  const [center] = points;
  if (center === undefined) return [];
  return points.length === 1 ? [{ form: "ball", role, center }] : [{ form: "path", role, points }];
}

function pointsOf(structure: Structure, numbers: number[]): Point[] {
  return numbers.flatMap((number) => {
    const atom = structure.atoms[number - 1];
    const point = atom === undefined ? undefined : pointOf(atom);
    return point === undefined ? [] : [point];
  });
}
