// The player's files in the help: to take along, and to bring back.

import { pack, unpack } from "./archive.js";
import { ask } from "./dialogs.js";
import { make } from "./dom.js";

const RECORDS = /^[A-Za-z]{3,8}\.(dat|rnd)$/;

function download(storage) {
  const records = new Map([...storage.files].filter(([name]) => RECORDS.test(name)));
  const link = make("a", null, { href: URL.createObjectURL(pack(records)), download: "zarpi-partidas.zip" });
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 10000);
}

async function readRecords(chosen) {
  const files = new Map();
  for (const file of chosen) {
    const buffer = await file.arrayBuffer();
    const found = file.name.endsWith(".zip") ? await unpack(buffer) : new Map([[file.name, new Uint8Array(buffer)]]);
    for (const [name, bytes] of found) if (RECORDS.test(name)) files.set(name, bytes);
  }
  return files;
}

async function bringBack(chosen, storage) {
  const files = await readRecords(chosen).catch(() => new Map());
  if (files.size === 0) return ask("Tus archivos", "Ahí no hay partidas del juego de Zarpi.", ["Aceptar"]);
  const sure = await ask(
    "Tus archivos",
    "Las partidas y los cuadros de honor que traes ocuparán el lugar de los que hay aquí, y el juego empezará de nuevo.",
    ["Traer", "Cancelar"],
  );
  if (sure !== 0) return;
  storage.replaceAll(files);
  if (await storage.commit()) location.reload();
  else await ask("Tus archivos", "No se han podido guardar.", ["Aceptar"]);
}

function fileButtons(storage) {
  const row = make("div", null, { className: "files" });
  const take = make("button", row, { type: "button", textContent: "Descargar tus archivos" });
  take.addEventListener("click", () => download(storage));
  const label = make("label", row, { textContent: "Traer archivos…" });
  const input = make("input", label, { type: "file", multiple: true, accept: ".zip,.dat,.rnd" });
  input.addEventListener("change", () => bringBack(input.files, storage));
  return row;
}

/** What the help says of the player's files, with the buttons for them, as one node. */
export function filesPart(storage) {
  const part = make("section");
  make("h2", part, { textContent: "Tus archivos" });
  const where = storage.keeps
    ? "Las partidas guardadas y los cuadros de honor están en este navegador. Descárgalos para llevarlos a otro, o al juego de escritorio: son los mismos archivos."
    : "Este navegador no deja guardar nada: lo que guardes se perderá al cerrar la página.";
  make("p", part, { textContent: where });
  part.append(fileButtons(storage));
  return part;
}
