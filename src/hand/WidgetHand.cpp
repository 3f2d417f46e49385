#include "hand/WidgetHand.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <array>

#include "desktop/values/Strings.h"
#include "hand/Widgets.h"

namespace platform::hand {

namespace {

using desktop::FormWindow;

/// Whether `owner` is the window over which `window` stands, or one further behind.
bool IsBehind(const QWidget& owner, const QWidget& window) {
    const QWidget* behind = window.parentWidget();
    while (behind != nullptr && behind != &owner) behind = behind->parentWidget();
    return behind != nullptr;
}

/// Whether a modal window keeps input from `window`.
bool IsBlocked(const QWidget& window) {
    return std::ranges::any_of(QApplication::topLevelWidgets(), [&window](const QWidget* other) {
        return other->isVisible() && other->isModal() && other != &window && !IsBehind(*other, window);
    });
}

/// A place of a widget where nothing lies over it; its middle if there is none.
QPoint FreeSpot(const QWidget& widget) {
    constexpr int kSteps = 8;
    const QWidget& window = *widget.window();
    const QPoint middle = widget.rect().center();
    const auto free = [&](QPoint spot) { return window.childAt(widget.mapTo(&window, spot)) == &widget; };
    if (free(middle)) return middle;
    for (int row = 0; row < kSteps; ++row) {
        for (int column = 0; column < kSteps; ++column) {
            const QPoint spot(widget.width() * column / kSteps, widget.height() * row / kSteps);
            if (free(spot)) return spot;
        }
    }
    return middle;
}

void ClickAt(QWidget& widget, QPoint spot) {
    QWidget& window = *widget.window();
    const QPoint place = widget.mapTo(&window, spot);
    if (window.childAt(place) == &widget) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    } else {
        QTest::mouseClick(&widget, Qt::LeftButton, {}, spot);
    }
}

/// Clicks at the end of the text, where a player goes on writing.
QPoint EndOf(const QLineEdit& edit) {
    constexpr int kBorder = 4;
    return {edit.width() - kBorder, edit.height() / 2};
}

struct KeyRow {
    int code;
    Qt::Key key;
    const char* text;
};
constexpr std::array<KeyRow, 13> kKeys = {{
    {KeyTab, Qt::Key_Tab, "\t"},
    {KeyBacktab, Qt::Key_Backtab, "\t"},
    {KeyHome, Qt::Key_Home, ""},
    {KeyEnd, Qt::Key_End, ""},
    {KeyPageUp, Qt::Key_PageUp, ""},
    {KeyPageDown, Qt::Key_PageDown, ""},
    {KeyEnter, Qt::Key_Return, "\r"},
    {KeyEscape, Qt::Key_Escape, "\x1B"},
    {KeySpace, Qt::Key_Space, " "},
    {KeyLeft, Qt::Key_Left, ""},
    {KeyUp, Qt::Key_Up, ""},
    {KeyRight, Qt::Key_Right, ""},
    {KeyDown, Qt::Key_Down, ""},
}};

/// The press of a key as a keyboard makes it.
struct KeyPress {
    Qt::Key key;
    QString text;
    Qt::KeyboardModifiers modifiers;
};

KeyPress PressOf(const Key& key) {
    if (key.Control) return {static_cast<Qt::Key>(key.Code), QString(QChar(key.Character)), Qt::ControlModifier};
    const auto* row = std::ranges::find(kKeys, key.Code, &KeyRow::code);
    if (row != kKeys.end()) return {row->key, row->text, Qt::NoModifier};
    if (key.Character == 0) return {static_cast<Qt::Key>(Qt::Key_F1 + key.Code - KeyF1), {}, Qt::NoModifier};
    const QChar character(key.Character);
    const bool shifted = character.isUpper();
    return {static_cast<Qt::Key>(character.toUpper().unicode()), QString(character),
            shifted ? Qt::ShiftModifier : Qt::NoModifier};
}

}  // namespace

WidgetHand::Deed::Deed(WidgetHand& hand) : hand_(hand) {
    if (hand_.depth_ == 0) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Settle(hand_.display_);
    ++hand_.depth_;
}

QWidget* WidgetHand::WidgetOf(const Control& control) const {
    return FindWidget(display_, control);
}

/// Whether the window takes input. Where window and screen both refuse, the answer is that of the screen.
Refusal WidgetHand::Reach(const Form& form) const {
    const FormWindow* const window = display_.WindowOf(form);
    Refusal seen = Refusal::None;
    if (window == nullptr || !window->isVisible()) {
        seen = Refusal::Closed;
    } else if (IsBlocked(*window)) {
        seen = Refusal::Blocked;
    }
    const Refusal state = screen_.Reach(form);
    return state == Refusal::None || seen == Refusal::None ? seen : state;
}

