// Nothing is lost: the program is stopped after each single file operation of every change, or its disk fails there;
// what is found afterwards is the old state whole, or the new one.

#include <gtest/gtest.h>

#include "game/Modos.h"
#include "headless/Headless.h"
#include "headless/MemoryFiles.h"
#include "shell/Juego.h"

namespace juego {
namespace {

using platform::headless::Ended;
using platform::headless::Headless;
using platform::headless::MemoryFiles;

/// Files that stop the program, or fail for good, at the operation of a given number.
class BrittleFiles : public Files {
public:
    enum class Fault { None, Stops, Fails };

    std::optional<std::string> Read(std::string_view name) override { return inner.Read(name); }
    std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) override {
        return inner.ReadAt(name, offset, length);
    }
    bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) override {
        return Works() && inner.WriteAt(name, offset, bytes);
    }
    bool Replace(std::string_view name, std::string_view content) override {
        return Works() && inner.Replace(name, content);
    }
    bool Remove(std::string_view name) override { return Works() && inner.Remove(name); }

    MemoryFiles inner;
    Fault fault = Fault::None;
    int remaining = 0;  ///< operations that still succeed

private:
    bool stopped_ = false;

    bool Works() {
        if (fault == Fault::None || remaining-- > 0) return true;
        // A program that has been stopped does nothing more, on its way out neither.
        if (fault == Fault::Stops && !std::exchange(stopped_, true)) throw Ended();
        return false;
    }
};

constexpr int kRows = 3;

/// All that a player can see of a pair: as many records as the counter says.
std::string Seen(Files& files, const Par& pair, std::size_t length) {
    const int count = LeerContador(files, pair).value_or(-1);
    return std::to_string(count) + ":" +
           files.ReadAt(pair.Registros, 0, static_cast<std::size_t>(count) * length).value_or("-");
}

std::string SeenAll(Files& files) {
    return Seen(files, ArchivoGuardadas, PartidaGuardada::Largo) + Seen(files, ArchivoÚltimas, FilaÚltima::Largo) +
           Seen(files, ArchivosHonor[0], FilaHonor::Largo);
}

/// A program in the middle of its life, with three saved games, three last games and a board.
struct Programa {
    explicit Programa(BrittleFiles& files, int boardRows) : files(files), headless(files) {
        for (const Par& pair : ArchivosHonor) EscribirContador(files.inner, pair, 0);
        EscribirContador(files.inner, ArchivoGuardadas, kRows);
        EscribirContador(files.inner, ArchivoÚltimas, kRows);
        EscribirContador(files.inner, ArchivosHonor[0], boardRows);
        for (int k = 1; k <= 10; ++k) {
            const Text name = u"Fila " + Decimal(k);
            ArchivoRegistros<FilaHonor>(files.inner, ArchivosHonor[0]).Escribir(k, Row(name, 100 - k));
            if (k > kRows) continue;
            PartidaGuardada game;
            game.NúmPalabra = 5;
            game.Modo = 1;
            game.Tiempo = 60;
            game.Aleator = 4;
            game.Nombre = name;
            game.Contraseña = u"x";
            ArchivoRegistros<PartidaGuardada>(files.inner, ArchivoGuardadas).Escribir(k, game);
            FilaÚltima last;
            last.Palabra = SignedDecimal(k + 5);
            ArchivoRegistros<FilaÚltima>(files.inner, ArchivoÚltimas).Escribir(k, last);
        }
    }
    static FilaHonor Row(const Text& name, int points) {
        FilaHonor row;
        row.puntos = SignedDecimal(points);
        row.Nombre = name;
        return row;
    }

    /// Lets `moves` run while the program waits for the player, after it has come up; true unless it was stopped.
    bool Run(std::vector<std::function<void()>> moves) {
        std::size_t next = 0;
        headless.SetPlayer([&moves, &next] {
            if (next == moves.size()) return false;
            moves[next++]();
            return true;
        });
        try {
            juego.Start();
            headless.screen.Press(KeyOf(u'a'));
            while (next < moves.size()) moves[next++]();
            return true;
        } catch (const Ended&) {
            return false;
        }
    }
    Form& Window(std::string_view name) {
        for (Form* form : juego.Ventanas()) {
            if (form->Name == name) return *form;
        }
        return z;
    }
    void Click(std::string_view form, std::string_view control) { headless.screen.Click(*Window(form).Find(control)); }
    void Type(std::string_view form, std::string_view control, TextView text) {
        headless.screen.Type(static_cast<TextBox&>(*Window(form).Find(control)), text);
    }

