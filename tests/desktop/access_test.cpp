// The game without sight and without a mouse.

#include <QAccessible>
#include <gtest/gtest.h>

#include "Rig.h"
#include "desktop/Announcer.h"

namespace platform::desktop {
namespace {

TEST(Announcer, SpeaksTheTextsOfATurnAsOneAndAfterTheTitleOfAWindow) {
    Rig rig;
    Sample form;
    rig.screen.Show(form);
    Announcer announcer([&rig] { return rig.display.FrontWindow(); });
    announcer.Say(u"nadie");
    EXPECT_FALSE(announcer.IsHeard());
    QStringList spoken;
    announcer.OnSpoken = [&spoken](const QString& text) { spoken << text; };
    announcer.Say(u"uno");
    announcer.Say(u"dos");
    QTest::qWait(50);
    EXPECT_TRUE(spoken.isEmpty());
    QTest::qWait(150);
    announcer.Say(u"tres");
    QCoreApplication::processEvents();
    EXPECT_EQ(spoken, QStringList({"uno dos", "tres"}));
}

}  // namespace
}  // namespace platform::desktop
