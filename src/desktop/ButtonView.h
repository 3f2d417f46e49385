#pragma once

#include <QPushButton>

#include "desktop/View.h"

namespace platform::desktop {

/// The view of a button. Keys reach it by the rules of the screen alone, never by Qt's own.
class ButtonView : public ElementView<CommandButton, QPushButton> {
public:
    ButtonView(const Toolkit& toolkit, CommandButton& element, QWidget& client);

protected:
    void Apply(const ButtonLook& look) override;
};

}  // namespace platform::desktop
