import { createHash } from "node:crypto";

/// Returns the page of the molecule. It may run the one script that the extension brings, and load nothing
/// from anywhere. `source` is what the editor calls the place of the extension's files in a policy.
export function moleculeHtml(script: string, source: string): string {
  const policy = [
    "default-src 'none'",
    `script-src ${source}`,
    `style-src '${hashOf(layout)}'`,
    "img-src data:",
  ];
  return `<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="${policy.join("; ")}">
<title>Molecule</title>
<style>${layout}</style>
</head>
<body>
<div id="molecule" role="img" aria-label="The molecule of the input"></div>
<p id="note" role="status"></p>
<script src="${script}"></script>
</body>
</html>
`;
}

const layout =
  "html,body,#molecule{width:100%;height:100%;margin:0;padding:0;overflow:hidden}" +
  "#molecule{position:relative}#note{position:absolute;left:1em;bottom:0}";

function hashOf(style: string): string {
  return `sha256-${createHash("sha256").update(style).digest("base64")}`;
}
