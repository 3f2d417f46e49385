// One DOM element for each element of a window, at its place, in twips.

import { make, setAttribute } from "./dom.js";
import { inBrowser } from "./keys.js";
import { available, fileOf, pictureOf } from "./pictures.js";
import { placeText, setFont, twips } from "./text.js";

/** A mixture of two colours; `share` is that of the second. */
function mixed(colour, other, share) {
  const part = (text, i) => parseInt(text.slice(1 + 2 * i, 3 + 2 * i), 16);
  const mix = [0, 1, 2].map((i) => Math.round(part(colour, i) * (1 - share) + part(other, i) * share));
  return `rgb(${mix.join(" ")})`;
}

function lineWidth(pixels) {
  return `max(1px, ${twips(15 * pixels)})`;
}

class Element {
  constructor(node, state) {
    this.node = node;
    node.dataset.name = state.name;
    node.id = `${state.form}.${state.name}`;
  }

  show(state, twip) {
    const before = this.node.hidden ? undefined : this.sideways;
    this.sideways = state.visible ? `${state.left} ${state.width}` : undefined;
    this.node.classList.toggle("gliding", state.glides === true && before !== undefined && before !== this.sideways);
    this.node.hidden = !state.visible;
    if (!state.visible) return;
    const { style } = this.node;
    style.left = twips(state.left);
    style.top = twips(state.top);
    style.width = twips(state.width);
    style.height = twips(state.height);
    this.node.classList.toggle("marked", state.marked === true);
    this.node.classList.toggle("wanted", state.wanted === true);
    this.apply(state, twip);
  }

  /** Marks the element as the one where a player is who has no mouse. */
  ring(isHere) {
    this.node.classList.toggle("here", isHere);
    if (isHere && this.node.tabIndex < 0) this.node.tabIndex = -1;
  }

  /** Takes the focus of the page. */
  focus() {
    this.node.focus({ preventScroll: true });
  }
}

const FINGERS = matchMedia("(hover: none) and (pointer: coarse)");

class Label extends Element {
  constructor(state) {
    super(make("div", null, { className: "label" }), state);
    this.text = make("span", this.node, { className: "text" });
  }

  apply(told) {
    const { node } = this;
    const caption = inBrowser(told.caption, FINGERS.matches);
    const state = { ...told, caption, spoken: told.spoken === told.caption ? caption : told.spoken };
    const edge = state.border ? 15 : 0;
    node.style.color = state.fore ?? "black";
    node.classList.toggle("centred", state.centred);
    node.style.borderWidth = state.border ? lineWidth(1) : "0";
    if (state.border) {
      const dark = state.back ? mixed(state.back, "#000000", 0.6) : "#000";
      const bright = state.back ? mixed(state.back, "#ffffff", 0.5) : "#000";
      node.style.borderColor = `${dark} ${bright} ${bright} ${dark}`;
    }
    node.title = state.tip;
    const box = { width: state.width - 2 * edge, height: state.height - 2 * edge };
    const framed = state.centred && ((state.back !== null && !state.snug) || state.border);
    this.place = (size) => placeText(this.text, state.caption, state, box, framed, size);
    this.needed = this.size = this.place(state.size);
    this.family = [state.font, state.size, state.back, state.fore, state.centred, state.border].join();
    const ground = state.back ?? "transparent";
    node.style.backgroundColor = state.snug ? "transparent" : ground;
    this.text.style.backgroundColor = state.snug ? ground : "";
    this.text.classList.toggle("snug", state.snug);
    this.text.style.clipPath = state.masked ? `inset(-9em -9em -9em ${twips(state.masked - edge)})` : "";
    this.#name(state);
  }

  /** Gives the letters a size, at most the one that is needed. */
  level(size) {
    if (size === this.size) return;
    this.size = this.place(size);
  }

  #name({ clicks, caption, spoken }) {
    const isOther = clicks || spoken !== caption;
    setAttribute(this.node, "role", clicks ? "button" : isOther && spoken !== "" ? "img" : null);
    setAttribute(this.node, "aria-label", isOther && spoken !== "" ? spoken : null);
    setAttribute(this.node, "aria-hidden", spoken === "" ? "true" : null);
  }
}

class Picture extends Element {
  constructor(state) {
    super(make("div", null, { className: "picture" }), state);
    this.image = make("img", this.node, { draggable: false });
    this.fills = state.kind === "Image";
  }

