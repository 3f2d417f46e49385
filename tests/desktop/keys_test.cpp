#include "desktop/keys/Keys.h"

#include <QInputMethodEvent>
#include <QWindow>
#include <gtest/gtest.h>

#include "Rig.h"
#include "desktop/keys/Repetitions.h"

namespace platform::desktop {
namespace {

constexpr Qt::KeyboardModifiers kAltGr = Qt::ControlModifier | Qt::AltModifier;

struct PressRow {
    int key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    std::optional<Key> read;
};

TEST(Keys, EveryPressIsOneKey) {
    const std::vector<PressRow> rows = {
        {Qt::Key_A, Qt::NoModifier, "a", Key{'A', u'a'}},
        {Qt::Key_Ntilde, Qt::ShiftModifier, "Ñ", Key{0xD1, u'Ñ'}},
        {Qt::Key_J, Qt::AltModifier, "j", Key{}},
        {Qt::Key_A, Qt::MetaModifier, "a", Key{}},
        {Qt::Key_N, Qt::ControlModifier, "\x0E", ControlKey('N')},
        {Qt::Key_N, Qt::ControlModifier, "", ControlKey('N')},
        {Qt::Key_2, kAltGr, "@", Key{KeyNone, u'@'}},
        {Qt::Key_N, kAltGr, "\x0E", Key{}},
        {Qt::Key_Left, Qt::NoModifier, "", PlainKey(KeyLeft)},
        {Qt::Key_F5, Qt::NoModifier, "", PlainKey(KeyF5)},
        {Qt::Key_Enter, Qt::KeypadModifier, "\r", Key{KeyEnter, u'\r'}},
        {Qt::Key_Delete, Qt::NoModifier, "\x7F", Key{KeyNone, 0}},
        {Qt::Key_Shift, Qt::ShiftModifier, "", Key{KeyNone, 0}},
    };
    for (const PressRow& row : rows) {
        KeyReader reader;
        const QKeyEvent press(QEvent::KeyPress, row.key, row.modifiers, QString::fromUtf8(row.text));
        EXPECT_EQ(reader.Read(press), row.read) << row.key << " " << row.text;
    }
}

TEST(Keys, AccentWaitsForItsLetter) {
    struct Row {
        int accent;
        const char* letter;
        std::optional<Key> read;
    };
    const std::vector<Row> rows = {{Qt::Key_Dead_Acute, "a", Key{KeyNone, u'á'}},
                                   {Qt::Key_Dead_Diaeresis, "U", Key{KeyNone, u'Ü'}},
                                   {Qt::Key_Dead_Tilde, "n", Key{0xD1, u'ñ'}},
                                   {Qt::Key_Dead_Acute, "b", std::nullopt},
                                   {Qt::Key_Dead_Acute, "\x1B", Key{KeyEscape, 27}}};
    for (const Row& row : rows) {
        KeyReader reader;
        const int code = row.letter[0] == 27 ? int{Qt::Key_Escape} : QChar(row.letter[0]).toUpper().unicode();
        EXPECT_EQ(reader.Read(QKeyEvent(QEvent::KeyPress, row.accent, Qt::NoModifier, "")), std::nullopt);
        EXPECT_EQ(reader.Read(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier, "")), (Key{}));
        EXPECT_EQ(reader.Read(QKeyEvent(QEvent::KeyPress, code, Qt::NoModifier, row.letter)), row.read) << row.letter;
        EXPECT_EQ(reader.Read(QKeyEvent(QEvent::KeyPress, Qt::Key_E, Qt::NoModifier, "e")), (Key{'E', u'e'}));
    }
}

/// What a form without a text box gets to read, by way of its window.
struct KeysInWindow : testing::Test {
    KeysInWindow() {
        form.txtName.Visible = false;
        rig.screen.Show(form);
        form.txtName.Visible = form.lstGames.Visible = false;
        form.SetFocus(form.lblFront);
        rig.display.Refresh();
    }
    QWidget& Client() { return rig.Widget(form); }

