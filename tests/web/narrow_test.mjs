// Small screens: what stands outside the game's windows, texts that are hidden, the curtains, the help, zoom.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { test } from "node:test";
import { fixed } from "./page.mjs";
import { enter, pause, resumeAtTheEnd, WINNING_SEED } from "./setting.mjs";
import { playToTheEnd } from "./solver.mjs";

const touch = { hasTouch: true, isMobile: true, deviceScaleFactor: 3 };
const UPRIGHT = { width: 390, height: 844, ...touch };
const SCREENS = [
  { width: 320, height: 568, ...touch },
  { width: 360, height: 640, ...touch },
  UPRIGHT,
  { width: 768, height: 1024, ...touch, deviceScaleFactor: 1 },
  { width: 844, height: 390, ...touch },
  { width: 640, height: 400, deviceScaleFactor: 2 }, // 1280 by 800 at 200 %
  { width: 320, height: 200, deviceScaleFactor: 4 }, // and at 400 %
];

/** In the page: what of the window in front is wrong to look at. */
function faultsSeen() {
  const front = [...document.querySelectorAll(".window")].at(-1);
  const client = front.querySelector(".client").getBoundingClientRect();
  const isShown = (node) => node.checkVisibility() && node.getBoundingClientRect().width > 1;
  const shown = [...front.querySelectorAll("[data-name]")].filter(isShown);
  const isOff = (node) => {
    const { left, right, bottom } = node.getBoundingClientRect();
    return left < client.left - 1 || right > client.right + 1 || bottom > client.bottom + 1;
  };
  const texts = shown.flatMap((node) => [...node.querySelectorAll(":scope > .text")]).filter((text) => text.textContent !== "");
  const isSmall = (text) => text.closest(".label") && parseFloat(getComputedStyle(text).fontSize) < 8.5;
  return [
    ...shown.filter(isOff).map((node) => `off ${node.id}`),
    ...texts.filter(isSmall).map((text) => `small ${text.parentNode.id}`),
    ...(front.scrollWidth > front.clientWidth ? ["moved sideways"] : []),
    ...(client.left < -1 || client.right > innerWidth + 1 ? ["wider than the screen"] : []),
  ];
}

/** In the page: the blank pixels between the left edge of the clock and its text, in letters. */
function hiddenHours() {
  const text = document.querySelector('[id="Zarpi.lblTiempo"] .text');
  return getComputedStyle(text).clipPath;
}

test("on every small screen the first minute is read and pressed, and the help is whole", async () => {
  for (const viewport of SCREENS) {
    const where = `${viewport.width} × ${viewport.height}`;
    const player = await enter({ viewport, prepare: fixed(WINNING_SEED) });
    const { page } = player;
    const looks = async (what) => assert.deepEqual(await page.evaluate(faultsSeen), [], `${what} at ${where}`);
    if (viewport.hasTouch) assert.match(await page.$eval("#frmPresenta .foot", (node) => node.innerText), /Toca/);
    await page.click("#frmPresenta .client");
    await player.front("Zarpi");
    await pause(50);
    await looks("the start");
    assert.match(await page.evaluate(hiddenHours), /inset/, where);
    assert.doesNotMatch(await page.$eval('[id="Zarpi.lblMenComienzo"]', (node) => node.innerText), /Ctrl/);
    await page.click("#help");
    const body = await page.waitForSelector("dialog.message .body");
    await body.evaluate((node) => (node.scrollTop = node.scrollHeight));
    const whole = await page.$eval("dialog.message", (node) => {
      const isInside = ({ left, top, right, bottom }) => left >= 0 && top >= 0 && right <= innerWidth && bottom <= innerHeight;
      const seen = [node, node.querySelector("h1"), node.querySelector(".cross"), node.querySelector(".buttons button")];
      return seen.map((one) => isInside(one.getBoundingClientRect()));
    });
    assert.deepEqual(whole, [true, true, true, true], `the help at ${where}`);
    assert.equal((await page.$("dialog.message dl")) === null, viewport.hasTouch === true, "keys where there are some");
    await page.click("dialog.message .cross");
    await page.click(".offer");
    await player.front("frmNivel");
    await page.$eval('[id="frmNivel.cmdAceptar"]', (node) => node.click());
    await player.front("frmNombre");
    await looks("the name");
    await page.$eval('[id="frmNombre.cmdAceptar"]', (node) => node.click());
    await player.front("Zarpi");
    await pause(200);
    await looks("a word");
    assert.equal(await page.$eval(".offer", (node) => node.checkVisibility()), false);
    await page.$eval("[data-menu=mnuNormas]", (node) => node.click());
    await player.front("frmNormas");
    await looks("the rules");
    await page.close();
  }
});

/** In the page: a system that passes on pictures, and what it has been given. */
const SHARING = `
  navigator.canShare = () => true;
  navigator.share = async ({ files: [file] }) => {
    const { width, height } = await createImageBitmap(file);
    globalThis.shared = { type: file.type, width, height, size: file.size };
  };`;

/** The text of what the browser prints now. */
async function printed(page) {
  const folder = await mkdtemp(join(tmpdir(), "zarpi-print-"));
  const path = join(folder, "page.pdf");
  await page.pdf({ path, preferCSSPageSize: true, printBackground: true });
  const text = execFileSync("pdftotext", [path, "-"], { encoding: "utf8" });
  await rm(folder, { recursive: true });
  return text;
}

test("the diploma on a phone: curtains that go with the finger, buttons for it, a picture to pass on, a print by the browser", async () => {
  const player = await enter({ viewport: UPRIGHT, prepare: fixed(WINNING_SEED) + SHARING });
  await resumeAtTheEnd(player);
  assert.ok(await playToTheEnd(player, player.finger));
  await player.tap("frmFecha.cmdAceptar");
  await player.front("frmDiploma");
  await pause(100);
  const { page } = player;
  assert.deepEqual(await page.evaluate(faultsSeen), []);
  assert.match(await page.$eval("#frmDiploma .foot", (node) => node.innerText), /Arrastra/);
  assert.equal(await player.see("frmDiploma.Text6"), null, "keys are not asked of a finger");
  const button = await (await player.element("frmDiploma.cmdImprimir")).boundingBox();
  assert.ok(button.height >= 40 && button.width >= 44);
  const edge = () => page.$eval('[id="frmDiploma.Picture3"]', (node) => node.getBoundingClientRect().left);
  const before = await edge();
  const session = await page.createCDPSession();
  const { y } = await (await player.element("frmDiploma.Picture3")).boundingBox();
  const finger = (type, x) => session.send("Input.dispatchTouchEvent", { type, touchPoints: type === "touchEnd" ? [] : [{ x, y: y + 60 }] });
  await finger("touchStart", before + 10);
  for (const moved of [30, 60, 90]) {
    await finger("touchMove", before + 10 + moved);
    await pause(50);
  }
  const after = await edge();
  await finger("touchEnd");
  assert.ok(Math.abs(after - before - 90) < 12, `moved ${after - before} of 90`);
  await page.click("#frmDiploma .foot button");
  const { type, width, height, size } = await (await page.waitForFunction(() => globalThis.shared)).jsonValue();
  assert.equal(type, "image/png");
  assert.ok(width === 1600 && height > 900 && height < 1100 && size > 100000, `${width} × ${height}, ${size} bytes`);
  assert.match(await printed(page), /IMPRIMIR/);
  assert.deepEqual(await page.evaluate(faultsSeen), [], "after printing");
});
