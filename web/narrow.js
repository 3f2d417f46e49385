// How the main window stands on a phone held upright: the stage above at the width of the screen, below it what stands
// right of it elsewhere, then the keys at a size for fingers. Lengths are twips of the design.

const FORM = "Zarpi";
const STAGE = { width: 9060, height: 8300 };
const STRIP_HEIGHT = 2000;
const COLUMNS = 7;
const ROWS = 4;
const KEY_HEIGHTS = [47, 64]; // pixels, the least and the most
const GAP = 45;
const KEYS = "BCDFGHJKLMNÑPQRSTVWXYZAEIOU"; // by their index, from 1
const ORDER = "ABCDEFGHIJKLMNÑOPQRSTUVWXYZ";

/** Groups of elements, where the corner of each stands in the design, and where it goes, how much larger. */
const GROUPS = [
  { names: /^(lblMensajeTiem|lblTiempo|Label8|lblNombre)$/, from: [9630, 120], to: [60, 8380], scale: 1 },
  { names: /^(lblComodín\(\d+\)|Shape1)$/, from: [9150, 3300], to: [2650, 8360], scale: 1 },
  { names: /^lblComentAngus$/, from: [9330, 1770], to: [5500, 8380], scale: 1.3 },
  { names: /^Picture5$/, from: [9180, 1230], to: [5800, 8360], scale: 1 },
  { names: /^lblComentCaída$/, from: [9180, 4380], to: [1000, 8450], scale: 1.6 },
  { names: /^(shpMosOcul|cmdMostrar|cmdOcultar)$/, from: [10230, 7470], to: [5650, 9260], scale: 1.95 },
];

/** Whether the screen is one for which a form has this order. */
export function isNarrow(form) {
  return form === FORM && innerWidth < 640 && innerWidth < innerHeight;
}

/** The length of a twip in pixels, and in twips the size of the client area and the height of a key, for a screen of `width` by `height`. */
export function narrowSize(width, height) {
  const above = STAGE.height + STRIP_HEIGHT;
  const [least, most] = KEY_HEIGHTS;
  const twip = Math.min(width / STAGE.width, (height - ROWS * least) / above);
  const keyHeight = Math.min(most, (height - above * twip) / ROWS) / twip;
  return { twip, width: STAGE.width, height: above + ROWS * keyHeight, keyHeight };
}

/** The state of an element with the place that it has here. */
export function narrowState(state, { twip, keyHeight }) {
  const index = Number(state.name.match(/^(?:lbl|shp)Tecla\((\d+)\)$/)?.[1] ?? 0);
  if (index > 0) return keyState(state, index, innerWidth / twip, keyHeight);
  if (state.name === "lblTeclado" || state.name === "linTeclado") return { ...state, visible: false };
  const group = GROUPS.find(({ names }) => names.test(state.name));
  if (group === undefined) return state;
  const { from, to, scale } = group;
  return {
    ...state,
    left: to[0] + (state.left - from[0]) * scale,
    top: to[1] + (state.top - from[1]) * scale,
    width: state.width * scale,
    height: state.height * scale,
    size: state.size * scale,
  };
}

function keyState(state, index, screen, height) {
  const place = ORDER.indexOf(KEYS[index - 1]);
  const width = screen / COLUMNS;
  return {
    ...state,
    left: (place % COLUMNS) * width + GAP / 2 - (screen - STAGE.width) / 2,
    top: STAGE.height + STRIP_HEIGHT + Math.floor(place / COLUMNS) * height + GAP / 2,
    width: width - GAP,
    height: height - GAP,
    size: state.size * 1.4,
  };
}
