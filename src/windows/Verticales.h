#pragma once

#include <array>

#include "platform/Narrow.h"

/// The orders of the dialogs on a screen held upright, where what stands side by side elsewhere stands one below the
/// other.
namespace juego::verticales {

using platform::Move;
using platform::Stacked;

inline constexpr std::array DeNombre = {
    Move{.Names = "txtNombre", .From = {1200, 270}, .To = {637, 240}, .Height = 460},
    Move{.Names = "shpAceptar cmdAceptar", .From = {1590, 960}, .To = {997, 960}},
};
inline constexpr Stacked Nombre{.Width = 3600, .Moves = DeNombre};

inline constexpr std::array DeGuardar = {
    Move{.Names = "Label1 Label2 Label3", .From = {300, 330}, .To = {60, 330}},
    Move{.Names = "txtContraseña txtContrarep", .From = {1860, 960}, .To = {1620, 930}, .Height = 490},
    Move{.Names = "txtFecha", .From = {1860, 210}, .To = {1620, 210}},
    Move{.Names = "shpAceptar cmdGuardar", .From = {420, 2430}, .To = {130, 2430}},
    Move{.Names = "shpCancelar cmdCancelar", .From = {2580, 2430}, .To = {2145, 2430}},
};
inline constexpr Stacked Guardar{.Width = 3880, .Moves = DeGuardar};

inline constexpr std::array DeReanudar = {
    Move{.Names = "lstLista", .From = {240, 570}, .To = {120, 120}, .Width = 4560, .Height = 1900},
    Move{.Names = "Label5 Label1 Label6 Label2 Label16 Label17 Label4 Label9", .From = {2160, 240}, .To = {150, 2200}},
    Move{.Names = "Label7 Label3", .From = {570, 2760}, .To = {105, 4500}},
    Move{.Names = "Label10 Label11", .From = {1980, 2760}, .To = {1230, 4500}},
    Move{.Names = "Label12 Label13", .From = {3390, 2760}, .To = {2355, 4500}},
    Move{.Names = "Label14", .From = {4830, 2760}, .To = {3480, 4500}},
    Move{.Names = "Label15", .From = {4830, 2760}, .To = {3480, 4500}, .Width = 1215},
    Move{.Names = "Label8", .From = {1290, 4470}, .To = {300, 6020}},
    Move{.Names = "txtContraseña", .From = {2910, 4410}, .To = {1920, 5850}, .Height = 600},
    Move{.Names = "shpAceptar cmdReanudar", .From = {1260, 5370}, .To = {770, 7050}},
    Move{.Names = "shpCancelar cmdCancelar", .From = {3630, 5370}, .To = {2425, 7050}},
    Move{.Names = "Picture1", .From = {480, 4200}, .To = {90, 6750}},
    Move{.Names = "Picture2", .From = {5580, 4200}, .To = {4095, 6750}},
};
inline constexpr Stacked Reanudar{.Width = 4800, .HeightOf = [](int) { return 7900; }, .Moves = DeReanudar};

inline constexpr std::array DeNivel = {
    Move{.Names = "Label1", .From = {450, 390}, .To = {150, 150}, .Width = 2650},
    Move{.Names = "Label4 Shape3", .From = {5940, 60}, .To = {3020, 60}},
    Move{.Names = "Shape1", .From = {330, 1650}, .To = {150, 1150}, .Width = 3450, .Height = 2950},
    Move{.Names = "Label2", .From = {630, 1800}, .To = {300, 1300}, .Width = 3150, .Height = 2650},
    Move{.Names = "Picture1", .From = {6240, 1110}, .To = {3680, 1150}},
    Move{.Names = "Label3 Shape2", .From = {4560, 3780}, .To = {150, 4300}},
    Move{.Names = "shpAceptar cmdAceptar", .From = {1470, 3840}, .To = {3715, 4390}},
};
inline constexpr Stacked Nivel{.Width = 5400, .HeightOf = [](int) { return 5180; }, .Moves = DeNivel};

inline constexpr std::array DeFecha = {
    Move{.Names = "Label4 txtFecha", .From = {3450, 4770}, .To = {2932, 4300}, .Scale = 1.6},
};
inline constexpr Stacked Fecha{.Width = 8640, .Moves = DeFecha};

inline constexpr std::array DeNormas = {
    Move{.Names = "Picture1", .From = {330, 60}, .To = {120, 60}},
    Move{.Names = "Picture2", .From = {9270, 60}, .To = {3465, 60}},
    Move{.Names = "Label1", .From = {2580, 210}, .To = {795, 210}, .Width = 2610},
    Move{.Names = "Shape1", .From = {240, 1080}, .To = {120, 1080}, .Width = 3960, .Height = 4560},
    Move{.Names = "Label2", .From = {450, 1200}, .To = {270, 1200}, .Width = 3660, .Height = 4380},
    Move{.Names = "Label3", .From = {450, 1170}, .To = {270, 1170}},
    Move{.Names = "Shape2 Label6 Label8 Label10 Label12 Label14", .From = {240, 3090}, .To = {120, 5760}, .Wider = 855},
    Move{.Names = "Label4 Label5 Label7 Label9 Label11 Label13", .From = {240, 3090}, .To = {120, 5760}},
    Move{.Names = "Shape3 Label16 Label18 Label20", .From = {3630, 3090}, .To = {120, 10660}, .Wider = 855},
    Move{.Names = "Label15 Label17 Label19", .From = {3630, 3090}, .To = {120, 10660}},
    Move{.Names = "Shape4 Label22 Label23 Label25", .From = {7020, 3090}, .To = {120, 14750}, .Wider = 945},
    Move{.Names = "Label21 Label24 Label26", .From = {7020, 3090}, .To = {120, 14750}},
    Move{.Names = "shpAceptar cmdAceptar", .From = {4440, 7350}, .To = {1297, 19670}},
};
inline constexpr Stacked Normas{.Width = 4200, .HeightOf = [](int) { return 20320; }, .Moves = DeNormas};

/// The diploma is as wide as the screen; its buttons, below it, are as large as a finger asks.
inline constexpr std::array DeDiploma = {
    Move{.Names = "shpAceptar cmdAceptar", .From = {3600, 7380}, .To = {700, 7350}, .Scale = 2.9},
    Move{.Names = "shpImprimir cmdImprimir", .From = {6420, 7380}, .To = {6000, 7350}, .Scale = 2.9},
    Move{.Names = "*", .From = {360, 330}, .To = {150, 330}},
};
inline constexpr Stacked Diploma{.Width = 11205, .HeightOf = [](int) { return 9050; }, .Moves = DeDiploma};

/// On a phone held sideways they stand right of it.
inline constexpr std::array DeDiplomaTumbado = {
    Move{.Names = "shpAceptar cmdAceptar", .From = {3600, 7380}, .To = {11400, 3900}, .Scale = 2.4},
    Move{.Names = "shpImprimir cmdImprimir", .From = {6420, 7380}, .To = {11400, 1900}, .Scale = 2.4},
    Move{.Names = "*", .From = {360, 330}, .To = {150, 150}},
};
inline constexpr int AnchoTumbado = 15400;
inline constexpr int AltoTumbado = 6700;

// In the boards a row has two lines. The rows begin at 2040 and the list without one ends there; below, its first row.

/// A list with twice the distance between its rows.
constexpr int AltoDeLista(int height) {
    constexpr int kEmptyList = 3285;
    return 2820 + 2 * (height - kEmptyList);
}

constexpr Move Título(std::string_view name, int from, int to, int width, int line) {
    return {.Names = name, .From = {from, 1650}, .To = {to, 1350 + 345 * line}, .Width = width};
}

constexpr Move Celdas(std::string_view names, int from, int to, int width, int line) {
    return {.Names = names, .From = {from, 2040}, .To = {to, 2130 + 435 * line}, .Down = 2, .Width = width};
}

constexpr Move Placa(std::string_view name, int from, int to) {
    return {.Names = name, .From = {from, 2070}, .To = {to, 2160}, .Down = 2};
}

constexpr Move Botón(std::string_view name, int from, int to) {
    return {.Names = name, .From = {from, 2130}, .To = {to, 2220}, .Down = 2};
}

inline constexpr std::array DeCuadro = {
    Move{.Names = "Picture1", .From = {780, 270}, .To = {120, 210}},
    Move{.Names = "Picture2", .From = {9480, 240}, .To = {4465, 210}},
    Move{.Names = "Label1", .From = {2580, 240}, .To = {840, 180}, .Width = 3520},
    Move{.Names = "Label2", .From = {3540, 930}, .To = {840, 750}, .Width = 3520},
    Título("Label3", 780, 120, 1425, 0),
    Celdas("lblZarpis", 780, 120, 1425, 0),
    Título("Label4", 2520, 1635, 3445, 0),
    Celdas("lblNombre", 2520, 1635, 3445, 0),
    Título("Label5", 5040, 120, 1425, 1),
    Celdas("lblPlenos", 5040, 120, 1425, 1),
    Título("Label6", 6570, 1635, 1755, 1),
    Celdas("lblTiempo", 6570, 1635, 1755, 1),
    Título("Label7", 8520, 3480, 1600, 1),
    Celdas("lblFecha", 8520, 3480, 1600, 1),
    Placa("shpAceptar", 2730, 80),
    Botón("cmdAceptar", 2730, 80),
    Placa("shpRestablecer", 4590, 1765),
    Botón("cmdRestablecer", 4590, 1765),
    Placa("shpImprimir", 6510, 3510),
    Botón("cmdImprimir", 6510, 3510),
};
inline constexpr Stacked Cuadro{.Width = 5200, .HeightOf = AltoDeLista, .Moves = DeCuadro};

inline constexpr std::array DeÚltimas = {
    Move{.Names = "Picture1", .From = {90, 360}, .To = {120, 240}},
    Move{.Names = "Picture2", .From = {10680, 360}, .To = {5465, 240}},
    Título("Label1", 90, 100, 850, 0),
    Celdas("lblPalabra", 90, 100, 850, 0),
    Título("Label2", 1200, 1040, 3535, 0),
    Celdas("lblNombre", 1200, 1040, 3535, 0),
    Título("Label7", 9750, 4665, 1435, 0),
    Celdas("lblFecha", 9750, 4665, 1435, 0),
    Título("Label3", 3300, 100, 850, 1),
    Celdas("lblZarpis", 3300, 100, 850, 1),
    Título("Label4", 4410, 1040, 850, 1),
    Celdas("lblPlenos", 4410, 1040, 850, 1),
    Título("Label5", 5520, 1980, 2595, 1),
    Celdas("lblModo", 5520, 1980, 2595, 1),
    Título("Label6", 8220, 4665, 1435, 1),
    Celdas("lblTiempo", 8220, 4665, 1435, 1),
    Placa("shpAceptar", 3540, 1100),
    Botón("cmdAceptar", 3540, 1100),
    Placa("shpImprimir", 6180, 3495),
    Botón("cmdImprimir", 6180, 3495),
};
inline constexpr Stacked Últimas{.Width = 6200, .HeightOf = AltoDeLista, .Moves = DeÚltimas};

}  // namespace juego::verticales
