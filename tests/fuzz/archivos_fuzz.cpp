// Fuzz target: arbitrary bytes as each of the stored files and as the journal, through every dialog, a resume, saves
// and the ends of games. A file that is none of them must stay as it is.

#include <array>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>

#include "Jugador.h"
#include "records/Archivos.h"

namespace {

constexpr const char* kForeign = "Zarpi1.bmp";

/// Bytes that are likely to be taken for a journal: entries of a name, a length and a content.
std::string Journal(FuzzedDataProvider& input) {
    std::string journal;
    for (int entries = input.ConsumeIntegralInRange(0, 3); entries > 0; --entries) {
        const juego::Par& pair = juego::Pares.at(input.ConsumeIntegralInRange<std::size_t>(0, juego::Pares.size() - 1));
        const std::string content = input.ConsumeRandomLengthString();
        journal += input.PickValueInArray({pair.Registros, pair.Contador, std::string_view(kForeign)});
        const int length =
            input.ConsumeBool() ? static_cast<int>(content.size()) : input.ConsumeIntegral<std::int16_t>();
        journal += ' ' + std::to_string(length) + '\n' + content;
    }
    return journal + input.ConsumeRandomLengthString();
}

/// Opens every window that reads a file, tries to resume every game with its own password, then plays at random.
class JugadorDeArchivos : public JugadorAlAzar {
public:
    explicit JugadorDeArchivos(unsigned seed) : JugadorAlAzar(seed) {}

private:
    void Move() override {
        if (moment_ < kEntries.size()) return Open(kEntries.at(moment_++));
        JugadorAlAzar::Move();
    }

    void Open(const char* entry) {
        if (Front().Name == "frmPresenta") Press(u'a');
        if (entry == kResume) return Resume();
        Hand().Click(*windows_.front()->Find(entry));
    }

    void Resume() {
        auto* list = dynamic_cast<platform::ListBox*>(Front().Find("lstLista"));
        if (list == nullptr) return JugadorAlAzar::Move();
        Hand().Select(*list, static_cast<int>(moment_) % 4);
        Hand().Type(dynamic_cast<platform::TextBox&>(*Front().Find("txtContraseña")), Game().Contraseña);
        Hand().Click(*Front().Find("cmdReanudar"));
    }

    static constexpr const char* kResume = "resume";
    static constexpr std::array<const char*, 10> kEntries = {
        "mnuCasteInglésHonor", "mnuInglésCasteHonor", "mnuCasteHonor", "mnuInglésHonor", "mnuCasteoInglésHonor",
        "mnuÚltimas",          "mnuReanudar",         kResume,         kResume,          kResume};
    std::size_t moment_ = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    JugadorDeArchivos player(input.ConsumeIntegral<unsigned>());
    for (const juego::Par& pair : juego::Pares) {
        for (const std::string_view file : {pair.Contador, pair.Registros}) {
            if (input.ConsumeBool()) player.Files().Replace(file, input.ConsumeRandomLengthString());
        }
    }
    player.Files().Replace(kForeign, kForeign);
    if (input.ConsumeBool()) player.Files().Replace("Diario.tmp", Journal(input));
    player.Play(60);
    // A journal of the game's is done, any other lies aside; nothing stands in the way of the next change.
    if (player.Files().Read(kForeign) != kForeign || player.Files().Exists("Diario.tmp")) std::abort();
    return 0;
}
