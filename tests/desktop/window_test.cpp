#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "Rig.h"
#include "desktop/FormPrinter.h"

namespace platform::desktop {
namespace {

struct Window : testing::Test {
    Window() { rig.screen.Show(form); }

    /// A colour of the client area, 0xRRGGBB.
    unsigned Pixel(int x, int y) { return rig.Widget(form).grab().toImage().pixel(x, y) & 0xFFFFFFU; }

    Rig rig;
    Sample form;
};

TEST_F(Window, ShowsTheStateOfItsElements) {
    EXPECT_EQ(rig.display.WindowOf(form)->windowTitle(), "Muestra");
    EXPECT_EQ(rig.Widget(form).size(), QSize(400, 300));
    EXPECT_EQ(rig.Widget<QLabel>(form, "lblFront").textFormat(), Qt::PlainText);
    EXPECT_EQ(rig.Widget<QPushButton>(form, "cmdPlain").text(), "A && B");
    EXPECT_EQ(Pixel(12, 12), 0x00FF00U);  // lblFront over lblBack
    EXPECT_EQ(Pixel(40, 230), 0xFF0000U);
    EXPECT_EQ(Pixel(100, 230), 0U);

    form.ZOrder(form.lblBack);
    form.shpPlate.Left = 3000;
    form.cmdPlain.Enabled = false;
    form.lstGames.List = {u"una", u"dos"};
    form.lstGames.ListIndex = 1;
    form.Caption = u"Otra";
    form.Height = 5250;
    form.mnuSave.Enabled = true;
    rig.display.Refresh();
    EXPECT_EQ(Pixel(12, 12), 0x0000FFU);
    EXPECT_EQ(Pixel(40, 230), 0xFFFFFFU);
    EXPECT_EQ(Pixel(230, 230), 0xFF0000U);
    EXPECT_FALSE(rig.Widget(form, "cmdPlain").isEnabled());
    EXPECT_EQ(rig.Widget<QListWidget>(form, "lstGames").currentRow(), 1);
    EXPECT_EQ(rig.display.WindowOf(form)->windowTitle(), "Otra");
    EXPECT_EQ(rig.Widget(form).height(), 350);
    EXPECT_TRUE(rig.Widget<QAction>(form, "mnuSave").isEnabled());
}

TEST_F(Window, PaintsNothingWhileNothingChanges) {
    struct Counter : QObject {
        bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
            painted += event->type() == QEvent::UpdateRequest ? 1 : 0;
            return false;
        }
        int painted = 0;
    } counter;
    QTest::qWait(20);
    rig.display.WindowOf(form)->installEventFilter(&counter);
    rig.display.Refresh();
    QTest::qWait(20);
    EXPECT_EQ(counter.painted, 0);
}

TEST_F(Window, AMissingPictureLeavesTheLastOne) {
    const QTemporaryDir folder;
    QImage black(50, 50, QImage::Format_RGB32);
    black.fill(Qt::black);
    black.save(folder.filePath("black.bmp"));
    for (const char* name : {"black.bmp", "gone.bmp"}) {
        form.picHero.Picture = FromUtf8(folder.filePath(name).toStdString());
        rig.display.Refresh();
        EXPECT_EQ(Pixel(220, 30), 0U) << name;
    }
}

TEST_F(Window, ClicksGoToTheElementOrElseToTheForm) {
    std::string clicked;
    form.lblFront.Click = [&clicked] { clicked += 'e'; };
    form.OnClick = [&clicked] { clicked += 'f'; };
    QWidget& client = rig.Widget(form);
    QTest::mouseClick(&rig.Widget(form, "lblFront"), Qt::LeftButton);
    QTest::mouseClick(&rig.Widget(form, "lblFront"), Qt::RightButton);
    QTest::mouseClick(&rig.Widget(form, "picHero"), Qt::LeftButton);
    QTest::mouseClick(client.childAt(30, 230) == nullptr ? &client : client.childAt(30, 230), Qt::LeftButton);
    EXPECT_EQ(clicked, "eff");
}

TEST_F(Window, ACheckMarkIsTheProgramsAlone) {
    QAction& sound = rig.Widget<QAction>(form, "mnuSound");
    sound.trigger();
    EXPECT_TRUE(sound.isChecked());
    form.mnuSound.Click = [this] { form.mnuSound.Checked = !form.mnuSound.Checked; };
    sound.trigger();
    EXPECT_FALSE(sound.isChecked());
}

TEST_F(Window, ATextBoxTakesWhatItsFieldHolds) {
    auto& edit = rig.Widget<QLineEdit>(form, "txtName");
    const auto paste = [&edit](const char* text) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
        edit.paste();
    };
    QTest::keyClicks(&edit, "Ana");
    EXPECT_EQ(form.txtName.Text, u"Ana");
    paste(" 日本€🙂 y\nnadie más que ella");
    EXPECT_EQ(form.txtName.Text, u"Ana € y nadie ");
    EXPECT_EQ(edit.text(), "Ana € y nadie ");
    edit.setCursorPosition(0);
    paste("Luis");
    EXPECT_EQ(form.txtName.Text, u"Ana € y nadie ");  // full: the end of the text stays
    form.txtName.Text = u"otra";
    rig.display.Refresh();
    EXPECT_EQ(edit.text(), "otra");
    EXPECT_EQ(rig.Widget(form).window()->focusWidget(), &edit);
}

TEST_F(Window, TimersFireBehindAModalFormAndInputDoesNot) {
    Sample dialog("Dialog");
    int closings = 0;
    Refusal behind = Refusal::None;
    dialog.OnQueryUnload = [&closings] { ++closings; };
    form.tmrSoon.Click = [&] {
        form.tmrSoon.Stop();
        behind = rig.screen.Click(form.lblFront);
        EXPECT_EQ(rig.display.WindowOf(dialog)->windowModality(), Qt::WindowModal);
        rig.display.WindowOf(dialog)->close();
    };
    form.tmrSoon.Start();
    rig.screen.ShowModal(dialog);
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(behind, Refusal::Blocked);
    EXPECT_EQ(rig.display.WindowOf(dialog), nullptr);
    EXPECT_EQ(rig.scheduler.NextDue(), std::nullopt);
}

TEST_F(Window, PrintsTextsAsTexts) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("page.pdf");
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        PrintWidget(rig.Widget(form), printer);
    }
    QFile page(path);
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QByteArray content = page.readAll();
    EXPECT_TRUE(content.startsWith("%PDF"));
    EXPECT_TRUE(content.contains("/FontFile"));
    EXPECT_LT(content.size(), 200'000);
}

TEST(Factor, IsTheLargestStepAtWhichTheLargestWindowFits) {
    struct Row {
        int width, height;
        double factor;
    };
    for (const Row& row :
         std::vector<Row>{{1024, 768, 1.23}, {1366, 768, 1.23}, {1920, 1080, 1.75}, {3840, 2160, 3.58}}) {
        EXPECT_EQ(Scale::For({row.width, row.height}).Factor(), row.factor) << row.width;
    }
    EXPECT_LT(Scale::For({800, 480}).Factor(), 1);
}

}  // namespace
}  // namespace platform::desktop
