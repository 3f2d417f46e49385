// The player of scripts at the windows: what he does not see as it should be he tells, and what he cannot reach is
// refused.

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sstream>

#include "Rig.h"
#include "desktop/views/PictureView.h"
#include "hand/WidgetEye.h"
#include "hand/WidgetHand.h"
#include "headless/Player.h"
#include "headless/ScriptFolder.h"
#include "storage/MemoryFiles.h"

namespace platform::hand {
namespace {

using desktop::Sample;

struct AtTheWindow : testing::Test {
    AtTheWindow() {
        display.Attach(headless.screen);
        QImage(10, 10, QImage::Format_RGB32).save(folder.filePath("hero.bmp"));
        form.lblFront.Click = form.OnClick = [this] { ++clicks; };
        headless.screen.Show(form);
        form.picHero.Picture = u"hero.bmp";
        form.lstGames.List = {u"una", u"dos"};
        form.lstGames.ListIndex = 0;
        display.Refresh();
    }

    template <class W = QWidget>
    W& Widget(const char* name) {
        return *display.WindowOf(form)->findChild<W*>(name);
    }

    /// A text that the box shows without having it.
    void ShowOnly(const char* text) {
        auto& edit = Widget<QLineEdit>("txtName");
        const QSignalBlocker silent(edit);
        edit.setText(text);
    }

    /// The answer to one line of a script.
    std::string Tell(const std::string& line) {
        std::ostringstream out;
        headless::Player player(
            headless, {.Hand = hand, .Eye = &eye, .Folder = scriptFolder},
            {.forms = {&form}, .start = [] {}, .field = [](auto, auto) { return std::optional<headless::Value>(); }},
            out);
        std::istringstream script(line);
        player.Run(script);
        return out.str();
    }

    const QTemporaryDir folder;
    const desktop::AssetsFrom assets{folder.path()};
    storage::MemoryFiles files;
    headless::ScriptFolder scriptFolder;
    Sample form;
    int clicks = 0;
    desktop::WindowDisplay display{desktop::Scale(1.25)};
    headless::Headless headless{files, &display};
    WidgetHand hand{headless.screen, display};
    WidgetEye eye{headless.screen, display};
};

struct Row {
    const char* asked;
    const char* state;
    std::function<void()> spoil;
    const char* seen;
};

TEST_F(AtTheWindow, WhatDiffersIsTold) {
    const std::vector<Row> rows = {
        {"lblBack.Left", "150", [&] { Widget("lblBack").move(14, 13); }, "168"},
        {"lblBack.Width", "1500", [&] { Widget("lblBack").resize(124, 50); }, "1488"},
        {"linEdge.Top", "3000", [&] { Widget("linEdge").move(125, 251); }, "3012"},
        {"picHero.Height", "750", [&] { Widget("picHero").resize(63, 64); }, "768"},
        {"lblBack.Visible", "True", [&] { Widget("lblBack").hide(); }, "False"},
        {"lblFront.Caption", R"("<b>uno</b> & dos")", [&] { Widget<QLabel>("lblFront").setText("tres"); }, R"("tres")"},
        {"cmdPlain.Caption", R"("A & B")", [&] { Widget<QPushButton>("cmdPlain").setText("C"); }, R"("C")"},
        {"cmdPlain.Enabled", "True", [&] { Widget("cmdPlain").setEnabled(false); }, "False"},
        {"txtName.FontSize", "12",
         [&] { Widget("txtName").setFont(desktop::Scale(2.5).Font(FontName::Arial, 12, false)); }, "24"},
        {"txtName.Text", R"("")", [&] { ShowOnly("Ana"); }, R"("Ana")"},
        {"lstGames.List(1)", R"("dos")", [&] { Widget<QListWidget>("lstGames").item(1)->setText("x"); }, R"("x")"},
        {"lstGames.ListCount", "2", [&] { delete Widget<QListWidget>("lstGames").takeItem(1); }, "1"},
        {"mnuSound.Checked", "True", [&] { Widget<QAction>("mnuSound").setChecked(false); }, "False"},
        {"mnuSave.Enabled", "False", [&] { Widget<QAction>("mnuSave").setEnabled(true); }, "True"},
        {"Sample.Caption", R"("Muestra")", [&] { display.WindowOf(form)->setWindowTitle("x"); }, R"("x")"},
        {"Sample.Width", "6000", [&] { display.WindowOf(form)->ClientArea().resize(499, 375); }, "5988"},
        {"Sample.Top", "-1", [&] { display.WindowOf(form)->setGeometry(0, 10, 500, 400); }, "120"},
        {"focus", "Sample.txtName", [&] { Widget("lstGames").setFocus(); }, "Sample.lstGames"},
    };
    for (const Row& row : rows) {
        const std::string asked = row.asked;
        EXPECT_EQ(Tell("show " + asked), asked + " = " + row.state + "\n");
        row.spoil();
        if (asked == "focus") form.SetFocus(form.txtName);
        EXPECT_EQ(Tell("show " + asked), asked + " = " + row.state + ", shown as " + row.seen + "\n");
        EXPECT_NE(Tell("expect " + asked + " " + row.state), "");
    }
    EXPECT_EQ(Tell("show picHero.Picture").find(", shown as "), std::string::npos);
    static_cast<desktop::PictureWidget&>(Widget("picHero")).SetPixmap(QPixmap(5, 5));
    EXPECT_NE(Tell("show picHero.Picture").find(", shown as "), std::string::npos);
    display.WindowOf(form)->hide();
    EXPECT_EQ(Tell("show forms"), "forms = Sample, shown as none\n");
}

TEST_F(AtTheWindow, WhatCannotBeReachedIsRefused) {
    EXPECT_EQ(Tell("click lblFront"), "");
    EXPECT_EQ(Tell("click Sample"), "");
    EXPECT_EQ(clicks, 2);
    Widget("cmdPlain").setEnabled(false);
    EXPECT_EQ(Tell("click cmdPlain"), "refused cmdPlain: disabled\n");
    Widget("lblFront").hide();
    EXPECT_EQ(Tell("click lblFront"), "refused lblFront: hidden\n");
    {
        QDialog box(display.WindowOf(form));
        box.setModal(true);
        box.show();
        EXPECT_EQ(Tell("key x"), "refused x: blocked\n");
    }
    display.WindowOf(form)->hide();
    EXPECT_EQ(Tell("close"), "refused close: closed\n");
    EXPECT_EQ(clicks, 2);
    EXPECT_TRUE(form.Typed.empty());
}

}  // namespace
}  // namespace platform::hand