  apply(state, twip) {
    this.node.title = state.tip;
    this.image.alt = state.spoken;
    const picture = pictureOf(state);
    if (picture === undefined) return;
    const { style } = this.image;
    const pixel = 0.15 * state.percent;
    style.width = this.fills ? "100%" : twips(pixel * picture.width);
    style.height = this.fills ? "100%" : twips(pixel * picture.height);
    this.node.classList.toggle("drawn", state.drawn !== undefined);
    const isHigher = state.height * picture.width > 1.2 * state.width * picture.height;
    const file = fileOf(picture, isHigher ? (twip * state.height) / (15 * picture.height) : (twip * state.percent) / 100);
    if (file === this.file) return;
    if (this.file === undefined) this.image.src = file;
    this.file = file;
    // The last picture stays until the new one can be shown.
    available(picture, file).then((found) => {
      if (this.file === file && this.image.getAttribute("src") !== found) this.image.src = found;
    });
  }
}

class Shape extends Element {
  constructor(state) {
    super(make("div", null, { className: "shape" }), state);
    this.node.setAttribute("aria-hidden", "true");
  }

  apply(state) {
    const { style } = this.node;
    style.pointerEvents = state.clicks ? "auto" : "none";
    style.backgroundColor = state.back ?? "transparent";
    style.border = state.line === null ? "none" : `${lineWidth(state.lineWidth)} solid ${state.line}`;
    const radius = Math.min(270, 0.17 * Math.min(state.width, state.height));
    style.borderRadius = { rectangle: "0", rounded: twips(radius), oval: "50%" }[state.figure];
  }
}

class Line extends Element {
  constructor(state) {
    super(make("div", null, { className: "line" }), state);
    this.node.setAttribute("aria-hidden", "true");
  }

  apply(state) {
    const { style } = this.node;
    style.width = twips(Math.hypot(state.width, state.height));
    style.height = lineWidth(state.lineWidth);
    style.backgroundColor = state.line;
    style.transform = `rotate(${Math.atan2(state.height, state.width)}rad) translateY(-50%)`;
  }
}

class Button extends Element {
  constructor(state) {
    super(make("button", null, { className: "button", type: "button" }), state);
    this.text = make("span", this.node, { className: "text" });
  }

  apply(state) {
    const { node } = this;
    node.tabIndex = state.tab === 0 ? -1 : 0;
    node.disabled = !state.enabled;
    node.classList.toggle("default", state.default);
    if (state.back !== null) node.style.backgroundColor = state.back;
    setAttribute(node, "aria-label", state.spoken === state.caption ? null : state.spoken);
    placeText(this.text, state.caption, state, { width: state.width - 90, height: state.height }, true);
  }
}

class TextBox extends Element {
  constructor(state) {
    super(make("input", null, { className: "textBox", autocomplete: "off", autocapitalize: "words", spellcheck: false }), state);
  }

  apply(state) {
    const { node } = this;
    node.type = state.password ? "password" : "text";
    node.classList.toggle("stars", state.password);
    node.setAttribute("aria-label", state.spoken);
    node.readOnly = state.locked;
    node.disabled = !state.enabled;
    node.style.backgroundColor = state.back ?? "";
    node.style.color = state.fore ?? "";
    node.style.textAlign = state.centred ? "center" : "left";
    node.style.fontSize = twips(state.size);
    setFont(node, state);
    if (node.value !== state.text && !this.isComposing) this.#setText(state.text);
  }

  /** What the box refused goes; the caret stays behind what was entered. */
  #setText(text) {
    const behind = this.node.value.length - (this.node.selectionEnd ?? 0);
    this.node.value = text;
    const caret = Math.max(0, text.length - behind);
    this.node.setSelectionRange(caret, caret);
  }
}

class ListBox extends Element {
  constructor(state) {
    super(make("div", null, { className: "listBox", tabIndex: 0 }), state);
    this.node.setAttribute("role", "listbox");
  }

  apply(state) {
    const { node } = this;
    node.style.fontSize = twips(state.size);
    setFont(node, state);
    node.setAttribute("aria-label", state.spoken);
    node.setAttribute("aria-disabled", String(!state.enabled));
    const rows = state.lines.map((line, i) => {
      const row = make("div", null, { className: "row", id: `${node.id}.${i}`, textContent: line });
      row.setAttribute("role", "option");
      row.setAttribute("aria-selected", String(i === state.selected));
      row.dataset.row = String(i);
      return row;
    });
    node.replaceChildren(...rows);
    if (state.selected < 0) return node.removeAttribute("aria-activedescendant");
    node.setAttribute("aria-activedescendant", rows[state.selected].id);
    rows[state.selected].scrollIntoView?.({ block: "nearest" });
  }
}

const KINDS = {
  Label,
  PictureBox: Picture,
  Image: Picture,
  Shape,
  Line,
  CommandButton: Button,
  TextBox,
  ListBox,
};

/** The element of a state, not shown yet. */
export function makeElement(state) {
  return new KINDS[state.kind](state);
}
