#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <filesystem>
#include <future>
#include <gtest/gtest.h>

#include "Rig.h"
#include "desktop/system/Doorbell.h"
#include "desktop/system/GameFolder.h"
#include "records/Archivos.h"

namespace platform::desktop {
namespace {

/// An empty current folder, for the length of a test.
struct Folder : testing::Test {
    Folder() { QDir::setCurrent(folder.path()); }
    ~Folder() override { QDir::setCurrent(before); }

    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    const AssetsFrom assets{folder.path()};
    storage::FolderFiles files;
};

/// Folders of an installed game, and what is stored in them.
struct Installed : Folder {
    Installed() {
        for (const char* name : {"here", "program", "share"}) QDir().mkdir(name);
    }
    /// The folder that is entered from "here".
    QString Entered() {
        QDir::setCurrent(folder.filePath("here"));
        EXPECT_EQ(GameFolder().Enter(places, keeper), GameFolder::Entry::Free);
        return QDir(folder.path()).relativeFilePath(QDir::currentPath());
    }
    void Store(const char* name, const char* content) {
        QDir::setCurrent(folder.path());
        EXPECT_TRUE(files.Replace(name, content));
    }

    const GameFolder::Places places = {folder.filePath("program"), folder.filePath("share"),
                                       folder.filePath("a/ñandú")};
    const GameFolder::Keeper keeper = {.Holds = juego::HayArchivos, .Furnish = juego::EstrenarCarpeta};
};

TEST_F(Installed, PlaysWhereTheGameIsStored) {
    EXPECT_EQ(Entered(), "a/ñandú");
    EXPECT_EQ(files.Read("UltCeI.dat"), " 0 \r\n");
    EXPECT_EQ(QDir().entryList(QDir::Files).size(), 7);
    EXPECT_TRUE(files.Remove("UltCeI.dat"));
    EXPECT_TRUE(files.Replace("CeI.rnd", "records"));
    EXPECT_TRUE(files.Replace(storage::FolderFiles::kBeside, "left by a program that was killed"));
    EXPECT_EQ(Entered(), "a/ñandú");
    EXPECT_FALSE(files.Exists("UltCeI.dat")) << "a damaged folder is played in and told";
    EXPECT_FALSE(files.Exists(storage::FolderFiles::kBeside));
    Store("program/Ultimo.dat", " 0 \r\n");
    EXPECT_EQ(Entered(), "a/ñandú") << "an older build leaves a counter of 0";
    Store("program/Ultimo.dat", " 1 \r\n");
    EXPECT_EQ(Entered(), "program");
    EXPECT_EQ(files.Read("UltPart.dat"), " 0 \r\n") << "a copy of a part of the records is complete";
    Store("here/Part.rnd", "");
    EXPECT_EQ(Entered(), "here");
}

TEST_F(Installed, WithoutAFolderOfItsOwnItPlaysInOneThatGoesAway) {
    Store("a", "a file in the way");
    GameFolder game;
    QDir::setCurrent(folder.filePath("here"));
    EXPECT_EQ(game.Enter(places, keeper), GameFolder::Entry::Temporary);
    const QDir temporary = QDir::current();
    EXPECT_EQ(files.Read("Ultimo.dat"), " 0 \r\n");
    game.Leave();
    EXPECT_FALSE(temporary.exists());
    EXPECT_TRUE(QDir(folder.filePath("here")).isEmpty(QDir::Files | QDir::Hidden));
}

#ifdef Q_OS_LINUX
TEST_F(Folder, ARelativeFolderOfTheSystemsIsNotHonoured) {
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "data");
    EXPECT_TRUE(QDir::isAbsolutePath(GameFolder::SystemPlaces().Own));
    EXPECT_FALSE(GameFolder::SystemPlaces().Own.startsWith(QDir::currentPath()));
    qputenv("XDG_DATA_HOME", before);
}
#endif

TEST_F(Installed, ThePlayersOwnPictureWins) {
    const auto read = [](TextView name) {
        QFile file(AssetPath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "none";
    };
    Store("share/Zarpi1.bmp", "installed");
    EXPECT_EQ(Entered(), "a/ñandú");
    EXPECT_EQ(read(u"Zarpi1.bmp"), "installed");
    Store("share/Zarpi1.bmp", "a newer version's");
    EXPECT_EQ(read(u"Zarpi1.bmp"), "a newer version's");
    Store("program/Zarpi1.bmp", "portable");
    EXPECT_EQ(read(u"Zarpi1.bmp"), "portable");
    Store("a/ñandú/Zarpi1.bmp", "own");
    EXPECT_EQ(read(u"Zarpi1.bmp"), "own");
    EXPECT_EQ(read(u"Zarpi2.bmp"), "none");
}

TEST_F(Folder, OneGameAFolder) {
    const GameFolder::Keeper keeper = {.Holds = [](Files&) { return true; }, .Furnish = [](Files&) { return true; }};
    GameFolder first;
    EXPECT_EQ(first.Enter({}, keeper), GameFolder::Entry::Free);
    EXPECT_EQ(GameFolder().Enter({}, keeper), GameFolder::Entry::Taken);
    first.Leave();
    EXPECT_EQ(GameFolder().Enter({}, keeper), GameFolder::Entry::Free);
    EXPECT_EQ(QDir::current(), QDir(folder.path()));
}

TEST_F(Folder, ASecondStartCallsTheFirst) {
    auto early = std::async(std::launch::async, [] { return Doorbell::Ring(); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return files.Exists(".zarpi.timbre"); }));
    Doorbell bell;
    int called = 0;
    bell.Answer([&called] { ++called; });
    EXPECT_EQ(called, 1) << "somebody has rung while the game was starting";
    EXPECT_TRUE(early.get());
    for (const int times : {2, 3}) {
        auto second = std::async(std::launch::async, [] { return Doorbell::Ring(); });
        EXPECT_TRUE(QTest::qWaitFor([&] { return called == times; }));
        EXPECT_TRUE(second.get());
    }
    ASSERT_TRUE(files.Replace("CeI.rnd", "records"));
    QTest::qWait(50);
    EXPECT_EQ(called, 3) << "other files are no bell";
}

TEST_F(Folder, ABellThatNobodyAnsweredIsInNobodysWay) {
    ASSERT_TRUE(files.Replace(".zarpi.timbre", "left"));
    EXPECT_FALSE(Doorbell::Ring(std::chrono::milliseconds(50))) << "nobody is there";
#ifdef Q_OS_UNIX
    std::filesystem::create_symlink("away", ".zarpi.timbre");
    EXPECT_FALSE(Doorbell::Ring(std::chrono::milliseconds(50)));
    EXPECT_FALSE(QFile::exists("away"));
#endif
    EXPECT_TRUE(QDir().entryList(QDir::Files | QDir::Hidden | QDir::System).isEmpty());
}

}  // namespace
}  // namespace platform::desktop
