#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPrinter>
#include <QScreen>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "Rig.h"
#include "desktop/sizes/WindowPlace.h"
#include "desktop/views/PictureView.h"
#include "desktop/windows/FormPrinter.h"

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

/// Pictures that a player has put into a folder, loaded into a form.
struct Exchanged : testing::Test {
    static void Save(const QTemporaryDir& folder, const char* name, QSize size, QRgb color) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(color);
        picture.save(folder.filePath(name));
    }
    /// The size of the box and the colour in the middle of the picture, once a file is loaded.
    std::pair<QSize, QRgb> Seen(const char* name) {
        form.OnKeyPress = [&](int /*code*/) { form.picHero.Picture = FromUtf8(name); };
        rig.screen.Press(KeyOf(u'x'));
        const QImage seen = rig.Widget(form, "picHero").grab().toImage();
        return {seen.size(), seen.pixel(seen.rect().center()) & 0xFFFFFFU};
    }

    static constexpr QRgb kBlue = 0x0000FF;
    static constexpr QRgb kRed = 0xFF0000;
    static constexpr QRgb kAlmostRed = 0xFE0000;
    const QTemporaryDir own;
    const QTemporaryDir game;
    const AssetsFrom assets{own.path(), game.path()};
    Rig rig{2};
    Sample form;
};

TEST_F(Exchanged, APictureGivesItsSizeAndHasTheLargerCopiesOfItsFolder) {
    Save(game, "pose.bmp", {40, 20}, kRed);
    Save(game, "pose@2x.png", {80, 40}, kAlmostRed);
    Save(game, "other.bmp", {40, 20}, kRed);
    Save(game, "other@2x.png", {80, 40}, kAlmostRed);
    Save(own, "other.bmp", {20, 30}, kBlue);
    Save(own, "large.bmp", {20, 10}, kRed);
    Save(own, "large@4x.png", {80, 40}, kAlmostRed);
    rig.screen.Show(form);
    EXPECT_EQ(Seen("pose.bmp"), std::pair(QSize(80, 40), kAlmostRed));
    EXPECT_EQ(Seen("other.bmp"), std::pair(QSize(40, 60), kBlue)) << "the player's own, and not the copy of another";
    EXPECT_EQ(form.picHero.Height, 450);
    EXPECT_EQ(Seen("gone.bmp"), std::pair(QSize(40, 60), kBlue)) << "the last one stays";
    EXPECT_EQ(Seen("large.bmp"), std::pair(QSize(40, 20), kAlmostRed)) << "the next larger one";
}

TEST(Poses, HaveTheirLargerCopies) {
    const QDir art(GameAssets());
    const QStringList poses = art.entryList({"Zarpi*.bmp"});
    EXPECT_EQ(poses.size(), 15);
    for (const QString& pose : poses) {
        for (const int times : {2, 4}) {
            const QImage large(art.filePath(QString("%1@%2x.png").arg(pose.chopped(4)).arg(times)));
            EXPECT_EQ(large.size(), QImage(art.filePath(pose)).size() * times) << pose.toStdString();
        }
    }
}

TEST_F(Window, ADoubleClickIsOneClick) {
    std::string clicked;
    form.lblFront.Click = [&] { clicked += 'f'; };
    form.lblBack.Click = [&] { clicked += 'b'; };
    form.cmdPlain.Click = [&] { clicked += 'c'; };
    const auto click = [this](const char* name, QEvent::Type press) {
        QWidget& widget = rig.Widget(form, name);
        for (const QEvent::Type type : {press, QEvent::MouseButtonRelease}) {
            const Qt::MouseButtons held = type == press ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, QPointF(5, 5), widget.mapToGlobal(QPointF(5, 5)), Qt::LeftButton, held, {});
            QCoreApplication::sendEvent(&widget, &event);
        }
    };
    for (const char* name : {"lblFront", "cmdPlain"}) {
        click(name, QEvent::MouseButtonPress);
        click(name, QEvent::MouseButtonDblClick);
    }
    EXPECT_EQ(clicked, "fc");
    click("lblFront", QEvent::MouseButtonPress);
    click("lblBack", QEvent::MouseButtonDblClick);
    EXPECT_EQ(clicked, "fcfb") << "two things side by side";
    form.lblFront.Click = [this] { form.lblFront.Visible = false; };
    click("lblFront", QEvent::MouseButtonPress);
    click("lblBack", QEvent::MouseButtonDblClick);
    EXPECT_EQ(clicked, "fcfb") << "what the first click has uncovered";
}

