#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

#include "desktop/DurableFiles.h"
#include "desktop/GameFolder.h"

namespace platform::desktop {
namespace {

/// An empty current folder, for the length of a test.
struct Folder : testing::Test {
    Folder() { QDir::setCurrent(folder.path()); }
    ~Folder() override { QDir::setCurrent(before); }

    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    DurableFiles files;
};

TEST_F(Folder, StoresAndReads) {
    EXPECT_EQ(files.Read("Ultimo.dat"), std::nullopt);
    EXPECT_TRUE(files.Replace("Ultimo.dat", " 12 \r\n"));
    EXPECT_TRUE(files.Replace("Ultimo.dat", " 3 \r\n"));
    EXPECT_EQ(files.Read("Ultimo.dat"), " 3 \r\n");

    EXPECT_EQ(files.ReadAt("CeI.rnd", 0, 42), "");
    EXPECT_TRUE(QFile::exists("CeI.rnd"));
    EXPECT_TRUE(files.WriteAt("CeI.rnd", 4, "wxyz"));
    EXPECT_TRUE(files.WriteAt("CeI.rnd", 6, "YZ"));
    EXPECT_EQ(files.ReadAt("CeI.rnd", 4, 3), "wxY");
    EXPECT_EQ(files.ReadAt("CeI.rnd", 6, 9), "YZ");
    EXPECT_EQ(files.ReadAt("CeI.rnd", 100, 9), "");
    EXPECT_TRUE(files.Remove("CeI.rnd"));
    EXPECT_TRUE(files.Remove("CeI.rnd"));
    EXPECT_EQ(QDir().entryList(QDir::Files | QDir::Hidden), QStringList("Ultimo.dat"));  // nothing is left beside
}

TEST_F(Folder, TellsFailures) {
    QDir().mkdir("Ultimo.dat");
    EXPECT_EQ(files.Read("Ultimo.dat"), std::nullopt);
    EXPECT_EQ(files.ReadAt("Ultimo.dat", 0, 1), std::nullopt);
    EXPECT_FALSE(files.WriteAt("Ultimo.dat", 0, "x"));
    EXPECT_FALSE(files.Replace("Ultimo.dat", "x"));
    EXPECT_TRUE(files.Remove("Ultimo.dat")) << "there is no such file";
    EXPECT_TRUE(QDir("Ultimo.dat").exists());
    EXPECT_FALSE(files.WriteAt("CeI.rnd", -1, "x"));
}

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

TEST_F(Folder, AnInstalledGameFurnishesThePlayersFolderOnce) {
    QDir().mkdir("share");
    for (const char* name : {"share/Zarpi1.bmp", "share/Musica01.mid"}) EXPECT_TRUE(files.Replace(name, "art"));
    QDir().mkdir("empty");
    const GameFolder::Places places = {folder.filePath("empty"), folder.filePath("share"), folder.filePath("own")};
    for (const bool first : {true, false}) {
        QDir::setCurrent(folder.path());
        GameFolder game;
        EXPECT_TRUE(game.Enter(places));
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
    EXPECT_TRUE(first.Enter({}));
    EXPECT_FALSE(GameFolder().Enter({}));
    first.Leave();
    EXPECT_TRUE(GameFolder().Enter({}));
    EXPECT_EQ(QDir::current(), QDir(folder.path()));
}

}  // namespace
}  // namespace platform::desktop
