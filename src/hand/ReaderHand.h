#pragma once

#include "hand/WidgetHand.h"

namespace platform::hand {

/// The hand of a player who knows the windows by what they offer to screen readers alone: he presses elements and fills
/// text boxes that he meets there. Keys, menus and lists are the window's own, which readers leave to the toolkit.
class ReaderHand : public WidgetHand {
public:
    using WidgetHand::Click;
    using WidgetHand::WidgetHand;

    Refusal Click(Control& control) override;
    Refusal Type(TextBox& box, TextView text) override;
};

}  // namespace platform::hand
