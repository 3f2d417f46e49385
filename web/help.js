// The page's help: the keys that a browser needs, and the player's files.

import { ask } from "./dialogs.js";
import { make } from "./dom.js";
import { filesPart } from "./files.js";

const KEYS = [
  ["Mayús+Alt y la letra", "hace lo mismo que Ctrl y la letra. El navegador se guarda Ctrl+N para sí: usa Mayús+Alt+N"],
  ["F10, o Alt y la letra subrayada", "abre los menús; dentro, flechas, Intro y Esc"],
  ["F1 a F5", "el tiempo por palabra"],
  ["Tab", "va por los botones y los menús"],
  ["Las flechas en una pantalla táctil", "arrastra el dedo hacia un lado"],
];

/** Shows the help until the player closes it. */
export async function showHelp(storage) {
  const content = make("div");
  make("h2", content, { textContent: "Teclas en el navegador" });
  const list = make("dl", content);
  for (const [keys, what] of KEYS) {
    make("dt", list, { textContent: keys });
    make("dd", list, { textContent: what });
  }
  content.append(filesPart(storage));
  await ask("El juego de Zarpi en el navegador", content, ["Cerrar"]);
}
