import assert from "node:assert/strict";
import { test } from "node:test";
import { atomsOfLine, shapesOf } from "../../../editors/vscode/src/molecule/shapes";
import type { Structure } from "../../../editors/vscode/src/molecule/structure";

// Hydrogen peroxide. The last atom has no place.
const peroxide: Structure = {
  atoms: [
    { symbol: "H", position: [-0.8, -0.9, 0.5], line: 4 },
    { symbol: "O", position: [0, -0.7, 0], line: 5 },
    { symbol: "O", position: [0, 0.7, 0], line: null },
    { symbol: "H", position: [0.8, null, 0.5], line: 7 },
  ],
  constraints: [
    { kind: "atom", atoms: [1], line: 9 },
    { kind: "bond", atoms: [2, 3], line: 10 },
    { kind: "scan", atoms: [1, 2, 3], line: 11 },
    { kind: "dihedral", atoms: [1, 2, 3, 4], line: 12 },
    { kind: "bond", atoms: [2, 9], line: 13 },
    { kind: "bond", atoms: [0, 2], line: 14 },
  ],
};
const [first, second, third] = [
  { x: -0.8, y: -0.9, z: 0.5 },
  { x: 0, y: -0.7, z: 0 },
  { x: 0, y: 0.7, z: 0 },
];

test("constraints are drawn whose atoms all have a place", () => {
  assert.deepEqual(shapesOf(peroxide, undefined), [
    { form: "ball", role: "constraint", center: first },
    { form: "path", role: "constraint", points: [second, third] },
    { form: "path", role: "scan", points: [first, second, third] },
  ]);
});

test("a line marks the atom that it is, or the atoms that it names and that are there", () => {
  const marked = (line: number) => shapesOf(peroxide, line).slice(3);
  const ball = (center: object) => ({ form: "ball", role: "marked", center });
  assert.deepEqual(marked(4), [ball(first)]);
  assert.deepEqual(marked(10), [ball(second), ball(third)]);
  assert.deepEqual(marked(7), []);
  assert.deepEqual(marked(13), [ball(second)]);
  assert.deepEqual(marked(0), []);
});

test("an atom that a line names twice is marked once", () => {
  const twice = { ...peroxide, constraints: [{ kind: "bond" as const, atoms: [2, 2], line: 9 }] };
  assert.deepEqual(atomsOfLine(twice, 9), [2]);
});
