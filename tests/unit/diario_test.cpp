// Nothing is lost: the program is stopped at each single file operation of every change, or its disk fails there, once,
// twice or for a while; what is found afterwards is what the player was told.

#include <functional>
#include <gtest/gtest.h>

#include "Carpeta.h"
#include "headless/Headless.h"
#include "records/CuadrosDeHonor.h"
#include "records/PartidasGuardadas.h"
#include "records/UltimasPartidas.h"
#include "shell/Juego.h"
#include "storage/MemoryFiles.h"

namespace juego {
namespace {

using platform::storage::FolderFiles;
using platform::storage::MemoryFiles;

/// Files on a disk whose faults come and go, under a program that can be stopped.
class BrittleFiles : public Files {
public:
    enum class Fault { None, Fails, Stops };
    /// What befalls each operation, counted from 0.
    using Plan = std::function<Fault(int operation)>;

    bool Exists(std::string_view name) override { return !Works() || inner.Exists(name); }
    bool IsLink(std::string_view name) override { return inner.IsLink(name); }
    std::optional<std::string> Read(std::string_view name) override {
        return Works() ? inner.Read(name) : std::nullopt;
    }
    std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) override {
        return Works() ? inner.ReadAt(name, offset, length) : std::nullopt;
    }
    bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) override {
        // Of a write that goes wrong a part is on the disk.
        if (!stopped_) inner.WriteAt(name, offset, bytes.substr(0, bytes.size() / 2));
        return Works() && inner.WriteAt(name, offset, bytes);
    }
    bool Replace(std::string_view name, std::string_view content) override {
        return Works() && !(full && inner.Exists(name)) && inner.Replace(name, content);
    }
    bool Rename(std::string_view from, std::string_view to) override { return Works() && inner.Rename(from, to); }
    bool Remove(std::string_view name) override { return Works() && inner.Remove(name); }

    /// Of a program that has been stopped nothing more reaches the disk, until the next one starts.
    bool Stopped() const { return stopped_; }
    void Restart() { stopped_ = false; }

    MemoryFiles inner;
    Plan plan;
    int operations = 0;
    int lastFault = -1;
    bool full = false;  ///< no file can be replaced any more; there is room for a journal alone

private:
    bool stopped_ = false;

    bool Works() {
        if (stopped_) return false;
        const Fault fault = plan ? plan(operations) : Fault::None;
        if (fault != Fault::None) lastFault = operations;
        ++operations;
        stopped_ = fault == Fault::Stops;
        return fault == Fault::None;
    }
};

using Fault = BrittleFiles::Fault;

constexpr int kRows = 3;

/// All that a player can see of a pair: as many records as the counter says.
std::string Seen(Files& files, const Par& pair) {
    const int count = LeerContador(files, pair).value_or(-1);
    return std::to_string(count) + ":" +
           files.ReadAt(pair.Registros, 0, static_cast<std::size_t>(count) * pair.Largo).value_or("-");
}

std::string SeenAll(Files& files) {
    std::string all;
    for (const Par& pair : {ArchivoGuardadas, ArchivoÚltimas, ArchivosHonor[0]}) all += Seen(files, pair);
    return all;
}

FilaHonor Row(const Text& name, int points) {
    FilaHonor row;
    row.puntos = SignedDecimal(points);
    row.Nombre = name;
    return row;
}

PartidaGuardada Game(const Text& name) {
    PartidaGuardada game;
    game.Nombre = name;
    return game;
}

FilaÚltima Last(const Text& word) {
    FilaÚltima row;
    row.Palabra = word;
    return row;
}

