// The script player itself: its answers and its exit status are a contract.

#include <gtest/gtest.h>
#include <sstream>

#include "Carpeta.h"
#include "headless/Player.h"
#include "headless/ScriptFolder.h"
#include "shell/Juego.h"

using namespace platform::headless;

namespace {

struct Played {
    Outcome outcome;
    std::string answers;
};

Played Play(const std::string& script) {
    const Carpeta folder;
    ScriptFolder files;
    Headless headless(files);
    ScreenHand hand(headless.screen);
    juego::Juego juego(headless.Services());
    std::ostringstream out;
    Player player(headless, {.Hand = hand, .Eye = nullptr, .Folder = files},
                  {.forms = juego.Ventanas(),
                   .start = [&juego] { juego.Start(); },
                   .field = [](std::string_view, std::string_view) { return std::optional<Value>(); }},
                  out);
    std::istringstream in(script);
    const Outcome outcome = player.Run(in);
    return {outcome, out.str()};
}

TEST(Player, Answers) {
    const auto [outcome, answers] = Play(R"(# a comment, and an empty line

click mnuNuevo
start
show forms
key a
show Label5.Caption
show lblTecla(1).FontSize
show Zarpi.Height
show mnuNuevo.Enabled
show file Ultimo.dat
show file Nada.dat
click cmdMostrar
click frmNivel.cmdAceptar
click mnuAcerca
click mnuNuevo
show focus
forget log
click Label9
show log
show log
key Esc
key Ctrl+S a
click Zarpi
show log
)");
    EXPECT_EQ(outcome, Outcome::Good);
    EXPECT_EQ(answers, R"(refused mnuNuevo: closed
forms = frmPresenta
Label5.Caption = ""
lblTecla(1).FontSize = 21.75
Zarpi.Height = 8220
mnuNuevo.Enabled = True
file Ultimo.dat = 20 30 20 0D 0A
file Nada.dat = missing
refused cmdMostrar: disabled
refused frmNivel.cmdAceptar: closed
refused mnuNuevo: blocked
focus = frmAcerca.cmdAceptar
sound sonTeclado Open Teclado.wav
sound sonTeclado Play
sound sonTeclado Prev
refused Zarpi: closed
end
)");
}

TEST(Player, TellsFailedExpectationsAndGoesOn) {
    const auto [outcome, answers] = Play(
        "start\nexpect forms Zarpi\nexpect frmPresenta.Caption \"x\"\nexpect log beep\nexpect no log end\nexpect size "
        "Ultimo.dat 5\nexpect files UltCas.dat UltCeI.dat UltCoI.dat UltIng.dat UltIyC.dat UltPart.dat Ultimo.dat\n"
        "key a\nkey Ctrl+S\nexpect no log end\n");
    EXPECT_EQ(outcome, Outcome::ExpectFailed);
    EXPECT_EQ(answers,
              "line 2: expected forms = Zarpi, found frmPresenta\n"
              "line 3: expected frmPresenta.Caption = \"x\", found \"Juego de Zarpi (pulsa una tecla)\"\n"
              "line 4: expected log beep, found it is not there\n"
              "line 10: expected no log end, found it is there\n");
}

TEST(Player, RefusesScriptsThatNameWhatIsNot) {
    for (const char* script :
         {"jump", "start\nclick Nada", "start\nshow Label5.Nada", "key a Nada", "start\nshow Nada.Caption",
          "key Ctrl+ñ", "wait x", "date 31-2-2004", "time 10:00", "start\nclick lblTecla(28)", "draw 1 of 3, 1 in 3",
          "write A.dat GG", "expect refused key a", "start\nkey a\ntype Label5 \"x\"",
          "start\nkey a\nselect txtNombre 1", "printer maybe", "forget it"}) {
        EXPECT_EQ(Play(script).outcome, Outcome::Unreadable) << script;
    }
}

}  // namespace
