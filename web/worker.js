// Keeps the page for days without a network. What is built in front of this gives VERSION, the name of the version's folder,
// and the checksums of its files by their names: FILES, to be kept at once, and LATER, when they have been asked for.

const SCOPE = self.registration.scope;
const PREFIX = `zarpi ${SCOPE} `;
const CACHE = PREFIX + VERSION;
const INDEX = `${PREFIX}index`; // holds index.html of the newest version that is kept whole
const OLD = /^zarpi-[0-9a-f]{16}$/; // caches of all copies on one server, until they had names of their own

/** Brings a file as the server has it now, whatever the browser keeps of it. */
async function bring(path, integrity) {
  let response = await fetch(new Request(SCOPE + path, { cache: "no-cache", integrity })).catch(() => null);
  response ??= await fetch(new Request(SCOPE + path, { cache: "reload", integrity }));
  if (!response.ok) throw new Error(`${path}: ${response.status}`);
  return response;
}

/** Keeps all of the version, or nothing of it. As soon as all is kept the next start is one of this version, whichever worker answers. */
async function keep() {
  const index = await bring("");
  const text = await index.text();
  if (!text.includes(`${VERSION}/main.js`)) throw new Error("index.html is of another version");
  const cache = await caches.open(CACHE);
  try {
    const files = Object.entries(FILES).map(async ([name, checksum]) => {
      const path = `${VERSION}/${name}`;
      await cache.put(SCOPE + path, await bring(path, `sha256-${checksum}`));
    });
    await Promise.all(files);
    await (await caches.open(INDEX)).put(SCOPE, new Response(text, { headers: index.headers }));
  } catch (error) {
    await caches.delete(CACHE);
    throw error;
  }
}

/** The caches of this page. */
async function ownCaches() {
  const own = [];
  for (const name of await caches.keys()) {
    const isOld = OLD.test(name) && (await (await caches.open(name)).match(SCOPE)) !== undefined;
    if (isOld) own.push(name);
    else if (name.startsWith(PREFIX)) own.unshift(name);
  }
  return own;
}

/** Takes away what other versions have kept, if no tab can be using it (there is one, of this version) and none is coming. */
async function tidy() {
  const tabs = await self.clients.matchAll({ type: "window", includeUncontrolled: true });
  const { installing, waiting } = self.registration;
  if (installing || waiting || tabs.filter(({ url }) => url.startsWith(SCOPE)).length > 1) return;
  for (const name of await ownCaches()) if (name !== CACHE && name !== INDEX) await caches.delete(name);
}

self.addEventListener("install", (event) => event.waitUntil(keep().then(() => self.skipWaiting())));
self.addEventListener("activate", (event) => event.waitUntil(self.clients.claim()));
self.addEventListener("message", (event) => {
  if (event.data === VERSION) event.waitUntil(tidy());
});

async function kept(address) {
  for (const name of await ownCaches()) {
    const response = await (await caches.open(name)).match(address, { ignoreSearch: true });
    if (response) return response;
  }
  return undefined;
}

/** The part of a file that is asked for; the whole of it if no part is. */
async function part(response, range) {
  const [, from, to] = /^bytes=(\d+)-(\d*)$/.exec(range ?? "") ?? [];
  if (from === undefined) return response;
  const bytes = await response.blob();
  const start = Number(from);
  const end = Math.min(to === "" ? bytes.size : Number(to) + 1, bytes.size);
  if (start >= end) return new Response(null, { status: 416, headers: { "content-range": `bytes */${bytes.size}` } });
  const headers = new Headers(response.headers);
  headers.set("content-range", `bytes ${start}-${end - 1}/${bytes.size}`);
  headers.set("content-length", String(end - start));
  return new Response(bytes.slice(start, end), { status: 206, headers });
}

async function keepLater(name, address, response) {
  const bytes = await response.arrayBuffer();
  const digest = new Uint8Array(await crypto.subtle.digest("SHA-256", bytes));
  if (btoa(String.fromCharCode(...digest)) !== LATER[name]) return;
  await (await caches.open(CACHE)).put(address, new Response(bytes, { headers: response.headers }));
}

/** The music and the largest pictures come as they are asked for, and are kept if they have come whole. */
async function bringLater(event, name, address) {
  const response = await fetch(address);
  if (response.status === 200) event.waitUntil(keepLater(name, address, response.clone()).catch(() => {}));
  return response;
}

async function answer(event, address) {
  const { request } = event;
  const range = request.headers.get("range");
  const response = await kept(address);
  if (response) return part(response, range);
  const name = decodeURIComponent(address.slice(`${SCOPE}${VERSION}/`.length));
  if (!(name in LATER) || address !== SCOPE + encodeURI(`${VERSION}/${name}`)) return fetch(request);
  const brought = await bringLater(event, name, address);
  return range === null || range === "bytes=0-" || brought.status !== 200 ? brought : part(brought, range);
}

self.addEventListener("fetch", (event) => {
  const { request } = event;
  const [address] = request.url.split(/[?#]/);
  if (request.method !== "GET" || !address.startsWith(SCOPE)) return;
  const isIndex = ["", "index.html"].includes(address.slice(SCOPE.length));
  if (request.mode === "navigate" ? !isIndex : ["reload", "no-store"].includes(request.cache)) return;
  event.respondWith(answer(event, isIndex ? SCOPE : address));
});
