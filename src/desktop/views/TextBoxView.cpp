#include "desktop/views/TextBoxView.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QValidator>
#include <algorithm>

#include "desktop/values/Colors.h"
#include "desktop/values/Strings.h"

namespace platform::desktop {

namespace {

/// Hands the clicks on a text box on to its element; the text box has them as well.
class BoxClicks : public QObject {
public:
    BoxClicks(QLineEdit& edit, Screen& screen, TextBox& element) : QObject(&edit), screen_(screen), element_(element) {
        edit.installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonRelease) return false;
        const auto& release = static_cast<const QMouseEvent&>(*event);
        const bool inside = static_cast<QWidget*>(receiver)->rect().contains(release.position().toPoint());
        if (release.button() == Qt::LeftButton && inside) screen_.Click(element_);
        return false;
    }

private:
    Screen& screen_;
    TextBox& element_;
};

/// Takes out of a text what its box refuses. Of a text too long, what was entered last goes, not the end.
class BoxValidator : public QValidator {
public:
    BoxValidator(const TextBox& box, QObject* owner) : QValidator(owner), box_(box) {}

    State validate(QString& input, int& cursor) const override {
        input.replace('\n', ' ');
        const QString before = Known(input.left(cursor));
        input = before + Known(input.mid(cursor));
        const qsizetype excess = box_.MaxLength == 0 ? 0 : std::max<qsizetype>(0, input.size() - box_.MaxLength);
        const qsizetype start = std::max<qsizetype>(0, before.size() - excess);
        input.remove(start, before.size() - start);
        input = ToQt(Screen::Acceptable(box_, FromQt(input)));
        cursor = static_cast<int>(start);
        return Acceptable;
    }

private:
    static QString Known(const QString& text) {
        Text known = FromQt(text);
        std::erase_if(known, [](char16_t c) { return c < u' ' || !ToWindows1252(c); });
        return ToQt(known);
    }

    const TextBox& box_;
};

}  // namespace

TextBoxView::TextBoxView(const Toolkit& toolkit, TextBox& element, QWidget& client)
    : ElementView(toolkit, element, client) {
    TakeFocus(element.TabIndex);
    new BoxClicks(widget_, toolkit.Screen, element);
    widget_.setValidator(new BoxValidator(element, &widget_));
    if (element.Password) widget_.setStyleSheet("lineedit-password-character: 42");  // "*"
    // Also what a reader or a dictation puts into the box, which is no editing for the toolkit.
    QObject::connect(&widget_, &QLineEdit::textChanged, &widget_,
                     [this](const QString& text) { toolkit_.Screen.Type(element_, FromQt(text)); });
}

void TextBoxView::Apply(const TextBoxLook& look) {
    const Ink ink = Shown({look.BackColor, look.ForeColor});
    QPalette palette = widget_.palette();
    palette.setColor(QPalette::Base, ToQt(ink.Ground));
    palette.setColor(QPalette::Text, ToQt(ink.Letters));
    widget_.setPalette(palette);
    widget_.setFont(toolkit_.Scale.Font(look.Font, look.FontSize, look.FontBold));
    widget_.setAlignment(Qt::AlignVCenter | (look.Align == Alignment::Centre ? Qt::AlignHCenter : Qt::AlignLeft));
    widget_.setEchoMode(look.Password ? QLineEdit::Password : QLineEdit::Normal);
    widget_.setReadOnly(look.Locked);
    // What cannot be changed looks like a text, not like a box to type in.
    widget_.setFrame(!look.Locked);
    widget_.setCursor(look.Locked ? Qt::ArrowCursor : Qt::IBeamCursor);
    widget_.setEnabled(look.Enabled);
    const QString text = ToQt(look.Text);
    const QSignalBlocker silent(widget_);
    if (text != widget_.text()) widget_.setText(text);
}

}  // namespace platform::desktop
