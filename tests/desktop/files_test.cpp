#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#elif defined(Q_OS_WIN)
#include <windows.h>
#endif

#include "ContratoArchivos.h"
#include "desktop/DurableFiles.h"
#include "desktop/GameFolder.h"

namespace platform::desktop {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Durable, ContratoArchivos, DurableFiles);

/// An empty current folder, for the length of a test.
struct Folder : testing::Test {
    Folder() { QDir::setCurrent(folder.path()); }
    ~Folder() override { QDir::setCurrent(before); }

    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    DurableFiles files;
};

#ifdef Q_OS_UNIX
TEST_F(Folder, AFullDiskTakesNothingAway) {
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
}
#endif

#ifdef Q_OS_WIN
TEST_F(Folder, AFileThatAnotherProgramHoldsKeepsItsContent) {
    ASSERT_TRUE(files.Replace("Último.dat", " 12 \r\n"));
    HANDLE held = CreateFileW(L"Último.dat", GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(held, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(files.Replace("Último.dat", " 13 \r\n"));
    EXPECT_FALSE(files.WriteAt("Último.dat", 0, "x"));
    EXPECT_FALSE(files.Remove("Último.dat"));
    CloseHandle(held);
    EXPECT_EQ(files.Read("Último.dat"), " 12 \r\n");
    EXPECT_EQ(QDir().entryList(QDir::Files | QDir::Hidden).size(), 1);
}
#endif

TEST_F(Folder, AnInstalledGameFurnishesThePlayersFolderOnce) {
    QDir().mkdir("share");
    for (const char* name : {"share/Zarpi1.bmp", "share/Musica01.mid"}) EXPECT_TRUE(files.Replace(name, "art"));
    QDir().mkdir("empty");
    const GameFolder::Places places = {folder.filePath("empty"), folder.filePath("share"), folder.filePath("own")};
    for (const bool first : {true, false}) {
        QDir::setCurrent(folder.path());
        GameFolder game;
        EXPECT_TRUE(game.Enter(places, juego::EstrenarCarpeta));
        EXPECT_EQ(QDir::current(), QDir(places.Own));
        EXPECT_EQ(files.Read("UltCeI.dat"), first ? std::optional<std::string>(" 0 \r\n") : std::nullopt);
        EXPECT_EQ(files.Read("Musica01.mid"), "art");
        QFile::remove("UltCeI.dat");
    }
    QDir::setCurrent(folder.path());
    EXPECT_EQ(QDir().entryList(QDir::Dirs | QDir::NoDotAndDotDot), (QStringList{"empty", "own", "share"}));
}

TEST_F(Folder, OneGameAFolder) {
    for (const char* name : {"Zarpi1.bmp", "Ultimo.dat"}) EXPECT_TRUE(files.Replace(name, "x"));
    GameFolder first;
    EXPECT_TRUE(first.Enter({}, {}));
    EXPECT_FALSE(GameFolder().Enter({}, {}));
    first.Leave();
    EXPECT_TRUE(GameFolder().Enter({}, {}));
    EXPECT_EQ(QDir::current(), QDir(folder.path()));
}

}  // namespace
}  // namespace platform::desktop
