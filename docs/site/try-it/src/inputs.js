// Where texts come from: the examples, a file that is opened, one that is dropped.

import { bytesOfJson } from "./text_bytes.js";

/// Lists the examples; returns { showFirst }.
export function fillExamples(list, examples, show) {
  for (const example of examples) list.append(new Option(example.name, example.name));
  const named = (name) => examples.find((example) => example.name === name);
  list.addEventListener("change", () => {
    const example = named(list.value);
    if (example) show(bytesOfJson(example.text));
  });
  function showFirst() {
    list.value = examples[0].name;
    show(bytesOfJson(examples[0].text));
  }
  return { showFirst };
}

/// Takes files from a control and from what is dropped on an element.
export function takeFiles(control, target, show) {
  const take = async (file) => file && show(new Uint8Array(await file.arrayBuffer()));
  control.addEventListener("change", async () => {
    await take(control.files[0]);
    control.value = "";
  });
  target.addEventListener("dragover", (event) => {
    event.preventDefault();
    target.classList.add("is-target");
  });
  target.addEventListener("dragleave", () => target.classList.remove("is-target"));
  // Before the editor, which would insert the text of the file as UTF-8.
  target.addEventListener("drop", (event) => {
    target.classList.remove("is-target");
    if (event.dataTransfer.files.length === 0) return;
    event.preventDefault();
    event.stopPropagation();
    take(event.dataTransfer.files[0]);
  }, { capture: true });
}
