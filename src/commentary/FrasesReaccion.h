#pragma once

#include <array>

#include "commentary/Frase.h"

/// What the hero shouts at the edge, and what he says at the foot of the cliff.
namespace juego::frases {

// At the sixth miss

/// By the number of the word; up to word 25 chance picks a line of the table below.
inline constexpr std::array<Tramo, 3> AngustiaFinal = {{
    {25, {}},
    {29, {u"¡QUE SÓLO TE QUEDAN{31-w} PALABRAS!", u"¡QUE SÓLO OS QUEDAN{31-w} PALABRAS!"}},
    {30, {u"¡QUE SÓLO TE QUEDA UNA PALABRAAAAAA...!", u"¡QUE SÓLO OS QUEDA UNA PALABRAAAAAA...!"}},
}};

/// Entries 3 and 8, by jokers.
inline constexpr std::array<Tramo, 3> AngustiaComodines = {{
    {0, {u"¡OH, NO TIENES COMODINES!", u"¡OH, NO TENÉIS COMODINES!"}},
    {1, {u"¡TE QUEDA UN COMODÍN!", u"¡OS QUEDA UN COMODÍN!"}},
    {SinLímite, {u"¡TE QUEDAN{comodines} COMODINES!", u"¡OS QUEDAN{comodines} COMODINES!"}},
}};

/// Entries 6 and 9, by the falls before this game's.
inline constexpr std::array<Tramo, 4> AngustiaCaídas = {{
    {0, {u"¡ESPABILA!", u"¡ESPABILAD!"}},
    {1, {u"¡OH, NO, OTRA VEZ NO!"}},
    {2, {u"¡OH, NO, QUE YA ME LA HE PEGADO DOS VECES!"}},
    {SinLímite, {u"COMO ME CAIGA OTRA VEZ, ME VOY, {N}."}},
}};

inline constexpr std::array<Frase, 17> TablaAngustia = {{
    {},
    {u"¡A MÍ NO ME MIRES!", u"¡A MÍ NO ME MIRÉIS!"},
    {u"¡TÚ A LO TUYO!", u"¡VOSOTROS A LO VUESTRO!"},
    {},
    {u"¡QUE ME CAIGO!"},
    {u"¡QUE ME LA PEGOOOOOO...!"},
    {},
    {u"¡SOCORRO!"},
    {},
    {},
    {u"¡ESTÁTE AL LORO!", u"¡ESTAD AL LORO!"},
    {u"¡CONCÉNTRATE!", u"¡CONCENTRAOS!"},
    {u"¡NO TE DESANIMES!", u"¡NO OS DESANIMÉIS!"},
    {u"¡HAY QUE CONSEGUIRLO, {N}!"},
    {u"¡VAMOS, QUE ES FÁCIL, {N}!"},
    {u"¡NO TE DIGO NADA...!", u"¡NO OS DIGO NADA...!"},
    {u"TÚ MISMO.", u"VOSOTROS MISMOS."},
}};

// After the seventh miss

/// By the number of the word; an empty line leaves the choice to the jokers and then to chance.
inline constexpr std::array<Tramo, 6> CaídaFija = {{
    {1, {u"ASÍ QUE EXPERIMENTANDO, ¿EH?"}},
    {4, {u"CON QUE DE CACHONDEO, ¿EH?"}},
    {27, {}},
    {28, {u"ES UNA PENA, CON SÓLO TRES PALABRAS..."}},
    {29, {u"¡DOS PALABRAS, DOS PALABRAS, DOS PALABRAS...!"}},
    {30, {u"¡CON LA MIEL EN LOS LABIOS! BUENO, OTRA VEZ SERÁ."}},
}};

inline constexpr int MuchosComodines = 3;
inline constexpr Frase CaídaConComodines = {u"PERO, ¡CON{comodines} COMODINES QUE TE QUEDABAN...! YA TE VALE.",
                                            u"PERO, ¡CON{comodines} COMODINES QUE OS QUEDABAN...! YA OS VALE."};

/// Entries 5 and 10, by jokers.
inline constexpr std::array<Tramo, 3> CaídaComodines = {{
    {0, {u"¡CLARO, AL QUEDARTE SIN COMODINES...!", u"¡CLARO, AL QUEDAROS SIN COMODINES...!"}},
    {1, {u"¡QUE TE QUEDABA UN COMODÍN, JOLÍN!", u"¡QUE OS QUEDABA UN COMODÍN, JOLÍN!"}},
    {SinLímite,
     {u"¡VAYA, CON{comodines} COMODINES QUE TE QUEDABAN!", u"¡VAYA, CON{comodines} COMODINES QUE OS QUEDABAN!"}},
}};

/// Entries 7 and 13, by the number of the word.
inline constexpr std::array<Tramo, 2> CaídaPalabra = {{
    {20, {u"BUENO, HAS LLEGADO A LA PALABRA{w}.", u"BUENO, HABÉIS LLEGADO A LA PALABRA{w}."}},
    {SinLímite, {u"VAYA, PARA{31-w} PALABRAS QUE TE QUEDABAN...", u"VAYA, PARA{31-w} PALABRAS QUE OS QUEDABAN..."}},
}};

inline constexpr std::array<Frase, 16> TablaCaída = {{
    {},
    {u"JUEGA OTRA PARTIDA, ANDA.", u"JUGAD OTRA PARTIDA, ANDAD."},
    {u"¡VAYA LECHE QUE ME HE PEGADO!"},
    {u"INTÉNTALO DE NUEVO, SI QUIERES.", u"INTENTADLO DE NUEVO, SI QUERÉIS."},
    {u"¡MIRA QUE TE HE AVISADO!", u"¡MIRAD QUE OS HE AVISADO!"},
    {},
    {u"VAYA PORVENIR EL DE UNO."},
    {},
    {u"QUÉ LE VAMOS A HACER, ¡SI ES QUE NO ES TAN FÁCIL!"},
    {u"¡AY, MÍSERO DE MÍ, Y AY INFELICE!"},
    {},
    {u"NO ME MIRES Y JUEGA OTRA PARTIDA.", u"NO ME MIRÉIS Y JUGAD OTRA PARTIDA."},
    {u"¡AY, NUNCA ME ACOSTUMBRARÉ A ESTO!"},
    {},
    {u"¡SI AL MENOS HUBIERA UN COLCHÓN!"},
    {u"BUENO, LO QUE NO TE MATA TE HACE MÁS FUERTE, DICEN..."},
}};

}  // namespace juego::frases
