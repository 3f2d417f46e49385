// Keeps the page for days without a network. What is built in front of this gives VERSION and FILES.

const CACHE = `zarpi-${VERSION}`;

self.addEventListener("install", (event) => {
  event.waitUntil(caches.open(CACHE).then((cache) => cache.addAll(FILES)).then(() => self.skipWaiting()));
});

self.addEventListener("activate", (event) => {
  const old = caches.keys().then((names) => names.filter((name) => name.startsWith("zarpi-") && name !== CACHE));
  event.waitUntil(old.then((names) => Promise.all(names.map((name) => caches.delete(name)))).then(() => self.clients.claim()));
});

// What is kept answers at once; what is not (the music and the largest pictures, until they have been asked for) is fetched, and kept then.
// Music is asked for by parts: it is fetched whole, so that it can be kept while it sounds, and cut when it has been kept.
async function answer(event) {
  const { request } = event;
  const range = request.headers.get("range");
  const cache = await caches.open(CACHE);
  const kept = await cache.match(request, { ignoreSearch: true });
  if (kept) return range === null ? kept : part(kept, range);
  const response = await fetch(range === null ? request : request.url);
  if (response.status === 200) event.waitUntil(cache.put(request.url, response.clone()));
  return response;
}

async function part(whole, range) {
  const bytes = await whole.blob();
  const [, first, last] = /^bytes=(\d+)-(\d*)$/.exec(range) ?? [range, "0", ""];
  const end = last === "" ? bytes.size : Math.min(Number(last) + 1, bytes.size);
  const headers = { "content-type": bytes.type, "content-range": `bytes ${first}-${end - 1}/${bytes.size}` };
  return new Response(bytes.slice(Number(first), end), { status: 206, headers });
}

self.addEventListener("fetch", (event) => {
  const isOwn = new URL(event.request.url).origin === self.location.origin;
  if (event.request.method === "GET" && isOwn) event.respondWith(answer(event));
});
