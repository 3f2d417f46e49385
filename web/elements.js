// One DOM element for each element of a window, at its place, in twips.

import { available, fileOf, pictureOf } from "./pictures.js";
import { placeText, setFont, twips } from "./text.js";

function make(tag, className, parent) {
  const node = document.createElement(tag);
  node.className = className;
  parent?.append(node);
  return node;
}

/** A mixture of two colours; `share` is that of the second. */
function mixed(colour, other, share) {
  const part = (text, i) => parseInt(text.slice(1 + 2 * i, 3 + 2 * i), 16);
  const mix = [0, 1, 2].map((i) => Math.round(part(colour, i) * (1 - share) + part(other, i) * share));
  return `rgb(${mix.join(" ")})`;
}

/** Sets an attribute, or takes it away where the value is null. */
function setAttribute(node, name, value) {
  if (value === null) node.removeAttribute(name);
  else node.setAttribute(name, value);
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
    this.state = state;
    const { style } = this.node;
    this.node.hidden = !state.visible;
    style.left = twips(state.left);
    style.top = twips(state.top);
    style.width = twips(state.width);
    style.height = twips(state.height);
    this.apply(state, twip);
  }

  /** Takes the focus of the page. */
  focus() {
    this.node.focus({ preventScroll: true });
  }
}

class Label extends Element {
  constructor(state) {
    super(make("div", "label"), state);
    this.text = make("span", "text", this.node);
  }

  apply(state) {
    const { node } = this;
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
    placeText(this.text, state.caption, state, box, state.centred && (state.back !== null || state.border));
    const ground = state.back ?? "transparent";
    node.style.backgroundColor = state.snug ? "transparent" : ground;
    this.text.style.backgroundColor = state.snug ? ground : "";
    this.text.classList.toggle("snug", state.snug);
    this.#name(state);
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
    super(make("div", "picture"), state);
    this.image = make("img", "", this.node);
    this.image.draggable = false;
    this.fills = state.kind === "Image";
  }

  apply(state, twip) {
    this.node.title = state.tip;
    this.image.alt = state.spoken;
    const picture = pictureOf(state);
    if (picture === undefined || !state.visible) return;
    const { style } = this.image;
    style.width = this.fills ? "100%" : twips(15 * picture.width);
    style.height = this.fills ? "100%" : twips(15 * picture.height);
    const file = fileOf(picture, twip);
    if (file === this.file) return;
    this.file = file;
    // The last picture stays until the new one can be shown.
    available(picture, file).then((found) => {
      if (this.file === file) this.image.src = found;
    });
  }
}

class Shape extends Element {
  constructor(state) {
    super(make("div", "shape"), state);
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
    super(make("div", "line"), state);
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
    super(make("button", "button"), state);
    this.node.type = "button";
    this.node.tabIndex = state.tab === 0 ? -1 : 0;
    this.text = make("span", "text", this.node);
  }

  apply(state) {
    const { node } = this;
    node.disabled = !state.enabled;
    node.classList.toggle("default", state.default);
    if (state.back !== null) node.style.backgroundColor = state.back;
    setAttribute(node, "aria-label", state.spoken === state.caption ? null : state.spoken);
    placeText(this.text, state.caption, state, { width: state.width - 90, height: state.height }, true);
  }
}

class TextBox extends Element {
  constructor(state) {
    super(make("input", "textBox"), state);
    this.node.autocomplete = "off";
    this.node.spellcheck = false;
    this.node.setAttribute("autocapitalize", "words");
  }

  apply(state) {
    const { node } = this;
    node.type = state.password ? "password" : "text";
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
    super(make("div", "listBox"), state);
    this.node.setAttribute("role", "listbox");
    this.node.tabIndex = 0;
  }

  apply(state) {
    const { node } = this;
    node.style.fontSize = twips(state.size);
    setFont(node, state);
    node.setAttribute("aria-label", state.spoken);
    node.setAttribute("aria-disabled", String(!state.enabled));
    const rows = state.lines.map((line, i) => {
      const row = make("div", "row");
      row.setAttribute("role", "option");
      row.setAttribute("aria-selected", String(i === state.selected));
      row.id = `${node.id}.${i}`;
      row.dataset.row = String(i);
      row.textContent = line;
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
