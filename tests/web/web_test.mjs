// The game in Chromium as its players have it: by keyboard, by mouse, by touch; what it stores, prints, says.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtemp, readdir, readFile, rm } from "node:fs/promises";
import { createRequire } from "node:module";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, afterEach, before, beforeEach, test } from "node:test";
import { fixed, launch, PHONE, Player, serve } from "./page.mjs";
import { look, playToTheEnd, playToTheFall } from "./solver.mjs";

const WINNING_SEED = 2; // a game that the solver wins
const pause = (milliseconds) => new Promise((done) => setTimeout(done, milliseconds));

let server;
let chromium;
let players;

before(async () => (server = await serve()));
after(() => server.close());
beforeEach(async () => {
  chromium = await launch();
  players = [];
});
afterEach(async () => {
  await chromium.close();
  assert.deepEqual(players.flatMap((player) => player.faults), []);
});

async function enter(options) {
  const player = await Player.enter(chromium.browser, server.address, options);
  players.push(player);
  return player;
}

/** Plays until a word comes up. */
async function playToWord(wanted, player, hand) {
  const reached = new Error(`word ${wanted}`);
  const onWord = (number) => {
    if (number === wanted) throw reached;
  };
  await assert.rejects(playToTheEnd(player, hand, onWord), reached);
}

/** Plays until word 3 comes up, from which on a game can be saved. */
async function playToWordThree(player) {
  await player.startGame("Peña");
  await playToWord("3", player, player.keyboard);
}

async function saveGame(player, password) {
  await player.shortcut("G");
  await player.front("frmGuardar");
  await player.page.keyboard.type(password);
  await player.press("Tab");
  await player.page.keyboard.type(password);
  await player.press("Enter");
}

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

const WINDOWS = [
  ["mnuAyuda", "mnuNormas", "frmNormas"],
  ["mnuAyuda", "mnuAcerca", "frmAcerca"],
  ["mnuJuego", "mnuÚltimas", "frmÚltimas"],
  ["mnuCuadros", "mnuCasteHonor", "frmCuadro"],
];

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

async function saveAndResume(player) {
  await playToWordThree(player);
  await player.shortcut("G");
  await player.front("frmGuardar");
  await player.press("Enter"); // without a password: a message box, and the dialog stays
  await player.page.waitForSelector("dialog.message");
  await player.press("Enter");
  await player.press("Escape");
  await player.front("Zarpi");
  await saveGame(player, "Piñata");
  await player.front("Zarpi");
  const files = await player.files();
  assert.equal(files["Ultimo.dat"], " 1 \r\n");
  assert.equal(files["Guardar.rnd"].length, 65);
  assert.match(files["Guardar.rnd"], /Pe\xf1a/);
  await player.page.reload();
  await player.page.waitForSelector("#frmPresenta");
  await player.press(" ");
  await player.shortcut("R");
  await player.front("frmReanudar");
  await player.page.click("#frmReanudar [role=option]");
  await player.click("frmReanudar.txtContraseña");
  await player.page.keyboard.type("Piñata");
  await player.press("Enter");
  await player.front("Zarpi");
  assert.equal(await player.see("Zarpi.lblPalabra"), "3");
  assert.equal(await player.see("Zarpi.lblNombre"), "Peña");
  assert.equal((await player.files())["Ultimo.dat"], " 0 \r\n");
}

test("a game is saved, the page closed, and taken up again with its password", async () => {
  await saveAndResume(await enter({ prepare: fixed(WINNING_SEED) }));
});

test("and the same in Firefox", async () => {
  const firefox = await launch("firefox");
  try {
    const player = await Player.enter(firefox.browser, server.address, { prepare: fixed(WINNING_SEED) });
    players.push(player);
    await saveAndResume(player);
  } finally {
    await firefox.close();
  }
});

/** In the page: counts the storage operations from the first save on and stops everything at number `last`. */
function stopAt(last) {
  return `(() => {
    let count = 0;
    const stop = () => { if (globalThis.saving && ++count === ${last}) { console.log("stopped"); for (;;); } };
    for (const [type, name] of [[IDBObjectStore, "put"], [IDBObjectStore, "delete"], [IDBDatabase, "transaction"]]) {
      const real = type.prototype[name];
      type.prototype[name] = function (...a) { stop(); const result = real.apply(this, a); stop(); return result; };
    }
  })()`;
}

/** Ends the processes that hold the tabs, at once. */
async function killTabs(browser) {
  const session = await browser.target().createCDPSession();
  const { processInfo } = await session.send("SystemInfo.getProcessInfo");
  for (const { type, id } of processInfo) if (type === "renderer") process.kill(id, "SIGKILL");
  await pause(300);
}

