// The game without sight and without a mouse.

#include "desktop/access/Access.h"

#include <QAccessible>
#include <QPainter>
#include <QPicture>
#include <gtest/gtest.h>

#include "Rig.h"
#include "desktop/access/Announcer.h"

namespace platform::desktop {
namespace {

TEST(Announcer, SpeaksWhenTheWindowHasTheKeyboardAndSpellsAForeignWord) {
    Rig rig;
    Sample form;
    Announcer announcer([&rig] { return rig.display.FrontWindow(); });
    announcer.Say({{u"nadie"}});
    EXPECT_FALSE(announcer.IsHeard());
    QStringList spoken;
    announcer.OnSpoken = [&](const QString& text) {
        spoken << (rig.display.FrontWindow()->isActiveWindow() ? text : "early");
    };
    rig.screen.Show(form);
    announcer.Say({{u"uno"}});
    announcer.Say({{u"Es"}, {u"FOUR.", Language::English}, {u"Cuatro."}});
    announcer.Say({{u"Come on, friend!", Language::English}});
    EXPECT_TRUE(spoken.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([&spoken] { return spoken.size() == 3; }));
    EXPECT_EQ(spoken, QStringList({"uno", "Es FOUR: F, O, U, R. Cuatro.", "Come on, friend!"}));
}

TEST(Announcer, TellsThatAReaderListens) {
    Announcer announcer([] { return nullptr; });
    std::vector<bool> heard;
    announcer.OnHeard = [&heard](bool listens) { heard.push_back(listens); };
    QAccessible::setActive(true);
    QAccessible::setActive(false);
    EXPECT_EQ(heard, (std::vector{true, false}));
}

/// A form whose letter, hero and button answer clicks, in rows: letter and hero; text box and list; button.
struct Access : testing::Test {
    Access() {
        InstallAccess();
        form.picHero.SpokenName = [] { return Text(u"Zarpi"); };
        form.txtName.SpokenName = [] { return Text(u"Nombre"); };
        for (Control* control : std::initializer_list<Control*>{&form.lblFront, &form.picHero, &form.cmdPlain}) {
            control->Click = [this, control] { clicked += control->Name + " "; };
        }
        rig.screen.Show(form);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] std::string Ringed() const {
        const QWidget& ring = rig.Widget(form, "ring");
        if (!ring.isVisible()) return "";
        for (const Control* control : form.Controls()) {
            const auto* const widget = rig.Widget(form).findChild<QWidget*>(QString::fromStdString(control->Name));
            if (widget->geometry().center() == ring.geometry().center()) return control->Name;
        }
        return "elsewhere";
    }

    Rig rig;
    Sample form;
    std::string clicked;
};

TEST_F(Access, TheKeyboardReachesAllThatAnswersAClick) {
    form.lblFront.Left = form.lblFront.Top = 600;
    form.picHero.Top = 600;
    rig.display.Refresh();
    struct Row {
        Key key;
        std::string ringed;
        const Control* focus;
        std::string clicked;
    };
    const Key space{.Code = KeySpace, .Character = u' '};
    const std::vector<Row> rows = {
        {PlainKey(KeyTab), "", &form.lstGames, ""},
        {PlainKey(KeyTab), "lblFront", &form.lstGames, ""},
        {PlainKey(KeyRight), "picHero", &form.lstGames, ""},
        {space, "picHero", &form.lstGames, "picHero "},
        {PlainKey(KeyTab), "cmdPlain", &form.lstGames, ""},
        {space, "cmdPlain", &form.lstGames, "cmdPlain "},
        {PlainKey(KeyUp), "", &form.lstGames, ""},
        {PlainKey(KeyBacktab), "", &form.txtName, ""},
        {PlainKey(KeyBacktab), "cmdPlain", &form.txtName, ""},
        {PlainKey(KeyTab), "", &form.txtName, ""},
        {PlainKey(KeyBacktab), "cmdPlain", &form.txtName, ""},
        {PlainKey(KeyLeft), "", &form.lstGames, ""},
        {PlainKey(KeyTab), "lblFront", &form.lstGames, ""},
        {PlainKey(KeyRight), "picHero", &form.lstGames, ""},
    };
    for (const Row& row : rows) {
        clicked.clear();
        rig.screen.Press(row.key);
        EXPECT_EQ(Ringed(), row.ringed) << row.key.Code;
        EXPECT_EQ(form.Focus(), row.focus) << row.key.Code;
        EXPECT_EQ(clicked, row.clicked) << row.key.Code;
    }
    // One of two bands stands out from every ground.
    const QRect hero = rig.Widget(form, "picHero").geometry();
    const QImage seen = rig.Widget(form).grab().toImage();
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(seen.pixel(hero.left() - i, hero.center().y()) & 0xFFFFFFU, i <= 2 ? 0xFFFFFFU : 0x0050FFU) << i;
    }
    EXPECT_TRUE(rig.Widget(form, "ring").isVisible());
    QPicture page;
    rig.Widget(form).render(&page);
    QImage printed(seen.size(), QImage::Format_RGB32);
    printed.fill(Qt::blue);
    QPainter painter(&printed);
    painter.scale(static_cast<double>(page.logicalDpiX()) / printed.logicalDpiX(),
                  static_cast<double>(page.logicalDpiY()) / printed.logicalDpiY());
    painter.drawPicture(0, 0, page);
    EXPECT_EQ(printed.pixel(hero.left() - 3, hero.center().y()) & 0xFFFFFFU, 0xFFFFFFU) << "a page shows no ring";
}

TEST_F(Access, AScreenReaderMeetsWhatIsSeenByItsName) {
    QAccessibleInterface* const window = QAccessible::queryAccessibleInterface(rig.display.WindowOf(form));
    QAccessibleInterface* const client = QAccessible::queryAccessibleInterface(&rig.Widget(form));
    EXPECT_EQ(window->role(), QAccessible::Window);
    EXPECT_EQ(window->text(QAccessible::Name), "Muestra");
    EXPECT_NE(window->indexOfChild(client), -1);
    const std::vector<std::pair<QAccessible::Role, QString>> elements = {{QAccessible::Button, "<b>uno</b> & dos"},
                                                                         {QAccessible::Button, "Zarpi"},
                                                                         {QAccessible::EditableText, "Nombre"},
                                                                         {QAccessible::List, ""},
                                                                         {QAccessible::Button, "A & B"}};
    ASSERT_EQ(client->childCount(), static_cast<int>(elements.size()));
    for (int i = 0; i < client->childCount(); ++i) {
        QAccessibleInterface* const child = client->child(i);
        EXPECT_EQ(std::pair(child->role(), child->text(QAccessible::Name)), elements.at(static_cast<std::size_t>(i)));
        EXPECT_EQ(client->indexOfChild(child), i);
        EXPECT_EQ(child->parent(), client);
        if (child->role() == QAccessible::Button)
            child->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(clicked, "lblFront picHero cmdPlain ");
    form.picHero.Visible = false;
    rig.display.Refresh();
    EXPECT_EQ(client->childCount(), 4);
}

}  // namespace
}  // namespace platform::desktop
