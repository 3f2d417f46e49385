// The page's help: how to play, the keys where there is a keyboard, and the player's files.

import { ask } from "./dialogs.js";
import { make } from "./dom.js";
import { filesPart } from "./files.js";
import { fileOf, pictureInFile, pictureNamed } from "./pictures.js";

/** A picture and what it shows; how a letter is entered depends on what there is to enter it with. */
const LINES = [
  [() => pictureInFile("Zarpi1.bmp"), (byFingers) => `Adivina la palabra letra a letra: ${byFingers ? "toca" : "escribe o pulsa"} las que creas que tiene.`],
  [() => pictureInFile("Zarpi5.bmp"), () => "Con cada fallo, Zarpi da un paso hacia el precipicio. Con el séptimo se cae y acaba la partida."],
  [null, (byFingers) => `¿No la sabes? ${byFingers ? "Toca" : "Pulsa"} el comodín y después una casilla vacía: descubre su letra.`],
  [() => pictureInFile("Zarpi9.bmp"), () => "Una palabra sin fallos es un pleno: da más zarpis, y cada tres plenos, otro comodín."],
  [() => pictureNamed("diploma1"), () => "Acierta las 30 palabras y tendrás tu diploma y un sitio en el cuadro de honor."],
];

const KEYS = [
  ["F7", "prepara un comodín, o lo guarda"],
  ["F8", "dice cómo va la palabra"],
  ["F1 a F5", "el tiempo por palabra"],
  ["Tab y las flechas", "van por las casillas, los comodines y los botones; la barra espaciadora pulsa"],
  ["F10, o Alt y la letra subrayada", "abre los menús; dentro, flechas, Intro y Esc; Tab lleva a esta ayuda"],
  ["Mayús+Alt y la letra", "hace lo mismo que Ctrl y la letra; en vez de Ctrl+N, que es del navegador, Mayús+Alt+N"],
  ["Ctrl+P", "imprime la ventana que está delante"],
];

/** Says that there is another version, as soon as that is known. */
async function versionPart(other) {
  const part = make("section");
  if (!(await other)) return part;
  make("h2", part, { textContent: "Hay una versión nueva" });
  make("p", part, { textContent: "Estará aquí la próxima vez que empieces. Si empiezas ahora con ella, se pierde la partida que no esté guardada." });
  const row = make("div", part, { className: "files" });
  make("button", row, { type: "button", textContent: "Empezar con ella" }).addEventListener("click", () => location.reload());
  return part;
}

function linesPart(byFingers) {
  const list = make("ol", null, { className: "lines" });
  for (const [picture, text] of LINES) {
    const line = make("li", list);
    const file = picture && fileOf(picture(), 1 / 30);
    if (file) make("img", line, { src: file, alt: "" });
    else make("span", line, { className: "joker", textContent: "?" }).setAttribute("aria-hidden", "true");
    make("span", line, { textContent: text(byFingers) });
  }
  return list;
}

function keysPart() {
  const part = make("section");
  make("h2", part, { textContent: "Teclas" });
  const list = make("dl", part);
  for (const [keys, what] of KEYS) {
    make("dt", list, { textContent: keys });
    make("dd", list, { textContent: what });
  }
  return part;
}

/**
 * Shows the help until the player closes it. `other` comes to be whether there is another version of the page; `byFingers`: where
 * there is no keyboard.
 */
export async function showHelp({ storage, program, other, byFingers }) {
  const content = make("div");
  versionPart(other).then((part) => content.prepend(part));
  content.append(linesPart(byFingers));
  if (!byFingers) content.append(keysPart());
  content.append(filesPart(storage, program));
  await ask("Ayuda", content, ["Cerrar"]);
}
