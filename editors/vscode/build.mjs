// Bundles the two programs of the extension: the one that the editor runs, and the one that draws in the
// page of a molecule. The grammar comes from the folder that all editors with such grammars share.
import { copyFileSync, mkdirSync, readdirSync, readFileSync, writeFileSync } from "node:fs";
import { build } from "esbuild";

const shared = { bundle: true, minify: true, legalComments: "none", logLevel: "warning", metafile: true };

const bundles = [
  await build({
    ...shared,
    entryPoints: ["src/extension.ts"],
    outfile: "dist/extension.js",
    platform: "node",
    target: "node18",
    format: "cjs",
    external: ["vscode"],
  }),
  await build({
    ...shared,
    entryPoints: ["src/molecule/page.ts"],
    outfile: "dist/molecule.js",
    platform: "browser",
    target: "es2022",
    format: "iife",
  }),
];
writeFileSync("dist/licenses.txt", bundledPackages().map(licenseOf).join("\n\n"));

mkdirSync("syntaxes", { recursive: true });
copyFileSync("../textmate/syntaxes/quill.tmLanguage.json", "syntaxes/quill.tmLanguage.json");

/// The packages of which the bundles contain something.
function bundledPackages() {
  const files = bundles.flatMap(({ metafile }) => Object.keys(metafile.inputs));
  const folders = files.flatMap((file) => file.match(/^.*node_modules\/(?:@[^/]+\/)?[^/]+/) ?? []);
  return [...new Set(folders)].sort();
}

/// A package that comes without a license in a file stops the build.
function licenseOf(folder) {
  const name = readdirSync(folder).find((file) => /^licen[cs]e/i.test(file));
  if (name === undefined) throw new Error(`${folder} has no license`);
  return `${folder.replace("node_modules/", "")}\n\n${readFileSync(`${folder}/${name}`, "utf8")}`;
}