test("a tab killed at any operation of the storage leaves the old state or the new", async () => {
  const outcomes = new Set();
  for (let last = 1; last <= 12; ++last) {
    const player = await Player.enter(chromium.browser, server.address, {
      prepare: `${fixed(WINNING_SEED)}; ${stopAt(last)}`,
    });
    await playToWordThree(player);
    const stopped = new Promise((done) => player.page.on("console", (line) => line.text() === "stopped" && done(true)));
    await player.page.evaluate(() => (globalThis.saving = true));
    saveGame(player, "clave").catch(() => {});
    const isStopped = await Promise.race([stopped, pause(2500)]);
    await killTabs(chromium.browser);
    await player.page.close().catch(() => {});
    const next = await enter();
    const { "Ultimo.dat": counter, "Guardar.rnd": records = "", "Diario.tmp": journal } = await next.files();
    assert.equal(journal, undefined);
    assert.equal(records.length, counter === " 1 \r\n" ? 65 : 0, `operation ${last}`);
    outcomes.add(counter);
    await next.press(" ");
    await next.front("Zarpi");
    assert.equal(await next.see("Zarpi.lblMensajeError"), null);
    await next.page.evaluate(async () => {
      const request = indexedDB.deleteDatabase("zarpi");
      await new Promise((done) => (request.onblocked = request.onsuccess = done));
    });
    await next.page.close();
    if (!isStopped) break;
  }
  assert.deepEqual([...outcomes].sort(), [" 0 \r\n", " 1 \r\n"]);
});

test("what cannot be stored is told, the game goes on, and it is stored as soon as that can be", async () => {
  const refuse = `{
    const put = IDBObjectStore.prototype.put;
    IDBObjectStore.prototype.put = function (...a) {
      if (globalThis.isFull) throw new DOMException("full", "QuotaExceededError");
      return put.apply(this, a);
    };
  }`;
  const player = await enter({ prepare: `${fixed(WINNING_SEED)}; ${refuse}` });
  await playToWordThree(player);
  await player.page.evaluate(() => (globalThis.isFull = true));
  await saveGame(player, "clave");
  await player.element("Zarpi.lblMensajeError");
  assert.equal((await player.files())["Ultimo.dat"], " 0 \r\n");
  await player.page.evaluate(() => (globalThis.isFull = false));
  await player.press("F1");
  await pause(200);
  assert.equal((await player.files())["Ultimo.dat"], " 1 \r\n");
});

test("a browser that forbids storage says so, and plays", async () => {
  const forbid = 'IDBFactory.prototype.open = () => { throw new DOMException("no", "SecurityError"); }';
  const player = await enter({ prepare: forbid });
  await player.page.waitForSelector("dialog.message");
  await player.press("Enter");
  await player.startGame("Ana");
  assert.equal(await player.see("Zarpi.lblPalabra"), "1");
});

test("a second tab says that the game is open, and leaves the files alone", async () => {
  await enter();
  const second = await chromium.browser.newPage();
  await second.goto(server.address);
  await second.waitForFunction(() => /otra pestaña/.test(document.body.innerText));
});

test("the records leave the browser as the files of the desktop, and come into another one", async () => {
  const player = await enter({ prepare: fixed(WINNING_SEED) });
  await playToWordThree(player);
  await saveGame(player, "clave");
  await player.front("Zarpi");
  const folder = await mkdtemp(join(tmpdir(), "zarpi-records-"));
  const session = await player.page.createCDPSession();
  await session.send("Browser.setDownloadBehavior", { behavior: "allow", downloadPath: folder });
  await player.page.click("#help");
  await (await player.page.waitForSelector(".files button")).click();
  const archive = join(folder, "zarpi-partidas.zip");
  for (let i = 0; i < 50 && !(await readdir(folder)).includes("zarpi-partidas.zip"); ++i) await pause(100);
  const stored = await player.files();
  execFileSync("unzip", ["-q", archive, "-d", folder]);
  for (const [name, content] of Object.entries(stored)) {
    assert.equal((await readFile(join(folder, name))).toString("latin1"), content, name);
  }
  execFileSync("zip", ["-q", "-j", "otro.zip", "Ultimo.dat", "Guardar.rnd"], { cwd: folder }); // compressed
  const other = await launch();
  try {
    const guest = await Player.enter(other.browser, server.address);
    await guest.press(" ");
    await guest.page.click("#help");
    await (await guest.page.waitForSelector(".files input")).uploadFile(join(folder, "otro.zip"));
    await guest.page.waitForFunction(() => document.querySelectorAll("dialog.message").length === 2);
    await Promise.all([guest.page.waitForNavigation(), guest.press("Enter")]);
    await guest.page.waitForSelector("#frmPresenta");
    await guest.press(" ");
    await guest.menu("mnuJuego", "mnuReanudar");
    await guest.front("frmReanudar");
    assert.match(await guest.see("frmReanudar.lstLista"), /Peña/);
  } finally {
    await other.close();
    await rm(folder, { recursive: true });
  }
});

test("without a network the game starts and plays", async () => {
  const player = await enter();
  await player.page.evaluate(() => navigator.serviceWorker.ready);
  await player.page.waitForNetworkIdle();
  await player.page.setOfflineMode(true);
  await player.page.reload();
  await player.page.waitForSelector("#frmPresenta .picture");
  await player.startGame("Ana");
  assert.equal(await player.see("Zarpi.lblPalabra"), "1");
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
  const told = await player.page.$eval("#Zarpi .spoken", (node) => node.innerText);
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
