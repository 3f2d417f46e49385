// A window of the program: a section of the page, or a dialog over all others. Frame, menu bar, elements.

import { make } from "./dom.js";
import { makeElement } from "./elements.js";
import { MenuBar } from "./menus.js";
import { available, fileOf, pictureNamed } from "./pictures.js";
import { twips } from "./text.js";

const DESIGN_TWIP = 1 / 15; // pixels
const FINGER_TWIP = 44 / 405; // with which a text box is as large as a finger
const READABLE = 9; // pixels, the size of letters
const FINGERS = "(hover: none) and (pointer: coarse)";

/** The height of a menu bar or a title, in pixels. */
export function barHeight() {
  return parseFloat(getComputedStyle(document.documentElement).fontSize) * (matchMedia("(pointer: coarse)").matches ? 2.75 : 2);
}

/** Whether the system passes on pictures. */
function canShare() {
  const picture = new File([], "diploma.png", { type: "image/png" });
  return navigator.canShare?.({ files: [picture] }) === true;
}

export class Window {
  #elements = new Map();
  #twip = DESIGN_TWIP;
  #form = null;
  #isOpen = false;
  #isLevel = true;
  #focused = "";
  #ringed = null;
  #pressed = "";
  #drawn = null; // what a finger is drawn across, and how far the keys of it have been pressed

  /** `send` takes an event for the program. */
  constructor(name, modal, send) {
    this.name = name;
    this.modal = modal;
    this.send = send;
    this.node = make(modal ? "dialog" : "section", document.getElementById("desk"), { className: "window", id: name });
    this.client = make("div", this.node, { className: "client", tabIndex: -1 });
    this.keys = this.#makeKeys();
    this.foot = make("p", this.node, { className: "foot", hidden: true });
    this.#listen();
    if (modal) this.node.showModal();
  }

  /** Lets the player into the window, all of which has been told. */
  open() {
    this.#isOpen = true;
    this.resize();
    this.takeFocus();
  }

  close() {
    if (this.modal) this.node.close();
    this.node.remove();
  }

  /** Shows the frame of the form. */
  showForm(form) {
    this.#form = form;
    if (!this.menus && !this.title) this.#makeTitle();
    this.#showFoot();
    this.caption = form.caption;
    this.node.setAttribute("aria-label", form.spoken);
    if (this.title) this.title.textContent = form.caption;
    this.client.style.backgroundColor = form.back ?? "";
    this.resize();
  }

  showMenu(state) {
    if (!this.menus) {
      this.menus = new MenuBar(this.node, (name) => this.send("click", this.name, name), () => this.takeFocus());
      this.node.prepend(this.menus.node);
    }
    this.menus.show(state);
    if (state.offer !== "") this.#showOffer(state);
  }