    Rig rig;
    Sample form;
};

TEST_F(KeysInWindow, AnAccentedVowelIsOneCharacter) {
    for (const auto& [key, text] : {std::pair(Qt::Key_Dead_Acute, ""), std::pair(Qt::Key_A, "a")}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&Client(), &press);
    }
    QInputMethodEvent commit;
    commit.setCommitString("áñ");
    QCoreApplication::sendEvent(&Client(), &commit);
    EXPECT_EQ(form.Typed, (std::vector<int>{0xE1, 0xE1, 0xF1}));
    EXPECT_TRUE(Client().testAttribute(Qt::WA_InputMethodEnabled));
}

TEST_F(KeysInWindow, AKeyHeldDownIsOnePress) {
    std::vector<int> codes;
    form.OnKeyDown = [&codes](int code) { codes.push_back(code); };
    const auto hold = [](QWidget& widget, int key, const char* text) {
        for (const bool repeats : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text, repeats);
            QCoreApplication::sendEvent(&widget, &press);
        }
    };
    hold(Client(), Qt::Key_A, "a");
    hold(Client(), Qt::Key_Return, "\r");
    hold(Client(), Qt::Key_Left, "");
    EXPECT_EQ(form.Typed, (std::vector<int>{'a', '\r'}));
    EXPECT_EQ(codes, (std::vector<int>{'A', KeyEnter, KeyLeft, KeyLeft, KeyLeft}));

    form.txtName.Visible = true;
    form.KeyPreview = false;
    rig.display.Refresh();
    hold(rig.Widget(form, "txtName"), Qt::Key_B, "b");
    EXPECT_EQ(form.txtName.Text, u"bbb");
}

TEST_F(KeysInWindow, AKeyForAWindowThatHasGoneReachesNoOther) {
    Sample dialog("Dialog");
    rig.screen.Show(dialog);
    QWidget& gone = rig.Widget(dialog);
    rig.screen.Hide(dialog);
    QTest::sendKeyEvent(QTest::Press, &gone, Qt::Key_X, u'x', Qt::NoModifier);
    EXPECT_TRUE(form.Typed.empty());
    EXPECT_TRUE(dialog.Typed.empty());
}

TEST_F(KeysInWindow, MenusAndShortcutsAreNoLetters) {
    int started = 0;
    form.mnuNew.Click = form.mnuSave.Click = [&started] { ++started; };
    QTest::keyClick(&Client(), Qt::Key_X, Qt::AltModifier);
    QTest::keyClick(&Client(), Qt::Key_N, Qt::ControlModifier);
    QTest::keyClick(&Client(), Qt::Key_G, Qt::ControlModifier);  // a disabled entry
    EXPECT_EQ(started, 1);
    EXPECT_TRUE(form.Typed.empty());
}

/// Notes of each press that reaches it whether it is a repetition.
struct Presses : QObject {
    bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) repeated.push_back(static_cast<QKeyEvent&>(*event).isAutoRepeat());
        return false;
    }
    std::vector<bool> repeated;
};

TEST(Repetitions, WhatTheSystemFlagsWronglyIsSentAnew) {
    const Repetitions repetitions;
    Presses presses;
    QWidget widget;
    widget.winId();
    widget.windowHandle()->installEventFilter(&presses);
    const auto send = [&widget](QEvent::Type type, quint64 time, bool isFlagged) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, "\r", isFlagged);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(widget.windowHandle(), &event);
    };
    send(QEvent::KeyPress, 100, false);
    send(QEvent::KeyPress, 600, true);
    send(QEvent::KeyRelease, 630, false);
    send(QEvent::KeyPress, 630, false);
    send(QEvent::KeyPress, 3000, true);
    EXPECT_EQ(presses.repeated, (std::vector{false, true, true, false}));
}

}  // namespace
}  // namespace platform::desktop
