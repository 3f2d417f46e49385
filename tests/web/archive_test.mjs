// What is brought to the page: archives of every kind, and which of their files are taken.

import assert from "node:assert/strict";
import { readFile } from "node:fs/promises";
import { test } from "node:test";
import { deflateRawSync } from "node:zlib";
import { pack, unpack } from "../../web/archive.js";
import { sorted } from "../../web/files.js";
import { Program } from "../../web/program.js";

const page = { tell() {}, store() {}, remove() {}, storedFiles: () => new Map(), pictureSize: () => undefined };
const wasm = await readFile(new URL(process.env.ZARPI_WASM ?? "../../build/web/web/zarpi.wasm", import.meta.url));
const program = await Program.load(WebAssembly.compile(wasm), page);

const bytes = (text) => new TextEncoder().encode(text);
const blanks = (length) => bytes(" ".repeat(length));
const chosen = (name, content) => new File([content], name);
const archive = async (name, files) => chosen(name, await pack(new Map(Object.entries(files))));

/** An archive of one file that says of itself what it likes. */
function forged(name, packed, said) {
  const [head, entry, end] = [Buffer.alloc(30), Buffer.alloc(46), Buffer.alloc(22)];
  head.writeUInt32LE(0x04034b50);
  head.writeUInt16LE(name.length, 26);
  entry.writeUInt32LE(0x02014b50);
  entry.writeUInt16LE(8, 10);
  entry.writeUInt32LE(packed.length, 20);
  entry.writeUInt32LE(said, 24);
  entry.writeUInt16LE(name.length, 28);
  end.writeUInt32LE(0x06054b50);
  end.writeUInt16LE(1, 10);
  end.writeUInt32LE(head.length + name.length + packed.length, 16);
  return Buffer.concat([head, Buffer.from(name), packed, entry, Buffer.from(name), end]);
}

const PAIR = { "UltCeI.dat": bytes(" 1 \r\n"), "CeI.rnd": blanks(42) };

test("a pair of files is taken as a whole or not at all, and nothing but the game's", async () => {
  const cases = [
    // what is brought, the names that are taken, the names that are told to be left
    [[await archive("a.ZIP", PAIR)], ["UltCeI.dat", "CeI.rnd"], []],
    [[await archive("a.zip", { "zarpi/UltCeI.dat": PAIR["UltCeI.dat"], "zarpi\\CeI.rnd": PAIR["CeI.rnd"] })], ["UltCeI.dat", "CeI.rnd"], []],
    [Object.entries(PAIR).map(([name, content]) => chosen(name, content)), ["UltCeI.dat", "CeI.rnd"], []],
    [[chosen("CeI.rnd", blanks(42))], [], ["CeI.rnd"]],
    [[chosen("UltCeI.dat", bytes(" 0 \r\n"))], [], ["UltCeI.dat"]],
    [[await archive("a.zip", { ...PAIR, "ntuser.dat": blanks(9), "Diario.tmp": blanks(9), "toString": blanks(1) })],
      ["UltCeI.dat", "CeI.rnd"], ["ntuser.dat", "Diario.tmp", "toString"]],
    [[await archive("a.zip", { ...PAIR, "UltCeI.dat": bytes(" 2 \r\n") })], [], ["UltCeI.dat", "CeI.rnd"]], // more than there are
    [[await archive("a.zip", { ...PAIR, "CeI.rnd": blanks(43) })], [], ["UltCeI.dat", "CeI.rnd"]], // not whole records
    [[await archive("a.zip", { ...PAIR, "UltCeI.dat": bytes("") })], [], ["UltCeI.dat", "CeI.rnd"]],
    [[await archive("a.zip", { ...PAIR, "CeI.rnd": blanks(42 * 1000) })], [], ["UltCeI.dat", "CeI.rnd"]], // longer than a board can be
    [[await archive("a.zip", { ...PAIR, "Guardar.rnd": blanks(65) })], ["UltCeI.dat", "CeI.rnd"], ["Guardar.rnd"]],
    [[chosen("a.zip", bytes("PK nothing of the kind"))], [], ["a.zip"]],
    [[chosen("a.zip", bytes(""))], [], ["a.zip"]],
  ];
  for (const [files, taken, left] of cases) {
    const found = await sorted(files, program);
    assert.deepEqual([[...found.files.keys()], found.left], [taken, left]);
  }
});

test("an archive that lies about itself holds nobody up", async () => {
  const length = 2 ** 30;
  const packed = deflateRawSync(Buffer.alloc(2 ** 26)); // 64 MB of nothing
  for (const [name, said] of [["Guardar.rnd", length], ["Guardar.rnd", 100], ["otro.bin", length]]) {
    const before = process.cpuUsage();
    const found = await sorted([chosen("a.zip", forged(name, packed, said))], program);
    assert.deepEqual([found.files.size, found.left], [0, [name]]);
    assert.ok(process.cpuUsage(before).user < 300000, `${name}: ${process.cpuUsage(before).user} µs`); // 64 MB take longer to inflate
  }
});

test("an archive cut or changed at any place is read or refused, never taken for another", async () => {
  const whole = new Uint8Array(await (await pack(new Map(Object.entries(PAIR)))).arrayBuffer());
  const most = () => 1000;
  for (let i = 0; i < whole.length; ++i) {
    const changed = whole.slice();
    changed[i] ^= 0x41;
    for (const spoilt of [changed, whole.slice(0, i)]) {
      const found = await unpack(spoilt.buffer, most).catch(() => []);
      for (const [name, content] of found) {
        if (content && name in PAIR) assert.deepEqual(Buffer.from(content), Buffer.from(PAIR[name]), `${name} ${i}`);
      }
    }
  }
});
