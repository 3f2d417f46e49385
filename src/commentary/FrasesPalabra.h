#pragma once

#include <array>

#include "commentary/Frase.h"

/// What the hero says at the start of a word.
namespace juego::frases {

inline constexpr Frase Reanudada = {u"BUENO, A CONTINUAR LA PARTIDA, {N}."};

/// Words that always have the same line.
struct PalabraFija {
    int Palabra;
    juego::Frase Frase;
};
inline constexpr std::array<PalabraFija, 7> Fijas = {{
    {1, {u"¡HOLA! EMPECEMOS LA PARTIDA."}},
    {30, {u"¡RELÁJATE, {N}, QUE LA PARTIDA ES TUYA!", u"¡RELAJAOS, {N}, QUE LA PARTIDA ES VUESTRA!"}},
    {29, {u"{N}, TIENES LA PARTIDA EN EL BOTE.", u"{N}, TENÉIS LA PARTIDA EN EL BOTE."}},
    {28, {u"¡ESTÁS A PUNTO DE LLEGAR AL FINAL!", u"¡ESTÁIS A PUNTO DE LLEGAR AL FINAL!"}},
    {27,
     {u"¡SÓLO 4 PALABRAS MÁS Y EL PREMIO ES TUYO, VALIENTE!",
      u"¡SÓLO 4 PALABRAS MÁS Y EL PREMIO ES VUESTRO, VALIENTES!"}},
    {26, {u"¡ÁNIMO, QUE SÓLO TE QUEDAN 5 PALABRAS!", u"¡ÁNIMO, QUE SÓLO OS QUEDAN 5 PALABRAS!"}},
    {15, {u"SI ACIERTAS ESTA PALABRA, ¡COMODÍN EXTRA!", u"SI ACERTÁIS ESTA PALABRA, ¡COMODÍN EXTRA!"}},
}};

/// By the number of the word, when every word before it was a pleno.
inline constexpr std::array<Tramo, 5> TodoPlenos = {{
    {2, {u"¡TOMA YA, UN PLENO PARA EMPEZAR!"}},
    {3, {u"DOS PALABRAS, DOS PLENOS; ASÍ DA GUSTO."}},
    {4, {u"¡MUY BIEN, {N}, TRES PALABRAS, TRES PLENOS Y COMODÍN EXTRA!"}},
    {5, {u"¡ESTO ES INCREÍBLE, VAS A PLENO POR PALABRA!", u"¡ESTO ES INCREÍBLE, VAIS A PLENO POR PALABRA!"}},
    {SinLímite,
     {u"{w-1} PALABRAS,{plenos} PLENOS... NO HAY QUIEN TE PARE, {N}. ¡EL MUNDO ES TUYO!",
      u"{w-1} PALABRAS,{plenos} PLENOS... NO HAY QUIEN OS PARE, {N}. ¡EL MUNDO ES VUESTRO!"}},
}};

// Hints on the letters of the word
inline constexpr Frase LetraEñe = {u"ESTA PALABRA TIENE UNA LETRA MUY ESPECIAL."};
inline constexpr Frase LetraZeta = {u"EN ÉSTA HAY UNA LETRA QUE SIEMPRE VA LA ÚLTIMA."};
inline constexpr Frase LetraUveDoble = {u"ESTA PALABRA TIENE UNA LETRA MUY CORRIENTE EN INGLÉS."};
inline constexpr Frase UnaVocal = {u"SÓLO HAY UNA VOCAL EN ESTA PALABRA."};
inline constexpr Frase CuatroIguales = {u"ESTA PALABRA TIENE CUATRO IGUALITAS."};
inline constexpr Frase TresIguales = {u"ESTA PALABRA TIENE TRES IGUALITAS."};
inline constexpr Frase LetraDoble = {u"VAMOS A VER... ÉSTA TIENE UNA DOBLE."};
inline constexpr Frase ExtremosIguales = {u"VAMOS A VER... ¡LA PRIMERA Y LA ÚLTIMA SON IGUALES!"};
inline constexpr Frase InterioresIguales = {u"VAMOS A VER... ¡LA SEGUNDA Y LA PENÚLTIMA SON IGUALES!"};

// Remarks that fill entries of the table below

/// Entry 12, by jokers.
inline constexpr std::array<Tramo, 4> Comodines = {{
    {0, {u"TE RECUERDO QUE NO TIENES COMODINES.", u"OS RECUERDO QUE NO TENÉIS COMODINES."}},
    {1, {u"TE RECUERDO QUE SÓLO TIENES UN COMODÍN.", u"OS RECUERDO QUE SÓLO TENÉIS UN COMODÍN."}},
    {4, {u"TE RECUERDO QUE TIENES{comodines} COMODINES.", u"OS RECUERDO QUE TENÉIS{comodines} COMODINES."}},
    {SinLímite,
     {u"¡QUÉ PASADA, TIENES{comodines} COMODINES! ÚSALOS PARA CONSEGUIR PLENOS.",
      u"¡QUÉ PASADA, TENÉIS{comodines} COMODINES! USADLOS PARA CONSEGUIR PLENOS."}},
}};

/// Entry 14: when the next pleno brings a joker, and when not.
inline constexpr Frase PlenoConComodín = {u"¡UN PLENO MÁS Y COMODÍN EXTRA, {N}!"};
inline constexpr Frase Paciencia = {u"CON PACIENCIA Y TESÓN, LO CONSEGUIRÁS.",
                                    u"CON PACIENCIA Y TESÓN, LO CONSEGUIRÉIS."};

/// Entry 15, by plenos.
inline constexpr std::array<Tramo, 5> Plenos = {{
    {0, {u"¡HAY QUE CONSEGUIR PLENOS, {N}!"}},
    {3, {u"¡PROCURA CONSEGUIR MÁS PLENOS!", u"¡PROCURAD CONSEGUIR MÁS PLENOS!"}},
    {5, {u"¡A POR ALGÚN PLENO MÁS, {N}!"}},
    {7, {u"¡ESTUPENDO, YA LLEVAS{plenos} PLENOS!", u"¡ESTUPENDO, YA LLEVÁIS{plenos} PLENOS!"}},
    {SinLímite, {u"¡ERES GENIAL, {N}, YA LLEVAS{plenos} PLENOS!", u"¡SOIS GENIALES, {N}, YA LLEVÁIS{plenos} PLENOS!"}},
}};

/// Entry 16, by zarpis.
inline constexpr std::array<Tramo, 3> Zarpis = {{
    {100, {u"BUENO, YA LLEVAS{puntos} ZARPIS.", u"BUENO, YA LLEVÁIS{puntos} ZARPIS."}},
    {185, {u"¡MUY BIEN, YA LLEVAS{puntos} ZARPIS!", u"¡MUY BIEN, YA LLEVÁIS{puntos} ZARPIS!"}},
    {SinLímite, {u"¡MAGNÍFICO, YA LLEVAS{puntos} ZARPIS!", u"¡MAGNÍFICO, YA LLEVÁIS{puntos} ZARPIS!"}},
}};

/// Entry 17, by the number of the word.
inline constexpr std::array<Tramo, 4> Acertadas = {{
    {2, {u"BUENO, NO ESTÁ MAL PARA EMPEZAR, {N}."}},
    {10, {u"BUENO, YA HAS ACERTADO{w-1} PALABRAS.", u"BUENO, YA HABÉIS ACERTADO{w-1} PALABRAS."}},
    {19, {u"¡MUY BIEN, YA HAS ACERTADO{w-1} PALABRAS!", u"¡MUY BIEN, YA HABÉIS ACERTADO{w-1} PALABRAS!"}},
    {SinLímite, {u"¡EXCELENTE, YA HAS ACERTADO{w-1} PALABRAS!", u"¡EXCELENTE, YA HABÉIS ACERTADO{w-1} PALABRAS!"}},
}};

/// Entry 18, by the letters of the word.
inline constexpr std::array<Tramo, 3> LetraInterior = {{
    {5, {u"QUIEN LA SIGUE LA CONSIGUE."}},
    {7, {u"VAMOS A VER... LA TERCERA ES UNA {3}."}},
    {SinLímite, {u"VAMOS A VER... LA CUARTA ES UNA {4}."}},
}};

/// Entry 23, by jokers.
inline constexpr std::array<Tramo, 3> UsoComodines = {{
    {0, {u"NO TIENES COMODINES. MAL ASUNTO.", u"NO TENÉIS COMODINES. MAL ASUNTO."}},
    {1, {u"UTILIZA BIEN EL COMODÍN QUE TE QUEDA.", u"UTILIZAD BIEN EL COMODÍN QUE OS QUEDA."}},
    {SinLímite, {u"A VECES ES BUENO USAR COMODINES PARA CONSEGUIR PLENOS."}},
}};

/// The table of which chance picks a line. The empty entries are filled with the remarks above.
inline constexpr std::array<Frase, 24> Tabla = {{
    {},
    {u"HOY, {día}, LO VAS A CONSEGUIR, {N}.", u"HOY, {día}, LO VAIS A CONSEGUIR, {N}."},
    {u"¡A POR LA PALABRA{w}!"},
    {u"¡ÉSTA HUELE A PLENO, {N}!"},
    {u"VAMOS CON LA PALABRA{w}, {N}."},
    {u"¡VE CON CUIDADO!", u"¡ID CON CUIDADO!"},
    {u"¡HALA, UNA DE{L} LETRAS, {N}!"},
    {u"¡TIENES QUE SUPERAR EL NIVEL{nivel}!", u"¡TENÉIS QUE SUPERAR EL NIVEL{nivel}!"},
    {u"¡VAMOS, QUE SEGURO QUE ÉSTA ES FACILITA!"},
    {u"VAMOS A VER... LA SEGUNDA ES UNA {2}."},
    {u"VAMOS A VER... LA PENÚLTIMA ES UNA {p}."},
    {u"VAMOS A VER... LO SIENTO, NO HAY PISTAS."},
    {},
    {u"BUENO, A VER ÉSTA DE{L} LETRAS, {N}."},
    {},
    {},
    {},
    {},
    {},
    {u"NO HAY PALABRA QUE SE TE RESISTA, {N}.", u"NO HAY PALABRA QUE SE OS RESISTA, {N}."},
    {u"BUENO, A VER ESTA PALABRA."},
    {u"TEN CUIDADO CON ESTA PALABRA.", u"TENED CUIDADO CON ESTA PALABRA."},
    {u"ÉSTA TIENE PINTA DE SER FACILITA."},
    {},
}};

}  // namespace juego::frases
