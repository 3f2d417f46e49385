#include "mixer/Rendition.h"

#include <QCryptographicHash>
#include <QFile>

namespace platform::desktop {

std::string FileToSound(const std::string& midi) {
    constexpr qint64 kComments = 4096;  // bytes; they stand at the head of the file
    const std::string ogg = midi.substr(0, midi.rfind('.')) + ".ogg";
    QFile notes(QString::fromStdString(midi));
    QFile rendition(QString::fromStdString(ogg));
    if (!rendition.open(QIODevice::ReadOnly) || !notes.open(QIODevice::ReadOnly)) return midi;
    const QByteArray digest = QCryptographicHash::hash(notes.readAll(), QCryptographicHash::Sha1).toHex();
    return rendition.read(kComments).contains("source=sha1:" + digest) ? ogg : midi;
}

}  // namespace platform::desktop
