#pragma once

#include <QTest>

#include "desktop/system/Assets.h"
#include "desktop/system/Heartbeat.h"
#include "desktop/windows/WindowDisplay.h"

namespace platform::desktop {

/// Where the tests find the game's own pictures and sounds.
inline QString GameAssets() {
    return QCoreApplication::applicationDirPath() + "/" ZARPI_ASSETS;
}

/// Other folders that pictures and sounds come from, as long as this lives.
struct AssetsFrom {
    template <class... Folders>
    explicit AssetsFrom(const Folders&... folders) {
        SetAssetFolders({folders...});
    }
    ~AssetsFrom() { SetAssetFolders({GameAssets()}); }
    AssetsFrom(const AssetsFrom&) = delete;
    AssetsFrom& operator=(const AssetsFrom&) = delete;
};

/// The desktop at a factor without the services.
struct Rig {
    explicit Rig(double factor = 1) : scale(factor) {
        display.Attach(screen);
        heartbeat.Attach(scheduler, screen);
        display.OnRefresh = [this] { heartbeat.Arm(); };
    }

    /// The widget of an element, or the client area.
    template <class W = QWidget>
    W& Widget(const Form& form, const char* name = "client") const {
        return *display.WindowOf(form)->findChild<W*>(name);
    }

    Scale scale;
    WindowDisplay display{scale};
    Heartbeat heartbeat;
    Scheduler scheduler{[this] { return heartbeat.Now(); }};
    Screen screen{display, scheduler};
};

/// A form with an element of most kinds; it writes down the characters that it gets.
struct Sample : Form {
    explicit Sample(std::string_view name = "Sample", Color back = White)
        : Form(name, {.Caption = u"Muestra", .Width = 6000, .Height = 4500, .BackColor = back, .KeyPreview = true}) {
        OnKeyPress = [this](int code) { Typed.push_back(code); };
    }

    std::vector<int> Typed;

    CommandButton cmdPlain{*this, "cmdPlain", {3000, 3600, 1500, 450}, {.Caption = u"A & B"}};
    TextBox txtName{*this, "txtName", {150, 1500, 2250, 450}, {.MaxLength = 14, .TabIndex = 1}};
    ListBox lstGames{*this, "lstGames", {3000, 1500, 2250, 1500}, {.TabIndex = 2}};
    PictureBox picHero{*this, "picHero", {3000, 150, 750, 750}, {}};
    Label lblFront{*this, "lblFront", {150, 150, 1500, 600}, {.Caption = u"<b>uno</b> & dos", .BackColor = 0x00FF00}};
    Label lblBack{*this, "lblBack", {150, 150, 1500, 600}, {.BackColor = 0x0000FF}};
    Shape shpPlate{*this, "shpPlate", {150, 3000, 900, 900}, {.Shape = Figure::Rectangle, .FillColor = 0xFF0000}};
    Line linEdge{*this, "linEdge", {1500, 3000, 0, 900}, {}};
    Menu mnuGame{*this, "mnuGame", {.Caption = u"&Juego"}};
    Menu mnuNew{mnuGame, "mnuNew", {.Caption = u"Nuevo", .Shortcut = ControlKey('N')}};
    Menu mnuSave{mnuGame, "mnuSave", {.Caption = u"Guardar", .Shortcut = ControlKey('G'), .Enabled = false}};
    Menu mnuSound{mnuGame, "mnuSound", {.Caption = u"Sonido", .Checked = true}};
    Timer tmrSoon{*this, "tmrSoon", 20};
};

}  // namespace platform::desktop
