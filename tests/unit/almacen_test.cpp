// Stored files on the disk and in memory: what is written, what is refused, what is told of a disk that fails, and
// whatever lies in the place of a file. Who has a folder is known by the system alone.

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>

#include "Carpeta.h"
#include "records/UltimasPartidas.h"
#include "storage/FolderLock.h"
#include "storage/MemoryFiles.h"

#ifdef __unix__
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#elif defined(_WIN32)
#include <windows.h>
#endif

#ifdef __linux__
#include <sys/syscall.h>

namespace {
int syncsUntilOneFails = 0;  ///< 0: none does
}

/// In the place of the system's, for a disk that fails.
extern "C" int fsync(int handle) {
    if (syncsUntilOneFails > 0 && --syncsUntilOneFails == 0) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, handle));
}
#endif

namespace platform::storage {
namespace {

namespace fs = std::filesystem;

template <class Almacén>
struct Archivos : testing::Test {
    const Carpeta folder;
    Almacén files;
};
using Almacenes = testing::Types<FolderFiles, MemoryFiles>;
TYPED_TEST_SUITE(Archivos, Almacenes);

TYPED_TEST(Archivos, AreStoredAndRead) {
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

    EXPECT_FALSE(files.Rename("CeI.rnd", "A.dat")) << "it is there already";
    EXPECT_TRUE(files.Rename("CeI.rnd", "ñ.rnd"));
    EXPECT_FALSE(files.Exists("CeI.rnd"));
    EXPECT_EQ(files.ReadAt("ñ.rnd", 4, 4), "wxYZ");
    EXPECT_TRUE(files.Remove("ñ.rnd"));
    EXPECT_TRUE(files.Remove("ñ.rnd"));
    EXPECT_FALSE(files.Rename("ñ.rnd", "B.dat")) << "there is none";

    EXPECT_TRUE(files.WriteAt("A.dat", Files::kLongestRead, "x"));
    EXPECT_EQ(files.Read("A.dat")->size(), Files::kLongestRead);
}

struct EnDisco : testing::Test {
    std::vector<std::string> Beside() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(".")) {
            const std::string name = entry.path().filename().string();
            if (std::ranges::find(juego::Pares, name, &juego::Par::Contador) == juego::Pares.end())
                names.push_back(name);
        }
        return names;
    }

    const Carpeta folder;
    FolderFiles files;
};

TEST_F(EnDisco, WhatIsNoFileIsRefused) {
    fs::create_directory("A.dat");
    EXPECT_FALSE(files.Exists("A.dat")) << "a folder is no file";
    EXPECT_TRUE(files.Remove("A.dat"));
    std::vector<std::string> names = {"A.dat"};
#ifdef __unix__
    fs::create_symlink("away", "B.dat");
    mkfifo("C.dat", 0666);
    fs::create_symlink("/dev/zero", "D.dat");
    names.insert(names.end(), {"B.dat", "C.dat", "D.dat"});
#endif
    for (const std::string& name : names) {
        EXPECT_EQ(files.Exists(name), name != "A.dat") << name;
        EXPECT_EQ(files.Read(name), std::nullopt) << name;
        EXPECT_EQ(files.ReadAt(name, 0, 1), std::nullopt) << name;
        EXPECT_FALSE(files.WriteAt(name, 0, "x")) << name;
        EXPECT_FALSE(files.Replace(name, "x")) << name;
        EXPECT_FALSE(files.Rename("Ultimo.dat", name)) << name;
    }
    EXPECT_TRUE(fs::is_directory("A.dat"));
    EXPECT_FALSE(files.WriteAt("CeI.rnd", -1, "x"));
    EXPECT_FALSE(fs::exists("away"));
}

TEST_F(EnDisco, NothingIsLeftBeside) {
    // What a program that was killed has left is in nobody's way.
    std::ofstream(PathOf(FolderFiles::kBeside)) << "half";
    EXPECT_TRUE(files.Replace("Ultimo.dat", " 1 \r\n"));
    EXPECT_EQ(Beside(), std::vector<std::string>());
}

