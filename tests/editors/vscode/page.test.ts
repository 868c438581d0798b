import assert from "node:assert/strict";
import { writeFileSync } from "node:fs";
import { join } from "node:path";
import { test } from "node:test";
import { pathToFileURL } from "node:url";
import { chromium } from "playwright-core";
import { moleculeHtml } from "../../../editors/vscode/src/molecule/html";
import type { Structure } from "../../../editors/vscode/src/molecule/structure";

const water: Structure = {
  atoms: [
    { symbol: "O", position: [0, 0, 0.117176], line: 3 },
    { symbol: "H", position: [0, 0.75695, -0.468706], line: 4 },
    { symbol: "H", position: [0, -0.75695, -0.468706], line: 5 },
  ],
  constraints: [{ kind: "bond", atoms: [1, 2], line: 7 }],
};

// The folder of the extension, as it was built.
const extension = process.env["EXTENSION"] ?? assert.fail("EXTENSION is not set");

test("the page draws a molecule, and its policy lets it do all that it does", async () => {
  const file = join(extension, "molecule.html");
  writeFileSync(file, moleculeHtml("dist/molecule.js", "'self'"));
  const browser = await chromium.launch({ executablePath: "/usr/bin/chromium", args: ["--no-sandbox"] });
  try {
    const page = await browser.newPage({ viewport: { width: 320, height: 240 } });
    const refused: string[] = [];
    page.on("console", (message) => message.type() === "error" && refused.push(message.text()));
    page.on("pageerror", (error) => refused.push(error.message));
    // What an editor gives to a page.
    await page.addInitScript(() => {
      const told: unknown[] = [];
      Object.assign(window, { told, acquireVsCodeApi: () => ({ postMessage: (one: unknown) => told.push(one) }) });
    });
    await page.goto(pathToFileURL(file).href);
    assert.deepEqual(await page.evaluate("told"), [{ type: "ready" }]);

    const colors = async (...messages: object[]): Promise<Set<string>> => {
      for (const message of messages) await page.evaluate((one) => window.postMessage(one, "*"), message);
      await page.waitForTimeout(200);
      const found = new Set(await page.evaluate(colorsShown));
      return found;
    };
    assert.deepEqual(await colors({ type: "show", structure: { atoms: [], constraints: [] } }), new Set(["white"]));
    assert.equal(await page.textContent("#note"), "No atoms");

    const drawn = await colors({ type: "show", structure: water });
    assert.ok(drawn.has("red"), "oxygen is red");
    assert.ok(drawn.has("orange"), "the constraint is orange");
    assert.ok(!drawn.has("yellow"), "no line is marked");
    assert.equal(await page.textContent("#note"), "Bonds are guessed from the distances.");
    assert.ok((await colors({ type: "mark", line: 4 })).has("yellow"), "the atom of the line is marked");
    assert.ok(!(await colors({ type: "mark", line: 0 })).has("yellow"), "a line without atoms marks none");

    await page.evaluate((one) => window.postMessage(one, "*"), { type: "explain", text: "<b>no</b> server" });
    await page.waitForFunction("document.getElementById('note').textContent === '<b>no</b> server'");
    assert.deepEqual(refused, []);
  } finally {
    await browser.close();
  }
});

/// Names the colors of the drawing, which light has changed.
function colorsShown(): string[] {
  const canvas = document.querySelector("canvas") as HTMLCanvasElement;
  const copy = document.createElement("canvas");
  copy.width = canvas.width;
  copy.height = canvas.height;
  const context = copy.getContext("2d") as CanvasRenderingContext2D;
  context.drawImage(canvas, 0, 0);
  const { data } = context.getImageData(0, 0, copy.width, copy.height);
  const nameOf = (red: number, green: number, blue: number): string => {
    if (red > 240 && green > 240 && blue > 240) return "white";
    if (red < 60 || blue > red / 2) return "other";
    if (green < red / 4) return "red";
    return green < red * 0.65 && green > red * 0.45 ? "orange" : green > red * 0.75 ? "yellow" : "other";
  };
  const found = new Set<string>();
  for (let at = 0; at < data.length; at += 4) found.add(nameOf(data[at] ?? 0, data[at + 1] ?? 0, data[at + 2] ?? 0));
  return [...found];
}
