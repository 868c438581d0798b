/// The molecule of an input, as the language server reads it: its command `quillInp.structure` answers this.

/// An atom. A coordinate that is not finite is null.
export interface Atom {
  symbol: string;
  position: [number | null, number | null, number | null];
  /// The line of the input, from 0; null for an atom of a file that the input refers to.
  line: number | null;
}

/// A constraint or a scan: one to four atoms, by their numbers from 1, which need not exist.
export interface Constraint {
  kind: "atom" | "bond" | "angle" | "dihedral" | "scan";
  atoms: number[];
  line: number;
}

export interface Structure {
  atoms: Atom[];
  constraints: Constraint[];
}
