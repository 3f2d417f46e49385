#pragma once

#include <QListWidget>
#include <functional>

#include "desktop/views/View.h"

namespace platform::desktop {

/// A list that tells which line the player has clicked, be it selected already. Its keys are the screen's.
class ListWidget : public QListWidget {
public:
    using QListWidget::QListWidget;

    std::function<void(int line)> OnChoice;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool pressed_ = false;
};

/// The view of a list box. It shows whole rows, and each line whole: where one of them is too long, the letters of all
/// are smaller.
class ListBoxView : public ElementView<ListBox, ListWidget> {
public:
    ListBoxView(const Toolkit& toolkit, ListBox& element, QWidget& client);

protected:
    void Apply(const ListBoxLook& look) override;

private:
    void SetLines(const std::vector<Text>& lines);
    void SetRows(const QFont& font);

    std::vector<Text> lines_;
};

}  // namespace platform::desktop
