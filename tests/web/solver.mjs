// Guesses words as a good player does: of the words that go with what is seen, the letter that most of them have.

import { readFileSync } from "node:fs";

function words(file) {
  const lines = readFileSync(new URL(`../../src/words/data/${file}.txt`, import.meta.url), "utf8").trim().split("\n");
  const plain = (word) => word.replace(/[ÁÉÍÓÚ]/g, (letter) => "AEIOU"["ÁÉÍÓÚ".indexOf(letter)]);
  return lines.map((line) => plain(line.split("\t")[1] ?? ""));
}

const LISTS = { castellano: words("castellano"), inglés: words("ingles") };

/** What the window shows of the word: its language, its letters with "_" for those to be found, the letters tried. */
export function look(page) {
  return page.evaluate(() => {
    const seen = (id) => { const node = document.getElementById(id); return node && !node.hidden ? node : null; };
    const framed = Array.from({ length: 10 }, (_, i) => i + 1).filter((i) => seen(`Zarpi.shpRecuadro(${i})`));
    const boxes = framed.map((i) => seen(`Zarpi.lblLetra(${i})`));
    const missed = Array.from({ length: 7 }, (_, i) => seen(`Zarpi.lblError(${i + 1})`)?.innerText.trim() ?? "");
    return {
      front: [...document.querySelectorAll(".window")].at(-1)?.id,
      language: seen("Zarpi.lblTapa1") ? "castellano" : "inglés",
      letters: boxes.map((box) => box.innerText.trim() || "_").join(""),
      missed: missed.join(""),
      number: document.getElementById("Zarpi.lblPalabra").innerText.trim(),
      message: document.getElementById("Zarpi.Label5").innerText.replaceAll("\n", " "),
    };
  });
}

/** The next letter to try, given those tried before in this word. */
export function guess({ language, letters }, tried) {
  const hidden = `[^${[...tried].join("") || "-"}]`;
  const pattern = new RegExp(`^${letters.replaceAll("_", hidden)}$`);
  const count = {};
  for (const word of LISTS[language].filter((one) => pattern.test(one))) {
    for (const letter of new Set(word)) if (!tried.has(letter)) count[letter] = (count[letter] ?? 0) + 1;
  }
  return Object.entries(count).sort((a, b) => b[1] - a[1])[0]?.[0];
}

/** Plays from the first word to the end of the game by a hand of the player's. Whether the game was won. */
export async function playToTheEnd({ page }, hand, onWord = async () => {}) {
  let tried = new Set();
  let number = "";
  for (;;) {
    const seen = await look(page);
    if (seen.front === "frmFecha") return true;
    if (/Fin de juego/.test(seen.message)) return false;
    if (seen.front !== "Zarpi") {
      await hand.accept(seen.front);
      continue;
    }
    if (seen.number !== number) {
      tried = new Set();
      number = seen.number;
      await onWord(number);
    }
    const letter = guess(seen, tried);
    if (letter === undefined) throw new Error(`no word goes with ${JSON.stringify(seen)} ${[...tried]}`);
    await hand.enter(letter);
    const after = await look(page);
    const isTaken = after.letters !== seen.letters || after.missed !== seen.missed || after.number !== number;
    if (isTaken || /Repetida/.test(after.message)) tried.add(letter);
    else await new Promise((done) => setTimeout(done, 100)); // an animation locks the keys
  }
}

/** Enters letters that few words have, until the game is lost. */
export async function playToTheFall({ page }, hand) {
  for (const letter of "WKXJZÑQYVHFGBPCDLMNST") {
    let before;
    do {
      before = await look(page);
      if (/Fin de juego/.test(before.message)) return;
      await hand.enter(letter);
      await new Promise((done) => setTimeout(done, 100)); // an animation locks the keys
    } while (before.missed === (await look(page)).missed && !before.missed.includes(letter) && !before.letters.includes(letter));
  }
}
