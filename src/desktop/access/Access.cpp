#include "desktop/access/Access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLineEdit>
#include <QListWidget>
#include <algorithm>

#include "desktop/values/Strings.h"
#include "desktop/windows/FormWindow.h"

namespace platform::desktop {

namespace {

const FormWindow& WindowOf(const QWidget& widget) {
    return static_cast<const FormWindow&>(*widget.window());
}

/// A window under its spoken title. Of a dialog a reader would say all texts itself, in an order of its own, and then
/// hear them from the game; of this role it says the title alone.
class WindowAccess : public QAccessibleWidget {
public:
    explicit WindowAccess(QWidget& window) : QAccessibleWidget(&window, QAccessible::Window) {}

    [[nodiscard]] QString text(QAccessible::Text text) const override {
        return text == QAccessible::Name ? ToQt(WindowOf(*widget()).SpokenTitle()) : QAccessibleWidget::text(text);
    }
};

/// The client area, with the elements that are seen and have a name. Of a pane a reader says that it is one, and all
/// its texts, whenever it gets the focus; of this role it says nothing.
class ClientAccess : public QAccessibleWidget {
public:
    explicit ClientAccess(Client& client) : QAccessibleWidget(&client, QAccessible::Client) {}

    [[nodiscard]] int childCount() const override { return static_cast<int>(Spoken().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        const std::vector<View*> spoken = Spoken();
        const bool isThere = index >= 0 && index < static_cast<int>(spoken.size());
        return isThere ? Of(spoken.at(static_cast<std::size_t>(index))) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const std::vector<View*> spoken = Spoken();
        const auto found = std::ranges::find(spoken, child->object(), [](View* view) { return &view->Widget(); });
        return found == spoken.end() ? -1 : static_cast<int>(found - spoken.begin());
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        for (const View* view : Spoken()) {
            QAccessibleInterface* const child = Of(view);
            if (child->rect().contains(x, y)) return child;
        }
        return nullptr;
    }
    [[nodiscard]] QAccessibleInterface* focusChild() const override {
        const View* const here = WindowOf(*widget()).Here().Here();
        return here != nullptr ? Of(here) : QAccessibleWidget::focusChild();
    }

private:
    [[nodiscard]] std::vector<View*> Spoken() const { return WindowOf(*widget()).Elements().Spoken(); }
    static QAccessibleInterface* Of(const View* view) { return QAccessible::queryAccessibleInterface(&view->Widget()); }
};

/// An element under the name that the game gives it.
class ElementAccess : public QAccessibleWidget {
public:
    ElementAccess(View& view, QAccessible::Role role) : QAccessibleWidget(&view.Widget(), role), view_(view) {}

    [[nodiscard]] QString text(QAccessible::Text text) const override {
        if (text == QAccessible::Name) return ToQt(SpokenNameOf(view_.Element()));
        // The name that the game gives an element says what its tool tip says.
        const bool isSaid = text == QAccessible::Description && view_.Element().SpokenName;
        return isSaid ? QString() : QAccessibleWidget::text(text);
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (WindowOf(*widget()).Here().Here() == &view_) state.focused = true;
        if (view_.Element().Click) state.focusable = true;
        return state;
    }
    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (view_.Element().Click) names.prepend(pressAction());
        return names;
    }
    /// The press comes after the answer to the reader, which would wait as long as a dialog that it opens stays.
    void doAction(const QString& action) override {
        if (action != pressAction()) return QAccessibleWidget::doAction(action);
        QMetaObject::invokeMethod(
            widget(), [view = &view_] { view->Press(); }, Qt::QueuedConnection);
    }

private:
    View& view_;  // lives as long as its widget: both are the window's
};

/// Text boxes and lists have the toolkit's own; their names do not change.
QAccessibleInterface* MakeAccess(const QString& /*className*/, QObject* object) {
    auto* const widget = dynamic_cast<QWidget*>(object);
    if (widget == nullptr || dynamic_cast<const FormWindow*>(widget->window()) == nullptr) return nullptr;
    if (widget->isWindow()) return new WindowAccess(*widget);
    if (auto* const client = dynamic_cast<Client*>(widget)) return new ClientAccess(*client);
    View* const view = WindowOf(*widget).Elements().Of(widget);
    if (view == nullptr) return nullptr;
    const Control& element = view->Element();
    if (element.kind == Kind::TextBox || element.kind == Kind::ListBox) return nullptr;
    return new ElementAccess(*view, element.Click ? QAccessible::Button : QAccessible::StaticText);
}

}  // namespace

void InstallAccess() {
    QAccessible::installFactory(MakeAccess);
}

}  // namespace platform::desktop
