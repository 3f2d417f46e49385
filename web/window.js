// A window of the program: a section of the page, or a dialog over all others. Frame, menu bar, elements.

import { make } from "./dom.js";
import { makeElement } from "./elements.js";
import { MenuBar } from "./menus.js";
import { narrowOrder } from "./narrow.js";
import { available, fileOf, pictureNamed } from "./pictures.js";
import { twips } from "./text.js";

const DESIGN_TWIP = 1 / 15; // pixels
const FINGER_TWIP = 44 / 405; // with which a text box is as large as a finger
const DRAG_STEP = 5; // pixels
const SPOKEN_LINES = 6;
const READABLE = 9; // pixels, the size of letters
const MUCH = 300; // characters

export class Window {
  #elements = new Map();
  #twip = DESIGN_TWIP;
  #order = null; // on a small screen
  #form = null;
  #isOpen = false;
  #isLevel = true;
  #focused = "";
  #finger = 0;

  /** `send` takes an event for the program. */
  constructor(name, modal, send) {
    this.name = name;
    this.modal = modal;
    this.send = send;
    this.node = make(modal ? "dialog" : "section", document.getElementById("desk"), { className: "window", id: name });
    this.client = make("div", this.node, { className: "client", tabIndex: -1 });
    this.keys = this.#makeKeys();
    this.spoken = make("div", this.node, { className: "spoken" });
    this.spoken.setAttribute("role", "status");
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
    this.node.setAttribute("aria-label", form.caption);
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

  /** Gives the focus of the page to what has it in the window. */
  takeFocus() {
    const element = this.#elements.get(this.#focused);
    if (element && !element.node.hidden && !element.node.disabled) element.focus();
    else if (matchMedia("(pointer: coarse)").matches) this.client.focus({ preventScroll: true });
    else this.keys.focus({ preventScroll: true });
  }

  /** Tells a player who listens. Each text is a line of its own, so that the same one is heard again. */
  say(text) {
    make("p", this.spoken, { textContent: text });
    while (this.spoken.children.length > SPOKEN_LINES) this.spoken.firstChild.remove();
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
    const bar = this.menus?.node ?? this.title.parentElement;
    const room = { width: innerWidth, height: innerHeight - bar.offsetHeight };
    this.#order = narrowOrder(this.#form, room);
    this.node.classList.toggle("narrow", this.#order !== null);
    this.#twip = this.#twipFor(room);
    this.node.style.setProperty("--twip", `${this.#twip}px`);
    this.#showGround();
    this.#layOut();
  }

  /** A copy of the client area as it was designed, and its size in twips. */
  copy() {
    const order = this.#order;
    this.#order = null;
    this.#layOut();
    const client = this.client.cloneNode(true);
    this.#order = order;
    this.#layOut();
    return { client, width: this.#form.width, height: this.#form.height };
  }

  get twip() {
    return this.#twip;
  }

  #twipFor(room) {
    const form = this.#form;
    if (this.#order !== null) return this.#order.twip ?? this.node.clientWidth / this.#order.width;
    const fit = Math.min((room.width - 4) / form.width, (room.height - 4) / form.height);
    const common = Math.min(innerWidth / 11910, (innerHeight - 30) / 8520);
    const least = matchMedia("(pointer: coarse)").matches ? FINGER_TWIP : DESIGN_TWIP;
    return Math.max(Math.min(fit, Math.max(common, least)), this.#readableTwip(fit));
  }

  #layOut() {
    const { width, height } = this.#order ?? this.#form;
    this.client.style.width = twips(width);
    this.client.style.height = twips(height);
    for (const element of this.#elements.values()) this.#place(element);
    this.#isLevel = false;
    this.levelTexts();
  }

  /** What has much to read is made as large as reading takes, and scrolls; 0 where there is nothing of the kind. */
  #readableTwip(fit) {
    const told = [...this.#elements.values()].map((element) => element.told);
    const small = told.filter(({ kind, visible, size }) => kind === "Label" && visible && size * fit < READABLE);
    const length = small.reduce((sum, { caption }) => sum + caption.length, 0);
    return this.modal && length > MUCH ? READABLE / Math.min(...small.map(({ size }) => size)) : 0;
  }

  #place(element) {
    element.show(this.#order?.place(element.told) ?? element.told, this.#twip);
  }

  #showGround() {
    const picture = pictureNamed(this.#form.background);
    if (!picture) return;
    const show = (file) => (this.client.style.backgroundImage = `url("${file}")`);
    const file = fileOf(picture, this.#twip);
    if (this.client.style.backgroundImage === "") show(file);
    available(picture, file).then(show);
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
    for (const touch of ["touchstart", "touchmove"]) {
      this.client.addEventListener(touch, (event) => this.#drag(event), { passive: true });
    }
    if (this.modal) this.node.addEventListener("cancel", (event) => event.preventDefault());
  }

  #click(event) {
    const name = event.target.closest("[data-name]")?.dataset.name;
    const state = this.#elements.get(name)?.told;
    const row = event.target.closest("[data-row]");
    if (row) this.send("select", this.name, name, row.dataset.row);
    else if (state?.kind === "TextBox" || state?.kind === "ListBox") return;
    else if (state?.clicks || state?.kind === "CommandButton") this.send("click", this.name, name);
    else this.send("clickForm", this.name);
    if (!this.hasFocus && this.node.isConnected) this.takeFocus();
  }

  /** A finger drawn across a window stands for the arrow keys. */
  #drag(event) {
    if (this.node.scrollWidth > this.node.clientWidth) return;
    const [{ clientX }] = event.touches;
    if (event.type === "touchstart" || event.touches.length > 1) this.#finger = clientX;
    while (Math.abs(clientX - this.#finger) >= DRAG_STEP) {
      const isRight = clientX > this.#finger;
      this.#finger += isRight ? DRAG_STEP : -DRAG_STEP;
      this.send("key", isRight ? "39" : "37", "0", "0");
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
