// What is stored: games saved and resumed, whatever stops the page or forbids it; records taken along.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtemp, readdir, readFile, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { test } from "node:test";
import { fixed, launch, Player } from "./page.mjs";
import { chromium, enter, pause, players, playToWordThree, saveGame, server, WINNING_SEED } from "./setting.mjs";

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
      const request = indexedDB.deleteDatabase("zarpi /");
      await new Promise((done) => (request.onblocked = request.onsuccess = done));
    });
    await next.page.close();
    if (!isStopped) break;
  }
  assert.deepEqual([...outcomes].sort(), [" 0 \r\n", " 1 \r\n"]);
});

/** In the page: a store that takes nothing while `isFull` says so. */
const FULL = `{
  const put = IDBObjectStore.prototype.put;
  IDBObjectStore.prototype.put = function (...a) {
    if (globalThis.isFull) throw new DOMException("full", "QuotaExceededError");
    return put.apply(this, a);
  };
}`;

test("what cannot be stored is told, the game goes on, and it is stored as soon as that can be", async () => {
  const player = await enter({ prepare: `${fixed(WINNING_SEED)}; ${FULL}` });
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
    const guest = await Player.enter(other.browser, server.address, { prepare: FULL });
    await guest.press(" ");
    await guest.page.click("#help");
    await (await guest.page.waitForSelector(".files input")).uploadFile(join(folder, "otro.zip"));
    await guest.page.waitForFunction(() => document.querySelectorAll("dialog.message").length === 2);
    const before = await guest.files();
    await guest.page.evaluate(() => (globalThis.isFull = true));
    await guest.press("Enter");
    await guest.page.waitForFunction(() => /Todo queda como estaba/.test([...document.querySelectorAll("dialog.message")].at(-1).innerText));
    await guest.press("Enter", "Escape");
    await guest.page.evaluate(() => (globalThis.isFull = false));
    await guest.press("F1", "F2"); // nothing of it waits for what is stored next
    await pause(200);
    assert.deepEqual(await guest.files(), before);
    await guest.page.click("#help");
    await (await guest.page.waitForSelector(".files input")).uploadFile(join(folder, "otro.zip"));
    await guest.page.waitForFunction(() => document.querySelectorAll("dialog.message").length === 2);
    await Promise.all([guest.page.waitForNavigation(), guest.press("Enter")]);
    await guest.page.waitForSelector("#frmPresenta");
    assert.deepEqual(await guest.files(), { ...before, "Ultimo.dat": stored["Ultimo.dat"], "Guardar.rnd": stored["Guardar.rnd"] });
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