TEST_F(Window, AListShowsWholeRowsAndWholeLines) {
    form.lstGames.List = {u"PARTIDAS", u"WWWWWWWWWWWWWW", u"Ana", u"Luis", u"Eva", u"Inés", u"Iván", u"Zoe", u"Ada"};
    rig.display.Refresh();
    const auto& list = rig.Widget<QListWidget>(form, "lstGames");
    const QRect view = list.viewport()->rect();
    const int row = list.visualItemRect(list.item(0)).height();
    EXPECT_LT(view.height() % row, view.height() / row) << "no row is cut";
    EXPECT_LT(list.fontMetrics().horizontalAdvance("WWWWWWWWWWWWWW"), view.width());
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

    Sample other("Other");
    other.lblFront.Click = other.shpPlate.Click = [&clicked] { clicked += 's'; };
    rig.screen.Show(other);
    QTest::mouseClick(rig.Widget(other).childAt(30, 230), Qt::LeftButton);
    EXPECT_EQ(clicked, "effs") << "a shape that has something to do";
    const auto hand = [&](const char* name) { return rig.Widget(other, name).cursor() == Qt::PointingHandCursor; };
    EXPECT_TRUE(hand("lblFront") && hand("shpPlate") && hand("cmdPlain"));
    EXPECT_FALSE(hand("lblBack") || hand("picHero"));
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

TEST_F(Window, StandsWhereItsFormSaysOrInTheMiddle) {
    rig.display.WindowOf(form)->move(80, 60);
    Sample placed("Placed");
    Sample centred("Centred");
    placed.OnLoad = [&placed] { std::tie(placed.Left, placed.Top) = std::pair(270, 435); };
    rig.screen.Show(placed);
    rig.screen.Show(centred);
    const QPoint middle = rig.display.WindowOf(centred)->frameGeometry().center();
    const QPoint off = middle - QGuiApplication::primaryScreen()->availableGeometry().center();
    const QPoint client = rig.Widget(form).mapToGlobal(QPoint(18, 29));
    EXPECT_EQ(rig.display.WindowOf(placed)->geometry().topLeft(), client);
    EXPECT_LE(off.manhattanLength(), 2);
}

TEST_F(Window, ProposesTheShapeAndTheNameOfThePage) {
    QPrinter printer;
    ProposePage(*rig.display.WindowOf(form), printer);
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(printer.docName(), "Muestra");
    form.Height = 7500;
    rig.display.Refresh();
    ProposePage(*rig.display.WindowOf(form), printer);
    EXPECT_EQ(printer.pageLayout().orientation(), QPageLayout::Portrait);
}

TEST(Places, KeepTheWholeWindowOnTheScreen) {
    const Surroundings around{.desk = {1000, 0, 1366, 740}, .origin = QPoint(1700, 500), .frame = {1, 30, 1, 1}};
    struct Row {
        int left, top;
        QSize size;
        QPoint place;
    };
    for (const Row& row : std::vector<Row>{{-1, -1, {364, 208}, {1501, 280}},
                                           {150, 300, {300, 200}, {1710, 520}},
                                           {7500, 4500, {300, 200}, {2065, 539}},
                                           {150, 300, {1600, 900}, {1001, 30}}}) {
        FormLook look;
        look.Left = row.left;
        look.Top = row.top;
        EXPECT_EQ(PlaceOf(look, row.size, Scale(1), around), QRect(row.place, row.size)) << row.left;
    }
}

TEST(Factor, IsTheLargestAtWhichTheLargestWindowFits) {
    struct Row {
        int width, height;
        double factor;
    };
    for (const Row& row : std::vector<Row>{
             {800, 480, 0.74}, {1024, 768, 1.23}, {1366, 768, 1.23}, {1280, 1280, 1.6}, {3840, 2160, 3.58}}) {
        EXPECT_EQ(Scale::For({row.width, row.height}).Factor(), row.factor) << row.width;
    }
}

/// A main window, 6000 by 4500 twips and a menu bar, and a folder for what is remembered.
struct Sizes : testing::Test {
    Sizes() {
        QDir::setCurrent(folder.path());
        main.OnLoad = [this] { main.MinButton = true; };
    }
    ~Sizes() override { QDir::setCurrent(before); }

    static constexpr QSize kContent{6000, 4500};
    static constexpr QSize kDesign{6000, 4500 + Scale::kMenuHeight};
    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    Sample main{"Main", 0x00FF00};
};

/// The desktop with the main window open, from what is remembered.
struct Opened : Rig {
    explicit Opened(Form& main) {
        display.Kit().Sizing.Recall();
        screen.Show(main);
        window = display.WindowOf(main);
    }
    void Resize(QSize size) const {
        window->resize(size);
        QCoreApplication::processEvents();
    }
    static void LetGo() { QTest::qWait(350); }
    [[nodiscard]] double Factor() { return display.Kit().Scale.Factor(); }

    FormWindow* window;
};

TEST_F(Sizes, AllWindowsFollowTheMainOne) {
    const AssetsFrom assets(folder.path());
    QImage(50, 50, QImage::Format_RGB32).save(folder.filePath("pose.bmp"));
    Sample dialog("Dialog");
    dialog.OnLoad = [&dialog] { dialog.picHero.Picture = u"pose.bmp"; };
    Opened game(main);
    game.screen.Show(dialog);
    for (const double factor : {0.6, 0.75, 1.0, 1.33, 1.5, 2.0, 2.37, 3.5}) {
        const Scale scale(factor);
        game.Resize(scale.Size(kDesign));
        EXPECT_EQ(game.Factor(), factor);
        for (const Sample* form : {&main, &dialog}) {
            EXPECT_EQ(game.Widget(*form).size(), scale.Size(kContent)) << factor;
            EXPECT_EQ(game.Widget(*form, "lblBack").geometry(), scale.Rect(form->lblBack)) << factor;
            EXPECT_EQ(game.Widget(*form, "txtName").font(), scale.Font(FontName::MSSansSerif, 12, false)) << factor;
        }
        const auto& picture = static_cast<const PictureWidget&>(game.Widget(dialog, "picHero"));
        EXPECT_EQ(picture.Pixmap().size(), scale.Size({750, 750})) << factor;
        const auto& bar = game.Widget<QMenuBar>(main, "menu");
        EXPECT_EQ(bar.actionGeometry(bar.actions().first()).height(), bar.height()) << factor;
        EXPECT_LE(bar.fontMetrics().height(), bar.height()) << factor;
        const FormWindow& before = *game.display.WindowOf(dialog);
        EXPECT_EQ(before.maximumSize(), scale.Size(kDesign)) << factor;
        const QPoint off = before.frameGeometry().center() - before.screen()->availableGeometry().center();
        EXPECT_LE(off.manhattanLength(), 2) << factor;
    }
    game.Resize({100, 100});
    EXPECT_EQ(game.window->size(), Scale(Scale::kLeast).Size(kDesign));
}

TEST_F(Sizes, TheMenuStandsOverTheContentWhateverTheWindowHasBesideIt) {
    Opened game(main);
    game.Resize(Scale(1.5).Size(kDesign) + QSize(200, 0));
    const QRect client = game.Widget(main).geometry();
    EXPECT_EQ(client.left(), 100);
    EXPECT_EQ(client.size(), Scale(1.5).Size(kContent));
    const QImage seen = game.window->grab().toImage();
    EXPECT_EQ(seen.pixel(99, 300) & 0xFFFFFFU, 0x303A54U);
    const QRect bar = game.Widget(main, "menu").geometry();
    EXPECT_EQ(bar.bottomLeft() + QPoint(0, 1), client.topLeft());
    EXPECT_EQ(bar.width(), client.width());
    EXPECT_EQ(seen.pixel(100, 300) & 0xFFFFFFU, 0x00FF00U);
    Opened::LetGo();
    EXPECT_EQ(game.window->size(), Scale(1.5).Size(kDesign));
    game.Resize(Scale(1.5).Size(kDesign) + QSize(0, 200));
    EXPECT_EQ(game.Widget(main).geometry().bottom() + 1, game.window->height() - 100);
}

TEST_F(Sizes, WhatIsNoFactorIsLeftAlone) {
    for (const char* factor : {"nan", "-1", "1e9", "0.1", "grande", ""}) {
        QFile stored("ventana.ini");
        ASSERT_TRUE(stored.open(QIODevice::WriteOnly));
        stored.write(QByteArray("[General]\nestado=77\nfactor=") + factor + "\n");
        stored.close();
        Opened game(main);
        EXPECT_EQ(game.Factor(), 1) << factor;
    }
}

TEST_F(Sizes, WhatThePlayerChoseIsThereAgain) {
    {
        Opened game(main);
        game.Resize(Scale(0.8).Size(kDesign));
        Opened::LetGo();
    }
    {
        Opened game(main);
        EXPECT_EQ(game.window->size(), Scale(0.8).Size(kDesign));
        for (const bool repeats : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_F11, Qt::NoModifier, "", repeats);
            QCoreApplication::sendEvent(&game.Widget(main), &press);
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(game.window->size(), game.window->screen()->size());
        EXPECT_GT(game.Factor(), 3);
        Opened::LetGo();
    }
    Opened game(main);
    QCoreApplication::processEvents();
    EXPECT_TRUE(game.window->isFullScreen());
    QTest::keyClick(game.window->windowHandle(), Qt::Key_F11);
    Opened::LetGo();
    EXPECT_EQ(game.window->size(), Scale(0.8).Size(kDesign));
    EXPECT_TRUE(main.Typed.empty());
}

}  // namespace
}  // namespace platform::desktop
