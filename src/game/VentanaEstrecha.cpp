#include "game/VentanaEstrecha.h"

#include <algorithm>
#include <cmath>

#include "game/Teclas.h"

namespace juego {

namespace {

// Lengths are twips, those with "Pixels" in their name pixels of the screen.

/// The stage, all that stands left of the strip or above it, the cliff included.
constexpr int kStageWidth = 9060;
constexpr int kStageHeight = 7850;
constexpr int kStripHeight = 2000;

/// Hero and pusher are smaller than designed and take shorter steps, so that even the last one, over the edge, is on
/// the stage. The ledge is as much shorter.
constexpr double kHero = 0.85;
constexpr double kSteps = 0.78;
constexpr int kLedgeTop = 2142;
constexpr int kGroundTop = 2537;  ///< below the ledge
constexpr int kLedgeWidth = 7055;
constexpr int kCliffWidth = 395;

constexpr int kColumns = 7;
constexpr int kRows = 4;
constexpr int kGap = 45;
constexpr double kLeastKeyPixels = 44;
constexpr double kMostKeyPixels = 90;
constexpr double kKeyShare = 0.055;  ///< of the height of the screen that a row of keys gets at least
constexpr int kPhonePixels = 640;    ///< less width is a phone's
constexpr int kLowPixels = 470;      ///< less height is that of a phone held sideways
constexpr int kSmallLetters = 195;   ///< of the main window
constexpr int kNarrowLetters = 240;  ///< the smallest in the order of this file
constexpr TextView kAlphabet = u"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ";

/// On the stage; all that is not named stands nearer to the ledge, which is less high.
constexpr std::array kOnStage = {
    Move{.Names = "picZarpi shpEmpujador1",
         .From = {0, 2520},
         .To = {0, kLedgeTop},
         .Scale = kHero,
         .Across = kSteps / kHero},
    Move{.Names = "shpEmpujador2", .From = {0, 2520}, .To = {0, kLedgeTop}, .Scale = kHero},
    Move{.Names = "Picture5", .From = {9300, 1230}, .To = {kLedgeWidth, 1045}, .Scale = kHero, .Down = 2.1},
    Move{.Names = "lblComentario", .From = {2610, 0}, .To = {2250, 30}, .Scale = 1.15, .Width = 6700, .Height = 1995},
    Move{.Names = "lblMenComienzo", .From = {3090, 750}, .To = {2400, 830}, .Scale = 1.15},
    Move{.Names = "lblMensajeError", .From = {3060, 210}, .To = {2300, 30}},
    Move{.Names = "lblComentAngus", .From = {9330, 1770}, .To = {2500, 30}, .Scale = 1.4, .Width = 3000, .Height = 810},
    Move{.Names = "lblModo lblTapa1 lblTapa2", .From = {240, 7620}, .To = {150, 7130}, .Scale = 1.15},
    Move{.Names = "cmdDorvanquil", .From = {660, 7980}, .To = {240, 7530}, .Scale = 1.2},
    Move{.Names = "*", .From = {0, 2985}, .To = {0, kGroundTop}},
};

/// In the strip. Of the jokers the first is the one that is pressed; the others are counted.
constexpr std::array kInStrip = {
    Move{.Names = "lblMensajeTiem lblTiempo Label8 lblNombre", .From = {9630, 120}, .To = {60, 130}, .Scale = 1.1},
    Move{.Names = "lblComodín(1)", .From = {9270, 3420}, .To = {2870, 220}, .Scale = 2, .Width = 1260, .Height = 1610},
    Move{.Names = "Shape1", .From = {9150, 3300}, .To = {2750, 110}, .Width = 1500, .Height = 1830},
    Move{.Names = "lblComodín", .From = {9270, 3420}, .To = {4330, 330}, .Scale = 0.8, .Across = 1.04},
    Move{.Names = "shpMosOcul cmdMostrar cmdOcultar", .From = {10230, 7470}, .To = {6520, 1050}, .Scale = 1.5},
};

/// At the foot of the cliff, where strip and keys have been; what the hero says stands beside him.
constexpr std::array kAtFoot = {
    Move{.Names = "Picture1", .From = {9060, 5310}, .To = {5048, 300}, .Scale = kHero},
    Move{.Names = "lblComentCaída",
         .From = {9180, 4380},
         .To = {150, 1000},
         .Scale = 1.4,
         .Width = 4700,
         .Height = 1300},
};

/// What the order is made of: a twip in pixels, the size of the client area, and the corners of its parts.
struct Measures {
    double twip = 1;
    int width = 0;
    int height = 0;
    Spot stage{};
    Spot strip{};
    Spot foot{};
    Place keys{};  ///< the first key
};

int Twips(double pixels, double twip) {
    return static_cast<int>(pixels / twip);
}

Measures Upright(const Room& room) {
    constexpr int kAbove = kStageHeight + kStripHeight;
    const double row = std::max(kLeastKeyPixels, kKeyShare * room.Height);
    const double fits = (room.Height - kRows * row) / kAbove;
    const double stageFits = static_cast<double>(room.Height) / kStageHeight;
    const double readable = ReadableLetters / kNarrowLetters;
    // Where not even the stage fits with letters that can be read, the window scrolls.
    const double wanted = fits >= readable || room.ByFingers ? std::max(fits, readable) : std::max(stageFits, readable);
    Measures measures;
    measures.twip = std::min(static_cast<double>(room.Width) / kStageWidth, wanted);
    measures.width = Twips(room.Width, measures.twip);
    const double left = room.Height - kAbove * measures.twip;
    const double key = std::clamp(left / kRows, kLeastKeyPixels, kMostKeyPixels);
    measures.stage = {.Left = (measures.width - kStageWidth) / 2, .Top = 0};
    measures.strip = {.Left = measures.stage.Left, .Top = kStageHeight};
    measures.foot = {.Left = measures.stage.Left, .Top = kStageHeight + 150};
    measures.keys = {.Left = 0, .Top = kAbove, .Width = measures.width / kColumns, .Height = Twips(key, measures.twip)};
    measures.height = std::max(Twips(room.Height, measures.twip), kAbove + kRows * measures.keys.Height);
    return measures;
}

Measures Sideways(const Room& room) {
    const double twip = std::min(static_cast<double>(room.Height) / kStageHeight,
                                 (room.Width - kColumns * kLeastKeyPixels) / kStageWidth);
    Measures measures{.twip = twip, .width = Twips(room.Width, twip), .height = Twips(room.Height, twip)};
    measures.strip = {.Left = kStageWidth, .Top = 0};
    measures.foot = {.Left = kStageWidth, .Top = kStripHeight};
    const int key = std::min(Twips(kMostKeyPixels, twip), (measures.height - kStripHeight) / kRows);
    measures.keys = {.Left = kStageWidth,
                     .Top = measures.height - kRows * key,
                     .Width = (measures.width - kStageWidth) / kColumns,
                     .Height = key};
    return measures;
}

Stand KeyStand(const Label& label, int index, const Measures& measures, bool isVisible) {
    const auto place = static_cast<int>(kAlphabet.find(TeclaDeÍndice(index).Letra));
    const Place& first = measures.keys;
    const double letters = label.FontSize * 20;
    return {Place{.Left = first.Left + place % kColumns * first.Width + kGap / 2,
                  .Top = first.Top + place / kColumns * first.Height + kGap / 2,
                  .Width = first.Width - kGap,
                  .Height = first.Height - kGap,
                  .Visible = isVisible},
            std::min(1.4, 0.8 * first.Height / letters)};
}

/// The landscape goes on down the screen, and so does the cliff; ledge and rod come from the screen's edge.
std::optional<Stand> GroundStand(const VentanaZarpi& z, const Control& control, const Measures& measures) {
    const int edge = measures.stage.Left + kLedgeWidth;
    const int below = measures.height - kGroundTop;
    if (control.Name == "picFondo") return Stand{{0, kGroundTop, edge - kCliffWidth, below, control.Visible}};
    if (&control == &z.Image1) return Stand{{0, kLedgeTop, edge, kGroundTop - kLedgeTop, control.Visible}};
    if (&control == &z.Image2) return Stand{{edge - kCliffWidth, kGroundTop, kCliffWidth, below, control.Visible}};
    if (&control != &z.shpEmpujador2) return std::nullopt;
    Stand rod = Moved(control, kOnStage);
    rod.Width = measures.stage.Left + static_cast<int>(std::lround(control.Width * kSteps));
    return rod;
}

Stand StandIn(const VentanaZarpi& z, const Control& control, const Measures& measures) {
    const bool isKey = control.Name == "lblTecla" || control.Name == "shpTecla";
    if (isKey) return KeyStand(z.lblTecla(control.Index), control.Index, measures, control.Visible);
    if (const auto stand = GroundStand(z, control, measures)) return *stand;
    const bool offersKeys = z.cmdMostrar.Enabled || z.cmdOcultar.Visible;
    const bool isPanel = &control == &z.lblTeclado || &control == &z.linTeclado;
    const bool isDead = !offersKeys && (&control == &z.cmdMostrar || &control == &z.shpMosOcul);
    const bool isSilent = &control == &z.lblComentCaída && z.lblComentCaída.Caption.empty();
    if (isPanel || isDead || isSilent) return {Place{.Visible = false}};
    for (const auto& [moves, corner] : {std::pair{std::span<const Move>(kInStrip), measures.strip},
                                        std::pair{std::span<const Move>(kAtFoot), measures.foot}}) {
        if (IsMoved(control, moves)) return Moved(control, moves, corner);
    }
    return Moved(control, kOnStage, measures.stage);
}

bool IsSmall(const VentanaZarpi& z, const Room& room) {
    const double twip =
        std::min(static_cast<double>(room.Width) / z.Width, static_cast<double>(room.Height) / z.Height);
    const bool isUpright = room.Width < 0.8 * room.Height && (room.Width < kPhonePixels || room.ByFingers);
    return isUpright || (room.ByFingers && room.Height < kLowPixels) || kSmallLetters * twip < ReadableLetters;
}

}  // namespace

std::optional<Order> Estrecha(const VentanaZarpi& z, const Room& room) {
    if (!IsSmall(z, room)) return std::nullopt;
    const bool isSideways = room.ByFingers && room.Width > room.Height;
    const Measures measures = isSideways ? Sideways(room) : Upright(room);
    return Order{.Width = measures.width, .Height = measures.height, .StandOf = [&z, measures](const Control& control) {
                     return StandIn(z, control, measures);
                 }};
}

}  // namespace juego
