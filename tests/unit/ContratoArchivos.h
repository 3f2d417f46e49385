#pragma once

#include <cstdlib>
#include <gtest/gtest.h>

#include "Carpeta.h"
#include "records/UltimasPartidas.h"

#ifdef __unix__
#include <sys/stat.h>
#include <unistd.h>
#endif

/// What the files of every platform with a disk keep.
template <class Archivos>
struct ContratoArchivos : testing::Test {
    const Carpeta folder;
    Archivos files;
};
TYPED_TEST_SUITE_P(ContratoArchivos);

TYPED_TEST_P(ContratoArchivos, StoresAndReads) {
    auto& files = this->files;
    EXPECT_EQ(files.Read("A.dat"), std::nullopt);
    EXPECT_FALSE(files.Exists("A.dat"));
    EXPECT_TRUE(files.Replace("A.dat", " 12 \r\n"));
    EXPECT_TRUE(files.Replace("A.dat", " 3 \r\n"));
    EXPECT_EQ(files.Read("A.dat"), " 3 \r\n");

    EXPECT_EQ(files.ReadAt("CeI.rnd", 0, 42), "");
    EXPECT_TRUE(files.Exists("CeI.rnd")) << "reading a record creates its file";
    EXPECT_EQ(files.Read("CeI.rnd"), "");
    EXPECT_TRUE(files.WriteAt("CeI.rnd", 4, "wxyz"));
    EXPECT_TRUE(files.WriteAt("CeI.rnd", 6, "YZ"));
    EXPECT_EQ(files.ReadAt("CeI.rnd", 4, 3), "wxY");
    EXPECT_EQ(files.ReadAt("CeI.rnd", 6, 9), "YZ");
    EXPECT_EQ(files.ReadAt("CeI.rnd", 100, 9), "");
    EXPECT_TRUE(files.Remove("CeI.rnd"));
    EXPECT_TRUE(files.Remove("CeI.rnd"));
    // Nothing is left beside.
    const std::filesystem::directory_iterator all(".");
    EXPECT_EQ(std::distance(begin(all), end(all)), 1 + static_cast<int>(juego::Pares.size()));
}

TYPED_TEST_P(ContratoArchivos, TellsFailures) {
    auto& files = this->files;
    std::filesystem::create_directory("A.dat");
    EXPECT_FALSE(files.Exists("A.dat"));
    EXPECT_EQ(files.Read("A.dat"), std::nullopt);
    EXPECT_EQ(files.ReadAt("A.dat", 0, 1), std::nullopt);
    EXPECT_FALSE(files.WriteAt("A.dat", 0, "x"));
    EXPECT_FALSE(files.Replace("A.dat", "x"));
    EXPECT_TRUE(files.Remove("A.dat")) << "there is no such file";
    EXPECT_TRUE(std::filesystem::is_directory("A.dat"));
    EXPECT_FALSE(files.WriteAt("CeI.rnd", -1, "x"));
}

#ifdef __unix__
/// No right over files but those of their modes, while it lives.
class SinPrivilegios {
public:
    SinPrivilegios() { good_ = before_ != 0 || seteuid(kNobody) == 0; }
    ~SinPrivilegios() {
        if (good_ && seteuid(before_) != 0) std::abort();
    }
    SinPrivilegios(const SinPrivilegios&) = delete;
    SinPrivilegios& operator=(const SinPrivilegios&) = delete;

    bool Good() const { return good_; }

private:
    static constexpr uid_t kNobody = 65534;
    uid_t before_ = geteuid();
    bool good_ = false;
};

TYPED_TEST_P(ContratoArchivos, AFileWithoutRightsIsStillThere) {
    auto& files = this->files;
    const std::string rows(2 * juego::FilaÚltima::Largo, 'x');
    ASSERT_TRUE(files.WriteAt("Part.rnd", 0, rows));
    ASSERT_TRUE(files.Replace("UltPart.dat", " 3 \r\n"));  // one more than there are
    constexpr mode_t kAll = 0777;
    // The file closed, to be read only, to be written only; then its folder.
    for (const auto& [file, dir] : std::initializer_list<std::pair<mode_t, mode_t>>{
             {0000, kAll}, {0444, kAll}, {0222, kAll}, {kAll, 0000}, {kAll, 0444}, {kAll, 0555}}) {
        chmod("Part.rnd", file);
        chmod(".", dir);
        {
            const SinPrivilegios none;
            ASSERT_TRUE(none.Good());
            EXPECT_TRUE(files.Exists("Part.rnd")) << file << ' ' << dir;
            EXPECT_EQ(juego::AnotarPartida(files, {}), std::nullopt) << file << ' ' << dir;
            EXPECT_TRUE(dir == kAll || !files.Remove("Part.rnd")) << dir;
        }
        chmod(".", kAll);
        chmod("Part.rnd", kAll);
        EXPECT_EQ(files.Read("Part.rnd"), rows) << file << ' ' << dir;
        EXPECT_EQ(files.Read("UltPart.dat"), " 3 \r\n") << file << ' ' << dir;
        EXPECT_FALSE(files.Exists("Diario.tmp")) << file << ' ' << dir;
    }
    ASSERT_TRUE(files.Replace("Diario.tmp", ""));
    chmod("Diario.tmp", 0000);
    const SinPrivilegios none;
    EXPECT_FALSE(juego::Diario::Recuperar(files));
}

REGISTER_TYPED_TEST_SUITE_P(ContratoArchivos, StoresAndReads, TellsFailures, AFileWithoutRightsIsStillThere);
#else
REGISTER_TYPED_TEST_SUITE_P(ContratoArchivos, StoresAndReads, TellsFailures);
#endif
