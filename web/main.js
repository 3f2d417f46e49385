// Puts the page together: storage, program, windows, keys, sound.

import { NotArrived, showState } from "./arrival.js";
import { ask, showEnd } from "./dialogs.js";
import { make } from "./dom.js";
import { keyOfCharacter, keyOfPress, shortcutLetter } from "./keys.js";
import { Loop } from "./loop.js";
import { arrival, assets, compiled, opened, styled } from "./opening.js";
import { keepAll, loadAll, setPictures } from "./pictures.js";
import { placeForPrinter } from "./printing.js";
import { Program } from "./program.js";
import { Sound } from "./sound.js";
import { loadFonts } from "./text.js";
import { forgetOthers, hasOther, keepVersion } from "./version.js";
import { Voice } from "./voice.js";
import { barHeight, Window } from "./window.js";

/** Milliseconds that the first window has the network and the processor for itself. */
const HEAD_START = 500;

/** A device that is played with fingers alone. */
const FINGERS = matchMedia("(hover: none) and (pointer: coarse)");

/** What a player has asked of the system for all programs: letters that stand out, nothing that blinks. */
const WISHES = [
  matchMedia("(prefers-contrast: more), (forced-colors: active)"),
  matchMedia("(prefers-reduced-motion: reduce)"),
];

/** Whether the focus of the page is nowhere, so that the window in front may have it. */
function isNobody(active) {
  return !active || active === document.body || active.matches("dialog, :disabled") || active.closest("[hidden], [inert]") !== null;
}

const ELSEWHERE = ["El juego ya está abierto en otra pestaña", "Ciérrala, o juega en ella."];

class Page {
  #windows = new Map();
  #keyboard = false; // to be opened when the main window is in front
  #voice = new Voice();
  #isPrinting = false; // the browser prints by itself
  #newer = null; // of another version, while the first window is in front

  /** The program, as soon as it is there. */
  program = null;

