#include "hand/ReaderHand.h"

#include <QAccessible>
#include <QCoreApplication>

#include "desktop/values/Strings.h"

namespace platform::hand {

namespace {

/// What a reader meets of an element of its window; null if it does not meet it.
QAccessibleInterface* Met(QWidget* widget) {
    if (widget == nullptr) return nullptr;
    QAccessibleInterface* const client = QAccessible::queryAccessibleInterface(widget->parentWidget());
    for (int i = 0; i < client->childCount(); ++i) {
        if (client->child(i)->object() == widget) return client->child(i);
    }
    return nullptr;
}

}  // namespace

/// What has no name for a reader is pressed with the mouse: it would tell a listener nothing.
Refusal ReaderHand::Click(Control& control) {
    const bool isNamed = control.Click && !SpokenNameOf(control).empty();
    if (!isNamed || control.kind == Kind::TextBox || control.kind == Kind::ListBox || WidgetOf(control) == nullptr) {
        return WidgetHand::Click(control);
    }
    const Deed deed(*this);
    const Refusal refusal = Reach(control);
    if (refusal != Refusal::None) return refusal;
    QAccessibleInterface* const met = Met(WidgetOf(control));
    const QString press = QAccessibleActionInterface::pressAction();
    if (met == nullptr || !met->actionInterface()->actionNames().contains(press)) return Refusal::Hidden;
    met->actionInterface()->doAction(press);
    QCoreApplication::sendPostedEvents(met->object(), QEvent::MetaCall);
    return Refusal::None;
}

Refusal ReaderHand::Type(TextBox& box, TextView text) {
    const Deed deed(*this);
    if (const Refusal refusal = Reach(box); refusal != Refusal::None) return refusal;
    QAccessibleInterface* const met = Met(WidgetOf(box));
    if (met == nullptr || met->state().readOnly) return Refusal::Disabled;
    met->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    met->setText(QAccessible::Value, desktop::ToQt(text));
    return Refusal::None;
}

}  // namespace platform::hand
