#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPrinter>
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

TEST_F(Window, PaintsItsElementsInTheirLayers) {
    EXPECT_EQ(Pixel(12, 12), 0x00FF00U);  // lblFront over lblBack
    EXPECT_EQ(Pixel(40, 230), 0xFF0000U);
    EXPECT_EQ(Pixel(100, 230), 0U);

    form.ZOrder(form.lblBack);
    form.shpPlate.Left = 3000;
    rig.display.Refresh();
    EXPECT_EQ(Pixel(12, 12), 0x0000FFU);
    EXPECT_EQ(Pixel(40, 230), 0xFFFFFFU);
    EXPECT_EQ(Pixel(230, 230), 0xFF0000U);
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
