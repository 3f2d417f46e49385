// How windows stand on a small screen. The main one: the stage as large as fits, below it (upright) or beside it
// (sideways) a strip of what stands right of it elsewhere, then the keys at a size for fingers. Others are stacked.
// Lengths are twips of the design.

import { STACKED } from "./stacked.js";

const STACKED_WIDTH = 600; // pixels; in less, windows are stacked

/** Whether the screen is one for which the main window has another order: a phone, or a tablet held upright. */
function isSmall() {
  const byFingers = matchMedia("(pointer: coarse)").matches;
  const isUpright = innerWidth < 0.8 * innerHeight && (innerWidth < 640 || byFingers);
  return isUpright || (byFingers && innerHeight < 500);
}

/**
 * The order of a form in a room of `width` by `height` pixels: the length of a twip in pixels, the size of the client area in
 * twips, and `place`, which gives the state of an element its place. Null where the form stands as it was designed.
 */
export function narrowOrder(form, { width, height }) {
  if (form.form === "Zarpi") return isSmall() ? mainOrder(width, height) : null;
  const order = STACKED[form.form];
  if (order === undefined || width >= STACKED_WIDTH || width > height) return null;
  return {
    twip: width / order.width,
    width: order.width,
    height: order.height(form.height),
    place: (state) => moved(state, order.groups),
  };
}

/**
 * The state of an element at its place in the first group that names it: from one corner to another, `scale` times as
 * large, `wider` by as much or with a `width` and `height` of its own, what is below it `apart` times as far.
 */
function moved(state, groups, corner = [0, 0]) {
  const group = groups.find(({ names }) => names.test(state.name));
  if (group === undefined) return state;
  const { from, to, scale = 1, apart = 1, wider = 0, width, height } = group;
  return {
    ...state,
    left: corner[0] + to[0] + (state.left - from[0]) * scale,
    top: corner[1] + to[1] + (state.top - from[1]) * scale * apart,
    width: width ?? state.width * scale + wider,
    height: height ?? state.height * scale,
    size: state.size * scale,
  };
}

const STAGE = { width: 9060, height: 8300 };
const STRIP_HEIGHT = 2000;
const LEAST_KEY_WIDTH = 46; // pixels
const COLUMNS = 7;
const ROWS = 4;
const KEY_HEIGHTS = [47, 76]; // pixels, the least and the most
const KEY_SHARE = 0.055; // of the height of the screen that a row of keys gets at least
const GAP = 45;
const KEYS = "BCDFGHJKLMNÑPQRSTVWXYZAEIOU"; // by their index, from 1
const ORDER = "ABCDEFGHIJKLMNÑOPQRSTUVWXYZ";

/**
 * In the strip. Of the jokers the first is the one that is pressed; the others are counted. The hero falls over the place of
 * the keys, which are gone then.
 */
const STRIP = [
  { names: /^(lblMensajeTiem|lblTiempo|Label8|lblNombre)$/, from: [9630, 120], to: [60, 130] },
  { names: /^lblComodín\(1\)$/, from: [9270, 3420], to: [2750, 220], scale: 2, width: 1260, height: 1610 },
  { names: /^Shape1$/, from: [9150, 3300], to: [2630, 110], width: 1500, height: 1830 },
  { names: /^lblComodín\(\d+\)$/, from: [9270, 3420], to: [4330, 350], scale: 0.8 },
  { names: /^lblComentAngus$/, from: [9330, 1770], to: [6380, 120], scale: 1.2, width: 2640, height: 860 },
  { names: /^Picture5$/, from: [9180, 1230], to: [5800, 60], apart: 0.5 },
  { names: /^Picture1$/, from: [9060, 5310], to: [5000, 1500] },
  { names: /^lblComentCaída$/, from: [9180, 4380], to: [1000, 150], scale: 1.6 },
  { names: /^(shpMosOcul|cmdMostrar|cmdOcultar)$/, from: [10230, 7470], to: [6480, 1000], scale: 1.5 },
];

function mainOrder(width, height) {
  const order = width < height ? upright(width, height) : sideways(width, height);
  return { ...order, place: (state) => mainState(state, order) };
}

function upright(width, height) {
  const above = STAGE.height + STRIP_HEIGHT;
  const [least, most] = KEY_HEIGHTS;
  const row = Math.max(least, KEY_SHARE * height);
  const twip = Math.min(width / STAGE.width, (height - ROWS * row) / above);
  const keyHeight = Math.min(most, (height - above * twip) / ROWS) / twip;
  const screen = width / twip;
  return {
    twip,
    width: STAGE.width,
    height: above + ROWS * keyHeight,
    strip: [0, STAGE.height],
    keys: { left: (STAGE.width - screen) / 2, top: above, width: screen / COLUMNS, height: keyHeight },
  };
}

function sideways(width, height) {
  const twip = Math.min(height / STAGE.height, (width - COLUMNS * LEAST_KEY_WIDTH) / STAGE.width);
  const screen = { width: width / twip, height: height / twip };
  const keyHeight = Math.min(KEY_HEIGHTS[1] / twip, (screen.height - STRIP_HEIGHT) / ROWS);
  return {
    twip,
    ...screen,
    strip: [STAGE.width, 0],
    keys: {
      left: STAGE.width,
      top: screen.height - ROWS * keyHeight,
      width: (screen.width - STAGE.width) / COLUMNS,
      height: keyHeight,
    },
  };
}

function mainState(state, { strip, keys }) {
  const index = Number(state.name.match(/^(?:lbl|shp)Tecla\((\d+)\)$/)?.[1] ?? 0);
  if (index > 0) return keyState(state, index, keys);
  if (state.name === "lblTeclado" || state.name === "linTeclado") return { ...state, visible: false };
  return moved(state, STRIP, strip);
}

function keyState(state, index, { left, top, width, height }) {
  const place = ORDER.indexOf(KEYS[index - 1]);
  return {
    ...state,
    left: left + (place % COLUMNS) * width + GAP / 2,
    top: top + Math.floor(place / COLUMNS) * height + GAP / 2,
    width: width - GAP,
    height: height - GAP,
    size: Math.min(1.4 * state.size, 0.8 * height),
  };
}
