// Windows that are too wide to be read, or too small to be pressed, on a phone held upright: what stands side by side
// elsewhere stands one below the other. Lengths are twips of the design.

/** A list of rows without one, and how much each row adds, in the design; below, each row has two lines. */
const ROWS_FROM = 2040;
const LIST_HEIGHT = 3285;

/** A column of a list: its title and its cells, at `left` in the first line of a row or the second. */
function column(title, cells, from, left, width, line) {
  return [
    { names: new RegExp(`^${title}$`), from: [from, 1650], to: [left, 1350 + 345 * line], width },
    { names: new RegExp(`^${cells}\\(\\d+\\)$`), from: [from, ROWS_FROM], to: [left, 2130 + 435 * line], apart: 2, width },
  ];
}

function buttons(names, from, left) {
  return [
    { names: new RegExp(`^shp(${names})$`), from: [from, 2070], to: [left, 2160], apart: 2 },
    { names: new RegExp(`^cmd(${names})$`), from: [from, 2130], to: [left, 2220], apart: 2 },
  ];
}

const listHeight = (height) => 2820 + 2 * (height - LIST_HEIGHT);

/**
 * The order of each by its name: its width, its height by that of the design, and how groups of elements are moved, as
 * narrow.js tells it.
 */
export const STACKED = {
  frmNombre: {
    width: 3600,
    height: (height) => height,
    groups: [
      { names: /^txtNombre$/, from: [1200, 270], to: [637, 240], height: 460 },
      { names: /Aceptar$/, from: [1590, 960], to: [997, 960] },
    ],
  },
  frmGuardar: {
    width: 3880,
    height: (height) => height,
    groups: [
      { names: /^Label/, from: [300, 330], to: [60, 330] },
      { names: /^txtContra/, from: [1860, 960], to: [1620, 930], height: 490 },
      { names: /^txtFecha$/, from: [1860, 210], to: [1620, 210] },
      { names: /(Aceptar|Guardar)$/, from: [420, 2430], to: [130, 2430] },
      { names: /Cancelar$/, from: [2580, 2430], to: [2145, 2430] },
    ],
  },
  frmReanudar: {
    width: 4800,
    height: () => 7900,
    groups: [
      { names: /^lstLista$/, from: [240, 570], to: [120, 120], width: 4560, height: 1900 },
      { names: /^Label(5|1|6|2|16|17|4|9)$/, from: [2160, 240], to: [150, 2200] },
      { names: /^Label(7|3)$/, from: [570, 2760], to: [105, 4500] },
      { names: /^Label(10|11)$/, from: [1980, 2760], to: [1230, 4500] },
      { names: /^Label(12|13)$/, from: [3390, 2760], to: [2355, 4500] },
      { names: /^Label14$/, from: [4830, 2760], to: [3480, 4500] },
      { names: /^Label15$/, from: [4830, 2760], to: [3480, 4500], width: 1215 },
      { names: /^Label8$/, from: [1290, 4470], to: [300, 6020] },
      { names: /^txtContraseña$/, from: [2910, 4410], to: [1920, 5850], height: 600 },
      { names: /(Aceptar|Reanudar)$/, from: [1260, 5370], to: [770, 7050] },
      { names: /Cancelar$/, from: [3630, 5370], to: [2425, 7050] },
      { names: /^Picture1$/, from: [480, 4200], to: [90, 6750] },
      { names: /^Picture2$/, from: [5580, 4200], to: [4095, 6750] },
    ],
  },
  frmNivel: {
    width: 5400,
    height: () => 5180,
    groups: [
      { names: /^Label1$/, from: [450, 390], to: [150, 150], width: 2650 },
      { names: /^(Label4|Shape3)$/, from: [5940, 60], to: [3020, 60] },
      { names: /^Shape1$/, from: [330, 1650], to: [150, 1150], width: 3450, height: 2950 },
      { names: /^Label2$/, from: [630, 1800], to: [300, 1300], width: 3150, height: 2650 },
      { names: /^Picture1$/, from: [6240, 1110], to: [3680, 1150] },
      { names: /^(Label3|Shape2)\(\d\)$/, from: [4560, 3780], to: [150, 4300] },
      { names: /Aceptar$/, from: [1470, 3840], to: [3715, 4390] },
    ],
  },
  frmFecha: {
    width: 8640,
    height: (height) => height,
    groups: [{ names: /^(Label4|txtFecha)$/, from: [3450, 4770], to: [2932, 4300], scale: 1.6 }],
  },
  frmNormas: {
    width: 4200,
    height: () => 20320,
    groups: [
      { names: /^Picture1$/, from: [330, 60], to: [120, 60] },
      { names: /^Picture2$/, from: [9270, 60], to: [3465, 60] },
      { names: /^Label1$/, from: [2580, 210], to: [795, 210], width: 2610 },
      { names: /^Shape1$/, from: [240, 1080], to: [120, 1080], width: 3960, height: 4560 },
      { names: /^Label2$/, from: [450, 1200], to: [270, 1200], width: 3660, height: 4380 },
      { names: /^Label3$/, from: [450, 1170], to: [270, 1170] },
      { names: /^(Shape2|Label(6|8|10|12|14))$/, from: [240, 3090], to: [120, 5760], wider: 855 },
      { names: /^Label(4|5|7|9|11|13)$/, from: [240, 3090], to: [120, 5760] },
      { names: /^(Shape3|Label(16|18|20))$/, from: [3630, 3090], to: [120, 10660], wider: 855 },
      { names: /^Label(15|17|19)$/, from: [3630, 3090], to: [120, 10660] },
      { names: /^(Shape4|Label(22|23|25))$/, from: [7020, 3090], to: [120, 14750], wider: 945 },
      { names: /^Label(21|24|26)$/, from: [7020, 3090], to: [120, 14750] },
      { names: /Aceptar$/, from: [4440, 7350], to: [1297, 19670] },
    ],
  },
  frmCuadro: {
    width: 5200,
    height: listHeight,
    groups: [
      { names: /^Picture1$/, from: [780, 270], to: [120, 210] },
      { names: /^Picture2$/, from: [9480, 240], to: [4465, 210] },
      { names: /^Label1$/, from: [2580, 240], to: [840, 180], width: 3520 },
      { names: /^Label2$/, from: [3540, 930], to: [840, 750], width: 3520 },
      ...column("Label3", "lblZarpis", 780, 120, 1425, 0),
      ...column("Label4", "lblNombre", 2520, 1635, 3445, 0),
      ...column("Label5", "lblPlenos", 5040, 120, 1425, 1),
      ...column("Label6", "lblTiempo", 6570, 1635, 1755, 1),
      ...column("Label7", "lblFecha", 8520, 3480, 1600, 1),
      ...buttons("Aceptar", 2730, 80),
      ...buttons("Restablecer", 4590, 1765),
      ...buttons("Imprimir", 6510, 3510),
    ],
  },
  frmÚltimas: {
    width: 6200,
    height: listHeight,
    groups: [
      { names: /^Picture1$/, from: [90, 360], to: [120, 240] },
      { names: /^Picture2$/, from: [10680, 360], to: [5465, 240] },
      ...column("Label1", "lblPalabra", 90, 100, 850, 0),
      ...column("Label2", "lblNombre", 1200, 1040, 3535, 0),
      ...column("Label7", "lblFecha", 9750, 4665, 1435, 0),
      ...column("Label3", "lblZarpis", 3300, 100, 850, 1),
      ...column("Label4", "lblPlenos", 4410, 1040, 850, 1),
      ...column("Label5", "lblModo", 5520, 1980, 2595, 1),
      ...column("Label6", "lblTiempo", 8220, 4665, 1435, 1),
      ...buttons("Aceptar", 3540, 1100),
      ...buttons("Imprimir", 6180, 3495),
    ],
  },
};
