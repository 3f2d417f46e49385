// The windows of the game at factors of every kind, looked at pixel by pixel.

#include <gtest/gtest.h>

#include "Platform.h"
#include "Rig.h"
#include "desktop/views/LabelView.h"
#include "shell/Juego.h"
#include "storage/MemoryFiles.h"

namespace platform::desktop {
namespace {

constexpr unsigned kRgb = 0xFFFFFF;

class Game : public testing::TestWithParam<double> {
protected:
    template <class W>
    W& Window(std::string_view name) {
        const auto windows = juego.Ventanas();
        return static_cast<W&>(**std::ranges::find(windows, name, &Form::Name));
    }
    QImage Seen(const Form& form) { return rig.Widget(form).grab().toImage(); }

    storage::MemoryFiles files;
    Platform platform{files};
    juego::Juego juego{platform.Services().Services()};
    juego::Zarpi& z = Window<juego::Zarpi>("Zarpi");
    Rig rig{GetParam()};
};

/// The first and the last row in which there is white in a place of a picture.
std::pair<int, int> WhiteRows(const QImage& picture, const QRect& place) {
    std::pair<int, int> rows(place.bottom(), place.top());
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            if ((picture.pixel(x, y) & kRgb) != kRgb) continue;
            rows = {std::min(rows.first, y), std::max(rows.second, y)};
        }
    }
    return rows;
}

TEST_P(Game, EveryKeyStandsOnOneLineWithItsTildeAndTail) {
    z.OnLoad = nullptr;
    rig.screen.Show(z);
    for (int i = 1; i <= 27; ++i) {
        z.lblTecla(i).Visible = z.shpTecla(i).Visible = true;
        z.lblTecla(i).FontSize = 24;
        z.ZOrder(z.lblTecla(i));
    }
    rig.display.Refresh();
    const QImage seen = Seen(z);
    const auto rows = [&](int key) {
        const int inset = rig.scale.Pixels(525) / 4;  // past the round corners
        return WhiteRows(seen, rig.scale.Rect(z.shpTecla(key)).adjusted(inset, 2, -inset, -2));
    };
    constexpr int kN = 11;
    constexpr int kEñe = 12;
    constexpr int kQ = 14;
    const int height = rows(kN).second - rows(kN).first;
    EXPECT_EQ(rows(kN).second, rows(kEñe).second);
    EXPECT_NEAR(rows(kN).first, rows(kQ).first, 1);
    EXPECT_GT(rows(kN).first - rows(kEñe).first, height / 6);
    EXPECT_GT(rows(kQ).second - rows(kN).second, height / 8);
}

TEST_P(Game, NoSpeckOfThePusherIsLeftInTheAnguish) {
    z.OnLoad = nullptr;
    rig.screen.Show(z);
    z.shpEmpujador1.Left = 7130;
    z.shpEmpujador2.Width = 7385;
    z.picZarpi.Left = 7610;
    z.picZarpi.Top = -90;
    rig.display.Refresh();
    const QImage seen = Seen(z);
    for (int y = 0; y < rig.scale.Pixels(2520); ++y) {
        for (int x = rig.scale.Pixels(7625) + 1; x < rig.scale.Pixels(7760); ++x) {
            const QColor color(seen.pixel(x, y));
            EXPECT_LT(color.blue(), qMax(color.green(), color.red()) + 50) << x << " " << y;
        }
    }
}

TEST_P(Game, AnEmptyBoardShowsTheUpperPartOfItsWash) {
    auto& board = Window<Form>("frmCuadro");
    rig.screen.Show(board);
    const QImage empty = Seen(board).copy(0, 0, rig.scale.Pixels(600), rig.scale.Pixels(3000));
    board.Height = 8385;
    rig.display.Refresh();
    EXPECT_EQ(empty, Seen(board).copy(empty.rect()));
}

