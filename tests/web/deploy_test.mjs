// A newer page in the place of an older one: it arrives, and it arrives whole, whatever the server says about keeping files.

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { cpSync, mkdtempSync, readFileSync, appendFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, test } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";
import { headersOf, serve } from "../../scripts/serve.mjs";
import { launch, site } from "./page.mjs";

const SCHOOL = "escuela.test"; // a name in a school's own network: no https, so no worker and no locks
const work = mkdtempSync(join(tmpdir(), "zarpi-deploy-"));
after(() => rmSync(work, { recursive: true }));

/** The address of the folder of another version of the page, which says so. */
function otherVersion() {
  const [page, target, build] = [join(work, "web"), join(work, "juego"), fileURLToPath(new URL("../", site))];
  cpSync(new URL("../../web", import.meta.url), page, { recursive: true });
  appendFileSync(join(page, "main.js"), 'document.documentElement.dataset.edition = "2";\n');
  appendFileSync(join(page, "style.css"), "html { --edition: 2; }\n");
  execFileSync("/usr/bin/python3", [join(page, "furnish.py"), "page", join(build, "web/stage"), page, join(build, "web/zarpi.wasm"), target]);
  return pathToFileURL(`${target}/`);
}
const second = otherVersion();

async function start(page, address) {
  await page.goto(address);
  await page.waitForSelector("#frmPresenta .picture", { timeout: 30000 });
  return page.evaluate(() => {
    const { edition = "1" } = document.documentElement.dataset;
    const style = getComputedStyle(document.documentElement).getPropertyValue("--edition").trim() || "1";
    const ofPage = performance.getEntriesByType("resource").filter(({ initiatorType }) => initiatorType !== "other"); // the manifest's
    const folders = new Set(ofPage.map(({ name }) => name.match(/\/([0-9a-f]{16})\//)?.[1]));
    return { edition, style, folders: [...folders].filter(Boolean).length };
  });
}

function isOne(seen) {
  assert.deepEqual(seen, { ...seen, style: seen.edition, folders: 1 });
}

const month = new Date(Date.now() - 30 * 24 * 3600 * 1000).toUTCString();
const HEADERS = {
  "none but the date of a file": () => ({ "last-modified": month }),
  "an hour": () => ({ "cache-control": "max-age=3600", "last-modified": month }),
  "a year, for index.html too": () => ({ "cache-control": "public, max-age=31536000, immutable" }),
  "those of the README": headersOf,
};

function readIfThere(address) {
  try {
    return readFileSync(address);
  } catch {
    return null;
  }
}

/** Waits until the worker, if the page can have one, keeps the page. */
async function settled(page) {
  await page.waitForFunction(async () => {
    if (!navigator.serviceWorker) return true;
    return caches.has(`zarpi ${new URL("./", location.href).href} index`);
  }, { timeout: 30000, polling: 200 });
}

/** Starts the page, deploys the other version in its place, and starts twice. Says which versions came. */
async function deploy(browser, headers, host) {
  let folder = site;
  const server = await serve({ folder: site, find: (path) => readIfThere(new URL(`.${path}`, folder)), headers });
  const address = `http://${host}:${server.port}/`;
  const context = await browser.createBrowserContext();
  try {
    const page = await context.newPage();
    const before = await start(page, address);
    await settled(page);
    folder = second;
    const next = await start(page, address);
    if (next.edition === "1") await page.waitForSelector("#newer", { timeout: 30000 });
    await page.close();
    return [before, next, await start(await context.newPage(), address)];
  } finally {
    await context.close();
    server.close();
  }
}

test("a newer page arrives whole, offered at the next start and there at the one after it, whatever the server lets be kept", async () => {
  const { browser, close } = await launch("chrome", [`--host-resolver-rules=MAP ${SCHOOL} 127.0.0.1`]);
  try {
    const cases = Object.entries(HEADERS).flatMap(([told, headers]) => ["127.0.0.1", SCHOOL].map((host) => ({ told, headers, host })));
    const tried = cases.map(async ({ told, headers, host }) => {
      const came = await deploy(browser, headers, host).catch((error) => assert.fail(`${told}, ${host}: ${error.message}`));
      came.forEach(isOne);
      assert.deepEqual([came[0].edition, came[2].edition], ["1", "2"], `${told}, ${host}`);
    });
    await Promise.all(tried);
  } finally {
    await close();
  }
});

test("a version of before there were folders gives way, and its records are taken over", async () => {
  const old = `const VERSION = "0123456789abcdef";\nconst FILES = ["./", "main.js"];\n\n${readFileSync(new URL("old-worker.js", import.meta.url))}`;
  const files = {
    "/worker.js": old,
    "/index.html": '<!doctype html><p>old</p><script type="module" src="main.js"></script>',
    "/main.js": `navigator.serviceWorker.register("worker.js");
      indexedDB.open("zarpi", 1).onupgradeneeded = ({ target }) =>
        target.result.createObjectStore("files").put(new Uint8Array([32, 55, 32, 13, 10]), "UltCas.dat");`,
  };
  let isOld = true;
  const headers = () => ({ "cache-control": "max-age=3600" });
  const server = await serve({ folder: site, find: (path) => (isOld ? files[path] ?? null : undefined), headers });
  const { browser, close } = await launch();
  try {
    const page = await browser.newPage();
    await page.goto(server.address);
    await page.evaluate(() => navigator.serviceWorker.ready);
    isOld = false;
    await page.goto(server.address); // the browser looks for a new worker
    await page.waitForFunction(async () => (await caches.keys()).some((name) => name.endsWith(" index")), { timeout: 30000 });
    await page.waitForFunction(async () => !(await navigator.serviceWorker.getRegistration()).waiting);
    isOne(await start(page, server.address));
    await page.waitForFunction(async () => (await caches.keys()).length === 2, { timeout: 30000 });
    const { "UltCas.dat": counter } = await filesOf(page, "zarpi /");
    assert.equal(counter, " 7 \r\n");
  } finally {
    await close();
    server.close();
  }
});

test("the README asks of each server what the tests are served with", () => {
  const readme = readFileSync(new URL("../../README.md", import.meta.url), "utf8");
  const policy = headersOf("/index.html")["content-security-policy"];
  assert.equal(readme.split(policy).length - 1, 4);
});

function filesOf(page, name) {
  return page.evaluate(async (database) => {
    const wait = (request) => new Promise((done) => (request.onsuccess = () => done(request.result)));
    const opened = await wait(indexedDB.open(database, 1));
    const store = opened.transaction("files").objectStore("files");
    const [names, contents] = await Promise.all([wait(store.getAllKeys()), wait(store.getAll())]);
    opened.close();
    return Object.fromEntries(names.map((key, i) => [key, String.fromCharCode(...contents[i])]));
  }, name);
}

test("two copies on one server leave each other's files, caches and turns alone", async () => {
  const versions = { a: site, b: site };
  const find = (path) => {
    const [, copy, rest] = path.match(/^\/([ab])\/(.*)$/) ?? [];
    return copy ? readIfThere(new URL(rest, versions[copy])) : null;
  };
  const server = await serve({ folder: site, find });
  const { browser, close } = await launch();
  try {
    const pages = {};
    for (const copy of ["a", "b"]) {
      pages[copy] = await browser.newPage();
      await start(pages[copy], `${server.address}${copy}/`); // both at once
      await settled(pages[copy]);
    }
    const names = await pages.a.evaluate(async () => (await indexedDB.databases()).map(({ name }) => name).sort());
    assert.deepEqual(names, ["zarpi /a/", "zarpi /b/"]);
    versions.a = second;
    await start(pages.a, `${server.address}a/`);
    await pages.a.bringToFront();
    await pages.a.waitForSelector("#newer", { timeout: 30000 });
    await Promise.all([pages.a.waitForNavigation(), pages.a.click("#newer")]);
    await settled(pages.a);
    await pages.b.setOfflineMode(true);
    assert.equal((await start(pages.b, `${server.address}b/`)).edition, "1");
  } finally {
    await close();
    server.close();
  }
});
