#include "desktop/views/ListBoxView.h"

#include <QMouseEvent>
#include <QStyle>
#include <utility>

#include "desktop/values/Strings.h"
#include "desktop/views/TextLines.h"

namespace platform::desktop {

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
    widget_.setUniformItemSizes(true);
    widget_.OnChoice = [this](int line) {
        toolkit_.Screen.Select(element_, line);
        widget_.setCurrentRow(element_.ListIndex);  // the form may have had another line in mind
    };
}

void ListBoxView::Apply(const ListBoxLook& look) {
    widget_.setEnabled(look.Enabled);
    if (lines_ != look.List) SetLines(look.List);
    SetRows(toolkit_.Scale.Font(look.Font, look.FontSize, look.FontBold));
    widget_.setCurrentRow(look.ListIndex);
}

void ListBoxView::SetLines(const std::vector<Text>& lines) {
    lines_ = lines;
    widget_.clear();
    for (const Text& line : lines_) widget_.addItem(ToQt(line));
}

/// As many rows as lines of this font fit, none of them cut.
void ListBoxView::SetRows(const QFont& font) {
    constexpr int kMargin = 3;  ///< pixels that the style keeps free at both ends of a line, and one
    const QSize inner = widget_.size() - 2 * QSize(widget_.frameWidth(), widget_.frameWidth());
    const int rows = qMax(1, inner.height() / QFontMetrics(font).height());
    const bool scrolls = rows < static_cast<int>(lines_.size());
    const int bar = scrolls ? widget_.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget_) : 0;
    const QSize row(inner.width() - bar, inner.height() / rows);
    QFont fitted = font;
    for (int i = 0; i < widget_.count(); ++i) {
        fitted = FittedFont(fitted, widget_.item(i)->text(), row - QSize(2 * kMargin, 0));
        widget_.item(i)->setSizeHint(row);
    }
    widget_.setFont(fitted);
}

}  // namespace platform::desktop
