import type { Structure } from "./structure";

/// What the editor tells the page of the molecule.
export type ToPage =
  | { type: "show"; structure: Structure }
  | { type: "mark"; line: number | undefined }
  | { type: "explain"; text: string };

/// What the page tells the editor: that it can draw, and which line's atom was clicked.
export type FromPage = { type: "ready" } | { type: "pick"; line: number };
