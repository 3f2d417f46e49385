// What a player has asked of his system: letters that stand out, nothing that blinks.

#include <QApplication>
#include <gtest/gtest.h>
#include <map>

#ifndef Q_OS_WIN
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QProcess>
#endif

#include "Platform.h"
#include "Rig.h"
#include "desktop/system/SystemWishes.h"
#include "desktop/views/LabelView.h"
#include "platform/Contrast.h"
#include "shell/Juego.h"
#include "storage/MemoryFiles.h"

namespace platform::desktop {
namespace {

TEST(Contrast, MakesAnyLettersReadable) {
    const std::vector<Color> colors = {Black,    White,    0xFF0000, 0x00FF00, 0x0000FF,
                                       0x00FFFF, 0x808080, 0x757575, 0x808000, NoColor};
    for (const Color ground : colors) {
        for (const Color letters : colors) {
            if (letters.IsNone()) continue;
            const Ink ink = Readable({ground, letters});
            EXPECT_FALSE(ink.Ground.IsNone());
            EXPECT_GE(ContrastOf(ink.Ground, ink.Letters), 7) << std::hex << ground.Rgb << " " << letters.Rgb;
        }
    }
    EXPECT_NEAR(ContrastOf(Black, White), 21, 1e-9);
    EXPECT_NEAR(ContrastOf(0x777777, White), 4.48, 0.01);
    const Ink good{White, 0x800000};
    EXPECT_EQ(Readable(good), good);
}

TEST(Contrast, ALabelGetsAGroundOfItsOwnOnlyOnAPicture) {
    struct Signs : Form {
        Signs() : Form("Signs", {.Width = 6000, .Height = 1500, .BackColor = 0x00FF00}) {}
        Label own{*this, "own", {0, 0, 900, 300}, {.BackColor = White, .ForeColor = 0xFF0000}};
        Label bare{*this, "bare", {1500, 0, 900, 300}, {}};
        Label faint{*this, "faint", {3000, 0, 900, 300}, {.ForeColor = 0xFF0000}};
        Label pictured{*this, "pictured", {4500, 0, 900, 300}, {}};
        Shape hidden{*this, "hidden", {0, 0, 6000, 300, Hidden}, {.FillColor = 0x000080}};
        Shape hollow{*this, "hollow", {0, 0, 6000, 300}, {}};
        Image picture{*this, "picture", {4500, 0, 1500, 1500}, {}};
    } const form;
    struct Row {
        const Label& label;
        Ink ink;
        bool snug;
    };
    for (const Row& row : std::vector<Row>{{form.own, {White, Black}, false},
                                           {form.bare, {NoColor, Black}, true},
                                           {form.faint, {NoColor, Black}, true},
                                           {form.pictured, {White, Black}, true}}) {
        const ReadableLabel readable = Readable(row.label);
        EXPECT_EQ(readable.Ink, row.ink) << row.label.Name;
        EXPECT_EQ(readable.Snug, row.snug) << row.label.Name;
    }
}

Color RgbOf(QRgb pixel) {
    return static_cast<int>(pixel & 0xFFFFFFU);
}

/// How well the letters of a label stand out, as painted: its commonest colour against the one that differs most.
double SeenContrast(const QImage& window, const QRect& place) {
    std::map<QRgb, int> colors;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) ++colors[window.pixel(x, y)];
    }
    const auto ground = std::ranges::max_element(colors, {}, &std::pair<const QRgb, int>::second);
    double best = 1;
    for (const auto& [color, count] : colors) {
        best = std::max(best, ContrastOf(RgbOf(ground->first), RgbOf(color)));
    }
    return best;
}

TEST(Contrast, OfEveryTextInTheGameIsHighWhereThatIsAskedFor) {
    storage::MemoryFiles files;
    Platform platform{files};
    juego::Juego game{platform.Services().Services()};
    Rig rig{2};
    rig.display.Heed({.HighContrast = true});
    const QPalette lists = QApplication::palette();
    EXPECT_GE(ContrastOf(RgbOf(lists.highlight().color().rgb()), RgbOf(lists.highlightedText().color().rgb())), 7);
    int labels = 0;
    for (Form* form : game.Ventanas()) {
        form->OnLoad = nullptr;
        rig.screen.Show(*form);
        for (Control* control : form->Controls()) {
            if (control->kind == Kind::Shape) control->Visible = true;
            if (control->kind != Kind::Label) continue;
            auto& label = static_cast<Label&>(*control);
            label.Visible = true;
            if (label.Caption.empty()) label.Caption = u"Mm";
        }
        rig.display.Refresh();
        QWidget& client = rig.Widget(*form);
        const QImage seen = client.grab().toImage();
        for (const auto* label : client.findChildren<LabelWidget*>()) {
            const QRect box = label->TextBox().translated(label->pos());
            if (client.childAt(box.center()) != label || !client.rect().contains(box)) continue;
            ++labels;
            EXPECT_GE(SeenContrast(seen, box), 7) << form->Name << "." << label->objectName().toStdString();
        }
        rig.screen.Hide(*form);
    }
    EXPECT_GT(labels, 150);
    rig.display.Heed({});
}

