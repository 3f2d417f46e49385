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

/** Each window that a menu opens: menu, entry, form. */
export const WINDOWS = [
  ["mnuAyuda", "mnuNormas", "frmNormas"],
  ["mnuAyuda", "mnuAcerca", "frmAcerca"],
  ["mnuJuego", "mnuÚltimas", "frmÚltimas"],
  ["mnuCuadros", "mnuCasteHonor", "frmCuadro"],
];
