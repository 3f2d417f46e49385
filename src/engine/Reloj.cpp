#include "engine/Reloj.h"

#include "game/Mensaje.h"
#include "sound/Sonido.h"

namespace juego {

namespace {
constexpr std::int32_t kDay = 86400;
constexpr int kErrorSecond = 15;
constexpr int kWarningSecond = 30;
}  // namespace

void Reloj::tmrTiempo_Timer() {
    // A word in play across midnight goes on as if nothing had happened.
    const std::int32_t spent = (clock.Time() - z.HoraPalabra + kDay) % kDay;
    const int minutes = spent / 60 % 60;
    const int seconds = spent % 60;
    z.lblTiempo.Caption = FormatTime(spent);
    if (z.fSalirError && seconds == kErrorSecond) {
        forms.End();
        return;
    }
    if (minutes == z.Tiempo - 1 && seconds == kWarningSecond) {
        Decir(z, u"¡Date prisa!");
        Sonar(media, z, z.sonPrisa, sonidos::Prisa);
    }
    if (minutes == z.Tiempo) fin.TiempoAgotado();
}

}  // namespace juego
