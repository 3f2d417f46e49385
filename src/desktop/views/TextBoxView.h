#pragma once

#include <QLineEdit>

#include "desktop/views/View.h"

namespace platform::desktop {

/// The view of a text box. What the player types or pastes is cut to what the box takes before it is seen.
class TextBoxView : public ElementView<TextBox, QLineEdit> {
public:
    TextBoxView(const Toolkit& toolkit, TextBox& element, QWidget& client);

protected:
    void Apply(const TextBoxLook& look) override;
};

}  // namespace platform::desktop
