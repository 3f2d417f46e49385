// Texts in their boxes: where lines break, how large the letters are, where the first line begins. All in twips, so that
// a text stands the same at every size of the window.

const SANS = '"Zarpi Sans", Arial, sans-serif';
const FAMILIES = { sans: SANS, arial: SANS, mono: '"Zarpi Mono", monospace', serif: '"Zarpi Serif", serif' };
/** "sans" stands for a font whose letters are a trifle narrower, but not its blanks. */
const SPACING = { sans: -0.012 };
/** And whose lines are a trifle higher; the others are as high as their letters ask. */
const LINE_HEIGHT = { sans: 1.2 };

const PIXEL = 15; // twips
/** Texts are measured in letters of one size, for a browser takes its time over the first of each. */
const MEASURED = 1000;

const pen = document.createElement("canvas").getContext("2d");

function family(look) {
  return FAMILIES[look.font];
}

function setPen(look) {
  pen.font = `${look.bold ? "bold " : ""}${MEASURED}px ${family(look)}`;
}

/** What a text takes in letters of `size`. */
function measure(text, size) {
  const found = pen.measureText(text);
  const scale = size / MEASURED;
  return {
    width: found.width * scale,
    ascent: found.fontBoundingBoxAscent * scale,
    descent: found.fontBoundingBoxDescent * scale,
    top: found.actualBoundingBoxAscent * scale,
    bottom: found.actualBoundingBoxDescent * scale,
  };
}

function widthOf(text, look, size) {
  const letters = text.length - text.split(" ").length + 1;
  return measure(text, size).width + (SPACING[look.font] ?? 0) * size * letters;
}

/** "Ctrl + N" is one word for whoever reads it. */
function unbroken(text) {
  return text.replaceAll(" + ", "\u00a0+\u00a0");
}

function brokenLines(text, look, size, width) {
  const lines = [];
  for (const paragraph of unbroken(text).split("\n")) {
    let line = "";
    for (const word of paragraph.match(/ *[^ ]+/g) ?? [""]) {
      if (line === "" || widthOf(line + word, look, size) <= width) {
        line += word;
      } else {
        lines.push(line);
        line = word.trimStart();
      }
    }
    lines.push(line);
  }
  return lines;
}

/** The lines of a text in letters of `size`, and whether they fit. A single line may be higher than its box. */
function layOut(text, look, size, box) {
  setPen(look);
  const { ascent, descent } = measure("Mg", size);
  const ink = ascent + descent;
  const height = Math.max(ink, (LINE_HEIGHT[look.font] ?? 0) * size);
  const lines = brokenLines(text, look, size, box.width);
  const width = Math.max(...lines.map((line) => widthOf(line, look, size)));
  const fits = width <= box.width + 1 && (lines.length === 1 || lines.length * height <= box.height);
  return { size, lines, height, ascent: ascent + (height - ink) / 2, fits };
}

/** A text in a box, its letters as much smaller than `size` as it takes, down to half those of its look. */
function fitted(text, look, box, size) {
  const step = Math.max(1, look.size / 40);
  let layout = layOut(text, look, size, box);
  while (!layout.fits && text.length > 1 && size - step >= look.size / 2) {
    size -= step;
    layout = layOut(text, look, size, box);
  }
  return layout;
}

/**
 * Where the first line begins, from the top of the box. Only what has a ground or a border has its text in the middle; other
 * letters stand on a whole pixel of the design. A letter that is higher than its box stays on the line of its neighbours.
 */
function topOf(layout, framed, box) {
  const { lines, height, ascent, size } = layout;
  if (lines.length > 1) return framed ? Math.max(0, (box.height - lines.length * height) / 2) : 0;
  const top = framed ? (box.height + measure("H", size).top) / 2 - ascent : PIXEL * Math.ceil(ascent / PIXEL) - ascent;
  if (lines[0].length === 1 && height > box.height) return top;
  if (height <= box.height) return Math.max(0, top);
  const ink = measure(lines[0], size);
  const bottom = top + ascent + ink.bottom;
  if (bottom > box.height) return top - (bottom - box.height);
  return Math.max(top, ink.top - ascent, -size);
}

const known = new Map();

/**
 * Makes `span` show a text in its box, in letters of `size` or smaller ones where they are too large: `framed` texts stand in
 * its middle. Comes back with the size of the letters.
 */
export function placeText(span, text, look, box, framed, size = look.size) {
  const key = [text, look.font, look.bold, look.size, box.width, box.height, framed, size].join("\t");
  let found = known.get(key);
  if (!found) {
    const layout = fitted(text, look, box, size);
    found = { layout, top: topOf(layout, framed, box) };
    if (known.size > 500) known.clear();
    known.set(key, found);
  }
  const { layout, top } = found;
  span.textContent = layout.lines.join("\n");
  span.style.top = twips(top);
  span.style.fontSize = twips(layout.size);
  span.style.lineHeight = twips(layout.height);
  setFont(span, look);
  return layout.size;
}

/** The family, weight and spacing of an element's letters, without their size. */
export function setFont(element, look) {
  element.style.fontFamily = family(look);
  element.style.fontWeight = look.bold ? "bold" : "normal";
  const spacing = SPACING[look.font] ?? 0;
  element.style.letterSpacing = `${spacing}em`;
  element.style.wordSpacing = `${-spacing}em`;
}

/** A length of the design as one of the page, which grows with the window that it is in. */
export function twips(length) {
  return `calc(${+length.toFixed(2)} * var(--twip))`;
}

/** Waits until the fonts can be measured; texts that are placed before stand in others. */
export async function loadFonts() {
  const fonts = ["16px 'Zarpi Sans'", "bold 16px 'Zarpi Sans'", "bold 16px 'Zarpi Mono'"];
  await Promise.all(fonts.map((font) => document.fonts.load(font).catch(() => {})));
  known.clear();
}
