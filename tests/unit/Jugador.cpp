#include "Jugador.h"

#include <array>

#include "game/Modos.h"
#include "records/Archivos.h"

using namespace platform;
using juego::Text;

namespace {

constexpr Key kEscape{.Code = KeyEscape, .Character = KeyEscape};

std::string FaultOfFiles(Files& files) {
    for (const juego::Par& pair : juego::Pares) {
        const auto count = juego::LeerContador(files, pair);
        if (!count) return "no counter " + std::string(pair.Contador);
        const std::size_t size = files.Read(pair.Registros).value_or("").size();
        if (size < static_cast<std::size_t>(*count) * pair.Largo)
            return "records missing in " + std::string(pair.Registros);
    }
    return {};
}

}  // namespace

Jugador::Jugador() {
    juego::EstrenarCarpeta(files_);
}

void Jugador::Restart() {
    juego_.reset();
    platform_ = std::make_unique<Platform>(files_);
    headless_ = &platform_->Services();
    if (OnEnd) headless_->SetEnd(OnEnd);
    juego_ = std::make_unique<juego::Juego>(headless_->Services());
    windows_ = juego_->Ventanas();
    headless_->SetPlayer([this] { return OneMove(); });
    juego_->Start();
}

void Jugador::Run() {
    try {
        while (OneMove()) {
        }
    } catch (const headless::Ended&) {
        juego_.reset();
    }
}

bool Jugador::OneMove() {
    if (moves_ <= 0 || !fault_.empty()) return false;
    --moves_;
    LookBack();
    headless_->log.Clear();
    Move();
    if (fault_.empty()) fault_ = Fault();
    return true;
}

void Jugador::PressKey(const Key& key) {
    Hand().Press(key);
}

char16_t Jugador::GoodLetter() const {
    const juego::Zarpi& z = Game();
    const auto given = juego::NivelDePalabra(z.NúmPalabra, z.fDiezPalabras).Dadas;
    const int first = given == juego::LetrasDadas::Ninguna ? 1 : 2;
    const int last = given == juego::LetrasDadas::PrimeraYÚltima ? z.LargoPalabra - 1 : z.LargoPalabra;
    for (int i = first; i <= last; ++i) {
        if (z.lblLetra(i).Caption.empty()) return z.PalabraClave[static_cast<std::size_t>(i - 1)];
    }
    return 0;
}

std::string Jugador::Fault() const {
    const juego::Zarpi& z = Game();
    const auto& screen = headless_->screen;
    const auto between = [](int value, int low, int high) { return value >= low && value <= high; };
    if (!between(z.Fallo, 0, 7)) return "Fallo";
    if (!between(z.comodines, 0, 10)) return "comodines";
    if (!between(z.Caídas, 0, 4)) return "Caídas";
    if (!between(z.VecesAngustia, 0, 3) || !between(z.VecesSalto, 0, 6)) return "sequences";
    if (!between(z.NúmIntentadas, 0, 17) || !between(z.Aciertos, 0, z.LargoPalabra)) return "letters";
    if (z.cmdMostrar.Visible && z.cmdOcultar.Visible) return "both keyboard buttons";
    if (z.tmrTiempo.IsEnabled() && z.fFinPartida) return "a clock without a game";
    if (screen.Shown().empty()) return "no window";
    const bool presenting = screen.Shown().size() == 1 && screen.Front()->Name == "frmPresenta";
    if (!presenting && screen.Shown().front() != windows_.front()) return "the main window is not behind";
    if (z.fFinPartida) return FaultOfFiles(headless_->files);
    if (!between(z.NúmPalabra, 1, 30) || !between(z.Modo, 1, 5)) return "the word";
    if (z.puntos < 0 || z.plenos > z.NúmPalabra) return "the score";
    for (const int i : {2, 3, 4, 5, 6, 7, 8, 9, 10}) {
        if (z.lblComodín(i).Visible != (i <= z.comodines)) return "joker boxes";
    }
    if (!z.fComodín && z.lblComodín(1).Visible != (z.comodines > 0)) return "the first joker box";
    return {};
}

std::string JugadorAlAzar::Play(int moves) {
    moves_ = moves;
    while (moves_ > 0 && fault_.empty()) {
        Restart();
        Run();
    }
    return fault_;
}

void JugadorAlAzar::Move() {
    if (inPlay_ == Game().fFinPartida) {
        inPlay_ = !Game().fFinPartida;
        if (inPlay_) ++games_;
    }
    const bool free = &Front() == windows_.front();
    const int chance = Pick(100);
    if (free && inPlay_ && chance < 45) {
        // Mostly letters that fit, so that the games get somewhere.
        const char16_t good = GoodLetter();
        Press(good != 0 && Pick(12) != 0 ? good : static_cast<char16_t>(u'A' + Pick(26)));
    } else if (chance < 55) {
        headless_->Wait(Moment(Pick(8) == 0 ? Pick(70000) : Pick(700)));
    } else if (chance < 70) {
        PressKey(Pick(4) == 0 ? kEscape : kEnter);
    } else if (chance < 74 && !free) {
        Hand().Close();
    } else if (chance < 78) {
        TypeAnything();
    } else if (chance < 80) {
        PressKey(PlainKey(Pick(2) == 0 ? KeyLeft : KeyF1 + Pick(5)));
    } else if (free && !inPlay_ && chance < 88) {
        Hand().Click(*windows_.front()->Find(Pick(3) == 0 ? "mnuReanudar" : "mnuNuevo"));
    } else {
        ClickAnything();
    }
}

Control* JugadorAlAzar::AnyControl(Form& form) {
    const auto menus = form.Menus();
    if (!menus.empty() && Pick(4) == 0) {
        Menu* menu = menus[static_cast<std::size_t>(Pick(static_cast<int>(menus.size())))];
        // Leaving the program is no move but the end of many.
        return menu->Name == "mnuSalir" && Pick(20) != 0 ? nullptr : menu;
    }
    const auto controls = form.Controls();
    return controls[static_cast<std::size_t>(Pick(static_cast<int>(controls.size())))];
}

void JugadorAlAzar::ClickAnything() {
    headless_->AcceptPrinter = Pick(2) == 0;
    Form& form = Pick(4) == 0 ? *windows_[static_cast<std::size_t>(Pick(static_cast<int>(windows_.size())))] : Front();
    if (Control* control = AnyControl(form)) Hand().Click(*control);
}

void JugadorAlAzar::TypeAnything() {
    static const std::array<Text, 6> kTexts = {u"", u"a", u"Ana y Luis", u" ", u"ťñ€ÿ", u"12345678901234567890"};
    for (Control* control : Front().Controls()) {
        if (control->kind == Kind::TextBox) {
            Hand().Type(static_cast<TextBox&>(*control),
                        kTexts.at(static_cast<std::size_t>(Pick(3) == 0 ? Pick(6) : 1)));
        }
        if (control->kind == Kind::ListBox) Hand().Select(static_cast<ListBox&>(*control), Pick(4));
    }
}