TEST_P(Game, TheFaceOfAButtonHasTheColourOfTheDesign) {
    auto& about = Window<Form>("frmAcerca");
    rig.screen.Show(about);
    const QImage face = rig.Widget(about, "cmdAceptar").grab().toImage();
    EXPECT_EQ(face.pixel(face.width() / 8, face.height() / 2) & kRgb, 0x00C000U);
}

TEST_P(Game, AButtonShowsItsFocusAfterAKeyAlone) {
    auto& about = Window<Form>("frmAcerca");
    rig.screen.Show(about);
    const auto& ring = rig.Widget(about, "ring");
    EXPECT_FALSE(ring.isVisible());
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QTest::keyClick(rig.Widget(about).window()->windowHandle(), key);
    }
    EXPECT_TRUE(ring.isVisible());
    const QRect plate = rig.Widget(about, "shpAceptar").geometry();
    EXPECT_EQ(ring.geometry().center(), plate.center());
    EXPECT_TRUE(ring.geometry().contains(plate));
}

TEST_P(Game, ClosedCurtainsMeet) {
    auto& diploma = Window<Form>("frmDiploma");
    rig.screen.Show(diploma);
    EXPECT_EQ(rig.Widget(diploma, "Picture2").geometry().right() + 1,
              rig.Widget(diploma, "Picture3").geometry().left());
}

TEST_P(Game, AnArmedJokerPointsOutTheEmptyBoxes) {
    z.OnLoad = nullptr;
    rig.screen.Show(z);
    const auto hints = [this] {
        rig.display.Refresh();
        const auto rings = rig.Widget(z).findChildren<QWidget*>("hint");
        return std::ranges::count_if(rings, &QWidget::isVisible);
    };
    z.LargoPalabra = 3;
    z.lblLetra(2).Caption = u"A";
    EXPECT_EQ(hints(), 0);
    z.fComodín = true;
    EXPECT_EQ(hints(), 2);
    EXPECT_EQ(rig.Widget(z, "lblLetra(2)").cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(rig.Widget(z, "lblLetra(3)").cursor().shape(), Qt::PointingHandCursor);
    z.fComodín = false;
    EXPECT_EQ(hints(), 0);
}

TEST_P(Game, AGlideIsOverWhenTheNextThingHappens) {
    z.OnLoad = nullptr;
    rig.display.LetGlide();
    rig.screen.Show(z);
    const QWidget& hero = rig.Widget(z, "picZarpi");
    z.picZarpi.Left += 1140;
    rig.display.Refresh();
    const int place = rig.scale.Pixels(2160);
    EXPECT_LT(hero.x(), place);
    EXPECT_GT(hero.x(), rig.scale.Pixels(1020));
    QTest::qWait(20);
    z.Label5.Caption = u"Mal.";
    rig.display.Refresh();
    EXPECT_EQ(hero.x(), place);
}

TEST_P(Game, TheRulesKeepRoomForTheirHeadings) {
    auto& rules = Window<Form>("frmNormas");
    rig.screen.Show(rules);
    for (const auto& [heading, text] :
         {std::pair("Label3", "Label2"), std::pair("Label5", "Label6"), std::pair("Label7", "Label8"),
          std::pair("Label9", "Label10"), std::pair("Label11", "Label12"), std::pair("Label13", "Label14")}) {
        const auto& name = rig.Widget<LabelWidget>(rules, heading);
        const auto& paragraph = rig.Widget<LabelWidget>(rules, text);
        const QString blanks = paragraph.text().left(paragraph.text().size() - paragraph.text().trimmed().size());
        EXPECT_LT(QFontMetricsF(name.font()).horizontalAdvance(name.text().trimmed()),
                  QFontMetricsF(paragraph.font()).horizontalAdvance(blanks))
            << heading;
        EXPECT_EQ(name.font().pixelSize(), paragraph.font().pixelSize());
    }
}

INSTANTIATE_TEST_SUITE_P(Factors, Game, testing::Values(0.85, 1, 1.23, 1.5, 2, 3.5));

}  // namespace
}  // namespace platform::desktop