#ifdef __unix__
TEST_F(EnDisco, ALinkToAFileIsFollowed) {
    fs::create_directory("away");
    ASSERT_TRUE(files.Replace("away/counter", " 1 \r\n"));
    fs::permissions("away/counter", fs::perms::owner_read | fs::perms::owner_write);
    fs::remove("Ultimo.dat");
    fs::create_symlink("away/counter", "Ultimo.dat");
    fs::create_symlink("../Ultimo.dat", PathOf("away/" + std::string(FolderFiles::kBeside)));
    EXPECT_TRUE(files.IsLink("Ultimo.dat"));
    EXPECT_FALSE(files.IsLink("UltCeI.dat"));
    EXPECT_TRUE(files.Replace("Ultimo.dat", " 2 \r\n"));
    EXPECT_TRUE(files.WriteAt("Ultimo.dat", 1, "3"));
    EXPECT_EQ(files.Read("away/counter"), " 3 \r\n");
    EXPECT_TRUE(fs::is_symlink("Ultimo.dat"));
    EXPECT_EQ(fs::status("away/counter").permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_TRUE(files.Remove("Ultimo.dat"));
    EXPECT_TRUE(fs::exists("away/counter"));
}

TEST_F(EnDisco, AFullDiskTakesNothingAway) {
    ASSERT_TRUE(files.Replace("Ultimo.dat", " 12 \r\n"));
    ASSERT_TRUE(files.WriteAt("CeI.rnd", 0, "0123456789"));
    // No file can grow beyond a few bytes, as on a disk that is full.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, SIG_IGN);
    const rlimit full{2, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    EXPECT_FALSE(files.Replace("Ultimo.dat", " 13 \r\n"));
    EXPECT_FALSE(files.WriteAt("CeI.rnd", 10, "x"));
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(files.Read("Ultimo.dat"), " 12 \r\n");
    EXPECT_EQ(files.Read("CeI.rnd"), "0123456789");
    EXPECT_EQ(Beside(), std::vector<std::string>{"CeI.rnd"});
}

#ifdef __linux__
TEST_F(EnDisco, ADiskThatDoesNotKeepWhatItTookIsTold) {
    syncsUntilOneFails = 1;
    EXPECT_FALSE(files.Replace("Ultimo.dat", " 1 \r\n"));
    EXPECT_EQ(files.Read("Ultimo.dat"), " 0 \r\n");
    EXPECT_EQ(Beside(), std::vector<std::string>());
    syncsUntilOneFails = 2;
    EXPECT_FALSE(files.Replace("Ultimo.dat", " 1 \r\n")) << "its name";
    syncsUntilOneFails = 1;
    EXPECT_FALSE(files.WriteAt("CeI.rnd", 0, "x"));
    fs::remove("CeI.rnd");
    syncsUntilOneFails = 2;
    EXPECT_FALSE(files.WriteAt("CeI.rnd", 0, "x")) << "its name";
    syncsUntilOneFails = 1;
    EXPECT_TRUE(files.Remove("CeI.rnd")) << "it is not there any more";
    EXPECT_EQ(syncsUntilOneFails, 0);
}
#endif

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

TEST_F(EnDisco, AFileWithoutRightsIsStillThere) {
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
    for (const char* name : {"Diario.tmp", "Ultimo.dat"}) chmod(name, name[0] == 'D' ? 0000 : 0444);
    const SinPrivilegios none;
    EXPECT_FALSE(juego::Diario::Recuperar(files));
    EXPECT_FALSE(files.Replace("Ultimo.dat", "x")) << "the folder may be written, the file may not";
}

TEST_F(EnDisco, AFolderIsTakenWhateverLiesInThePlaceOfTheLock) {
    const auto lies = [](const char* what) {
        fs::remove_all(".zarpi.lock");
        switch (*what) {
            case 'f': fs::create_directories(".zarpi.lock/full"); break;
            case 'l': fs::create_symlink("away", ".zarpi.lock"); break;
            case 'p': mkfifo(".zarpi.lock", 0666); break;
            default: std::ofstream(".zarpi.lock") << what; break;
        }
    };
    for (const char* what : {"1\nzarpi\nmachine\n", "", "folder", "link", "pipe", "unreadable", "read only"}) {
        lies(what);
        if (*what == 'u') chmod(".zarpi.lock", 0000);
        if (*what == 'r') chmod(".zarpi.lock", 0444);
        chmod(".", *what == 'r' ? 0555 : 0755);
        {
            const SinPrivilegios none;
            FolderLock first;
            FolderLock second;
            EXPECT_TRUE(first.Take()) << what;
            EXPECT_FALSE(second.Take()) << what;
            first.Release();
            EXPECT_TRUE(second.Take()) << what;
        }
        chmod(".", 0755);
    }
    EXPECT_FALSE(fs::exists("away"));
}
#endif

#ifdef _WIN32
TEST_F(EnDisco, AFileThatAnotherProgramHoldsKeepsItsContent) {
    ASSERT_TRUE(files.Replace("Último.dat", " 12 \r\n"));
    HANDLE held = CreateFileW(L"Último.dat", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(files.Replace("Último.dat", " 13 \r\n"));
    EXPECT_FALSE(files.WriteAt("Último.dat", 0, "x"));
    EXPECT_FALSE(files.Remove("Último.dat"));
    CloseHandle(held);
    EXPECT_EQ(files.Read("Último.dat"), " 12 \r\n");
    EXPECT_FALSE(fs::exists(PathOf(FolderFiles::kBeside)));
}
#endif

TEST(Cerrojo, IsForOneProgramAFolder) {
    const Carpeta folder;
    FolderLock first;
    EXPECT_TRUE(first.Take());
    EXPECT_FALSE(FolderLock().Take());
    const Carpeta other;
    EXPECT_TRUE(FolderLock().Take());
}

}  // namespace
}  // namespace platform::storage
