// What the page has to wait for, under way before all else.

import { style, program, pictures, sounds } from "./assets.json";
import { Arrival, showState } from "./arrival.js";
import { openStorage } from "./storage.js";

/** Where all files of this version lie. */
const FOLDER = new URL("./", import.meta.url);
/** The name of the folder, which is that of the version. */
export const VERSION = FOLDER.pathname.split("/").at(-2);

function located(files) {
  return Object.fromEntries(Object.entries(files).map(([name, file]) => [name, new URL(file, FOLDER).href]));
}

/** What pictures and sounds there are, with their addresses. */
export const assets = {
  pictures: Object.fromEntries(Object.entries(pictures).map(([name, picture]) => [name, { ...picture, files: located(picture.files) }])),
  sounds: located(sounds),
};

/** The program and the style of the page, and how far they are. */
export const arrival = new Arrival(FOLDER);
export const compiled = arrival.compiled(program);
export const styled = arrival.styled(style);

/** The storage; null if another page has it. */
export const opened = openStorage(() => showState("Se mira si el juego está abierto en otra pestaña…", false));

// Who waits for them tells what has failed.
for (const promise of [compiled, styled, opened]) promise.catch(() => {});
