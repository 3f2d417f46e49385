#include "desktop/ButtonView.h"

#include "desktop/Colors.h"
#include "desktop/Strings.h"

namespace platform::desktop {

namespace {
constexpr int kMargin = 6;  ///< pixels at factor 1 that a frame takes from a caption, both sides
}

ButtonView::ButtonView(const Toolkit& toolkit, CommandButton& element, QWidget& client)
    : ElementView(toolkit, element, client) {
    TakeFocus(element.TabIndex);
    widget_.setAutoDefault(false);
    QObject::connect(&widget_, &QPushButton::clicked, &widget_, [this] { toolkit_.Screen.Click(element_); });
}

void ButtonView::Apply(const ButtonLook& look) {
    if (!look.BackColor.IsNone()) widget_.setPalette(QPalette(ToQt(look.BackColor)));
    const QString caption = ToQt(look.Caption);
    const QFont font = toolkit_.Scale.Font(look.Font, look.FontSize, look.FontBold);
    widget_.setFont(FittedFont(font, caption, widget_.size() - QSize(toolkit_.Scale.LineWidth(kMargin), 0)));
    widget_.setText(QString(caption).replace('&', "&&"));
    widget_.setDefault(look.Default);
    widget_.setEnabled(look.Enabled);
}

}  // namespace platform::desktop