  constructor(storage, sounds) {
    this.sound = new Sound(sounds);
    this.storage = storage;
    this.loop = new Loop(storage, {
      show: (message) => this.#show(message),
      end: () => this.#end("Fin", "Gracias por jugar."),
      fail: () => this.#end("El juego se ha parado", "Ha fallado por dentro. Lo que estaba guardado sigue guardado."),
    });
    storage.onLost = () => this.loop.stop(() => this.#end(...ELSEWHERE));
  }

  get front() {
    return [...this.#windows.values()].at(-1);
  }

  listen() {
    addEventListener("keydown", (event) => this.#key(event));
    addEventListener("resize", () => this.resize());
    addEventListener("beforeprint", () => this.#printFront());
    for (const deed of ["pointerup", "keydown"]) addEventListener(deed, () => this.sound.wake(), { capture: true });
    document.addEventListener("visibilitychange", () => this.sound.setHidden(document.hidden));
    const help = document.getElementById("help");
    help.addEventListener("click", async () => {
      const { showHelp } = await import("./help.js");
      await showHelp({ storage: this.storage, program: this.program, other: hasOther().catch(() => false), byFingers: FINGERS.matches });
      this.front?.takeFocus();
    });
  }

  /** Offers another version, as long as no game can have begun. */
  offerOther() {
    if (this.#windows.size !== 1 || this.front.menus) return;
    this.#newer = make("button", document.body, { id: "newer", type: "button", textContent: "Hay una versión nueva: empezar con ella" });
    this.#newer.addEventListener("click", () => location.reload());
  }

  #end(title, text) {
    this.#newer?.remove();
    this.#windows.clear();
    this.sound.close();
    showEnd(title, text);
  }

  /** Tells the program the wishes, and each change of them. */
  heedWishes() {
    const tell = () => this.loop.send("wishes", ...WISHES.map(({ matches }) => (matches ? "1" : "0")));
    for (const wish of WISHES) wish.addEventListener("change", tell);
    if (WISHES.some(({ matches }) => matches)) tell();
  }

  /** Tells the program how much room a window has. */
  tellRoom() {
    const height = Math.max(1, Math.round(innerHeight - barHeight()));
    this.loop.send("room", String(innerWidth), String(height), FINGERS.matches ? "1" : "0");
  }

  #show(message) {
    if (message.every((object) => object.do === "wake")) return;
    for (const element of document.querySelectorAll(".gliding")) element.classList.remove("gliding");
    for (const object of message) this.#deeds[object.do]?.(object);
    for (const window of this.#windows.values()) window.levelTexts();
    if (isNobody(document.activeElement) && !document.querySelector("dialog.message")) this.front?.takeFocus();
    this.#openKeyboard();
  }

  #deeds = {
    open: ({ form, modal }) => this.#open(form, modal),
    close: ({ form }) => this.#close(form),
    form: (state) => {
      this.#windows.get(state.form).showForm(state);
      document.title = state.caption;
    },
    menu: (state) => this.#windows.get(state.form).showMenu(state),
    element: (state) => {
      const window = this.#windows.get(state.form);
      const before = window.stateOf(state.name);
      window.showElement(state);
      this.#noteKeyboard(window, state, before);
    },
    layers: ({ form, names }) => this.#windows.get(form).showLayers(names),
    focus: ({ form, name }) => this.#windows.get(form).showFocus(name),
    ring: ({ form, name }) => {
      for (const window of this.#windows.values()) window.showRing(window.name === form ? name : null);
    },
    say: ({ runs }) => this.#voice.say(runs),
    beep: () => this.sound.beep(),
    mix: (table) => this.sound.mix(table),
    play: ({ channel, file, overMusic }) => this.sound.play(channel, file, overMusic),
    stop: ({ channel }) => this.sound.stop(channel),
    message: ({ text, title }) => this.#answer(ask(title, text, ["Aceptar"])),
    askPrinter: () => this.#answer(ask("Imprimir", "Se imprimirá esta ventana, en una página apaisada.", ["Imprimir", "Cancelar"])),
    print: ({ form }) => this.#print(this.#windows.get(form)),
    navigate: ({ address }) => open(/^https?:/.test(address) ? address : `https://${address}`, "_blank", "noopener"),
  };

  #open(form, modal) {
    this.#newer?.remove();
    const window = new Window(form, modal, (...event) => this.loop.send(...event));
    window.onCharacter = (character) => this.loop.send("key", ...keyOfCharacter(character));
    this.#windows.set(form, window);
    // The window comes up when all of it has been told.
    queueMicrotask(() => this.#windows.get(form) === window && window.open());
    this.#moveVoice();
  }

  #close(form) {
    const window = this.#windows.get(form);
    this.#windows.delete(form);
    this.#moveVoice();
    window?.close();
    if (this.front) {
      document.title = this.front.caption;
      this.front.takeFocus();
    }
  }

  #moveVoice() {
    this.#voice.moveTo(this.front?.modal ? this.front.node : document.body);
  }

  async #print(window) {
    const pictures = placeForPrinter(window);
    if (this.#isPrinting) return;
    await pictures;
    print();
  }

  /** The browser prints what the window in front would. */
  #printFront() {
    if (document.getElementById("print").hasChildNodes()) return;
    this.#isPrinting = true;
    this.loop.send("print");
    this.#isPrinting = false;
  }

  async #answer(asked) {
    const number = await asked;
    this.front?.takeFocus();
    this.loop.send("answer", number === 0 ? "1" : "0");
  }

