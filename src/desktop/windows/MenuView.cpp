#include "desktop/windows/MenuView.h"

#include <QMenu>
#include <algorithm>

#include "desktop/values/Strings.h"

namespace platform::desktop {

namespace {

/// The shortcut as a menu shows it: "Ctrl+N", "F5".
QString ShortcutText(const Key& key) {
    if (key.Code == KeyNone) return {};
    const bool function = key.Code >= KeyF1;
    const QString name = function ? QStringLiteral("F%1").arg(key.Code - KeyF1 + 1) : QString(QChar(key.Code));
    return key.Control ? "Ctrl+" + name : name;
}

}  // namespace

QSize BarStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                 const QWidget* widget) const {
    const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
    return type == CT_MenuBarItem ? QSize(own.width(), Height) : own;
}

MenuView::MenuView(Screen& screen, Form& form, QWidget& window)
    : screen_(screen), bar_(*new QMenuBar(&window)), style_(*new BarStyle(bar_)) {
    bar_.setObjectName("menu");
    bar_.setStyle(&style_);
    for (Menu* menu : form.Menus()) AddEntry(*menu);
    Refresh();
}

QMenu* MenuView::MenuOf(const Menu& parent) const {
    const auto entry = std::ranges::find(entries_, &parent, &Entry::menu);
    if (entry->action->menu() == nullptr) entry->action->setMenu(new QMenu(&bar_));
    return entry->action->menu();
}

void MenuView::AddEntry(Menu& menu) {
    auto* const action = new QAction(&bar_);
    action->setObjectName(ToQt(std::string_view(menu.FullName())));
    action->setMenuRole(QAction::NoRole);
    action->setSeparator(menu.Caption == u"-");
    QObject::connect(action, &QAction::triggered, &bar_, [this, &menu, action] {
        action->setChecked(menu.Checked);
        screen_.Click(menu);
    });
    if (menu.Parent == nullptr) {
        bar_.addAction(action);
    } else {
        MenuOf(*menu.Parent)->addAction(action);
    }
    entries_.push_back({&menu, action, std::nullopt});
}

void MenuView::Show(const Entry& entry) {
    const MenuLook& look = *entry.menu;
    const QString shortcut = ShortcutText(look.Shortcut);
    if (entry.action->isSeparator()) return;
    entry.action->setText(ToQt(look.Caption) + (shortcut.isEmpty() ? "" : "\t" + shortcut));
    // Only a checked entry has a box: an empty one would promise that a click checks it.
    entry.action->setCheckable(look.Checked);
    entry.action->setChecked(look.Checked);
    entry.action->setEnabled(look.Enabled);
}

void MenuView::SetPlace(const QRect& place) {
    style_.Height = place.height();
    bar_.setGeometry(place);
}

void MenuView::Refresh() {
    for (Entry& entry : entries_) {
        if (entry.shown == static_cast<const MenuLook&>(*entry.menu)) continue;
        entry.shown = *entry.menu;
        Show(entry);
    }
}

}  // namespace platform::desktop