/// Three saved games, three last games and a board of three.
void Fill(Files& files) {
    EstrenarCarpeta(files);
    for (const Par& pair : {ArchivoGuardadas, ArchivoÚltimas, ArchivosHonor[0]}) EscribirContador(files, pair, kRows);
    for (int k = 1; k <= kRows; ++k) {
        const Text name = u"Fila " + Decimal(k);
        ArchivoRegistros<FilaHonor>(files, ArchivosHonor[0]).Escribir(k, Row(name, 100 - k));
        ArchivoRegistros<PartidaGuardada>(files, ArchivoGuardadas).Escribir(k, Game(name));
        ArchivoRegistros<FilaÚltima>(files, ArchivoÚltimas).Escribir(k, Last(SignedDecimal(k + 5)));
    }
}

/// The changes of the stored files; true when they say that they are done.
using Cambio = bool (*)(Files&);
constexpr std::array<Cambio, 5> kCambios = {
    [](Files& files) {
        const auto count = ContarParaCambiar(files, ArchivoGuardadas);
        return count && GuardarPartida(files, *count, Game(u"Nueva"));
    },
    [](Files& files) {
        const auto count = ContarParaCambiar(files, ArchivoGuardadas);
        return count && RetirarPartida(files, 1, *count);
    },
    [](Files& files) { return AnotarPartida(files, Last(u"FINAL")).has_value(); },
    [](Files& files) { return InsertarEnCuadro(files, ArchivosHonor[0], Row(u"Nueva", 98)); },
    [](Files& files) { return RestablecerCuadro(files, ArchivosHonor[0]); }};

/// Two changes, one after the other.
class Historia {
public:
    Historia(const BrittleFiles& before, Cambio first, Cambio second) : before_(before), changes_{first, second} {
        for (unsigned made = 0; made < whole_.size(); ++made) {
            MemoryFiles files = before_.inner;
            for (unsigned k = 0; k < changes_.size(); ++k) {
                if ((made >> k & 1U) != 0) changes_[k](files);
            }
            whole_[made] = SeenAll(files);
        }
    }

    /// Plays them on a disk with this plan, which is sound again when the program starts anew. What is lost then:
    /// nothing, if every change that was told as done is there, and no other.
    std::string Lost(const BrittleFiles::Plan& plan) {
        BrittleFiles files = before_;
        files.plan = plan;
        unsigned done = 0;
        unsigned unknown = 0;  // stopped, be it before or after its last step
        for (unsigned k = 0; k < changes_.size(); ++k) {
            const int begin = files.operations;
            if (changes_[k](files)) done |= 1U << k;
            if (files.Stopped()) unknown |= 1U << k;
            if (files.lastFault < begin && (done >> k & 1U) == 0) return "refused on a sound disk";
            files.Restart();
        }
        operations_ = files.operations;
        files.plan = nullptr;
        if (!Diario::Recuperar(files) || files.Exists("Diario.tmp")) return "a journal waits for ever";
        const std::string found = SeenAll(files);
        for (unsigned made = 0; made < whole_.size(); ++made) {
            if (whole_[made] == found && (made | unknown) == (done | unknown)) return "";
        }
        return found;
    }
    int Operations() const { return operations_; }

private:
    const BrittleFiles& before_;
    std::array<Cambio, 2> changes_;
    std::array<std::string, 4> whole_;  ///< what is there, by the changes that were made
    int operations_ = 0;
};

TEST(Diario, LosesNothingToFaultsThatComeAndGo) {
    BrittleFiles filled;
    Fill(filled.inner);
    for (const Cambio first : kCambios) {
        for (const Cambio second : kCambios) {
            Historia history(filled, first, second);
            ASSERT_EQ(history.Lost([](int) { return Fault::None; }), "");
            const int last = history.Operations() + 12;  // what a recovery adds
            for (int i = 0; i < last; ++i) {
                for (int j = i; j < last; ++j) {
                    const auto apart = [i, j](Fault one, Fault other) {
                        return [=](int n) { return n == i ? one : n == j ? other : Fault::None; };
                    };
                    const auto lasting = [i, j](int n) { return n >= i && n <= j ? Fault::Fails : Fault::None; };
                    for (const auto& plan : std::initializer_list<BrittleFiles::Plan>{
                             apart(Fault::Fails, Fault::Fails), apart(Fault::Stops, Fault::Fails),
                             apart(Fault::Fails, Fault::Stops), lasting}) {
                        ASSERT_EQ(history.Lost(plan), "") << i << ' ' << j;
                    }
                }
            }
        }
    }
}

