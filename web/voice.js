// Sentences for players who listen. One region stands from the start; a screen reader reads what comes into a region that
// it knows, so the region is in the window in front for a while before a sentence comes into it.

import { make } from "./dom.js";

const KNOWN_AFTER = 200; // milliseconds until a reader knows a region in its new place
const LINES = 12;

export class Voice {
  #region = document.getElementById("spoken");
  #waiting = [];
  #timer = 0;

  /** A dialog in front keeps readers away from all else, so the region goes into it. */
  moveTo(node) {
    if (this.#region.parentNode === node) return;
    this.#region.replaceChildren();
    node.append(this.#region);
    clearTimeout(this.#timer);
    this.#timer = setTimeout(() => this.#tell(), KNOWN_AFTER);
  }

  /** Phrases of words and their language. Each text is a line of its own, so that the same one is heard again. */
  say(runs) {
    this.#waiting.push(runs);
    if (this.#timer === 0) this.#tell();
  }

  #tell() {
    this.#timer = 0;
    for (const runs of this.#waiting.splice(0)) {
      const line = make("p", this.#region);
      for (const [words, lang] of runs) make("span", line, { textContent: `${words} `, lang });
    }
    while (this.#region.children.length > LINES) this.#region.firstChild.remove();
  }
}
