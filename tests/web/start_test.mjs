// The start of the page when something goes wrong: it starts all the same, or says why not and can be tried again.

import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { after, before, test } from "node:test";
import { headersOf, serve } from "../../scripts/serve.mjs";
import { fixed, launch, Player, site } from "./page.mjs";

/** What can become of a request: what the server gives, given the bytes of the file. */
const FAULTS = {
  lost: () => null,
  broken: (bytes, response) => response.destroy(),
  cut: (bytes) => bytes.subarray(0, bytes.length / 2),
  "cut on the way": (bytes, response) => {
    response.writeHead(200, { "content-length": bytes.length }).write(bytes.subarray(0, bytes.length / 2));
    setTimeout(() => response.destroy(), 50);
  },
  hanging: () => new Promise(() => {}),
};
const NEEDED = ["index.html", "main.js", "style.css", "zarpi.bin"];
const AT_ONCE = 4; // players

/** In the page: what takes ten seconds takes one. */
const hurry = "{ const real = setTimeout; globalThis.setTimeout = (f, ms, ...a) => real(f, ms === 10000 ? 1000 : ms, ...a); }";

let chromium;
before(async () => (chromium = await launch()));
after(() => chromium.close());

/** A server that spoils some files until it is told not to. */
async function spoiling(paths = [], fault) {
  let spoils = true;
  const asked = [];
  const find = async (one, request, response) => {
    asked.push(one);
    return spoils && paths.includes(one) ? fault(await readFile(new URL(`.${one}`, site)), response) : undefined;
  };
  const server = await serve({ folder: site, find });
  return { ...server, asked, heal: () => (spoils = false) };
}

/** The files that a first visit asks for, but for those that are brought ahead of their time. */
async function filesOfFirstVisit() {
  const server = await spoiling();
  const context = await chromium.browser.createBrowserContext();
  const player = await Player.enter(context, server.address);
  const first = [...server.asked];
  await player.page.waitForNetworkIdle();
  await context.close();
  server.close();
  return [...new Set([...first, ...server.asked.filter((path) => !/webp|wav/.test(path))])];
}

/** "started", or what the page says instead while it offers to try again. */
async function outcome(page) {
  const seen = await page.waitForFunction(() => {
    if (document.querySelector("#frmPresenta .client")) return "started";
    const again = document.getElementById("again");
    if (again?.checkVisibility()) return document.getElementById("state").textContent;
    return /cortada/.test(document.body?.innerText) && document.body.innerText;
  }, { timeout: 20000 });
  return seen.jsonValue();
}

/** What comes of a first visit for which these files are spoilt. */
async function tryFault(paths, name) {
  const server = await spoiling(paths, FAULTS[name]);
  const files = paths.map((path) => path.split("/").at(-1));
  const context = await chromium.browser.createBrowserContext();
  try {
    const page = await context.newPage();
    if (name === "hanging" && NEEDED.includes(files[0])) await page.evaluateOnNewDocument(hurry);
    page.goto(server.address).catch(() => {}); // what hangs is not waited for
    const said = await outcome(page);
    if (said !== "started") {
      const told = [files[0] === "index.html" ? "página" : files[0], ...(name === "hanging" ? ["servidor tarda"] : [])];
      assert.ok(told.some((text) => said.includes(text)), said);
      server.heal();
      if (files[0] === "index.html") await page.reload();
      else await page.click("#again");
      await page.waitForSelector("#frmPresenta .client", { timeout: 20000 });
    }
    await page.keyboard.press(" ");
    await page.waitForSelector("#Zarpi .menubar", { timeout: 20000 });
    return said;
  } catch (error) {
    throw new Error(`${files} ${name}: ${error.message}`);
  } finally {
    await context.close();
    server.close();
  }
}

test("a file of the first visit lost, broken off, cut or hanging: the game starts, or says why not and can be tried again", async () => {
  const files = await filesOfFirstVisit();
  const isNeeded = (path) => NEEDED.includes(path.split("/").at(-1));
  const others = files.filter((path) => !isNeeded(path));
  assert.ok(files.length - others.length === NEEDED.length && others.length > 6, files.join());
  // Each that is needed by itself, those that are not all at once. What does not come at all of index.html is the browser's to tell.
  const cases = [...files.filter(isNeeded).map((path) => [path]), others].flatMap((paths) => Object.keys(FAULTS).map((fault) => [paths, fault]));
  const left = cases.filter(([[path], fault]) => path !== "/index.html" || fault === "cut");
  const one = async () => {
    while (left.length > 0) {
      const [paths, fault] = left.shift();
      const hasStarted = (await tryFault(paths, fault)) === "started";
      assert.equal(hasStarted, paths === others, `${paths} ${fault}`);
    }
  };
  await Promise.all(Array.from({ length: AT_ONCE }, one));
});

test("a page that the browser has kept, whose folder is gone, starts as the one that is there", async () => {
  const gone = "0123456789abcdef";
  const index = await readFile(new URL("index.html", site), "utf8");
  let isOld = true;
  const find = (path) => (path === "/index.html" && isOld ? index.replaceAll(/[0-9a-f]{16}(?=\/|")/g, gone) : undefined);
  const server = await serve({ folder: site, find, headers: () => ({ "cache-control": "max-age=3600" }) });
  const context = await chromium.browser.createBrowserContext();
  try {
    const page = await context.newPage();
    await page.goto(server.address);
    assert.match(await outcome(page), /main\.js/);
    isOld = false;
    await page.goto("about:blank");
    await page.goto(server.address);
    assert.equal(await outcome(page), "started");
  } finally {
    await context.close();
    server.close();
  }
});

test("a server that does not know the type of the program, and a browser that cannot unpack it", async () => {
  const headers = (path) => ({ ...headersOf(path), ...(path.endsWith(".wasm") ? { "content-type": "application/octet-stream" } : {}) });
  const server = await serve({ folder: site, headers });
  try {
    await Player.enter(chromium.browser, server.address, { prepare: "delete globalThis.DecompressionStream" });
  } finally {
    server.close();
  }
});

test("a program that breaks down ends with a sentence, and keys do nothing more", async () => {
  const breakable = `{
    const real = WebAssembly.instantiate;
    WebAssembly.instantiate = async (...all) => {
      const { exports } = await real(...all);
      const run = (game) => { if (globalThis.breaks) { ++globalThis.breaks; throw new WebAssembly.RuntimeError("unreachable"); } return exports.run(game); };
      return { exports: { ...exports, run } };
    };
  }`;
  const server = await serve({ folder: site });
  const context = await chromium.browser.createBrowserContext();
  try {
    const player = await Player.enter(context, server.address, { prepare: `${fixed(2)}; ${breakable}` });
    await player.press(" ");
    await player.front("Zarpi");
    await player.page.evaluate(() => (globalThis.breaks = 1));
    await player.press("F2", "a");
    assert.match(await player.page.$eval("#desk", (node) => node.innerText), /El juego se ha parado[^]*Jugar otra vez/);
    assert.equal(await player.page.evaluate(() => globalThis.breaks), 2);
    await player.press("Enter");
    await player.page.waitForSelector("#frmPresenta"); // Enter has pressed the button
  } finally {
    await context.close();
    server.close();
  }
});