    BrittleFiles& files;
    Headless headless;
    Juego juego{headless.Services()};
    Zarpi& z = static_cast<Zarpi&>(*juego.Ventanas().front());
};

using Moves = std::vector<std::function<void()>>;

/// The five changes, each as the moves that lead to it.
struct Cambio {
    const char* name;
    friend std::ostream& operator<<(std::ostream& out, const Cambio& change) { return out << change.name; }

    int boardRows;
    Moves (*moves)(Programa&);
};

Moves Resume(Programa& p) {
    return {[&p] { p.Click("Zarpi", "mnuReanudar"); }, [&p] { p.Type("frmReanudar", "txtContraseña", u"x"); },
            [&p] { p.Click("frmReanudar", "cmdReanudar"); }};
}
Moves Save(Programa& p) {
    Moves moves = Resume(p);
    moves.insert(moves.end(),
                 {[&p] { p.Click("Zarpi", "mnuGuardar"); }, [&p] { p.Type("frmGuardar", "txtContraseña", u"y"); },
                  [&p] { p.Type("frmGuardar", "txtContrarep", u"y"); }, [&p] { p.Click("frmGuardar", "cmdGuardar"); }});
    return moves;
}
Moves Lose(Programa& p) {
    return {[&p] { p.Click("Zarpi", "mnuNuevo"); }, [&p] { p.headless.screen.Close(*p.headless.screen.Front()); },
            [&p] {
                p.z.NúmPalabra = 8;
                p.headless.screen.Close(*p.headless.screen.Front());
            },
            [&p] {
                p.z.Letra = u"Q";
                p.z.Tiempo = 1;
                p.headless.Wait(Moment(61000));
            }};
}
Moves Win(Programa& p) {
    return {[&p] {
                p.z.NúmPalabra = 31;
                p.z.puntos = 98;
                p.headless.screen.ShowModal(p.Window("frmFecha"));
            },
            [&p] { p.headless.screen.Close(*p.headless.screen.Front()); },
            [&p] { p.headless.screen.Close(*p.headless.screen.Front()); },
            [&p] { p.headless.screen.Close(*p.headless.screen.Front()); }};
}
Moves Reset(Programa& p) {
    return {[&p] { p.Click("Zarpi", "mnuCasteInglésHonor"); }, [&p] { p.Click("frmCuadro", "cmdRestablecer"); }};
}

constexpr std::array<Cambio, 5> kChanges = {
    {{"resume", 3, Resume}, {"save", 3, Save}, {"last games", 3, Lose}, {"board", 9, Win}, {"reset", 10, Reset}}};

class Interrupción : public testing::TestWithParam<Cambio> {};

TEST_P(Interrupción, LeavesTheOldStateOrTheNew) {
    const Cambio& change = GetParam();
    // The states that a player may find: before, after, and between the two changes of a resume and a save.
    std::vector<std::string> whole;
    int operations = 0;
    {
        BrittleFiles files;
        Programa program(files, change.boardRows);
        whole.push_back(SeenAll(files));
        files.fault = BrittleFiles::Fault::Stops;
        files.remaining = 1000;
        Moves moves = change.moves(program);
        for (auto& move : moves) {
            move = [&whole, &files, inner = move] {
                inner();
                whole.push_back(SeenAll(files));
            };
        }
        ASSERT_TRUE(program.Run(moves));
        operations = 1000 - files.remaining;
    }
    ASSERT_GE(operations, 2);
    ASSERT_NE(whole.front(), whole.back());
    for (const auto fault : {BrittleFiles::Fault::Stops, BrittleFiles::Fault::Fails}) {
        for (int n = 0; n < operations; ++n) {
            BrittleFiles files;
            {
                Programa program(files, change.boardRows);
                files.fault = fault;
                files.remaining = n;
                program.Run(change.moves(program));
                const bool told = program.z.fSalirError && program.z.lblMensajeError.Visible;
                EXPECT_EQ(told, fault == BrittleFiles::Fault::Fails) << n;
            }
            files.fault = BrittleFiles::Fault::None;
            Headless headless(files);
            Juego again(headless.Services());
            again.Start();
            EXPECT_NE(std::ranges::find(whole, SeenAll(files)), whole.end()) << "after operation " << n;
            EXPECT_EQ(files.Read("Diario.tmp"), std::nullopt) << n;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, Interrupción, testing::ValuesIn(kChanges),
                         [](const auto& info) { return "Change" + std::to_string(info.index); });

}  // namespace
}  // namespace juego
