#pragma once

#include "platform/Controls.h"

/// The colours and looks that the windows of the game share.
namespace juego {

using namespace platform;  // the vocabulary of the elements

constexpr Color Navy{0x000080};
constexpr Color Blue{0x0000FF};
constexpr Color Green{0x00FF00};
constexpr Color DarkGreen{0x00C000};
constexpr Color Olive{0x808000};
constexpr Color DarkRed{0x800000};
constexpr Color Red{0xFF0000};
constexpr Color Yellow{0xFFFF00};
constexpr Color Cream{0xFFFFC0};

/// White on dark blue: the headings.
inline LabelLook Heading(TextView caption, double size) {
    return {.Caption = Text(caption), .BackColor = Navy, .ForeColor = White, .FontSize = size, .FontBold = true};
}

/// The name of a field in a dialog, before its value.
inline LabelLook FieldName(TextView caption) {
    return {.Caption = Text(caption), .FontSize = 9.75, .FontBold = true};
}

/// A value in a framed box; green unless told otherwise.
inline LabelLook ValueBox(TextView caption, FontName font, double size, bool bold, Color back = Green,
                          Color fore = Black) {
    return {.Caption = Text(caption),
            .BackColor = back,
            .ForeColor = fore,
            .Font = font,
            .FontSize = size,
            .FontBold = bold,
            .BorderStyle = 1};
}

/// The plate on which a button of a dialog lies.
inline ShapeLook ButtonPlate() {
    return {.FillColor = DarkGreen};
}

/// A button on such a plate.
inline ButtonLook PlateButton(TextView caption, int tabIndex, double size = 9) {
    return {.Caption = Text(caption),
            .BackColor = DarkGreen,
            .Font = FontName::Arial,
            .FontSize = size,
            .FontBold = true,
            .TabIndex = tabIndex};
}

/// The button that Enter presses, and the one that Esc presses.
inline ButtonLook DefaultButton(TextView caption, int tabIndex) {
    ButtonLook look = PlateButton(caption, tabIndex);
    look.Default = true;
    return look;
}
inline ButtonLook CancelButton(int tabIndex) {
    ButtonLook look = PlateButton(u"CANCELAR", tabIndex);
    look.Cancel = true;
    return look;
}

/// The button that closes a dialog, by Enter and by Esc too.
inline ButtonLook AcceptButton(int tabIndex = 1) {
    ButtonLook look = DefaultButton(u"ACEPTAR", tabIndex);
    look.Cancel = true;
    return look;
}

/// The small figure of the hero, 37 by 60 pixels.
inline PictureLook SmallZarpi() {
    return {.Stored = "small"};
}

}  // namespace juego