  showElement(state) {
    let element = this.#elements.get(state.name);
    if (!element) {
      element = makeElement(state);
      this.#elements.set(state.name, element);
      this.client.append(element.node);
    }
    element.told = state;
    if (!this.#isOpen) return;
    this.#place(element);
    if (state.kind === "Label") this.#isLevel = false;
  }

  /** Labels that look alike keep letters of one size: where one of them has to shrink, all do. */
  levelTexts() {
    if (this.#isLevel) return;
    this.#isLevel = true;
    const labels = [...this.#elements.values()].filter(({ told, node }) => told.kind === "Label" && !node.hidden);
    const least = new Map();
    for (const { family, needed } of labels) least.set(family, Math.min(needed, least.get(family) ?? needed));
    for (const label of labels) label.level(least.get(label.family));
  }

  /** Puts the elements into their layers, the names from back to front. */
  showLayers(names) {
    names.forEach((name, i) => {
      const element = this.#elements.get(name);
      if (element) element.node.style.zIndex = String(i + 1);
    });
  }

  /** The element of this name has the focus; none of them, if it is empty. */
  showFocus(name) {
    this.#focused = name;
    this.takeFocus();
  }

  /** The player is at the element of this name by keyboard, whatever has the focus in the window; null: he is not. */
  showRing(name) {
    if (this.#ringed === name) return;
    this.#elements.get(this.#ringed)?.ring(false);
    this.#ringed = name;
    this.#elements.get(name)?.ring(true);
    this.takeFocus();
  }

  /** Gives the focus of the page to what has it in the window. */
  takeFocus() {
    const element = this.#elements.get(this.#ringed ?? this.#focused);
    if (element && !element.node.hidden && !element.node.disabled) element.focus();
    else if (matchMedia("(pointer: coarse)").matches) this.client.focus({ preventScroll: true });
    else this.keys.focus({ preventScroll: true });
  }

  /** Whether the focus of the page is somewhere in the window. */
  get hasFocus() {
    const active = document.activeElement;
    return this.node.contains(active) && active !== this.node && !active.disabled && !active.closest("[hidden]");
  }

  /** What the player would see of an element here. */
  stateOf(name) {
    return this.#elements.get(name)?.told;
  }

  /**
   * All windows grow with the page as the main one does, but none is made smaller than it was designed, or than fingers ask,
   * if it fits.
   */
  resize() {
    if (!this.#isOpen) return;
    const below = getComputedStyle(this.foot).position === "fixed" ? 0 : this.foot.offsetHeight;
    const room = { width: innerWidth, height: innerHeight - barHeight() - below };
    this.node.classList.toggle("narrow", this.#form.narrow);
    this.#twip = this.#twipFor(room);
    this.node.style.setProperty("--twip", `${this.#twip}px`);
    this.#showGround();
    this.#layOut();
  }

  /** A copy of the client area, and its size in twips. */
  copy() {
    return { client: this.client.cloneNode(true), width: this.#form.width, height: this.#form.height };
  }

  /** What is seen of the window, from back to front, for whoever draws it himself. */
  get content() {
    const order = ({ node }) => Number(node.style.zIndex);
    const elements = [...this.#elements.values()].filter(({ told }) => told.visible).sort((a, b) => order(a) - order(b));
    return elements.map(({ told }) => told);
  }

  get twip() {
    return this.#twip;
  }

  #twipFor(room) {
    const form = this.#form;
    if (form.narrow) return this.node.clientWidth / form.width;
    const fit = Math.min((room.width - 4) / form.width, (room.height - 4) / form.height);
    const common = Math.min(innerWidth / 11910, (innerHeight - 30) / 8520);
    const least = matchMedia("(pointer: coarse)").matches ? FINGER_TWIP : DESIGN_TWIP;
    return Math.max(Math.min(fit, Math.max(common, least)), this.#readableTwip(room, fit));
  }

  #layOut() {
    const { width, height } = this.#form;
    this.client.style.width = twips(width);
    this.client.style.height = twips(height);
    for (const element of this.#elements.values()) this.#place(element);
    this.#isLevel = false;
    this.levelTexts();
  }

  /** A dialog whose letters would be too small is as large as reading takes and the width allows, and scrolls. */
  #readableTwip(room, fit) {
    const told = [...this.#elements.values()].map((element) => element.told);
    const sizes = told.filter(({ kind, visible }) => kind === "Label" && visible).map(({ size }) => size);
    const wanted = READABLE / Math.min(...sizes);
    return this.modal && wanted > fit ? Math.min(wanted, (room.width - 4) / this.#form.width) : 0;
  }

  #place(element) {
    element.show(element.told, this.#twip);
  }

  #showGround() {
    const picture = pictureNamed(this.#form.background);
    if (!picture) return;
    const show = (file) => (this.client.style.backgroundImage = `url("${file}")`);
    const file = fileOf(picture, this.#twip);
    if (this.client.style.backgroundImage === "") show(file);
    available(picture, file).then(show);
  }

  /** What is said below the window to who plays with fingers, and what can be done with it. */
  #showFoot() {
    const { fingerHint, shared } = this.#form;
    const hint = matchMedia(FINGERS).matches ? fingerHint : "";
    this.foot.replaceChildren(hint);
    if (shared && canShare()) {
      const button = make("button", this.foot, { type: "button", textContent: "Compartir" });
      button.addEventListener("click", async () => (await import("./share.js")).share(this.content, this.#form.caption));
    }
    this.foot.hidden = this.foot.childNodes.length === 0 || this.foot.textContent === "";
  }

  /** A menu entry as a large button for the thumb, on a small screen. */
  #showOffer({ name, offer, enabled }) {
    if (!this.offer) {
      this.offer = make("button", this.node, { type: "button", className: "offer", textContent: offer });
      this.offer.addEventListener("click", () => this.send("click", this.name, name));
    }
    this.offer.hidden = !enabled;
  }

  #makeTitle() {
    const bar = make("header", null, { className: "titleBar" });
    this.node.prepend(bar);
    this.title = make("h1", bar);
    const cross = make("button", bar, { className: "cross", type: "button", tabIndex: -1, textContent: "✕" });
    cross.setAttribute("aria-label", "Cerrar");
    cross.addEventListener("click", () => this.send("close", this.name));
  }

  /** What has the focus while no element has it: it takes the characters that come without a key press. */
  #makeKeys() {
    const keys = make("input", this.client, { className: "keys", inputMode: "none", autocomplete: "off", autocapitalize: "off" });
    keys.setAttribute("aria-label", "Letras del juego");
    return keys;
  }

  #listen() {
    this.client.addEventListener("click", (event) => this.#click(event));
    this.client.addEventListener("contextmenu", (event) => event.target.closest("input") || event.preventDefault());
    // A press on what takes no focus leaves it where it is.
    this.client.addEventListener("mousedown", (event) => {
      if (!event.target.closest("input, .listBox, .button")) event.preventDefault();
    });
    this.client.addEventListener("focusin", (event) => {
      const state = this.#elements.get(event.target.dataset.name)?.told;
      if (state && state.tab > 0 && state.name !== this.#focused) this.send("focus", this.name, state.name);
    });
    this.client.addEventListener("input", (event) => this.#input(event));
    this.client.addEventListener("compositionstart", (event) => this.#composing(event, true));
    this.client.addEventListener("compositionend", (event) => this.#composing(event, false));
    this.client.addEventListener("pointerdown", (event) => this.#startDrawing(event));
    this.client.addEventListener("pointermove", (event) => this.#draw(event));
    for (const end of ["pointerup", "pointercancel"]) this.client.addEventListener(end, () => (this.#drawn = null));
    if (this.modal) this.node.addEventListener("cancel", (event) => event.preventDefault());
  }

  #click(event) {
    const name = event.target.closest("[data-name]")?.dataset.name;
    const state = this.#elements.get(name)?.told;
    const row = event.target.closest("[data-row]");
    if (row) this.send("select", this.name, name, row.dataset.row);
    else if (state?.kind === "TextBox" || state?.kind === "ListBox") return;
    else if (state?.clicks || state?.kind === "CommandButton") this.#press(event, name);
    else this.send("clickForm", this.name);
    if (!this.hasFocus && this.node.isConnected) this.takeFocus();
  }

  /** A second click that comes soon on the same element belongs to a double click, which is one. */
  #press(event, name) {
    const isDouble = event.detail > 0 && event.detail % 2 === 0 && this.#pressed === name;
    this.#pressed = name;
    if (!isDouble) this.send("click", this.name, name);
  }

  #startDrawing(event) {
    const drawn = this.#elements.get(event.target.closest("[data-name]")?.dataset.name)?.told.drawn;
    this.#drawn = drawn && event.isPrimary ? { x: event.clientX, drawn } : null;
  }

  /** What is drawn goes with the finger: each step of it is a press of a key. */
  #draw(event) {
    if (this.#drawn === null || event.buttons === 0) return;
    const [step, leftKey, rightKey] = this.#drawn.drawn;
    const length = step * this.#twip;
    while (Math.abs(event.clientX - this.#drawn.x) >= length) {
      const isRight = event.clientX > this.#drawn.x;
      this.#drawn.x += isRight ? length : -length;
      this.send("key", String(isRight ? rightKey : leftKey), "0", "0", "0", "0");
    }
  }

  #composing(event, isComposing) {
    const element = this.#elements.get(event.target.dataset.name);
    if (element) element.isComposing = isComposing;
    if (!isComposing) this.#input(event);
  }

  #input(event) {
    if (event.isComposing && event.type === "input") return;
    if (event.target === this.keys) {
      const text = this.keys.value;
      this.keys.value = "";
      for (const character of text) this.onCharacter(character);
      return;
    }
    this.send("type", this.name, event.target.dataset.name, event.target.value.replaceAll("\n", " "));
  }
}
