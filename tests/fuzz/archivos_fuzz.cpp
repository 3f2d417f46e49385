// Fuzz target: arbitrary bytes as each of the stored files, through every dialog, a resume, saves and the ends of
// games.

#include <array>
#include <fuzzer/FuzzedDataProvider.h>

#include "Jugador.h"

namespace {

constexpr std::array<const char*, 14> kFiles = {"Ultimo.dat", "Guardar.rnd", "UltPart.dat", "Part.rnd",   "UltCeI.dat",
                                                "CeI.rnd",    "UltIyC.dat",  "IyC.rnd",     "UltCas.dat", "Cas.rnd",
                                                "UltIng.dat", "Ingl.rnd",    "UltCoI.dat",  "CoI.rnd"};

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
    for (const char* file : kFiles) {
        if (input.ConsumeBool()) player.Files().Replace(file, input.ConsumeRandomLengthString());
    }
    player.Play(60);
    return 0;
}
