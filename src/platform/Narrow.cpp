#include "platform/Narrow.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/Form.h"

namespace platform {

namespace {

constexpr double kTwipsPerPoint = 20;

int Rounded(double length) {
    return static_cast<int>(std::lround(length));
}

bool IsNamed(std::string_view names, const Control& control) {
    while (!names.empty()) {
        const std::string_view name = names.substr(0, names.find(' '));
        if (name == "*" || name == control.Name) return true;
        if (name.ends_with(')') && name == control.FullName()) return true;
        names.remove_prefix(std::min(names.size(), name.size() + 1));
    }
    return false;
}

std::span<const Move>::iterator MoveOf(const Control& control, std::span<const Move> moves) {
    return std::ranges::find_if(moves, [&](const Move& move) { return IsNamed(move.Names, control); });
}

}  // namespace

bool IsMoved(const Control& control, std::span<const Move> moves) {
    return MoveOf(control, moves) != moves.end();
}

Stand AsDesigned(const Control& control) {
    return {static_cast<const Place&>(control), 1};
}

Stand Moved(const Control& control, std::span<const Move> moves, Spot corner) {
    const auto move = MoveOf(control, moves);
    if (move == moves.end()) return AsDesigned(control);
    const auto& [names, from, to, scale, across, down, wider, width, height] = *move;
    return {Place{.Left = corner.Left + to.Left + Rounded((control.Left - from.Left) * scale * across),
                  .Top = corner.Top + to.Top + Rounded((control.Top - from.Top) * scale * down),
                  .Width = width != 0 ? width : Rounded(control.Width * scale) + wider,
                  .Height = height != 0 ? height : Rounded(control.Height * scale),
                  .Visible = control.Visible},
            scale};
}

double SmallestLetters(const Form& form) {
    double least = std::numeric_limits<double>::max();
    for (const Control* control : form.Controls()) {
        if (control->kind != Kind::Label || !control->Visible) continue;
        least = std::min(least, static_cast<const Label&>(*control).FontSize * kTwipsPerPoint);
    }
    return least;
}

std::function<std::optional<Order>(const Room&)> StackedOrder(const Form& form, const Stacked& stacked) {
    return [&form, stacked](const Room& room) -> std::optional<Order> {
        const bool isUpright = room.Width <= room.Height;
        const bool isRead = SmallestLetters(form) * room.Width >= ReadableLetters * form.Width;
        if (room.Width >= stacked.UpTo || (!isUpright && isRead)) return std::nullopt;
        return Order{.Width = stacked.Width,
                     .Height = stacked.HeightOf == nullptr ? form.Height : stacked.HeightOf(form.Height),
                     .StandOf = [moves = stacked.Moves](const Control& control) { return Moved(control, moves); }};
    };
}

}  // namespace platform
