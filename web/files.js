// The player's files in the help: to take along, and to bring back.

import { pack, unpack } from "./archive.js";
import { ask } from "./dialogs.js";
import { make } from "./dom.js";

const TITLE = "Tus archivos";
const LARGEST = 2 ** 25; // bytes of a chosen file
const TOLD = 8; // names at most
const DOWNLOADED = "downloaded"; // the note of when that was

function download(storage, program) {
  const names = program.pairs.flatMap(({ counter, records }) => [counter, records]);
  const stored = new Map(names.filter((name) => storage.files.has(name)).map((name) => [name, storage.files.get(name)]));
  const link = make("a", null, { href: URL.createObjectURL(pack(stored)), download: "zarpi-partidas.zip" });
  link.click();
  setTimeout(() => URL.revokeObjectURL(link.href), 10000);
  storage.setNote(DOWNLOADED, new Date().toLocaleDateString("es-ES"));
}

/** The content of a chosen file, as a list of names and bytes, null for what is not to be had. */
async function unpacked(file, most) {
  if (file.size > LARGEST) return [[file.name, null]];
  const buffer = await file.arrayBuffer();
  if (!/\.zip$/i.test(file.name)) {
    const isFit = buffer.byteLength <= (most(file.name) ?? -1);
    return [[file.name, isFit ? new Uint8Array(buffer) : null]];
  }
  return unpack(buffer, most).catch(() => [[file.name, null]]);
}

/**
 * What is to be stored of the chosen files, by their names, and the names of the others. A pair of files comes as a whole, and
 * only if the two fit each other.
 */
export async function sorted(chosen, program) {
  const { pairs } = program;
  const sizes = Object.assign({}, ...pairs.map((pair) => pair.sizes));
  const most = (name) => (Object.hasOwn(sizes, name) ? sizes[name] : undefined);
  const found = (await Promise.all([...chosen].map((file) => unpacked(file, most)))).flat();
  const files = new Map(found.filter(([, bytes]) => bytes !== null));
  const taken = pairs.filter(({ counter, records }, i) => {
    const both = [files.get(counter), files.get(records)];
    return !both.includes(undefined) && program.fit(i, ...both);
  });
  const names = taken.flatMap(({ counter, records }) => [counter, records]);
  const left = [...new Set(found.map(([name]) => name))].filter((name) => !names.includes(name));
  return { files: new Map(names.map((name) => [name, files.get(name)])), left };
}

function listed(names) {
  const rest = names.length - TOLD;
  return names.slice(0, TOLD).join(", ") + (rest > 0 ? ` y ${rest} más` : "");
}

async function bringBack(chosen, storage, program) {
  const { files, left } = await sorted(chosen, program);
  const leftOut = left.length === 0 ? "" : `\n\nSe quedan fuera, porque no son del juego, están dañados o no llegan con su pareja: ${listed(left)}.`;
  if (files.size === 0) return ask(TITLE, `Ahí no hay partidas del juego de Zarpi que se puedan traer.${leftOut}`, ["Aceptar"]);
  const sure = await ask(
    TITLE,
    `Estos archivos ocuparán el lugar de los que hay aquí, y el juego empezará de nuevo: ${[...files.keys()].join(", ")}. Los demás se quedan como están.${leftOut}`,
    ["Traer", "Cancelar"],
  );
  if (sure !== 0) return;
  if (await storage.replace(files)) location.reload();
  else await ask(TITLE, "No se han podido guardar. Todo queda como estaba.", ["Aceptar"]);
}

function fileButtons(storage, program) {
  const row = make("div", null, { className: "files" });
  const take = make("button", row, { type: "button", textContent: "Descargar tus archivos" });
  take.addEventListener("click", () => download(storage, program));
  const label = make("label", row, { textContent: "Traer archivos…" });
  const input = make("input", label, { type: "file", multiple: true, accept: ".zip,.dat,.rnd" });
  input.addEventListener("change", async () => {
    await bringBack(input.files, storage, program);
    input.value = ""; // the same file can be chosen once more
  });
  return row;
}

/** What the player can count on. */
async function prospects(storage) {
  if (!storage.keeps) return "Este navegador no deja guardar nada: lo que guardes se perderá al cerrar la página.";
  const isForGood = (await navigator.storage?.persisted?.().catch(() => false)) ?? false;
  const date = storage.noted(DOWNLOADED);
  return [
    "Las partidas guardadas y los cuadros de honor están en este navegador. Descárgalos para llevarlos a otro, o al juego de escritorio: son los mismos archivos.",
    isForGood ? "El navegador no los borrará por su cuenta." : "El navegador no promete guardarlos siempre: descárgalos de vez en cuando.",
    date === undefined ? "Todavía no se han descargado." : `Se descargaron por última vez el ${date}.`,
  ].join(" ");
}

/** What the help says of the player's files, with the buttons for them, as one node. `program` knows which files there are. */
export function filesPart(storage, program) {
  const part = make("section");
  make("h2", part, { textContent: TITLE });
  const text = make("p", part);
  prospects(storage).then((told) => (text.textContent = told));
  part.append(fileButtons(storage, program));
  return part;
}
