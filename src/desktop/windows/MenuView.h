#pragma once

#include <QAction>
#include <QMenuBar>
#include <QProxyStyle>
#include <optional>
#include <vector>

#include "platform/Screen.h"

namespace platform::desktop {

/// The look of a menu bar whose entries fill it, however high it is.
class BarStyle : public QProxyStyle {
public:
    /// The bar that it belongs to.
    explicit BarStyle(QMenuBar& bar) : QProxyStyle("fusion") { setParent(&bar); }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;

    int Height = 0;  ///< pixels
};

/// The menu bar of a form. Shortcuts are shown and not taken: keys go by the rules of the screen. Check marks show the
/// state of the entries and never change by a click.
class MenuView {
public:
    /// The bar and its menus belong to `window`.
    MenuView(Screen& screen, Form& form, QWidget& window);

    /// Shows what has changed since the last time.
    void Refresh();
    [[nodiscard]] QMenuBar& Bar() const { return bar_; }
    /// Gives the bar its place in its window, in pixels.
    void SetPlace(const QRect& place);

private:
    struct Entry {
        const Menu* menu;
        QAction* action;
        std::optional<MenuLook> shown;
    };
    void AddEntry(Menu& menu);
    [[nodiscard]] QMenu* MenuOf(const Menu& parent) const;
    static void Show(const Entry& entry);

    Screen& screen_;
    QMenuBar& bar_;
    BarStyle& style_;
    std::vector<Entry> entries_;
};

}  // namespace platform::desktop
