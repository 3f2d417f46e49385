#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <future>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#elif defined(Q_OS_WIN)
#include <windows.h>
#endif

#include "ContratoArchivos.h"
#include "Rig.h"
#include "desktop/system/Doorbell.h"
#include "desktop/system/DurableFiles.h"
#include "desktop/system/GameFolder.h"

namespace platform::desktop {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Durable, ContratoArchivos, DurableFiles);

/// An empty current folder, for the length of a test.
struct Folder : testing::Test {
    Folder() { QDir::setCurrent(folder.path()); }
    ~Folder() override { QDir::setCurrent(before); }

    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    const AssetsFrom assets{folder.path()};
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

/// Folders of an installed game, and what is stored in them.
struct Installed : Folder {
    Installed() {
        for (const char* name : {"here", "program", "share"}) QDir().mkdir(name);
    }
    /// The folder that is entered from "here".
    QString Entered() {
        QDir::setCurrent(folder.filePath("here"));
        EXPECT_TRUE(GameFolder().Enter(places, keeper));
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
    EXPECT_EQ(Entered(), "a/ñandú");
    EXPECT_TRUE(files.Exists("UltCeI.dat")) << "there are no records yet that it could belong to";
    EXPECT_TRUE(files.Remove("UltCeI.dat"));
    EXPECT_TRUE(files.Replace("CeI.rnd", "records"));
    EXPECT_EQ(Entered(), "a/ñandú");
    EXPECT_FALSE(files.Exists("UltCeI.dat")) << "a damaged folder is played in and told";
    Store("program/Part.rnd", "");
    EXPECT_EQ(Entered(), "program");
    Store("here/Ultimo.dat", " 0 \r\n");
    EXPECT_EQ(Entered(), "here");
}

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
    const GameFolder::Keeper keeper = {.Holds = [](Files&) { return true; }, .Furnish = {}};
    GameFolder first;
    EXPECT_TRUE(first.Enter({}, keeper));
    EXPECT_FALSE(GameFolder().Enter({}, keeper));
    first.Leave();
    EXPECT_TRUE(GameFolder().Enter({}, keeper));
    EXPECT_EQ(QDir::current(), QDir(folder.path()));
}

TEST_F(Folder, ASecondStartCallsTheFirst) {
    EXPECT_FALSE(Doorbell::Ring()) << "nobody is there";
    EXPECT_TRUE(QDir().entryList(QDir::Files | QDir::Hidden).isEmpty());
    Doorbell bell;
    int called = 0;
    bell.Answer([&called] { ++called; });
    for (const int times : {1, 2}) {
        auto second = std::async(std::launch::async, Doorbell::Ring);
        EXPECT_TRUE(QTest::qWaitFor([&] { return called == times; }));
        EXPECT_TRUE(second.get());
    }
    ASSERT_TRUE(files.Replace("CeI.rnd", "records"));
    QTest::qWait(50);
    EXPECT_EQ(called, 2) << "other files are no bell";
}

TEST_F(Folder, ALockOfAnotherMachineHoldsWhileItsGameIsAlive) {
    const GameFolder::Keeper keeper = {.Holds = [](Files&) { return true; }, .Furnish = {}};
    QFile lock(".zarpi.lock");
    for (const int minutes : {2, 10}) {
        ASSERT_TRUE(lock.open(QIODevice::WriteOnly));
        lock.write("1\nzarpi\notra-máquina\n" + QByteArray(36, 'a') + "\n" + QByteArray(36, 'b') + "\n");
        lock.flush();
        lock.setFileTime(QDateTime::currentDateTime().addSecs(-60 * minutes), QFile::FileModificationTime);
        lock.close();
        EXPECT_EQ(GameFolder().Enter({}, keeper), minutes == 10) << minutes;
    }
}

}  // namespace
}  // namespace platform::desktop
