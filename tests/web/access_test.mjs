// The page for people who hear it, who do not use a mouse, who wish for letters that stand out.

import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { test } from "node:test";
import { fixed } from "./page.mjs";
import { enter, pause, WINDOWS, WINNING_SEED } from "./setting.mjs";

test("people who hear or cannot use a mouse: no serious findings, names, sentences told, menus by keys", async () => {
  const axe = createRequire(import.meta.url).resolve("axe-core/axe.min.js");
  const player = await enter({ prepare: fixed(WINNING_SEED) });
  await player.page.setBypassCSP(true);
  const findings = async (where) => {
    await player.page.evaluate(await readFile(axe, "utf8"));
    const { violations } = await player.page.evaluate(() => globalThis.axe.run());
    const serious = violations.filter(({ impact }) => impact === "serious" || impact === "critical");
    assert.deepEqual(serious.map(({ id, nodes }) => [where, id, nodes[0].html]), []);
  };
  await findings("presentation");
  await player.startGame("Ana");
  await findings("a word");
  await player.click("Zarpi.cmdMostrar");
  const tree = JSON.stringify(await player.page.accessibility.snapshot());
  for (const name of ["Tecla B", "Tecla Ñ", "Ocultar el teclado de la pantalla", "Juego", "Letra 2 de 7, vacía"]) {
    assert.match(tree, new RegExp(`"(button|menuitem)","name":"${name}"`), name);
  }
  await player.press("w");
  const told = await player.page.$eval("#spoken", (node) => node.innerText);
  assert.match(told, /Mal: W/);
  await player.press("F10", "ArrowLeft", "ArrowDown", "Enter");
  await player.front("frmNormas");
  await findings("rules");
  for (const [menu, entry, form] of WINDOWS.slice(1)) {
    await player.press("Escape");
    await player.menu(menu, entry);
    await player.front(form);
    await findings(form);
  }
  await player.press("Escape");
  await player.page.click("#help");
  await player.page.waitForSelector("dialog.message");
  await findings("help");
});

/** How well the letters of each text in front stand out from the colour behind their first line, at its middle. */
function contrasts() {
  const channels = (colour) => colour.match(/[\d.]+/g).map(Number);
  const luminance = ([...rgb]) => {
    const [r, g, b] = rgb.map((value) => (value / 255 <= 0.04045 ? value / 255 / 12.92 : ((value / 255 + 0.055) / 1.055) ** 2.4));
    return 0.2126 * r + 0.7152 * g + 0.0722 * b;
  };
  const ground = (x, y) => {
    for (const node of document.elementsFromPoint(x, y)) {
      const [r, g, b, alpha = 1] = channels(getComputedStyle(node).backgroundColor);
      if (node.tagName === "IMG" || getComputedStyle(node).backgroundImage !== "none") return null;
      if (alpha > 0) return [r, g, b];
    }
    return null;
  };
  const found = [];
  for (const text of [...document.querySelectorAll(".window")].at(-1).querySelectorAll(".label:not([hidden]) > .text")) {
    const box = text.getBoundingClientRect();
    const [x, y] = [box.left + box.width / 2, box.top + 2];
    const shapes = [...document.querySelectorAll(".shape, .text")];
    for (const node of shapes) node.style.pointerEvents = "auto";
    const behind = ground(x, y);
    for (const node of shapes) node.style.pointerEvents = "";
    const [dark, bright] = [luminance(behind ?? [128, 128, 128]), luminance(channels(getComputedStyle(text).color))].sort((a, b) => a - b);
    if (text.innerText.trim()) found.push([text.parentNode.id, (bright + 0.05) / (dark + 0.05)]);
  }
  return found;
}

test("where the system asks for it, letters stand out 7 to 1 and nothing blinks", async () => {
  const player = await enter({ prepare: fixed(WINNING_SEED) });
  await player.startGame("Ana");
  await player.press("w");
  const faint = async () => (await player.page.evaluate(contrasts)).filter(([, contrast]) => contrast < 7).map(([name]) => name);
  assert.ok((await faint()).includes("Zarpi.lblLetra(1)"), "red on green");
  const system = await player.page.createCDPSession();
  const features = [{ name: "prefers-contrast", value: "more" }, { name: "prefers-reduced-motion", value: "reduce" }];
  await system.send("Emulation.setEmulatedMedia", { features });
  for (let i = 0; i < 50 && (await faint()).length > 0; ++i) await pause(50); // the page is told with a frame
  assert.deepEqual(await faint(), []);
  await player.click("Zarpi.lblComodín(1)");
  const isMarked = () => player.page.$eval('[id="Zarpi.lblComodín(1)"]', (node) => [node.hidden, node.classList.contains("marked")]);
  await player.page.waitForSelector(".marked");
  for (let i = 0; i < 8; ++i) {
    assert.deepEqual(await isMarked(), [false, true]);
    await pause(100);
  }
  await player.click("Zarpi.lblComodín(1)");
  assert.deepEqual(await isMarked(), [false, false]);
});
