// The page in a browser: a server of its own, a fresh player, and what a player does and sees.

import { mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import puppeteer from "puppeteer-core";
import { serve as serveFolder } from "../../scripts/serve.mjs";

export const site = new URL(process.env.ZARPI_SITE ?? "../../build/web/juego/", import.meta.url);
const OPTIONS = ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
  "--disable-component-update", "--disable-sync"];

export const PHONE = { width: 360, height: 640, hasTouch: true, isMobile: true, deviceScaleFactor: 2 };

/** Serves the page, and under `more` texts of other addresses. */
export function serve(more = {}) {
  return serveFolder({ folder: site, find: (path) => more[path] });
}

const BROWSERS = {
  chrome: { executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: OPTIONS },
  firefox: { executablePath: process.env.FIREFOX ?? "/usr/bin/firefox-esr" },
};

/** A browser that knows nothing yet; close() takes all of it away. `more` are further options of its command line. */
export async function launch(name = "chrome", more = []) {
  const profile = await mkdtemp(join(tmpdir(), "zarpi-web-"));
  const { executablePath, args = [] } = BROWSERS[name];
  const browser = await puppeteer.launch({ browser: name, headless: true, userDataDir: profile, executablePath, args: [...args, ...more] });
  const close = async () => {
    await browser.close();
    await rm(profile, { recursive: true, force: true });
  };
  return { browser, close };
}

/** The key of a letter on the screen. */
function key(letter) {
  return `[id="Zarpi.lblTecla(${"BCDFGHJKLMNÑPQRSTVWXYZAEIOU".indexOf(letter) + 1})"]`;
}

/** The game in a tab, as its player has it before him. Faults of the page end up in `faults`. */
export class Player {
  faults = [];

  /** `prepare` runs in the page before anything of it. */
  static async enter(browser, address, { viewport = { width: 1280, height: 800 }, prepare } = {}) {
    const player = new Player();
    player.page = await browser.newPage();
    await player.page.setViewport(viewport);
    if (prepare) await player.page.evaluateOnNewDocument(prepare);
    player.page.on("request", (request) => {
      if (!request.url().startsWith(address)) player.faults.push(`asked ${request.url()}`);
    });
    player.page.on("pageerror", (error) => player.faults.push(error.message));
    player.page.on("console", (line) => line.type() === "error" && player.faults.push(`${line.text()} ${line.location().url}`));
    await player.page.goto(address);
    await player.page.waitForSelector("#frmPresenta .picture", { timeout: 10000 }).catch((error) => {
      throw new Error(player.faults.join(" ") || error.message);
    });
    return player;
  }

  /** Presses keys by their names, one after the other. */
  async press(...keys) {
    for (const key of keys) await this.page.keyboard.press(key);
  }

  /** The shortcut of a menu entry, as it works in a browser. */
  async shortcut(letter) {
    await this.page.keyboard.down("Shift");
    await this.page.keyboard.down("Alt");
    await this.page.keyboard.press(letter);
    await this.page.keyboard.up("Alt");
    await this.page.keyboard.up("Shift");
  }

  element(name) {
    return this.page.waitForSelector(`[id="${name}"]`, { visible: true, timeout: 5000 });
  }

  async click(name) {
    await (await this.element(name)).click();
  }

  async tap(name) {
    await (await this.element(name)).tap();
  }

  /** What plays a game: how a letter is entered, and how the window in front is closed. */
  get keyboard() {
    return { enter: (letter) => this.press(letter.toLowerCase()), accept: () => this.press("Enter") };
  }
  get mouse() {
    return {
      enter: async (letter) => (await this.page.$(key(letter))).click(),
      accept: (form) => this.click(`${form}.cmdAceptar`),
    };
  }
  get finger() {
    return { enter: async (letter) => (await this.page.$(key(letter))).tap(), accept: (form) => this.tap(`${form}.cmdAceptar`) };
  }

  /** The text of an element; null while it cannot be seen. */
  see(name) {
    return this.page.evaluate((id) => {
      const node = document.getElementById(id);
      return node && !node.hidden ? node.innerText.replaceAll("\n", " ").trim() : null;
    }, name);
  }

  /** An entry of a menu, by the mouse. */
  async menu(menu, entry) {
    await this.page.click(`[data-menu="${menu}"]`);
    await this.page.click(`[data-menu="${entry}"]`);
  }

  /** Waits until a window is in front. */
  async front(form) {
    const isFront = (name) => [...document.querySelectorAll(".window")].at(-1)?.id === name;
    await this.page.waitForFunction(isFront, { timeout: 15000 }, form);
  }

  /** Waits until an element shows a text that `pattern` matches. */
  async shows(name, pattern) {
    const matches = (id, source) => {
      const node = document.getElementById(id);
      return node && !node.hidden && new RegExp(source).test(node.innerText.replaceAll("\n", " "));
    };
    await this.page.waitForFunction(matches, { timeout: 15000 }, name, pattern.source);
  }

  /** From the presentation to the first word, for a player of this name. */
  async startGame(name) {
    await this.press(" ");
    await this.front("Zarpi");
    await this.shortcut("N");
    await this.front("frmNivel");
    await this.press("Enter");
    await this.front("frmNombre");
    await this.page.keyboard.type(name);
    await this.press("Enter");
    await this.front("Zarpi");
  }

  /** The stored files, names and bytes. */
  files() {
    return this.page.evaluate(async () => {
      const wait = (request) => new Promise((done) => (request.onsuccess = () => done(request.result)));
      const database = await wait(indexedDB.open("zarpi /", 1));
      const store = database.transaction("files").objectStore("files");
      const [names, contents] = await Promise.all([wait(store.getAllKeys()), wait(store.getAll())]);
      database.close();
      return Object.fromEntries(names.map((name, i) => [name, String.fromCharCode(...contents[i])]));
    });
  }
}

/** Random numbers and a date that are the same every time, so that a game takes the same course. */
export function fixed(seed) {
  return `(() => {
    let state = ${seed};
    crypto.getRandomValues = (array) => array.fill((state = (state * 1103515245 + 12345) >>> 0));
    const Real = Date;
    globalThis.Date = class extends Real { constructor(...a) { super(...(a.length ? a : [2026, 10, 23, 10, 0, 0])); } };
  })()`;
}
