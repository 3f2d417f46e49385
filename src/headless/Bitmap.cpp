#include "headless/Bitmap.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace platform::headless {

std::optional<PictureSize> BitmapSize(Files& files, TextView name) {
    constexpr std::size_t kWidth = 18;
    constexpr std::size_t kHeight = 22;
    constexpr std::size_t kHeader = 26;
    const std::optional<std::string> header = files.Read(ToUtf8(name));
    if (!header || header->size() < kHeader || !header->starts_with("BM")) return std::nullopt;
    const auto number = [&header](std::size_t at) {
        std::uint32_t value = 0;
        for (std::size_t i = 4; i-- > 0;) value = value << 8U | static_cast<unsigned char>(header->at(at + i));
        // The height of a picture that is stored from its top is negative.
        return static_cast<int>(std::abs(std::int64_t{static_cast<std::int32_t>(value)}));
    };
    return PictureSize{.Width = number(kWidth), .Height = number(kHeight)};
}

}  // namespace platform::headless
