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
async function answer(request) {
  const cache = await caches.open(CACHE);
  const kept = await cache.match(request, { ignoreSearch: true });
  if (kept) return kept;
  const response = await fetch(request);
  if (response.status === 200) await cache.put(request, response.clone());
  return response;
}

self.addEventListener("fetch", (event) => {
  const isOwn = new URL(event.request.url).origin === self.location.origin;
  if (event.request.method === "GET" && isOwn) event.respondWith(answer(event.request));
});
