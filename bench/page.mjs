// How small and how fast the page is, beside a page with nothing in it.
//
//     node bench/page.mjs [RUNS]

import { execFileSync } from "node:child_process";
import { readdir, readFile, stat } from "node:fs/promises";
import { extname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";
import { fixed, launch, Player, serve, site } from "../tests/web/page.mjs";

const RUNS = Number(process.argv[2] ?? 7);
const PROGRAM = [".html", ".js", ".css", ".json", ".bin", ".woff2"];
const SLOW = { offline: false, latency: 400, downloadThroughput: 50000, uploadThroughput: 50000 }; // 400 kb/s
const IDLE = 10000;

const median = (numbers) => [...numbers].sort((a, b) => a - b)[Math.floor(numbers.length / 2)];
const pause = (milliseconds) => new Promise((done) => setTimeout(done, milliseconds));

/** Bytes of the program, the page and its fonts, as a server sends them. */
async function programSize() {
  const folder = fileURLToPath(site);
  const names = await readdir(folder, { recursive: true });
  const sizes = names.filter((name) => PROGRAM.includes(extname(name))).map(async (name) => {
    const bytes = await readFile(join(folder, name));
    return Math.min(bytes.length, gzipSync(bytes, { level: 9 }).length);
  });
  return (await Promise.all(sizes)).reduce((sum, size) => sum + size, 0);
}

/** Bytes of the sounds, which the worker takes after the start, and of the music, a piece of which comes when it is to sound. */
async function soundSizes() {
  const folder = fileURLToPath(site);
  const names = (await readdir(folder, { recursive: true })).filter((name) => [".wav", ".ogg"].includes(extname(name)));
  const sizes = { sounds: 0, music: 0 };
  for (const name of names) {
    sizes[name.includes("Musica") ? "music" : "sounds"] += (await stat(join(folder, name))).size;
  }
  return sizes;
}

/** Megabytes that all processes of a browser hold. */
async function memory(browser) {
  const parents = execFileSync("ps", ["-e", "-o", "pid=,ppid="], { encoding: "utf8" }).trim().split("\n").map((line) => line.trim().split(/\s+/));
  const own = [String(browser.process().pid)];
  for (const pid of own) own.push(...parents.filter(([, parent]) => parent === pid).map(([child]) => child));
  const shares = own.map(async (pid) => {
    const rollup = await readFile(`/proc/${pid}/smaps_rollup`, "utf8").catch(() => "");
    return Number(/^Pss:\s+(\d+)/m.exec(rollup)?.[1] ?? 0);
  });
  return (await Promise.all(shares)).reduce((sum, kilobytes) => sum + kilobytes, 0) / 1024;
}

/** In the page: notes when the pictures of the first window have come to the screen. */
const NOTE_FIRST_WINDOW = `{
  const look = () => {
    const window = document.getElementById("frmPresenta");
    const images = [...(window?.querySelectorAll(".picture:not([hidden]) img") ?? [])];
    const drawn = images.length > 0 && images.every((image) => image.complete && image.naturalWidth > 0);
    const shown = drawn && window.querySelector(".client").style.backgroundImage !== "";
    requestAnimationFrame(shown ? () => (globalThis.firstWindow = performance.now()) : look);
  };
  requestAnimationFrame(look);
}`;

/** Milliseconds from the address to the first window, and the bytes of its pictures. */
async function firstWindow(browser, address, network) {
  const page = await browser.newPage();
  await page.setViewport({ width: 1280, height: 800 });
  await page.evaluateOnNewDocument(NOTE_FIRST_WINDOW);
  if (network) await (await page.createCDPSession()).send("Network.emulateNetworkConditions", network);
  await page.goto(address, { waitUntil: "domcontentloaded" });
  await page.waitForFunction(() => globalThis.firstWindow, { timeout: 60000 });
  return page.evaluate(() => ({
    window: globalThis.firstWindow,
    pictures: performance.getEntriesByType("resource")
      .filter(({ name, responseEnd }) => /(webp|png)$/.test(name) && responseEnd < globalThis.firstWindow)
      .reduce((sum, { encodedBodySize }) => sum + encodedBodySize, 0),
  }));
}

/** And to the first paint of an empty page before. A fresh browser. */
async function starts(address, network) {
  const { browser, close } = await launch();
  try {
    const empty = await browser.newPage();
    await empty.goto(`${address}empty.html`);
    await empty.waitForFunction(() => performance.getEntriesByName("first-paint").length > 0);
    const paint = await empty.evaluate(() => performance.getEntriesByName("first-paint")[0].startTime);
    await empty.close();
    return { paint, ...(await firstWindow(browser, address, network)) };
  } finally {
    await close();
  }
}

/**
 * Of each of many letters of a game, in milliseconds: what the key sets going, the drawing of what it changed, and all from the
 * key to the frame, most of which is the wait for the screen's next beat.
 */
async function keys(player) {
  await player.page.evaluate(() => {
    globalThis.spans = [];
    addEventListener("keydown", (event) => {
      const before = performance.now();
      requestAnimationFrame(() => {
        const beat = performance.now();
        const channel = new MessageChannel();
        channel.port1.onmessage = () => {
          const now = performance.now();
          globalThis.spans.push({ work: globalThis.after - before, drawing: now - beat, frame: now - event.timeStamp });
        };
        channel.port2.postMessage(0);
      });
    }, { capture: true });
    addEventListener("keydown", () => (globalThis.after = performance.now()));
  });
  await pause(1000); // the window that has closed is drawn over
  for (const letter of "qwkjxzyqwert") {
    await player.press(letter);
    await pause(150);
  }
  return player.page.evaluate(() => globalThis.spans);
}

/** What the page does in a while in which nothing moves. */
async function idle(player) {
  const session = await player.page.createCDPSession();
  await session.send("Performance.enable", { timeDomain: "threadTicks" });
  const read = async () => Object.fromEntries((await session.send("Performance.getMetrics")).metrics.map(({ name, value }) => [name, value]));
  await pause(3000);
  const before = await read();
  await pause(IDLE);
  const after = await read();
  const share = (name) => `${(((after[name] - before[name]) * 100000) / IDLE).toFixed(2)} %`;
  const count = (name) => after[name] - before[name];
  return `${share("TaskDuration")} of a core, of it ${share("ScriptDuration")} the program and the page's scripts; ` +
    `${count("LayoutCount")} layouts, ${count("RecalcStyleCount")} styles`;
}

const server = await serve({ "/empty.html": "<!doctype html><title>Empty</title><body style='background:#ddd'>" });
console.log("program, page and fonts, compressed:", await programSize());
console.log("sounds and music, bytes:", await soundSizes());
const runs = [];
for (let i = 0; i < RUNS; ++i) runs.push(await starts(server.address));
const paint = median(runs.map((run) => run.paint));
const shown = median(runs.map((run) => run.window));
console.log(`pictures of the first window: ${runs[0].pictures}`);
console.log(`empty page ${paint.toFixed(0)} ms, first window ${shown.toFixed(0)} ms, at most ${(3 * paint).toFixed(0)} ms`);
console.log(`first window at 400 kb/s and 400 ms: ${(await starts(server.address, SLOW)).window.toFixed(0)} ms, at most 8000 ms`);
const { browser, close } = await launch();
const player = await Player.enter(browser, server.address, { prepare: fixed(2) });
console.log("idle at the presentation:", await idle(player));
await player.startGame("Ana");
console.log("idle in a word in play:", await idle(player));
if ((await player.see("Zarpi.lblTiempo")) === null) throw new Error("no word is in play");
const spans = await keys(player);
const told = spans.map(({ work, drawing, frame }) => [work, drawing, frame].map((span) => span.toFixed(1)).join("/"));
console.log("keys, milliseconds of work/of drawing/to the frame:", told.join(" "));
console.log(`memory of the browser in a word, with music: ${(await memory(browser)).toFixed(0)} MB`);
await close();
server.close();
