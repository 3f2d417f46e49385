#include "desktop/ListBoxView.h"

#include <QSignalBlocker>

#include "desktop/Strings.h"

namespace platform::desktop {

ListBoxView::ListBoxView(const Toolkit& toolkit, ListBox& element, QWidget& client)
    : ElementView(toolkit, element, client) {
    TakeFocus(element.TabIndex);
    widget_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    widget_.setTextElideMode(Qt::ElideNone);
    QObject::connect(&widget_, &QListWidget::currentRowChanged, &widget_,
                     [this](int row) { toolkit_.Screen.Select(element_, row); });
}

void ListBoxView::Apply(const ListBoxLook& look) {
    const QSignalBlocker silent(widget_);
    widget_.setFont(toolkit_.Scale.Font(look.Font, look.FontSize, look.FontBold));
    widget_.setEnabled(look.Enabled);
    if (lines_ != look.List) {
        lines_ = look.List;
        widget_.clear();
        for (const Text& line : lines_) widget_.addItem(ToQt(line));
    }
    widget_.setCurrentRow(look.ListIndex);
}

}  // namespace platform::desktop
