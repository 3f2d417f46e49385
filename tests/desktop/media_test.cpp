#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#ifndef Q_OS_WIN
#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "Rig.h"
#include "desktop/system/MediaPlayer.h"
#include "platform/Mix.h"

namespace platform::desktop {
namespace {

constexpr int kHeard = 300;  // of 32,767
constexpr int kLoud = 9000;

template <class Number>
QByteArray Bytes(Number number) {
    QByteArray bytes(sizeof number, 0);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

constexpr quint32 kRate = 44100;

/// The samples of some seconds of a tone, or of silence.
QByteArray Tone(int loudness, double seconds) {
    QByteArray samples;
    for (quint32 i = 0; i < seconds * kRate; ++i) {
        samples += Bytes(static_cast<qint16>(loudness * std::sin(i * 0.25)));
    }
    return samples;
}

/// A file of samples.
QByteArray Wave(const QByteArray& samples) {
    const QByteArray chunks = "data" + Bytes(static_cast<quint32>(samples.size())) + samples;
    return "RIFF" + Bytes(static_cast<quint32>(28 + chunks.size())) + "WAVEfmt " + Bytes(quint32{16}) +
           Bytes(quint16{1}) + Bytes(quint16{1}) + Bytes(kRate) + Bytes(2 * kRate) + Bytes(quint16{2}) +
           Bytes(quint16{16}) + chunks;
}

void Save(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// A player whose sound goes to a file, as long as the folder "device" is there. The mixer knows a file by its content:
/// its music here is a tone.
struct Sound : testing::Test {
    Sound() {
        QDir::setCurrent(folder.path());
        QDir().mkdir("device");
        Save("Caída.wav", Wave(Tone(kLoud, 1)));
        Save("Pleno.wav", Wave(Tone(0, 1)));
        Save("Musica01.mid", Wave(Tone(kLoud, 10)));
    }
    ~Sound() override { QDir::setCurrent(before); }

    /// The peak of each 10 ms, or other stretch, of what was to be heard, and forgets it.
    static std::vector<int> Heard(int milliseconds = 10) {
        QFile file("device/out.raw");
        if (!file.open(QIODevice::ReadWrite)) return {};
        const QByteArray raw = file.readAll();
        file.resize(0);
        const qsizetype step = qsizetype{milliseconds} * kRate / 1000 * 4;  // bytes, of two loudspeakers
        std::vector<int> peaks;
        for (qsizetype start = 0; start + step <= raw.size(); start += step) {
            int peak = 0;
            for (qsizetype i = start; i < start + step; i += 2) {
                peak = std::max(peak, std::abs(int{qFromLittleEndian<qint16>(raw.constData() + i)}));
            }
            peaks.push_back(peak);
        }
        return peaks;
    }
    static int Peak() {
        const auto heard = Heard();
        return heard.empty() ? 0 : *std::ranges::max_element(heard);
    }
    static bool Sounds() {
        return QTest::qWaitFor([] { return Peak() > kLoud / 2; }, 10'000);
    }
    /// How many hundredths of a second were between two loudnesses.
    static auto Between(const std::vector<int>& heard, int low, int high) {
        return std::ranges::count_if(heard, [=](int peak) { return peak > low && peak < high; });
    }

    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    const AssetsFrom assets{folder.path()};
    MediaPlayer player;
    MediaChannel music{"sonMusica(1)", {}};
};

TEST_F(Sound, FaultyFilesAreSilentAndTheNextOneSounds) {
    Save("bad.wav", "RIFF no sound at all");
    Save("bad.mid", "MThd");
    MediaChannel bad{"sonPrisa", {}};
    for (const char16_t* name : {u"gone.wav", u"bad.wav", u"gone.mid", u"bad.mid"}) PlaySound(player, bad, name);
    player.Start();
    QTest::qWait(300);
    EXPECT_LT(Peak(), kHeard);
    MediaChannel good{"sonCaída", {}};
    PlaySound(player, good, u"Caída.wav");
    EXPECT_TRUE(Sounds());
}

TEST_F(Sound, MusicFadesOutWhenItIsClosedAndGivesWayToTheNextPiece) {
    Save("Musica02.mid", Wave(Tone(kLoud / 4, 10)));
    player.Start();
    PlaySound(player, music, u"Musica01.mid");
    ASSERT_TRUE(Sounds());
    player.Command(music, MediaCommand::Close);
    MediaChannel other{"sonMusica(2)", {}};
    PlaySound(player, other, u"Musica02.mid");
    QTest::qWait(500);
    const auto heard = Heard();
    ASSERT_FALSE(heard.empty());
    EXPECT_NEAR(heard.back(), kLoud / 4, 200) << "the next piece";
    player.Command(other, MediaCommand::Close);
    QTest::qWait(500);
    const auto fading = Heard(1);
    const auto last = std::ranges::find_if(fading.rbegin(), fading.rend(), [](int peak) { return peak > 0; });
    ASSERT_NE(last, fading.rbegin()) << "silent in the end";
    EXPECT_LT(*last, kLoud / 4 / 500) << "cut off 60 dB down";
    const auto onTheWay =
        std::ranges::count_if(fading, [=](int peak) { return peak > *last && peak < kLoud / 4 - 200; });
    EXPECT_NEAR(static_cast<double>(onTheWay), kMix.Stop, 10) << "milliseconds";
}

TEST_F(Sound, MusicGoesBackWhileWhatIsHeardOverItSounds) {
    player.Start();
    PlaySound(player, music, u"Musica01.mid");
    ASSERT_TRUE(Sounds());
    MediaChannel click{"sonTeclado", {}};
    PlaySound(player, click, u"Pleno.wav");
    QTest::qWait(600);
    EXPECT_EQ(Between(Heard(), kHeard, kLoud - 500), 0) << "other sounds leave it as it is";
    MediaChannel reward{.Name = "sonPleno", .FileName = {}, .OverMusic = true};
    PlaySound(player, reward, u"Pleno.wav");
    const auto wentBack = [] {
        const auto heard = Heard();
        return !heard.empty() && std::abs(heard.back() - 0.316 * kLoud) < 0.02 * kLoud;
    };
    EXPECT_TRUE(QTest::qWaitFor(wentBack, 5000)) << "10 dB";
    EXPECT_TRUE(QTest::qWaitFor([] { return Peak() > kLoud - 500; }, 9000)) << "and comes up again";
    player.UnderVoice(true);
    EXPECT_TRUE(QTest::qWaitFor(wentBack, 5000)) << "under a screen reader's voice";
    PlaySound(player, reward, u"Pleno.wav");
    QTest::qWait(1500);
    EXPECT_EQ(std::ranges::count_if(Heard(), [](int peak) { return peak > kLoud / 2; }), 0) << "and stays there";
    player.UnderVoice(false);
    EXPECT_TRUE(QTest::qWaitFor([] { return Peak() > kLoud - 500; }, 5000));
}

TEST_F(Sound, ARecordingIsHeardInPlaceOfTheNotesBesideIt) {
    Save("Musica01.mid", "MThd");
    Save("Musica01.ogg", Wave(Tone(kLoud, 10)));
    player.Start();
    PlaySound(player, music, u"Musica01.mid");
    EXPECT_TRUE(Sounds());
    player.Command(music, MediaCommand::Close);
    QTest::qWait(300);
    const QTemporaryDir own;  // the player's
    const AssetsFrom both(own.path(), folder.path());
    Save(own.filePath("Musica01.mid"), Wave(Tone(kLoud / 4, 10)));
    PlaySound(player, music, u"Musica01.mid");
    EXPECT_TRUE(QTest::qWaitFor([] { return std::abs(Peak() - kLoud / 4) < 200; }, 10'000));
}

TEST_F(Sound, WithoutADeviceNothingWaits) {
    QDir("device").removeRecursively();
    QElapsedTimer clock;
    clock.start();
    {
        MediaPlayer silent;
        silent.Start();
        PlaySound(silent, music, u"Musica01.mid");
        silent.Command(music, MediaCommand::Close);
    }
    EXPECT_LT(clock.elapsed(), 2000) << "until the last order is taken";
}

TEST_F(Sound, ADeviceThatComesLateHearsThePieceWhereItHasComeTo) {
    Save("Musica01.mid", Wave(Tone(kLoud / 4, 1.5) + Tone(kLoud, 10)));
    QDir("device").removeRecursively();
    player.Start();
    PlaySound(player, music, u"Musica01.mid");
    QTest::qWait(1600);
    QDir().mkdir("device");
    EXPECT_TRUE(QTest::qWaitFor([] { return Peak() > kLoud - 500; }, 2000));
}

#ifndef Q_OS_WIN
TEST_F(Sound, WhenTheDeviceGoesAwayThePieceGoesOnWithTheNextOneThatComes) {
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    ASSERT_EQ(mkfifo("device/out.raw", S_IRUSR | S_IWUSR), 0);
    const int ear = open("device/out.raw", O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    const auto hears = [ear] {
        QByteArray block(4096, 0);
        return read(ear, block.data(), block.size()) > 0 && block.count('\0') < block.size() / 2;
    };
    player.Start();
    PlaySound(player, music, u"Musica01.mid");
    EXPECT_TRUE(QTest::qWaitFor(hears, 5000));
    QDir("device").removeRecursively();
    close(ear);
    QTest::qWait(700);
    QDir().mkdir("device");
    EXPECT_TRUE(QTest::qWaitFor([] { return Peak() > kLoud - 500; }, 2000));
    std::signal(SIGPIPE, before);
}
#endif

}  // namespace
}  // namespace platform::desktop
