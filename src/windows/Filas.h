#pragma once

#include <initializer_list>

#include "game/Estilos.h"
#include "platform/Form.h"

/// The geometry that the two lists of ten rows share. Each list grows by its rows.
namespace juego::filas {

constexpr int Alto = 3285;         ///< of a list without rows
constexpr int TopeBotones = 2070;  ///< of the plates of its buttons; the buttons lie 60 below
constexpr int AltoFila = 510;

/// The heading of a column.
inline LabelLook Cabecera(TextView caption) {
    return Heading(caption, 9.75);
}

/// Place and look of the cell of row k in a column.
inline std::pair<Place, LabelLook> Celda(int left, int width, int k) {
    return {{left, 2040 + AltoFila * (k - 1), width, 375, Hidden},
            ValueBox(u"", FontName::MSSansSerif, 12, true, White)};
}

/// Grows a list by its row k, from 1: the window, the plates and buttons below the table, the cells of the row.
inline void AñadirFila(Form& list, int k, std::initializer_list<CommandButton*> buttons,
                       std::initializer_list<Shape*> plates, std::initializer_list<ControlArray<Label, 10>*> columns) {
    const int top = TopeBotones + AltoFila * k;
    for (CommandButton* button : buttons) button->Top = top + 60;
    for (Shape* plate : plates) plate->Top = top;
    list.Height = Alto + AltoFila * k;
    for (auto* column : columns) (*column)(k).Visible = true;
}

}  // namespace juego::filas
