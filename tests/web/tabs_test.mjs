// Two tabs, a browser that was lost, storage that was cleared, a tab that is not seen.

import assert from "node:assert/strict";
import { after, before, beforeEach, afterEach, test } from "node:test";
import { fixed, launch, Player, serve } from "./page.mjs";
import { pause, playToWordThree, saveGame, WINNING_SEED } from "./setting.mjs";

const SCHOOL = "escuela.test"; // no https, so no locks
let chromium;
let context;
let server;
let address;
before(async () => {
  chromium = await launch("chrome", [`--host-resolver-rules=MAP ${SCHOOL} 127.0.0.1`, "--autoplay-policy=no-user-gesture-required"]);
  server = await serve();
  address = { school: `http://${SCHOOL}:${server.port}/`, own: server.address };
});
after(async () => {
  await chromium.close();
  server.close();
});
beforeEach(async () => (context = await chromium.browser.createBrowserContext()));
afterEach(() => context.close());

/** What a tab shows that is not to play. */
async function isRefused(page) {
  await page.waitForFunction(() => /otra pestaña/.test(document.body.innerText) && !document.getElementById("loading"), { timeout: 30000 });
}

async function tab(at) {
  const page = await context.newPage();
  await page.goto(at);
  return page;
}

test("without locks: a second tab is refused, a tab that is left or lost is followed", async () => {
  const first = await Player.enter(context, address.school);
  assert.equal(await first.page.evaluate(() => navigator.locks), undefined);
  const second = await tab(address.school);
  await isRefused(second);
  await first.page.reload();
  await first.page.waitForSelector("#frmPresenta .client");
  await first.page.goto("about:blank");
  const third = await Player.enter(context, address.school);
  const stop = await third.page.createCDPSession();
  stop.send("Page.crash").catch(() => {}); // no answer comes
  await pause(500);
  const fourth = await tab(address.school);
  await fourth.waitForFunction(() => /Se mira si el juego/.test(document.getElementById("state")?.textContent));
  await fourth.waitForSelector("#frmPresenta .client", { timeout: 30000 });
});

test("without locks: a tab that has lost its lease stores nothing over what the other one stores", async () => {
  const first = await Player.enter(context, address.school, { prepare: fixed(WINNING_SEED) });
  await playToWordThree(first);
  await first.page.evaluate(async () => {
    const wait = (request) => new Promise((done) => (request.onsuccess = () => done(request.result)));
    const store = (await wait(indexedDB.open("zarpi /", 1))).transaction("notes", "readwrite").objectStore("notes");
    await wait(store.put({ id: "another", renewed: 0 }, "lease"));
  });
  const before = await first.files();
  await saveGame(first, "clave");
  await isRefused(first.page);
  assert.deepEqual(await first.files(), before);
});

for (const [where, host] of [["with locks", "own"], ["without", "school"]]) {
  test(`storage that is cleared under a running game is filled anew: ${where}`, async () => {
    const player = await Player.enter(context, address[host], { prepare: fixed(WINNING_SEED) });
    await playToWordThree(player);
    const before = await player.files();
    assert.ok("UltCeI.dat" in before);
    const session = await player.page.createCDPSession();
    const { origin } = new URL(address[host]);
    await session.send("Storage.clearDataForOrigin", { origin, storageTypes: "indexeddb" });
    await saveGame(player, "clave");
    await player.front("Zarpi");
    await pause(300);
    const after = await player.files();
    assert.deepEqual(Object.keys(after).sort(), [...Object.keys(before), "Guardar.rnd"].sort());
    assert.equal(after["Ultimo.dat"], " 1 \r\n");
  });
}

/** In the page: remembers every audio context. */
const listen = `{ const Real = AudioContext; globalThis.heard = [];
  globalThis.AudioContext = class extends Real { constructor(...all) { super(...all); heard.push(this); } }; }`;

test("a tab that is not seen falls silent and comes back; after the end nothing sounds", async () => {
  const player = await Player.enter(context, address.own, { prepare: listen });
  await player.startGame("Ana");
  const becomes = (state) => player.page.waitForFunction((wanted) => globalThis.heard[0].state === wanted, { timeout: 15000 }, state);
  const see = (isSeen) => player.page.evaluate((seen) => {
    Object.defineProperty(document, "hidden", { configurable: true, value: !seen });
    document.dispatchEvent(new Event("visibilitychange"));
  }, isSeen);
  await becomes("running");
  await see(false);
  await becomes("suspended");
  await player.press("w"); // what would sound then sounds neither now nor later
  assert.equal(await player.page.evaluate(() => globalThis.heard[0].state), "suspended");
  await see(true);
  await becomes("running");
  await player.menu("mnuJuego", "mnuSalir");
  await becomes("closed");
  await player.press("a");
  assert.equal(await player.page.evaluate(() => globalThis.heard.length), 1);
});
