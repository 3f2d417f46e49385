// Games as players have them: by keyboard, by mouse, by touch, to the diploma and onto paper.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { test } from "node:test";
import { fixed, PHONE } from "./page.mjs";
import { enter, playToWord, WINDOWS, WINNING_SEED } from "./setting.mjs";
import { look, playToTheEnd, playToTheFall } from "./solver.mjs";

async function printed(player) {
  await player.page.evaluate(() => (globalThis.print = () => (globalThis.hasPrinted = true)));
  await player.click("frmDiploma.cmdImprimir");
  await player.page.waitForSelector("dialog.message");
  await player.press("Enter");
  await player.page.waitForFunction(() => globalThis.hasPrinted);
  const folder = await mkdtemp(join(tmpdir(), "zarpi-print-"));
  const path = join(folder, "diploma.pdf");
  await player.page.pdf({ path, preferCSSPageSize: true, printBackground: true });
  const facts = execFileSync("pdfinfo", [path], { encoding: "utf8" });
  const text = execFileSync("pdftotext", [path, "-"], { encoding: "utf8" });
  await rm(folder, { recursive: true });
  return { facts, text };
}

test("a whole game by keyboard, won: victory, diploma on paper, board, and the board is there the next day", async () => {
  const player = await enter({ prepare: fixed(WINNING_SEED) });
  await player.startGame("Ana y Íñigo");
  assert.ok(await playToTheEnd(player, player.keyboard));
  await player.press("Enter");
  await player.front("frmDiploma");
  for (let i = 0; i < 75; ++i) await player.press("ArrowLeft");
  const { facts, text } = await printed(player);
  assert.match(facts, /Pages: +1\n/);
  const [, width, height] = facts.match(/Page size: +([\d.]+) x ([\d.]+)/);
  assert.ok(Number(width) > Number(height), "on its side");
  assert.match(text, /IMPRIMIR/);
  await player.press("Escape");
  await player.front("frmCuadro");
  await player.page.reload();
  await player.page.waitForSelector("#frmPresenta");
  await player.press(" ");
  await player.menu("mnuCuadros", "mnuCasteInglésHonor");
  await player.front("frmCuadro");
  assert.match(await player.page.$eval("#frmCuadro .client", (node) => node.innerText), /Ana y Íñigo/);
  assert.equal((await player.files())["UltCeI.dat"], " 1 \r\n");
});

test("a whole game by mouse, with a joker and the keys on the screen, to the diploma", async () => {
  const player = await enter({ prepare: fixed(WINNING_SEED) });
  await player.page.click("#frmPresenta .client");
  await player.menu("mnuJuego", "mnuNuevo");
  await player.click("frmNivel.cmdAceptar");
  await player.page.click("#frmNombre .cross");
  await player.front("Zarpi");
  await player.click("Zarpi.cmdMostrar");
  const { letters } = await look(player.page);
  await player.click("Zarpi.lblComodín(1)");
  const boxes = await player.page.$$eval('[id^="Zarpi.shpRecuadro"]:not([hidden])', (nodes) => nodes.map((node) => node.id));
  await player.click(boxes[letters.indexOf("_")].replace("shpRecuadro", "lblLetra"));
  assert.notEqual((await look(player.page)).letters, letters);
  assert.ok(await playToTheEnd(player, player.mouse));
  await player.click("frmFecha.cmdAceptar");
  await player.front("frmDiploma");
  assert.equal(await player.page.$eval('[id="frmDiploma.Text1"]', (node) => node.value), "Anónimo");
  await player.click("frmDiploma.cmdAceptar");
  await player.front("frmCuadro");
  assert.equal(await player.see("frmCuadro.lblNombre(1)"), "Anónimo");
});

/**
 * What a finger does not reach well in the window in front: of the places a finger's breadth around the middle of what is
 * pressed one belongs to something else. And what is hard to read.
 */