Refusal WidgetHand::Reach(const Control& control) const {
    if (const Refusal refusal = Reach(control.Owner); refusal != Refusal::None) return refusal;
    if (control.kind == Kind::Menu) {
        return FindAction(display_, control)->isEnabled() ? Refusal::None : Refusal::Disabled;
    }
    const QWidget* const widget = WidgetOf(control);
    if (widget == nullptr) return screen_.Reach(control);
    if (!widget->isVisible()) return Refusal::Hidden;
    return widget->isEnabled() ? Refusal::None : Refusal::Disabled;
}

Refusal WidgetHand::Click(Control& control) {
    const Deed deed(*this);
    if (const Refusal refusal = Reach(control); refusal != Refusal::None) return refusal;
    const Refusal state = screen_.Reach(control);
    QWidget* const widget = WidgetOf(control);
    if (control.kind == Kind::Menu) {
        ClickEntry(static_cast<Menu&>(control));
    } else if (widget == nullptr) {
        // A timer, or a button that only its key reaches.
        return screen_.Click(control);
    } else if (const auto* edit = dynamic_cast<QLineEdit*>(widget)) {
        ClickAt(*widget, EndOf(*edit));
    } else {
        ClickAt(*widget, FreeSpot(*widget));
    }
    return state;
}

/// Opens the menu and clicks the entry in it; then closes the menu, if the click has not.
void WidgetHand::ClickEntry(Menu& entry) {
    QAction* const opener = FindAction(display_, entry.Parent == nullptr ? entry : *entry.Parent);
    auto* const bar = display_.WindowOf(entry.Owner)->findChild<QMenuBar*>();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(opener).center());
    QMenu* const menu = opener->menu();
    if (entry.Parent != nullptr) {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(FindAction(display_, entry)).center());
    }
    while (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
    // A window system without a screen takes the menu for the active window, closed as it is.
    QCoreApplication::processEvents();
    if (dynamic_cast<QMenu*>(QApplication::activeWindow()) != nullptr) display_.FrontWindow()->activateWindow();
}

Refusal WidgetHand::Click(Form& form) {
    const Deed deed(*this);
    if (const Refusal refusal = Reach(form); refusal != Refusal::None) return refusal;
    const Refusal state = screen_.Reach(form);
    desktop::Client& client = display_.WindowOf(form)->ClientArea();
    ClickAt(client, FreeSpot(client));
    return state;
}

/// Sends a key event as a window system does that tells when it was.
void WidgetHand::SendKey(QEvent::Type type, const Key& key) {
    const KeyPress press = PressOf(key);
    QKeyEvent event(type, press.key, press.modifiers, press.text);
    event.setTimestamp(keyTime_);
    if (const FormWindow* const front = display_.FrontWindow()) {
        QCoreApplication::sendEvent(front->windowHandle(), &event);
    }
}

/// A repetition is told as a release and a press at one time, and is not flagged.
void WidgetHand::Strike(const Key& key) {
    ++keyTime_;
    if (key.Repeated) SendKey(QEvent::KeyRelease, key);
    SendKey(QEvent::KeyPress, key);
    ++keyTime_;
    if (!key.Repeated) SendKey(QEvent::KeyRelease, key);
}

Refusal WidgetHand::Press(const Key& key) {
    const Deed deed(*this);
    const Form* const front = screen_.Front();
    const Refusal refusal = front == nullptr ? Refusal::Closed : Reach(*front);
    if (refusal != Refusal::None) return refusal;
    const Refusal state = screen_.Reach(*front);
    if (auto* const edit = dynamic_cast<QLineEdit*>(QApplication::focusWidget());
        edit != nullptr && key.Character != 0) {
        edit->end(false);
    }
    Strike(key);
    return state;
}

Refusal WidgetHand::Type(TextBox& box, TextView text) {
    const Deed deed(*this);
    if (const Refusal refusal = Reach(box); refusal != Refusal::None) return refusal;
    auto& edit = static_cast<QLineEdit&>(*WidgetOf(box));
    if (edit.isReadOnly()) return Refusal::Disabled;
    edit.setFocus();
    edit.selectAll();
    if (text.empty()) QTest::keyClick(&edit, Qt::Key_Delete);
    for (const char16_t character : text) Strike(KeyOf(character));
    return Refusal::None;
}

Refusal WidgetHand::Select(ListBox& list, int index) {
    const Deed deed(*this);
    if (const Refusal refusal = Reach(list); refusal != Refusal::None) return refusal;
    auto& widget = static_cast<QListWidget&>(*WidgetOf(list));
    const QListWidgetItem* const line = widget.item(index);
    if (line == nullptr) return Refusal::None;
    widget.scrollToItem(line);
    ClickAt(*widget.viewport(), widget.visualItemRect(line).center());
    return Refusal::None;
}

Refusal WidgetHand::Close() {
    const Deed deed(*this);
    const Form* const front = screen_.Front();
    const Refusal refusal = front == nullptr ? Refusal::Closed : Reach(*front);
    if (refusal != Refusal::None) return refusal;
    const Refusal state = screen_.Reach(*front);
    display_.WindowOf(*front)->windowHandle()->close();
    return state;
}

}  // namespace platform::hand
