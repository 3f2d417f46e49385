#include "headless/Bitmap.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>

#include "headless/FolderFiles.h"

namespace platform::headless {

std::optional<PictureSize> BitmapSize(TextView name) {
    constexpr std::size_t kWidth = 18;
    constexpr std::size_t kHeight = 22;
    std::array<char, 26> header{};
    std::ifstream file(PathOf(ToUtf8(name)), std::ios::binary);
    if (!file.read(header.data(), header.size()) || header[0] != 'B' || header[1] != 'M') return std::nullopt;
    const auto number = [&header](std::size_t at) {
        std::uint32_t value = 0;
        for (std::size_t i = 4; i-- > 0;) value = value << 8U | static_cast<unsigned char>(header.at(at + i));
        // The height of a picture that is stored from its top is negative.
        return static_cast<int>(std::abs(std::int64_t{static_cast<std::int32_t>(value)}));
    };
    return PictureSize{.Width = number(kWidth), .Height = number(kHeight)};
}

}  // namespace platform::headless
