// Makes what the page "Try it" loads, in SITE/try-it/: classic scripts and a style sheet, since a page that
// is opened as a file can load nothing else. READER is the folder with the reader as Emscripten made it,
// EXAMPLES that of the inputs to start from.
//
//   node build.mjs SITE READER EXAMPLES

import { copyFileSync, mkdirSync, readFileSync, readdirSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";

import { build } from "esbuild";

const here = dirname(fileURLToPath(import.meta.url));
const [site, reader, examples] = process.argv.slice(2);
const folder = join(site, "try-it");
mkdirSync(folder, { recursive: true });

async function bundled(entry) {
  const result = await build({ entryPoints: [join(here, "src", entry)], bundle: true, write: false,
    minify: true, format: "iife", target: "es2022", legalComments: "inline" });
  return result.outputFiles[0].text;
}

/// A text as JSON has it in the documents of the tool: a string, or bytes in hexadecimal.
function jsonText(bytes) {
  const text = bytes.toString("utf8");
  return Buffer.from(text, "utf8").equals(bytes) ? text : { bytes: bytes.toString("hex") };
}

function exampleInputs() {
  const names = readdirSync(examples).filter((name) => name.endsWith(".qin")).sort();
  const first = "water_optimisation.qin";
  return [first, ...names.filter((name) => name !== first)]
    .map((name) => ({ name, text: jsonText(readFileSync(join(examples, name))) }));
}

function assignment(name, value) {
  return `globalThis.${name} = ${JSON.stringify(value)};\n`;
}

writeFileSync(join(folder, "try_it.js"), await bundled("page.js"));
copyFileSync(join(here, "try_it.css"), join(folder, "try_it.css"));
copyFileSync(createRequire(import.meta.url).resolve("3dmol/build/3Dmol-min.js"), join(folder, "3Dmol.js"));
const glue = readFileSync(join(reader, "kelp_quill_inp_web.js"), "utf8");
const wasm = readFileSync(join(reader, "kelp_quill_inp_web.wasm"));
writeFileSync(join(folder, "reader.js"),
  assignment("quillReaderSource", `${glue};\n${await bundled("reader_worker.js")}`) +
  assignment("quillReaderWasm", wasm.toString("base64")));
writeFileSync(join(folder, "examples.js"), assignment("quillExamples", exampleInputs()));