function unfitForFingers(page) {
  return page.evaluate(() => {
    const front = [...document.querySelectorAll(".window")].at(-1);
    const isShown = (node) => node.checkVisibility() && node.getBoundingClientRect().width > 1;
    const isFramed = (node) => isShown(document.getElementById(node.id.replace("lblLetra", "shpRecuadro")) ?? node);
    // Jokers behind the first do nothing.
    const answers = (node) => isShown(node) && isFramed(node) && !/lblComodín\((?!1\))/.test(node.id);
    const pressed = [...front.querySelectorAll("button, input, .row, .label[role=button]")].filter(answers);
    // A word of ten letters leaves none of its boxes the breadth.
    const isNarrow = (node) => /lblLetra/.test(node.id);
    const misses = (node) => {
      const { left, top, width, height } = node.getBoundingClientRect();
      const [x, y] = [left + width / 2, top + height / 2];
      const places = [[0, -21], [0, 21], ...(isNarrow(node) ? [] : [[-21, 0], [21, 0]])];
      return places.some(([dx, dy]) => !node.contains(document.elementFromPoint(x + dx, y + dy)));
    };
    const letters = [...front.querySelectorAll(".label .text, .row")].filter((node) => isShown(node) && node.textContent !== "");
    return [
      ...pressed.filter(misses).map((node) => `pressed ${node.id || node.className || node.dataset.menu}`),
      ...letters.filter((node) => parseFloat(getComputedStyle(node).fontSize) < 9).map((node) => `read ${node.textContent}`),
      ...(front.matches("dialog") && front.scrollWidth > front.clientWidth ? ["moved sideways"] : []),
    ];
  });
}

test("a game by touch on a small phone held upright, to the fall", async () => {
  const player = await enter({ viewport: PHONE, prepare: fixed(WINNING_SEED) });
  const fits = async (where) => assert.deepEqual(await unfitForFingers(player.page), [], where);
  const tapMenu = async (menu, entry) => {
    await player.page.tap(`[data-menu="${menu}"]`);
    await player.page.tap(`[data-menu="${entry}"]`);
  };
  await player.page.tap("#frmPresenta .client");
  for (const [menu, entry, form] of WINDOWS) {
    await tapMenu(menu, entry);
    await player.front(form);
    await player.page.$eval(`#${form}`, (node) => (node.scrollTop = node.scrollHeight));
    await fits(form);
    await player.page.tap(`#${form} .cross`);
  }
  await tapMenu("mnuJuego", "mnuNuevo");
  await player.front("frmNivel");
  await fits("frmNivel");
  await player.tap("frmNivel.cmdAceptar");
  await player.front("frmNombre");
  await fits("frmNombre");
  await player.tap("frmNombre.cmdAceptar");
  await player.element("Zarpi.lblTecla(1)"); // the keyboard has opened by itself
  await fits("a word");
  const withoutDeviceKeyboard = async () => {
    assert.equal(await player.page.evaluate(() => document.activeElement.matches("input")), false);
  };
  await playToWord("4", player, { ...player.finger, accept: async (form) => {
    await fits(form);
    await player.finger.accept(form);
    await withoutDeviceKeyboard();
  } });
  await tapMenu("mnuJuego", "mnuGuardar");
  await player.front("frmGuardar");
  await fits("frmGuardar");
  await player.tap("frmGuardar.cmdCancelar");
  await playToTheFall(player, player.finger);
  await player.shows("Zarpi.lblComentCaída", /[A-Z¡¿]{3}/);
  assert.equal(await player.see("Zarpi.lblTecla(1)"), null);
  const hero = await player.page.waitForSelector('[id="Zarpi.Picture1"]', { visible: true });
  const { x, y, width, height } = await hero.boundingBox();
  assert.ok(x >= 0 && x + width <= PHONE.width && y + height <= PHONE.height, "at the foot of the cliff");
});

async function pressÑ(page) {
  const session = await page.createCDPSession();
  await session.send("Input.dispatchKeyEvent", { type: "keyDown", key: "ñ", code: "Semicolon", text: "ñ" });
}

const CHARACTERS = [
  // what the keyboard sends, and the letter that is tried
  { name: "ñ", press: pressÑ, tried: "Ñ" },
  { name: "an input method", press: (page) => page.keyboard.sendCharacter("W"), tried: "W" },
  { name: "capital letter", press: (page) => page.keyboard.press("K"), tried: "K" },
];

test("letters arrive in whatever way the keyboard sends them", async () => {
  const player = await enter({ prepare: fixed(WINNING_SEED) });
  await player.startGame("Ana");
  for (const { name, press, tried } of CHARACTERS) {
    await press(player.page);
    const { letters, missed } = await look(player.page);
    assert.ok((letters + missed).includes(tried), name);
  }
});
