#include "platform/desktop/ButtonView.h"

#include "platform/desktop/Colors.h"
#include "platform/desktop/Strings.h"

namespace platform::desktop {

ButtonView::ButtonView(const Toolkit& toolkit, CommandButton& element, QWidget& client)
    : ElementView(toolkit, element, client) {
    TakeFocus(element.TabIndex);
    widget_.setAutoDefault(false);
    QObject::connect(&widget_, &QPushButton::clicked, &widget_, [this] { toolkit_.Screen.Click(element_); });
}

void ButtonView::Apply(const ButtonLook& look) {
    if (!look.BackColor.IsNone()) widget_.setPalette(QPalette(ToQt(look.BackColor)));
    widget_.setFont(toolkit_.Scale.Font(look.Font, look.FontSize, look.FontBold));
    widget_.setText(ToQt(look.Caption).replace('&', "&&"));
    widget_.setDefault(look.Default);
    widget_.setEnabled(look.Enabled);
}

}  // namespace platform::desktop
