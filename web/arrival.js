// The files that the game cannot start without, on their way: how far they are, and why one does not come.

import { make } from "./dom.js";

const SLOW = 10000; // milliseconds without anything having arrived

/** Why the game cannot start; the message is for the player. */
export class NotArrived extends Error {}

export class Arrival {
  #folder;
  #sizes = new Map();
  #arrived = new Map();
  #patience;
  #isLate = true; // what index.html has said of the main script holds no more

  /** `folder` is the address that the files have in common. */
  constructor(folder) {
    this.#folder = folder;
    this.#wait();
  }

  /** The program, as it comes. Its type is told here, for some servers do not know it. `files` has its file and size, packed or not. */
  async compiled({ packed, plain }) {
    const isPacked = typeof DecompressionStream === "function";
    const { file, size } = isPacked ? packed : plain;
    this.#sizes.set(file, size);
    const body = await this.#bring(file);
    const bytes = isPacked ? body.pipeThrough(new DecompressionStream("gzip")) : body;
    const program = new Response(bytes, { headers: { "content-type": "application/wasm" } });
    try {
      return await WebAssembly.compileStreaming(program);
    } catch (error) {
      if (this.#arrived.get(file) === size) throw error;
      throw new NotArrived(`El archivo «${file}» ha llegado incompleto.`);
    }
  }

  /** Gives the page its style. */
  styled({ file, integrity }) {
    const href = new URL(file, this.#folder).href;
    const link = make("link", null, { rel: "stylesheet", crossOrigin: "anonymous", integrity, href });
    return new Promise((resolve, reject) => {
      link.onload = resolve;
      link.onerror = () => reject(new NotArrived(`No ha llegado entero el archivo «${file}».`));
      document.head.append(link);
    });
  }

  /** What is awaited has come, or will not: nothing more is told. */
  end() {
    clearTimeout(this.#patience);
  }

  async #bring(file) {
    const response = await fetch(new URL(file, this.#folder)).catch(() => {
      throw new NotArrived(`No ha llegado el archivo «${file}»: no hay conexión con el servidor.`);
    });
    if (!response.ok) throw new NotArrived(`El servidor no tiene el archivo «${file}» (${response.status}).`);
    const count = new TransformStream({
      transform: (chunk, controller) => {
        this.#count(file, chunk.length);
        controller.enqueue(chunk);
      },
    });
    return response.body.pipeThrough(count);
  }

  #count(file, bytes) {
    this.#arrived.set(file, (this.#arrived.get(file) ?? 0) + bytes);
    const sum = (numbers) => [...numbers.values()].reduce((all, one) => all + one, 0);
    const progress = document.getElementById("progress");
    if (progress) progress.value = sum(this.#arrived) / sum(this.#sizes);
    this.#wait();
  }

  /** Says after a while that nothing comes. What comes later is taken all the same. */
  #wait() {
    clearTimeout(this.#patience);
    if (this.#isLate) showState("El juego de Zarpi…", false);
    this.#isLate = false;
    this.#patience = setTimeout(() => {
      this.#isLate = true;
      showState("El servidor tarda en dar el juego. Se sigue esperando…", true);
    }, SLOW);
  }
}

/** Says how the start stands; what has failed can be tried again. */
export function showState(text, failed) {
  const state = document.getElementById("state");
  if (state !== null) state.textContent = text;
  document.documentElement.classList.toggle("failed", failed);
}
