// The orders of the windows on small screens, in every moment of a story that shows all sequences of the hero.

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "Carpeta.h"
#include "headless/Player.h"
#include "headless/ScriptFolder.h"
#include "shell/Juego.h"

using namespace platform;
using namespace platform::headless;

namespace {

constexpr int kBar = 44;
/// Screens below their bar: phones held upright and sideways, a tablet, and a window of a browser at 200 and 400 %.
constexpr std::array kRooms = {
    Room{320, 568 - kBar, true}, Room{360, 640 - kBar, true}, Room{390, 844 - kBar, true}, Room{768, 1024 - kBar, true},
    Room{844, 390 - kBar, true}, Room{640, 368, false},       Room{320, 168, false},
};

/// Looks after each event at what a player with each of the screens would see.
class Watcher : public Display {
public:
    void Opened(Form& form, bool /*modal*/) override { shown_.push_back(&form); }
    void Closed(Form& form) override { std::erase(shown_, &form); }
    void WaitUntil(const std::function<bool()>& /*done*/) override {}
    void End() override {}
    void Refresh() override {
        for (const Form* form : shown_) {
            for (const Room& room : kRooms) Look(*form, room);
        }
    }

    std::set<std::string> faults;
    std::set<std::string> ordered;

private:
    void Look(const Form& form, const Room& room) {
        const auto order = form.Narrow ? form.Narrow(room) : std::nullopt;
        if (!order) return;
        ordered.insert(form.Name);
        const double twip = static_cast<double>(room.Width) / order->Width;
        for (const Control* control : form.Controls()) {
            const Stand stand = control->Visible ? order->StandOf(*control) : Stand{{.Visible = false}};
            if (stand.Visible) LookAt(*control, stand, *order, twip, room);
        }
    }

    void LookAt(const Control& control, const Stand& stand, const Order& order, double twip, const Room& room) {
        const auto fault = [&](const char* what) {
            faults.insert(std::string(what) + " " + control.Owner.Name + "." + control.FullName() + " at " +
                          std::to_string(room.Width));
        };
        // A line that leaves the window at the foot of the design is let be.
        const bool isInside = stand.Left >= -15 && stand.Left + stand.Width <= order.Width + 15 &&
                              stand.Top + stand.Height <= order.Height + 15;
        if (!isInside && control.Name != "shpEmpujador1") fault("off");
        if (control.kind != Kind::Label) return;
        const auto& label = static_cast<const Label&>(control);
        if (!label.Caption.empty() && label.FontSize * 20 * stand.Scale * twip < 8.7) fault("small");
        const bool isKey = control.Name == "lblTecla" || control.FullName() == "lblComodín(1)";
        if (isKey && std::min(stand.Width, stand.Height) * twip < 38) fault("narrow");
    }

    std::vector<const Form*> shown_;
};

/// Four falls, the last with all that follows it, between them every window that has an order of its own; then a win.
constexpr std::string_view kStory = R"(start
key a
click mnuNormas
key Enter
click mnuÚltimas
key Enter
key Ctrl+N Enter
type txtNombre "Ana y Luis"
key Enter
click cmdMostrar
wait 300
keys WKXQ
wait 20000
keys YZHJGFVPBDCMLNRTSUIOAE
wait 20000
key Ctrl+N Enter Enter
keys WKXQYZHJ
wait 2200
keys GFVPBDCMLNRTSUIOAE
wait 20000
key Ctrl+N Enter Enter
keys WKXQYZHJ
wait 2200
keys GFVPBDCMLNRTSUIOAE
wait 20000
key Ctrl+N Enter Enter
keys WKXQYZHJ
wait 2200
keys GFVPBDCMLNRTSUIOAE
wait 20000
expect Zarpi.Caídas 4
)";

void Play(std::string_view story, Watcher& watcher) {
    const Carpeta folder;
    ScriptFolder files;
    Headless headless(files, &watcher);
    ScreenHand hand(headless.screen);
    juego::Juego juego(headless.Services());
    std::ostringstream out;
    const auto field = [&juego](std::string_view, std::string_view name) {
        const auto& zarpi = static_cast<const juego::Zarpi&>(*juego.Ventanas().front());
        return name == "Caídas" ? std::optional<Value>(static_cast<int>(zarpi.Caídas)) : std::nullopt;
    };
    Player player(headless, {.Hand = hand, .Eye = nullptr, .Folder = files},
                  {.forms = juego.Ventanas(), .start = [&juego] { juego.Start(); }, .field = field}, out);
    std::istringstream in{std::string(story)};
    EXPECT_EQ(player.Run(in), Outcome::Good) << out.str();
}

std::string Lines(const std::set<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
}

TEST(Narrow, AllIsSeenInEveryMoment) {
    Watcher watcher;
    Play(kStory, watcher);
    EXPECT_EQ(Lines(watcher.faults), "");
    EXPECT_GE(watcher.ordered.size(), 5U);
}

}  // namespace