  /** Where there is no keyboard, the one on the screen opens by itself as soon as the program offers it. */
  #noteKeyboard(window, state, before) {
    if (state.name !== "cmdMostrar" || !FINGERS.matches) return;
    const offered = (told) => told !== undefined && told.visible && told.enabled;
    this.#keyboard = offered(state) && (this.#keyboard || (!offered(before) && !window.stateOf("cmdOcultar")?.visible));
  }

  #openKeyboard() {
    if (!this.#keyboard || this.front?.stateOf("cmdMostrar") === undefined) return;
    this.#keyboard = false;
    const { name } = this.front;
    setTimeout(() => this.loop.send("click", name, "cmdMostrar"));
  }

  /** Places all that is shown anew, after the page or the letters have changed. */
  resize() {
    this.tellRoom();
    for (const window of this.#windows.values()) window.resize();
  }

  #key(event) {
    const { front } = this;
    if (!front || document.querySelector("dialog.message") || event.isComposing) return;
    if (this.#openMenus(event) || this.#leaveHelp(event)) return event.preventDefault();
    const isOfPage = event.target.matches("#help, #newer, .offer, .foot button");
    if (isOfPage && ["Enter", " ", "Tab"].includes(event.key)) return;
    const key = keyOfPress(event);
    if (key === null) return;
    const edits = event.target.matches(".textBox") && key[0] !== 13 && key[0] !== 27;
    if (!this.loop.isReady && edits) return;
    // A repetition is decided by the program, from what the browser says and when.
    const leaves = this.loop.send("key", ...key.map(String), event.repeat ? "1" : "0", String(Math.round(event.timeStamp)));
    if (leaves && edits) return this.#keepPage(event, edits);
    if (!leaves || !(event.key === "Tab" || this.#belongsToBrowser(event))) event.preventDefault();
  }

  #keepPage(event, edits) {
    if (!edits || /^F\d/.test(event.key)) event.preventDefault();
  }

  /** Combinations that mean nothing to the game are the browser's. */
  #belongsToBrowser(event) {
    const letter = shortcutLetter(event);
    if (letter === null) return event.ctrlKey || event.metaKey || /^F([6-9]|1\d)$/.test(event.key);
    return ![...this.#windows.values()].some((window) => window.menus?.hasShortcut(`Ctrl+${letter}`));
  }

  /** From the help's button Tab leads back into the window, and with Shift to its menus. */
  #leaveHelp(event) {
    if (event.key !== "Tab" || event.target.id !== "help") return false;
    if (event.shiftKey && this.front.menus) this.front.menus.focus();
    else this.front.takeFocus();
    return true;
  }

  #openMenus(event) {
    const { menus } = this.front;
    if (!menus || event.ctrlKey || event.metaKey || event.shiftKey) return false;
    if (event.key === "F10") menus.focus();
    else return event.altKey && !event.getModifierState("AltGraph") && menus.openByLetter(event.key.toLowerCase());
    return true;
  }
}

/** Waits until all of index.html is there. */
function parsed() {
  return document.readyState === "loading" && new Promise((resolve) => addEventListener("DOMContentLoaded", resolve));
}

async function start() {
  document.documentElement.dataset.arrived = "yes";
  await parsed();
  const [storage] = await Promise.all([opened, styled]);
  if (storage === null) return showEnd(...ELSEWHERE);
  setPictures(assets.pictures);
  const page = new Page(storage, assets.sounds);
  page.program = await Program.load(compiled, page.loop.page);
  arrival.end();
  document.documentElement.dataset.started = "yes";
  document.getElementById("loading").remove();
  page.listen();
  page.loop.start(page.program);
  page.heedWishes();
  page.tellRoom();
  loadFonts().then(() => page.resize());
  if (!storage.keeps) await ask("El juego de Zarpi", "Este navegador no deja guardar nada: podrás jugar, pero lo que guardes se perderá al cerrar la página.", ["Aceptar"]);
  setTimeout(() => whenIdle(() => prepareLater(page)), HEAD_START);
}

/** Calls when the page has nothing better to do, and after a while anyway. */
function whenIdle(deed) {
  if (globalThis.requestIdleCallback) requestIdleCallback(deed, { timeout: HEAD_START });
  else setTimeout(deed);
}

/** Loads what will be shown, has the worker keep the page for days without a network, looks for another version. */
async function prepareLater(page) {
  const twip = () => page.front?.twip ?? 1 / 15;
  navigator.serviceWorker?.addEventListener("controllerchange", () => keepAll(twip()));
  loadAll(twip());
  await keepVersion().catch(() => {});
  if (await hasOther().catch(() => false)) page.offerOther();
  else forgetOthers();
}

addEventListener("unhandledrejection", (event) => console.error(event.reason));
// A page that comes back from the browser's memory has lost its place in the storage.
addEventListener("pageshow", (event) => event.persisted && location.reload());
start().catch((error) => {
  console.error(error);
  arrival.end();
  const isOld = "Este navegador no puede con el juego. Prueba con una versión más reciente de Firefox, Chrome, Edge o Safari.";
  showState(error instanceof NotArrived ? error.message : isOld, true);
});