TEST(Stillness, AMarkTellsWhatBlinkingWouldHaveTold) {
    Rig rig;
    Sample form;
    Timer on(form, "on", 20);
    Timer off(form, "off", 20, false, &on);
    form.lblFront.Click = [] {};
    off.Click = [&] {
        form.lblFront.Visible = false;
        off.Stop();
        on.Start();
    };
    on.Click = [&] {
        form.lblFront.Visible = true;
        on.Stop();
        off.Start();
    };
    rig.screen.Show(form);
    rig.display.Heed({.Stillness = true});
    off.Start();
    rig.heartbeat.Arm();
    const auto bright = [&] {
        const QRect label = rig.Widget(form, "lblFront").geometry();
        return rig.Widget(form).grab().toImage().pixel(label.left() - 1, label.center().y()) & 0xFFFFFFU;
    };
    EXPECT_EQ(bright(), 0xFFFFFFU);
    QTest::qWait(60);
    EXPECT_EQ(bright(), 0xFFFF00U);
    EXPECT_TRUE(form.lblFront.Visible);
    off.Stop();
    rig.display.Refresh();
    EXPECT_EQ(bright(), 0xFFFFFFU);
}

#ifndef Q_OS_WIN
/// A desktop that tells what its user has set.
class Portal : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        QDBusArgument settings;
        settings.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QVariantMap>());
        for (auto group = Groups.cbegin(); group != Groups.cend(); ++group) {
            settings.beginMapEntry();
            settings << group.key() << group.value();
            settings.endMapEntry();
        }
        settings.endMap();
        return connection.send(message.createReply(QVariant::fromValue(settings)));
    }

    QMap<QString, QVariantMap> Groups;
};

TEST(SystemWishes, AreWhatTheDesktopTells) {
    QProcess bus;
    bus.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(bus.waitForReadyRead());
    const QString address = QString::fromUtf8(bus.readLine()).trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toUtf8());
    auto desktop = QDBusConnection::connectToBus(address, "desktop");
    ASSERT_TRUE(desktop.registerService("org.freedesktop.portal.Desktop"));
    Portal portal;
    ASSERT_TRUE(desktop.registerVirtualObject("/org/freedesktop/portal/desktop", &portal));

    std::vector<Wishes> told;
    SystemWishes wishes;
    const auto hear = [&told](QMap<QString, QVariantMap> groups, Portal& portal, const std::function<void()>& ask) {
        portal.Groups = std::move(groups);
        told.clear();
        ask();
        QTest::qWait(100);
        return told;
    };
    const auto again = [] { Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive); };
    const auto first = [&] { wishes.Watch([&told](const Wishes& now) { told.push_back(now); }); };
    using Told = std::vector<Wishes>;
    EXPECT_EQ(hear({}, portal, first), Told{});
    EXPECT_EQ(hear({{"org.freedesktop.appearance", {{"contrast", 1U}}}}, portal, again), (Told{{true, false}}));
    EXPECT_EQ(hear({{"org.gnome.desktop.a11y.interface", {{"high-contrast", true}}}}, portal, again), Told{});
    EXPECT_EQ(hear({{"org.gnome.desktop.interface", {{"enable-animations", false}}}}, portal, again),
              (Told{{false, true}}));
    EXPECT_EQ(hear({{"org.kde.kdeglobals.KDE", {{"AnimationDurationFactor", "0"}}}}, portal, again), Told{});
    EXPECT_EQ(hear({{"org.kde.kdeglobals.KDE", {{"AnimationDurationFactor", "0.5"}}}}, portal, again), Told{{}});
    bus.kill();
    bus.waitForFinished();
}
#endif

}  // namespace
}  // namespace platform::desktop
