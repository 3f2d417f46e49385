#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string_view>

#include "platform/Controls.h"

/// The order of a window's elements on a screen that is too small for the designed one. A form that has such an order
/// holds it in Form::Narrow; a platform with small screens asks for it, the others never do.
namespace platform {

/// What the screen has for the client area of a window, in pixels of the platform, and whether fingers are all that the
/// player has to point with.
struct Room {
    int Width = 0;
    int Height = 0;
    bool ByFingers = false;

    bool operator==(const Room&) const = default;
};

/// The smallest letters that are read well, in pixels of the platform.
constexpr double ReadableLetters = 9;

/// Where an element stands, and how many times as large as designed its letters or its picture are.
struct Stand : Place {
    double Scale = 1;

    bool operator==(const Stand&) const = default;
};

/// An order: the size of the client area, in twips, and where each element stands in it.
struct Order {
    int Width = 0;
    int Height = 0;
    std::function<Stand(const Control&)> StandOf;
    bool FillsWidth = true;  ///< false: the window is as large as a designed one
};

/// A point of a client area, in twips.
struct Spot {
    int Left = 0;
    int Top = 0;
};

/// Moves some elements together: what stands at From in the design stands at To.
struct Move {
    std::string_view Names;  ///< divided by blanks; "lblTecla" is a whole array, "lblTecla(5)" one of it, "*" is all
    Spot From;
    Spot To;
    double Scale = 1;   ///< of the elements, their letters, and their distances from From
    double Across = 1;  ///< of the distances to the right of From, besides Scale
    double Down = 1;    ///< of the distances below From, besides Scale
    int Wider = 0;      ///< added to the width
    int Width = 0;      ///< instead of the scaled one; 0: the scaled one
    int Height = 0;
};

/// Whether one of the moves names an element.
bool IsMoved(const Control& control, std::span<const Move> moves);

/// Where an element stands by the first move that names it, counted from `corner`; as designed if none does.
Stand Moved(const Control& control, std::span<const Move> moves, Spot corner = {});

/// The designed place.
Stand AsDesigned(const Control& control);

/// The size of the smallest letters of the labels that are seen, in twips.
double SmallestLetters(const Form& form);

/// The order of a dialog whose elements stand one below the other instead of side by side.
struct Stacked {
    int Width = 0;                   ///< of the client area
    int (*HeightOf)(int) = nullptr;  ///< its height by that of the form; null: the form's
    std::span<const Move> Moves;
    int UpTo = 600;  ///< pixels of width below which the dialog is stacked
};

/// What a form holds in Form::Narrow for such an order. It is used in a room that is higher than wide, and where the
/// designed letters could not be read without moving the window sideways.
std::function<std::optional<Order>(const Room&)> StackedOrder(const Form& form, const Stacked& stacked);

}  // namespace platform
