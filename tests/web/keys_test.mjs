// Keys and focus: the way of Tab through every window, in Chromium and in Firefox.

import assert from "node:assert/strict";
import { test } from "node:test";
import { fixed, launch, Player } from "./page.mjs";
import { enter, pause, players, playToWordThree, saveGame, server, WINNING_SEED } from "./setting.mjs";

/** What has the focus of the page: the name of an element of a window, or the id of something of the page's own. */
function focused(page) {
  return page.evaluate(() => document.activeElement.dataset.name ?? document.activeElement.id ?? document.activeElement.tagName);
}

/** What `count` presses of Tab lead to. */
async function way(player, count, key = "Tab") {
  const found = [];
  for (let i = 0; i < count; ++i) {
    await player.press(key);
    found.push(await focused(player.page));
  }
  return found;
}

async function walk(player) {
  await playToWordThree(player);
  // A word: letter boxes, jokers and buttons have the ring; the help keeps the focus that it was given.
  const inWord = await way(player, 3);
  assert.ok(inWord.every((name) => /^(lblLetra|lblComodín|lblTecla|cmd)/.test(name)), inWord.join());
  await player.press("F10");
  await player.press("Tab");
  assert.equal(await focused(player.page), "help");
  await pause(1200);
  assert.equal(await focused(player.page), "help");
  await player.press("Tab");
  assert.notEqual(await focused(player.page), "help");
  // Saving: the order of the design, round and round.
  await player.shortcut("G");
  await player.front("frmGuardar");
  const boxes = ["txtContrarep", "cmdGuardar", "cmdCancelar", "txtContraseña"];
  assert.deepEqual(await way(player, 5), [...boxes, "txtContrarep"]);
  await player.press("Escape");
  await saveGame(player, "clave");
  await player.front("Zarpi");
  await player.shortcut("R");
  await player.front("frmReanudar");
  await player.press("End");
  assert.equal(await player.page.$eval("#frmReanudar [aria-selected=true]", (node) => node.dataset.row), "1");
  // A chosen game asks for its password.
  assert.deepEqual(await way(player, 4), ["cmdReanudar", "cmdCancelar", "lstLista", "txtContraseña"]);
  await player.press("Escape");
  for (const [menu, entry, form] of [["mnuAyuda", "mnuNormas", "frmNormas"], ["mnuJuego", "mnuÚltimas", "frmÚltimas"]]) {
    await player.menu(menu, entry);
    await player.front(form);
    assert.ok((await way(player, 3)).every((name) => /^cmd/.test(name)), form);
    await player.press("Escape");
  }
  // The page's own dialog keeps Tab too.
  await player.page.click("#help");
  await player.page.waitForSelector("dialog.message");
  for (let i = 0; i < 6; ++i) {
    await player.press("Tab");
    assert.ok(await player.page.evaluate(() => document.activeElement.closest("dialog.message") !== null));
  }
}

test("Tab goes round inside every window, and the page takes the focus from nobody", async () => {
  await walk(await enter({ prepare: fixed(WINNING_SEED) }));
});

test("and the same in Firefox", async () => {
  const firefox = await launch("firefox");
  try {
    const player = await Player.enter(firefox.browser, server.address, { prepare: fixed(WINNING_SEED) });
    players.push(player);
    await walk(player);
  } finally {
    await firefox.close();
  }
});

test("a double click is one, a held key is one, menus say what can be chosen, what is said comes into a region that stands", async () => {
  const player = await enter({ prepare: fixed(WINNING_SEED) });
  const { page } = player;
  assert.equal(await page.$$eval("#spoken", (nodes) => nodes.length), 1);
  await player.startGame("Ana");
  await player.click("Zarpi.cmdMostrar");
  const key = await player.element("Zarpi.lblTecla(19)");
  await key.click({ count: 2 });
  assert.doesNotMatch(await player.see("Zarpi.Label5"), /Repetida/);
  await page.keyboard.down("k");
  await page.keyboard.down("k");
  await page.keyboard.up("k");
  assert.doesNotMatch(await player.see("Zarpi.Label5"), /Repetida/);
  const roles = await page.$$eval("[role=menuitemradio], [role=menuitemcheckbox]", (nodes) => nodes.map((node) => node.role));
  assert.equal(roles.filter((role) => role === "menuitemradio").length, 10);
  assert.equal(roles.filter((role) => role === "menuitemcheckbox").length, 1);
  // In a dialog the region is there before the sentence.
  await page.evaluate(() => {
    globalThis.order = [];
    const region = document.getElementById("spoken");
    new MutationObserver((records) => {
      for (const { target, addedNodes } of records) {
        for (const node of addedNodes) if (node === region || target === region) globalThis.order.push([node === region, performance.now()]);
      }
    }).observe(document.body, { childList: true, subtree: true });
  });
  await player.menu("mnuAyuda", "mnuNormas");
  await player.front("frmNormas");
  await page.waitForFunction(() => globalThis.order.some(([isRegion]) => !isRegion));
  const order = await page.evaluate(() => globalThis.order);
  assert.ok(order[0][0] && !order[1][0] && order[1][1] - order[0][1] > 150, JSON.stringify(order));
});
