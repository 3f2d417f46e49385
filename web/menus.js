// The menu bar of a window, by the pattern that screen readers know: arrows, Enter, Esc, first letters.

import { make, setAttribute } from "./dom.js";
import { working } from "./keys.js";

/** What an entry is that can bear a check mark. */
const ROLES = { none: "menuitem", own: "menuitemcheckbox", oneOf: "menuitemradio" };

export class MenuBar {
  #entries = new Map();
  #open = null;

  /** `choose` gets the name of an entry; `leave` gives the focus back to the window. */
  constructor(parent, choose, leave) {
    this.choose = choose;
    this.leave = leave;
    this.node = make("div", parent, { className: "menubar" });
    this.node.setAttribute("role", "menubar");
    this.node.addEventListener("keydown", (event) => this.#key(event));
    this.node.addEventListener("click", (event) => this.#click(event));
    this.node.addEventListener("pointerover", (event) => this.#hover(event));
    this.node.addEventListener("focusout", (event) => {
      if (!this.node.contains(event.relatedTarget)) this.#close();
    });
  }

  /** Shows the state of a menu or an entry. */
  show(state) {
    const entry = this.#entries.get(state.name) ?? this.#add(state);
    entry.state = state;
    if (state.caption === "-") return;
    const [before, rest] = state.caption.includes("&") ? state.caption.split("&") : [state.caption, ""];
    entry.text.replaceChildren(before);
    if (rest !== "") {
      entry.text.append(make("u", null, { textContent: rest[0] }), rest.slice(1));
      entry.mnemonic = rest[0].toLowerCase();
    }
    entry.shortcut.textContent = working(state.shortcut);
    entry.node.setAttribute("aria-disabled", String(!state.enabled));
    if (state.parent === "") return;
    entry.node.setAttribute("role", ROLES[state.mark]);
    setAttribute(entry.node, "aria-checked", state.mark === "none" ? null : String(state.checked));
  }

  /** Whether an entry has this shortcut. */
  hasShortcut(shortcut) {
    return [...this.#entries.values()].some((entry) => entry.state.shortcut === shortcut);
  }

  /** Opens the menu of this letter. False if there is none. */
  openByLetter(letter) {
    const menu = this.#menus.find((entry) => entry.mnemonic === letter);
    if (menu) this.#openMenu(menu, 0);
    return menu !== undefined;
  }

  focus() {
    this.#menus[0].node.focus();
  }

  get #menus() {
    return [...this.#entries.values()].filter((entry) => entry.state.parent === "");
  }

  #itemsOf(menu) {
    return [...this.#entries.values()].filter(
      (entry) => entry.state.parent === menu.state.name && entry.state.caption !== "-",
    );
  }

  #add(state) {
    const parent = this.#entries.get(state.parent);
    const box = parent ? (parent.box ??= this.#addBox(parent)) : this.node;
    const role = state.caption === "-" ? "separator" : "menuitem";
    const node = make(parent ? "div" : "button", box, { tabIndex: this.#entries.size === 0 ? 0 : -1 });
    node.setAttribute("role", role);
    node.dataset.menu = state.name;
    const entry = { node, state };
    if (role === "menuitem") {
      entry.text = make("span", node);
      entry.shortcut = make("kbd", node);
    }
    this.#entries.set(state.name, entry);
    return entry;
  }

  #addBox(menu) {
    const holder = make("div", null, { className: "menu" });
    menu.node.replaceWith(holder);
    holder.append(menu.node);
    const box = make("div", holder, { hidden: true });
    box.setAttribute("role", "menu");
    box.setAttribute("aria-label", menu.text.textContent);
    menu.node.setAttribute("aria-haspopup", "menu");
    menu.node.setAttribute("aria-expanded", "false");
    return box;
  }

  #openMenu(menu, item) {
    this.#close();
    this.#open = menu;
    menu.box.hidden = false;
    menu.node.setAttribute("aria-expanded", "true");
    this.#itemsOf(menu).at(item).node.focus();
  }

  #close() {
    if (this.#open === null) return;
    this.#open.box.hidden = true;
    this.#open.node.setAttribute("aria-expanded", "false");
    this.#open = null;
  }

  #choose(entry) {
    if (!entry.state.enabled) return;
    this.#close();
    this.leave();
    this.choose(entry.state.name);
  }

  #entryOf(event) {
    return this.#entries.get(event.target.closest("[data-menu]")?.dataset.menu);
  }

  #click(event) {
    const entry = this.#entryOf(event);
    if (!entry || entry.state.caption === "-") return;
    if (entry.state.parent !== "") this.#choose(entry);
    else if (entry === this.#open) this.#leaveAll();
    else this.#openMenu(entry, 0);
  }

  #hover(event) {
    const entry = this.#entryOf(event);
    if (!entry || this.#open === null || event.pointerType === "touch") return;
    if (entry.state.parent === "" && entry !== this.#open) this.#openMenu(entry, 0);
    else if (entry.text && entry.state.parent !== "") entry.node.focus();
  }

  #leaveAll() {
    this.#close();
    this.leave();
  }

  #key(event) {
    const entry = this.#entryOf(event);
    if (!entry || event.ctrlKey || event.metaKey) return;
    event.stopPropagation();
    event.preventDefault();
    if (event.key === "Tab" && !event.shiftKey) document.getElementById("help").focus(); // at the end of the bar
    else if (event.key === "Escape" || event.key === "Tab") this.#leaveAll();
    else if (event.key === "ArrowRight" || event.key === "ArrowLeft") this.#moveAside(event.key === "ArrowRight" ? 1 : -1, entry);
    else if (entry.state.parent === "") this.#keyOnBar(event.key, entry);
    else this.#keyInMenu(event.key, entry);
  }

  #moveAside(step, entry) {
    const menus = this.#menus;
    const here = menus.findIndex((menu) => menu === entry || menu === this.#open);
    const next = menus.at((here + step) % menus.length);
    if (this.#open) this.#openMenu(next, 0);
    else next.node.focus();
  }

  #keyOnBar(key, entry) {
    if (key === "ArrowDown" || key === "Enter" || key === " ") this.#openMenu(entry, 0);
    else if (key === "ArrowUp") this.#openMenu(entry, -1);
    else this.openByLetter(key.toLowerCase());
  }

  #keyInMenu(key, entry) {
    const items = this.#itemsOf(this.#open);
    const here = items.indexOf(entry);
    const moves = { ArrowDown: here + 1, ArrowUp: here - 1, Home: 0, End: -1 };
    if (key === "Enter" || key === " ") this.#choose(entry);
    else if (key in moves) items.at(moves[key] % items.length).node.focus();
    else this.#moveToLetter(key, items, here);
  }

  #moveToLetter(key, items, here) {
    const order = [...items.slice(here + 1), ...items.slice(0, here + 1)];
    order.find((item) => item.text.textContent.toLowerCase().startsWith(key.toLowerCase()))?.node.focus();
  }
}
