// How the main window stands on a small screen: the stage as large as fits, below it (upright) or beside it (sideways)
// a strip of what stands right of it elsewhere, then the keys at a size for fingers. Lengths are twips of the design.

const FORM = "Zarpi";
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

/** Groups of elements, where the corner of each stands in the design, and where it goes in the strip, how much larger. */
const GROUPS = [
  { names: /^(lblMensajeTiem|lblTiempo|Label8|lblNombre)$/, from: [9630, 120], to: [60, 80], scale: 1 },
  { names: /^(lblComodín\(\d+\)|Shape1)$/, from: [9150, 3300], to: [2650, 60], scale: 1 },
  { names: /^lblComentAngus$/, from: [9330, 1770], to: [5500, 80], scale: 1.3 },
  { names: /^Picture5$/, from: [9180, 1230], to: [5800, 60], scale: 1 },
  { names: /^lblComentCaída$/, from: [9180, 4380], to: [1000, 150], scale: 1.6 },
  { names: /^(shpMosOcul|cmdMostrar|cmdOcultar)$/, from: [10230, 7470], to: [5650, 960], scale: 1.95 },
];

/** Whether the screen is one for which a form has this order: a phone, or a tablet held upright. */
export function isNarrow(form) {
  const byFingers = matchMedia("(pointer: coarse)").matches;
  const isUpright = innerWidth < 0.8 * innerHeight && (innerWidth < 640 || byFingers);
  return form === FORM && (isUpright || (byFingers && innerHeight < 500));
}

/**
 * The order for a screen of `width` by `height`: the length of a twip in pixels, and in twips the size of the client area,
 * where the strip begins, and where and how large the keys are.
 */
export function narrowSize(width, height) {
  return width < height ? upright(width, height) : sideways(width, height);
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

/** The state of an element with the place that it has in an order. */
export function narrowState(state, { strip, keys }) {
  const index = Number(state.name.match(/^(?:lbl|shp)Tecla\((\d+)\)$/)?.[1] ?? 0);
  if (index > 0) return keyState(state, index, keys);
  if (state.name === "lblTeclado" || state.name === "linTeclado") return { ...state, visible: false };
  const group = GROUPS.find(({ names }) => names.test(state.name));
  if (group === undefined) return state;
  const { from, to, scale } = group;
  return {
    ...state,
    left: strip[0] + to[0] + (state.left - from[0]) * scale,
    top: strip[1] + to[1] + (state.top - from[1]) * scale,
    width: state.width * scale,
    height: state.height * scale,
    size: state.size * scale,
  };
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
