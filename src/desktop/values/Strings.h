#pragma once

#include <QString>

#include "platform/Text.h"

namespace platform::desktop {

inline QString ToQt(TextView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}
inline QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
inline Text FromQt(const QString& text) {
    return text.toStdU16String();
}

}  // namespace platform::desktop
