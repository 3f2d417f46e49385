// The player's records as one file: a ZIP archive of the very files that the game keeps on a computer.

const LOCAL = 0x04034b50;
const CENTRAL = 0x02014b50;
const END = 0x06054b50;
const STORED = 0;
const DEFLATED = 8;
const UTF8 = 0x800;

function crc32(bytes) {
  let crc = ~0;
  for (const byte of bytes) {
    crc ^= byte;
    for (let bit = 0; bit < 8; ++bit) crc = (crc >>> 1) ^ (crc & 1 ? 0xedb88320 : 0);
  }
  return ~crc >>> 0;
}

function header(size, fields) {
  const view = new DataView(new ArrayBuffer(size));
  for (const [offset, bytes, value] of fields) {
    if (bytes === 2) view.setUint16(offset, value, true);
    else view.setUint32(offset, value, true);
  }
  return new Uint8Array(view.buffer);
}

/** What both headers of a file tell of it, from `offset` on. */
function common(offset, name, bytes) {
  return [
    [offset, 2, UTF8],
    [offset + 2, 2, STORED],
    [offset + 8, 4, crc32(bytes)],
    [offset + 12, 4, bytes.length],
    [offset + 16, 4, bytes.length],
    [offset + 20, 2, name.length],
  ];
}

/** The archive of a map of names to bytes, as a Blob. */
export function pack(files) {
  const parts = [];
  const directory = [];
  let offset = 0;
  for (const [fileName, bytes] of files) {
    const name = new TextEncoder().encode(fileName);
    parts.push(header(30, [[0, 4, LOCAL], [4, 2, 20], ...common(6, name, bytes)]), name, bytes);
    const entry = header(46, [[0, 4, CENTRAL], [4, 2, 20], [6, 2, 20], ...common(8, name, bytes), [42, 4, offset]]);
    directory.push(entry, name);
    offset += 30 + name.length + bytes.length;
  }
  const length = directory.reduce((sum, part) => sum + part.length, 0);
  const end = header(22, [[0, 4, END], [8, 2, files.size], [10, 2, files.size], [12, 4, length], [16, 4, offset]]);
  return new Blob([...parts, ...directory, end], { type: "application/zip" });
}

/** What the bytes are inflated; throws as soon as that is longer than `most`. */
async function inflated(bytes, most) {
  const reader = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("deflate-raw")).getReader();
  const parts = [];
  let length = 0;
  for (let { done, value } = await reader.read(); !done; { done, value } = await reader.read()) {
    length += value.length;
    if (length > most) {
      await reader.cancel();
      throw new Error("too long");
    }
    parts.push(value);
  }
  return new Uint8Array(await new Blob(parts).arrayBuffer());
}

function directoryOf(view) {
  let end = view.byteLength - 22;
  const first = Math.max(0, end - 0xffff); // behind it stands a comment at most
  while (end >= first && view.getUint32(end, true) !== END) --end;
  if (end < first) throw new Error("no archive");
  return { at: view.getUint32(end + 16, true), count: view.getUint16(end + 10, true) };
}

async function content(view, at, most) {
  const method = view.getUint16(at + 10, true);
  const local = view.getUint32(at + 42, true);
  const start = local + 30 + view.getUint16(local + 26, true) + view.getUint16(local + 28, true);
  const bytes = new Uint8Array(view.buffer, start, view.getUint32(at + 20, true));
  if (view.getUint32(at + 24, true) > most || (method === STORED && bytes.length > most)) throw new Error("too long");
  if (method !== STORED && method !== DEFLATED) throw new Error("unknown method");
  const found = method === DEFLATED ? await inflated(bytes, most) : bytes.slice();
  if (crc32(found) !== view.getUint32(at + 16, true)) throw new Error("damaged");
  return found;
}

/**
 * The files of an archive, folders left out of their names: of each its name and its bytes, null for what is longer than
 * `most(name)` or cannot be read. Nothing is inflated any further than that; undefined for a name is none at all, and null.
 * Throws for what is no archive.
 */
export async function unpack(buffer, most) {
  const view = new DataView(buffer);
  const files = [];
  let { at, count } = directoryOf(view);
  for (; count > 0; --count) {
    if (view.getUint32(at, true) !== CENTRAL) throw new Error("no archive");
    const [nameLength, extra, comment] = [28, 30, 32].map((offset) => view.getUint16(at + offset, true));
    const name = new TextDecoder().decode(new Uint8Array(buffer, at + 46, nameLength)).split(/[\\/]/).pop();
    const limit = most(name);
    if (name !== "") files.push([name, limit === undefined ? null : await content(view, at, limit).catch(() => null)]);
    at += 46 + nameLength + extra + comment;
  }
  return files;
}