TEST(Diario, OnAFullDiskAChangeThatFailsLeavesNothingBehind) {
    BrittleFiles files;
    Fill(files.inner);
    const std::string before = SeenAll(files);
    files.full = true;
    EXPECT_EQ(AnotarPartida(files, Last(u"FINAL")), std::nullopt);
    EXPECT_EQ(SeenAll(files), before);
    EXPECT_FALSE(files.Exists("Diario.tmp"));
}

TEST(Diario, NothingIsChangedWhileOneWaits) {
    const Carpeta folder;
    FolderFiles files;
    Fill(files);
    const std::string before = SeenAll(files);
    std::filesystem::create_directory("CoI.rnd");  // in the way of its restoration
    const std::string journal = "CoI.rnd 0\nUltCoI.dat 5\n 0 \r\n";
    ASSERT_TRUE(files.Replace("Diario.tmp", journal));
    for (const Cambio change : kCambios) EXPECT_FALSE(change(files));
    EXPECT_FALSE(GuardarPartida(files, kRows, Game(u"Nueva")));
    EXPECT_FALSE(LeerPartida(files, 1)) << "it may be another game's record";
    EXPECT_EQ(SeenAll(files), before);
    EXPECT_EQ(files.Read("Diario.tmp"), journal);
    std::filesystem::remove("CoI.rnd");
    for (const Cambio change : kCambios) EXPECT_TRUE(change(files));
}

#ifdef __unix__
/// A disk on which the board's records can be written, and its counter cannot.
struct HalfADisk : FolderFiles {
    bool Replace(std::string_view name, std::string_view content) override {
        return name != ArchivosHonor[0].Contador && FolderFiles::Replace(name, content);
    }
};

TEST(Diario, LeadsNoWriteOutOfTheFolder) {
    namespace fs = std::filesystem;
    const Carpeta folder;
    FolderFiles files;
    const std::string away(FilaHonor::Largo, 'a');
    fs::create_directory("away");
    ASSERT_TRUE(files.Replace("away/records", away));
    ASSERT_TRUE(files.Replace("UltCeI.dat", " 1 \r\n"));
    fs::create_symlink("away/records", "CeI.rnd");
    // A change of the player's own goes through his link, and back if it fails.
    EXPECT_TRUE(InsertarEnCuadro(files, ArchivosHonor[0], Row(u"Nueva", 98)));
    ASSERT_TRUE(files.Replace("away/records", away));
    HalfADisk half;
    EXPECT_FALSE(InsertarEnCuadro(half, ArchivosHonor[0], Row(u"Nueva", 98)));
    EXPECT_EQ(files.ReadAt("away/records", 0, away.size()), away);
    EXPECT_FALSE(files.Exists("Diario.tmp"));
    // A journal that was found does not, whichever of the two is the link.
    const std::string journal = "CeI.rnd 3\nabcUltCeI.dat 5\n 1 \r\n";
    ASSERT_TRUE(files.Replace("Diario.tmp", journal));
    EXPECT_FALSE(Diario::Recuperar(files));
    EXPECT_EQ(files.ReadAt("away/records", 0, away.size()), away);
    fs::remove("CeI.rnd");
    fs::rename("UltCeI.dat", "away/counter");
    fs::create_symlink("away/counter", "UltCeI.dat");
    EXPECT_FALSE(Diario::Recuperar(files));
    EXPECT_EQ(files.Read("Diario.tmp"), journal);
    fs::remove("UltCeI.dat");
    EXPECT_TRUE(Diario::Recuperar(files));
    EXPECT_EQ(files.Read("CeI.rnd")->substr(0, 4), "abc ");
    // One that is not trusted is set aside beside a link that leads nowhere, however long it is.
    fs::create_symlink("away/new", "Diario.mal");
    ASSERT_TRUE(files.Replace("Diario.tmp", "none"));
    fs::resize_file("Diario.tmp", std::size_t{1} << 30U);
    EXPECT_TRUE(Diario::Recuperar(files));
    EXPECT_FALSE(fs::exists("away/new"));
    EXPECT_EQ(fs::file_size("Diario.mal2"), std::size_t{1} << 30U);
}
#endif

