#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <cmath>
#include <gtest/gtest.h>

#include "desktop/MediaPlayer.h"

namespace platform::desktop {
namespace {

constexpr int kHeard = 300;  // of 32,767

template <class Number>
QByteArray Bytes(Number number) {
    QByteArray bytes(sizeof number, 0);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// A second of a tone.
QByteArray Wave() {
    constexpr quint32 kRate = 8000;
    QByteArray samples;
    for (quint32 i = 0; i < kRate; ++i) samples += Bytes(static_cast<qint16>(9000 * std::sin(i * 0.5)));
    const quint32 length = static_cast<quint32>(samples.size());
    return "RIFF" + Bytes(36 + length) + "WAVEfmt " + Bytes(quint32{16}) + Bytes(quint16{1}) + Bytes(quint16{1}) +
           Bytes(kRate) + Bytes(2 * kRate) + Bytes(quint16{2}) + Bytes(quint16{16}) + "data" + Bytes(length) + samples;
}

/// One long note of a flute.
QByteArray Midi() {
    const QByteArray track = QByteArray::fromHex("00C04900903C7F8F00803C0000FF2F00");
    return QByteArray::fromHex("4D546864000000060000000100604D54726B000000") + char(track.size()) + track;
}

void Save(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

/// A player whose sound goes to a file.
struct Sound : testing::Test {
    Sound() {
        QDir::setCurrent(folder.path());
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", folder.filePath("out.raw").toUtf8());
        Save("Caída.wav", Wave());
        Save("Musica01.mid", Midi());
        Save("bad.wav", "RIFF no sound at all");
        Save("bad.mid", "MThd");
    }
    ~Sound() override { QDir::setCurrent(before); }

    /// The loudest of what was to be heard.
    static int Peak() {
        QFile file("out.raw");
        if (!file.open(QIODevice::ReadOnly)) return 0;
        const QByteArray raw = file.readAll();
        int peak = 0;
        for (qsizetype i = 0; i + 1 < raw.size(); i += 2) {
            peak = std::max(peak, std::abs(int{qFromLittleEndian<qint16>(raw.constData() + i)}));
        }
        return peak;
    }

    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    MediaPlayer player;
};

TEST_F(Sound, FaultyFilesAreSilentAndTheNextOneSounds) {
    MediaChannel bad{"sonPrisa", {}};
    for (const char16_t* name : {u"gone.wav", u"bad.wav", u"gone.mid", u"bad.mid"}) PlaySound(player, bad, name);
    player.Start();
    QTest::qWait(300);
    EXPECT_LT(Peak(), kHeard);
    MediaChannel good{"sonCaída", {}};
    PlaySound(player, good, u"Caída.wav");
    EXPECT_TRUE(QTest::qWaitFor([] { return Peak() > 10 * kHeard; }, 10'000));
}

TEST_F(Sound, MusicSoundsUntilItIsClosed) {
    player.Start();
    MediaChannel music{"sonMusica(1)", {}};
    PlaySound(player, music, u"Musica01.mid");
    EXPECT_TRUE(QTest::qWaitFor([] { return Peak() > kHeard; }, 10'000)) << "is a SoundFont installed?";
    player.Command(music, MediaCommand::Close);
    QTest::qWait(300);
    QFile::resize("out.raw", 0);
    QTest::qWait(300);
    EXPECT_LT(Peak(), kHeard);
}

TEST_F(Sound, WithoutADeviceNothingWaits) {
    qputenv("SDL_AUDIODRIVER", "none of these");
    player.Start();
    MediaChannel channel{"sonCaída", {}};
    PlaySound(player, channel, u"Caída.wav");
    QTest::qWait(100);
    player.Command(channel, MediaCommand::Close);
    EXPECT_FALSE(QFile::exists("out.raw"));
}

}  // namespace
}  // namespace platform::desktop
