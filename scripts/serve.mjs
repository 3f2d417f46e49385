// Gives a folder of the page out, with the headers that the README asks of a server.
//
//     node scripts/serve.mjs [PORT] [FOLDER]

import { readFile } from "node:fs/promises";
import { createServer } from "node:http";
import { extname } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import { gzipSync } from "node:zlib";

const TYPES = {
  ".html": "text/html; charset=utf-8", ".js": "text/javascript; charset=utf-8", ".css": "text/css; charset=utf-8",
  ".json": "application/json", ".wasm": "application/wasm", ".webp": "image/webp", ".png": "image/png", ".woff2": "font/woff2",
  ".ogg": "audio/ogg", ".wav": "audio/wav",
};
const PACKED = [".html", ".js", ".css", ".json", ".wasm"];
const VERSION = /\/[0-9a-f]{16}\//; // the folder of a version never changes
const POLICY = "default-src 'self'; script-src 'self' 'unsafe-inline' 'wasm-unsafe-eval'; style-src 'self' 'unsafe-inline'; img-src 'self' blob:; media-src 'self' blob:; frame-ancestors 'self'";

/** The headers of a file, by its path from the root of the page. */
export function headersOf(path) {
  return {
    "cache-control": VERSION.test(path) ? "public, max-age=31536000, immutable" : "no-cache",
    "content-security-policy": POLICY,
    "x-content-type-options": "nosniff",
  };
}

/** The part of the bytes that is asked for by the header "range", with what tells so. */
function part(bytes, range) {
  const [, from, to] = /^bytes=(\d+)-(\d*)$/.exec(range ?? "") ?? [];
  if (from === undefined || Number(from) >= bytes.length) return { status: 200, body: bytes, told: {} };
  const body = bytes.subarray(Number(from), to === "" ? undefined : Number(to) + 1);
  return { status: 206, body, told: { "content-range": `bytes ${from}-${Number(from) + body.length - 1}/${bytes.length}` } };
}

/**
 * Serves a folder, given by its address as a file, from a port of this machine. `find`, if given, is asked first for what lies
 * at a path: a text or bytes, undefined for what lies in the folder, or null for nothing. `headers` gives the headers of a path.
 */
export async function serve({ folder, port = 0, find = () => undefined, headers = headersOf }) {
  const server = createServer(async (request, response) => {
    const asked = decodeURIComponent(new URL(request.url, "http://site").pathname);
    const path = asked.endsWith("/") ? `${asked}index.html` : asked;
    let found = await find(path, request, response);
    if (response.headersSent || response.destroyed) return;
    if (found === undefined) found = await readFile(new URL(`.${path}`, folder)).catch(() => null);
    if (found === null) return response.writeHead(404).end();
    const { status, body, told } = part(Buffer.from(found), request.headers.range);
    const isPacked = PACKED.includes(extname(path)) && /\bgzip\b/.test(request.headers["accept-encoding"]);
    const all = { "content-type": TYPES[extname(path)] ?? "application/octet-stream", ...told, ...headers(path) };
    if (isPacked) Object.assign(all, { "content-encoding": "gzip", vary: "accept-encoding" });
    response.writeHead(status, all).end(isPacked ? gzipSync(body) : body);
  });
  await new Promise((done, failed) => server.on("error", failed).listen(port, "127.0.0.1", done));
  const close = () => {
    server.close();
    server.closeAllConnections();
  };
  return { port: server.address().port, address: `http://127.0.0.1:${server.address().port}/`, close };
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [port = "8000", folder = "build/web/juego"] = process.argv.slice(2);
  await serve({ folder: pathToFileURL(`${folder}/`), port: Number(port) });
  console.log(`Juega en http://localhost:${port}/ (Ctrl+C para terminar)`);
}
