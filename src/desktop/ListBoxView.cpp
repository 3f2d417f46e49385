#include "desktop/ListBoxView.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <utility>

#include "desktop/Strings.h"

namespace platform::desktop {

ListWidget::ListWidget(QWidget* client) : QListWidget(client) {
    QObject::connect(this, &QListWidget::currentRowChanged, this, [this](int line) {
        if (!pressed_ && OnChoice) OnChoice(line);
    });
}

// While the button is down the selection follows the mouse; where it is let go is the choice.
void ListWidget::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    QListWidget::mousePressEvent(event);
}

void ListWidget::mouseReleaseEvent(QMouseEvent* event) {
    QListWidget::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false)) return;
    if (OnChoice && currentRow() >= 0) OnChoice(currentRow());
}

ListBoxView::ListBoxView(const Toolkit& toolkit, ListBox& element, QWidget& client)
    : ElementView(toolkit, element, client) {
    TakeFocus(element.TabIndex);
    widget_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    widget_.setTextElideMode(Qt::ElideNone);
    widget_.OnChoice = [this](int line) {
        toolkit_.Screen.Select(element_, line);
        // The form may have had another line in mind.
        const QSignalBlocker silent(widget_);
        widget_.setCurrentRow(element_.ListIndex);
    };
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
