// Counters and records, byte for byte, and whatever else may lie in their files.

#include <gtest/gtest.h>
#include <optional>

#include "Carpeta.h"
#include "records/Registros.h"

namespace juego {
namespace {

using platform::storage::FolderFiles;

TEST(Contador, ReadsWhateverStandsInTheFile) {
    const Carpeta folder;
    FolderFiles files;
    struct Case {
        std::string content;
        std::optional<int> games;  ///< saved games, bounded by 16 bits
        std::optional<int> rows;   ///< a list of ten
    };
    for (const auto& [content, games, rows] :
         std::initializer_list<Case>{{" 0 \r\n", 0, 0},
                                     {" 12 \r\n", 12, 10},
                                     {"7", 7, 7},
                                     {"  3,9", 3, 3},
                                     {"", std::nullopt, std::nullopt},
                                     {"\r\n", std::nullopt, std::nullopt},
                                     {"   ", std::nullopt, std::nullopt},
                                     {"x5", std::nullopt, std::nullopt},
                                     {"-4", std::nullopt, std::nullopt},
                                     {"\xEF\xBB\xBF 5", std::nullopt, std::nullopt},
                                     {"32767", 32767, 10},
                                     {"32768", std::nullopt, 10},
                                     {"99999999999999999999", std::nullopt, 10},
                                     {std::string(3, '\0'), std::nullopt, std::nullopt}}) {
        ASSERT_TRUE(files.Replace("Ultimo.dat", content));
        ASSERT_TRUE(files.Replace("UltPart.dat", content));
        EXPECT_EQ(LeerContador(files, ArchivoGuardadas), games) << content;
        EXPECT_EQ(LeerContador(files, ArchivoÚltimas), rows) << content;
    }
    std::filesystem::remove("Ultimo.dat");
    EXPECT_EQ(LeerContador(files, ArchivoGuardadas), std::nullopt);
    EXPECT_FALSE(std::filesystem::exists("Ultimo.dat"));
    ASSERT_TRUE(EscribirContador(files, ArchivoGuardadas, 12));
    EXPECT_EQ(files.Read("Ultimo.dat"), " 12 \r\n");
}

TEST(Carpeta, IsFurnishedPairByPair) {
    const Carpeta folder;
    FolderFiles files;
    EXPECT_FALSE(HayArchivos(files)) << "counters of 0 alone";
    ASSERT_TRUE(files.Replace("UltCas.dat", ""));
    EXPECT_TRUE(HayArchivos(files)) << "a counter that cannot be read";
    ASSERT_TRUE(files.Replace("UltCas.dat", " 1 \r\n"));
    EXPECT_TRUE(HayArchivos(files));
    ASSERT_TRUE(files.Remove("UltCas.dat"));
    ASSERT_TRUE(files.Remove("UltCeI.dat"));
    ASSERT_TRUE(files.Replace("CeI.rnd", "records"));
    EXPECT_TRUE(HayArchivos(files));
    EXPECT_TRUE(EstrenarCarpeta(files));
    EXPECT_EQ(files.Read("UltCas.dat"), " 0 \r\n");
    EXPECT_FALSE(files.Exists("UltCeI.dat")) << "its records have lost their counter";
}

TEST(Registros, HaveTheirBytes) {
    const FilaHonor row{
        .puntos = u" 312", .Nombre = u"Ana y Luis", .plenos = u" 14", .Tiempo = u"2 minutos", .Fecha = u"7-3-2004"};
    EXPECT_EQ(Codificar(row), " 312Ana y Luis     142 minutos 7-3-2004   ");
    const FilaÚltima last{.Palabra = u"FINAL",
                          .Nombre = u"Ana y Luis",
                          .puntos = u" 312",
                          .plenos = u" 14",
                          .Modo = 3,
                          .Tiempo = u"2 minutos",
                          .Fecha = u"7-3-2004"};
    EXPECT_EQ(Codificar(last), "FINAL  Ana y Luis     312 14 32 minutos   7-3-2004       ");
    PartidaGuardada game{.NúmPalabra = 30,
                         .Modo = 5,
                         .Alter = 2,
                         .Tiempo = 60,
                         .puntos = 435,
                         .plenos = 29,
                         .comodines = 10,
                         .Nombre = u"Íñigo €",
                         .Fecha = u"31-12-2026",
                         .Contraseña = u"ñ",
                         .Aleator = 4000,
                         .Alea = 7};
    EXPECT_EQ(Codificar(game),
              " 30 5 2 60 435 2910\xCD\xF1igo \x80       31-12-2026 \xF1         "
              " 4000 7    ");
    PartidaGuardada back;
    Decodificar(Codificar(game), back);
    EXPECT_EQ(back.comodines, 10);
    EXPECT_EQ(back.Alea, 7);
    EXPECT_EQ(back.Nombre, u"Íñigo €       ");
    game.comodines = 9;
    EXPECT_EQ(Codificar(game).substr(14, 5), " 29 9");
    // Of numbers too wide for their field the last digits are lost; ten jokers alone take the place of the sign.
    game.NúmPalabra = 123;
    game.Modo = 12;
    game.puntos = 1234;
    game.Aleator = 32767;
    EXPECT_EQ(Codificar(game).substr(0, 19), " 12 1 2 60 123 29 9");
    EXPECT_EQ(Codificar(game).substr(54), " 3276 7    ");
}

TEST(Registros, AcceptAnyBytes) {
    PartidaGuardada game;
    Decodificar("", game);
    EXPECT_EQ(game.NúmPalabra, 0);
    EXPECT_EQ(Trim(game.Nombre), u"");
    Decodificar(std::string(200, '\xFF'), game);
    EXPECT_EQ(game.Tiempo, 0);
    Decodificar(std::string(65, '9'), game);
    EXPECT_EQ(game.Aleator, 32767);
    Decodificar(std::string(59, ' ') + " 40001", game);
    EXPECT_EQ(game.Alea, 4000) << "what follows the last field is padding";
    FilaHonor row;
    Decodificar(std::string(42, '\0'), row);
    EXPECT_EQ(Trim(row.Nombre), u"");
}

TEST(Texto, MapsEveryCodeOfThePageBothWays) {
    for (int code = 0; code < 256; ++code) {
        const char16_t c = platform::FromWindows1252(static_cast<unsigned char>(code));
        EXPECT_EQ(platform::ToWindows1252(c), static_cast<unsigned char>(code)) << code;
        EXPECT_EQ(platform::FromUtf8(platform::ToUtf8(Text(1, c))), Text(1, c)) << code;
    }
    EXPECT_EQ(platform::ToWindows1252(u"aťñ…"), "a?\xF1\x85");
    EXPECT_EQ(platform::UpperCase(u"josé, niño ÿ÷ß"), u"JOSÉ, NIÑO Ÿ÷ß");
    // Cut short, no lead byte, beyond 16 bits, in more bytes than needed, half a pair, beyond all characters.
    for (const char* bad :
         {"\xC3", "\xFF", "\xE2\x82", "\xF0\x9F\x98\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF",
          "\xED\xA0\x80", "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80"}) {
        EXPECT_EQ(platform::FromUtf8(bad).find_first_not_of(u'\xFFFD'), Text::npos) << bad;
    }
    for (const char16_t c : {u'\x7FF', u'\x800', u'\xD7FF', u'\xE000', u'\xFFFF'}) {
        EXPECT_EQ(platform::FromUtf8(platform::ToUtf8(Text(1, c))), Text(1, c));
    }
}

}  // namespace
}  // namespace juego
