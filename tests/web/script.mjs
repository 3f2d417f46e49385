// zarpi-script-web: plays the game from a text, on the platform of the page as WebAssembly.
//
//     zarpi-script-web [--folder DIR | --new-folder DIR] [FILE]
//
// Options, answers and exit status are those of zarpi-script.

import { existsSync, mkdirSync, readdirSync, readFileSync, rmSync, statSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { Program } from "../../web/program.js";

const UNREADABLE = 2;
const PROGRAM = new URL(process.env.ZARPI_SCRIPT ?? "../../build/web/src/zarpi-script-web", import.meta.url);

function tellFault(why) {
  console.error(`zarpi-script-web: ${why}\nusage: zarpi-script-web [--folder DIR | --new-folder DIR] [FILE]`);
}

function fail(why) {
  tellFault(why);
  process.exit(UNREADABLE);
}

function readArguments(words) {
  const found = { folder: ".", isNew: false, script: null };
  while (words.length > 0) {
    const word = words.shift();
    if (word === "--folder" || word === "--new-folder") {
      if (words.length === 0) fail(`${word} needs a folder`);
      found.folder = words.shift();
      found.isNew = word === "--new-folder";
    } else if (found.script === null && !word.startsWith("-")) {
      found.script = word;
    } else {
      fail(`not understood: ${word}`);
    }
  }
  return found;
}

function readScript(script) {
  try {
    return readFileSync(script ?? 0);
  } catch {
    return fail("the script cannot be read");
  }
}

const { folder, isNew, script } = readArguments(process.argv.slice(2));
const text = readScript(script);
if (isNew) mkdirSync(folder, { recursive: true });
if (!existsSync(folder)) fail(`no such folder: ${folder}`);
const isFile = (name) => statSync(join(folder, name)).isFile();
const files = new Map(readdirSync(folder).filter(isFile).map((name) => [name, readFileSync(join(folder, name))]));

const program = new Program({
  tell: () => {},
  storedFiles: () => files,
  store: (name, bytes) => writeFileSync(join(folder, name), bytes),
  remove: (name) => rmSync(join(folder, name), { force: true }),
  pictureSize: () => undefined,
});

const own = {
  is_new: () => isNew,
  script: (buffer, capacity) => {
    program.bytes(buffer, capacity).set(text.subarray(0, capacity));
    return text.length;
  },
  // The process ends by itself when all that was written has been taken: process.exit cuts what a pipe has not taken yet.
  finish: (answers, length, error, errorLength, status) => {
    process.stdout.write(program.text(answers, length));
    if (errorLength > 0) tellFault(program.text(error, errorLength));
    process.exitCode = errorLength > 0 ? UNREADABLE : status;
    program.imports.page.end();
  },
};
// The library asks the system for streams that nothing is written to.
const system = new Proxy({}, { get: () => () => 0 });
const imports = { page: { ...program.imports.page, ...own }, wasi_snapshot_preview1: system };
const { instance } = await WebAssembly.instantiate(readFileSync(PROGRAM), imports);
program.begin(instance);
program.start();
