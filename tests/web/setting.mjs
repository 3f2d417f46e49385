// What the tests of the page share: one server, a fresh browser a test, and the ways into a game.

import assert from "node:assert/strict";
import { after, afterEach, before, beforeEach } from "node:test";
import { launch, Player, serve } from "./page.mjs";
import { playToTheEnd } from "./solver.mjs";

export const WINNING_SEED = 2; // a game that the solver wins
export const pause = (milliseconds) => new Promise((done) => setTimeout(done, milliseconds));

export let server;
export let chromium;
export let players;

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

/** A player at the presentation, whose faults are the test's. */
export async function enter(options) {
  const player = await Player.enter(chromium.browser, server.address, options);
  players.push(player);
  return player;
}

/** Plays until a word comes up. */
export async function playToWord(wanted, player, hand) {
  const reached = new Error(`word ${wanted}`);
  const onWord = (number) => {
    if (number === wanted) throw reached;
  };
  await assert.rejects(playToTheEnd(player, hand, onWord), reached);
}

/** Plays until word 3 comes up, from which on a game can be saved. */
export async function playToWordThree(player) {
  await player.startGame("Peña");
  await playToWord("3", player, player.keyboard);
}

export async function saveGame(player, password) {
  await player.shortcut("G");
  await player.front("frmGuardar");
  await player.page.keyboard.type(password);
  await player.press("Tab");
  await player.page.keyboard.type(password);
  await player.press("Enter");
}

/** A stored game that stands before its word 29, with the password "x": the counter and the record. */
const LAST_WORDS = { "Ultimo.dat": " 1 \r\n", "Guardar.rnd": " 29 1 0 60 420 281" + "0Ana y Luis    7-3-2004   x          15   29   " };

/** Takes up a game two words before its end. */
export async function resumeAtTheEnd(player) {
  await player.page.evaluate(async (files) => {
    const wait = (request) => new Promise((done) => (request.onsuccess = () => done(request.result)));
    const database = await wait(indexedDB.open("zarpi /", 1));
    const store = database.transaction("files", "readwrite").objectStore("files");
    for (const [name, text] of Object.entries(files)) await wait(store.put(Uint8Array.from(text, (one) => one.charCodeAt(0)), name));
    database.close();
  }, LAST_WORDS);
  await player.page.reload();
  await player.page.waitForSelector("#frmPresenta .picture");
  await player.page.click("#frmPresenta .client");
  await player.menu("mnuJuego", "mnuReanudar");
  await player.front("frmReanudar");
  await player.page.$eval('[id="frmReanudar.txtContraseña"]', (node) => node.focus());
  await player.page.keyboard.type("x");
  await player.press("Enter");
  await player.front("Zarpi");
}

/** Each window that a menu opens: menu, entry, form. */
export const WINDOWS = [
  ["mnuAyuda", "mnuNormas", "frmNormas"],
  ["mnuAyuda", "mnuAcerca", "frmAcerca"],
  ["mnuJuego", "mnuÚltimas", "frmÚltimas"],
  ["mnuCuadros", "mnuCasteHonor", "frmCuadro"],
];