TEST(Diario, AsManyGamesAsThereCanBeAreListedAtOnce) {
    BrittleFiles files;
    EstrenarCarpeta(files);
    ASSERT_TRUE(EscribirContador(files, ArchivoGuardadas, ArchivoGuardadas.Límite));
    ASSERT_TRUE(ArchivoRegistros<PartidaGuardada>(files, ArchivoGuardadas).Escribir(32767, Game(u"Última")));
    platform::headless::Headless platform(files);
    Juego juego(platform.Services());
    const auto windows = juego.Ventanas();
    Form& list = **std::ranges::find(windows, "frmReanudar", &Form::Name);
    files.operations = 0;
    platform.screen.Load(list);
    EXPECT_EQ(static_cast<const ListBox*>(list.Find("lstLista"))->List.at(32767), u"Última        ");
    EXPECT_LT(files.operations, 10);
}

TEST(Diario, IsNotTrusted) {
    const std::string row(FilaHonor::Largo, 'r');
    const std::string counter = "UltCeI.dat 5\n 1 \r\n";
    const std::string good = "CeI.rnd 42\n" + row;
    const auto pair = ArchivosHonor[0];
    MemoryFiles files;
    Fill(files);
    const std::string before = SeenAll(files);
    files.Replace("Zarpi1.bmp", "art");
    int aside = 0;
    for (const std::string& journal : std::initializer_list<std::string>{
             "", "CeI.rnd", "CeI.rnd 42\n", "Zarpi1.bmp 1\nx" + counter, counter + good, good, good + good,
             good + counter + "x", good + "UltIyC.dat 5\n 1 \r\n", good + "UltCeI.dat 0\n",
             good + "UltCeI.dat 6\n 1 \r\n", "CeI.rnd 42 \n" + row + counter, "CeI.rnd -1\n" + counter,
             "CeI.rnd 4294967338\n" + row + counter, "CeI.rnd 463\n" + std::string(463, 'r') + counter,
             "Guardar.rnd 0\nUltimo.dat 7\n 32768\n"}) {
        ASSERT_TRUE(files.Replace("Diario.tmp", journal));
        EXPECT_TRUE(Diario::Recuperar(files)) << journal;
        EXPECT_EQ(SeenAll(files), before) << journal;
        EXPECT_EQ(files.Read("Zarpi1.bmp"), "art") << journal;
        EXPECT_FALSE(files.Exists("Diario.tmp"));
        // Each lies aside as it is, beside those before it.
        ++aside;
        EXPECT_EQ(files.Read(aside == 1 ? "Diario.mal" : "Diario.mal" + std::to_string(aside)), journal);
    }
    // What the game can have written is done: rows where there were none are blank.
    for (const auto& [journal, seen] : std::initializer_list<std::pair<std::string, std::string>>{
             {good + counter, "1:" + row},
             {"CeI.rnd 3\nabcUltCeI.dat 1\n2", "2:abc" + std::string(2 * FilaHonor::Largo - 3, ' ')}}) {
        ASSERT_TRUE(files.Replace("Diario.tmp", journal));
        EXPECT_TRUE(Diario::Recuperar(files)) << journal;
        EXPECT_EQ(Seen(files, pair), seen);
        EXPECT_FALSE(files.Exists("Diario.tmp"));
    }
}

}  // namespace
}  // namespace juego
