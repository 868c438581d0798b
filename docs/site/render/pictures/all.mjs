// The pictures by name. A page shows one in place of a comment: <!-- picture: architecture -->.

import { annotatedInput } from './annotated_input.mjs';
import { architecture } from './architecture.mjs';
import { editor } from './editor.mjs';
import { performance } from './performance.mjs';
import { surgicalEdit } from './surgical_edit.mjs';

const PICTURES = {
  'annotated-input': annotatedInput,
  architecture,
  editor,
  performance,
  'surgical-edit': surgicalEdit,
};

/** Makes a function from the name of a picture to its SVG. */
export function makePictures(root, highlight) {
  return (name) => {
    if (!PICTURES[name]) throw new Error(`no such picture: ${name}`);
    return PICTURES[name]({ root, highlight });
  };
}
