#include "platform/Text.h"

#include <array>

namespace platform {

namespace {

constexpr char16_t kReplacement = 0xFFFD;
constexpr unsigned kFirstSpecial = 0x80;

/// Codes 80 to 9F of Windows-1252; the unassigned ones stand for themselves.
constexpr std::array<char16_t, 32> kSpecials = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct Decoded {
    char32_t character;
    std::size_t length;
};

/// The smallest character that needs this many bytes; one in more bytes than it needs is ill-formed.
constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};

constexpr bool IsCharacter(char32_t character) {
    return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

/// The first character of UTF-8 bytes that are not empty; ill-formed bytes are taken one by one.
Decoded DecodeFirst(std::string_view bytes) {
    const auto lead = static_cast<unsigned char>(bytes[0]);
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xF8 ? 0 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
    if (length == 0 || length > bytes.size()) return {kReplacement, 1};
    char32_t character = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(bytes[i]);
        if ((next & 0xC0U) != 0x80) return {kReplacement, 1};
        character = (character << 6U) | (next & 0x3FU);
    }
    if (character < kSmallest.at(length) || !IsCharacter(character)) return {kReplacement, 1};
    return {character, length};
}

}  // namespace

Text FromUtf8(std::string_view bytes) {
    Text text;
    while (!bytes.empty()) {
        const auto [character, length] = DecodeFirst(bytes);
        text += character <= 0xFFFF ? static_cast<char16_t>(character) : kReplacement;
        bytes.remove_prefix(length);
    }
    return text;
}

std::string ToUtf8(TextView text) {
    std::string bytes;
    for (const unsigned c : text) {
        if (c < 0x80) {
            bytes += static_cast<char>(c);
        } else if (c < 0x800) {
            bytes += static_cast<char>(0xC0U | (c >> 6U));
            bytes += static_cast<char>(0x80U | (c & 0x3FU));
        } else {
            bytes += static_cast<char>(0xE0U | (c >> 12U));
            bytes += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
            bytes += static_cast<char>(0x80U | (c & 0x3FU));
        }
    }
    return bytes;
}

char16_t FromWindows1252(unsigned char code) {
    const bool special = code >= kFirstSpecial && code < kFirstSpecial + kSpecials.size();
    return special ? kSpecials.at(code - kFirstSpecial) : code;
}

Text FromWindows1252(std::string_view bytes) {
    Text text;
    for (const char byte : bytes) text += FromWindows1252(static_cast<unsigned char>(byte));
    return text;
}

std::optional<unsigned char> ToWindows1252(char16_t character) {
    const auto special = TextView(kSpecials.data(), kSpecials.size()).find(character);
    if (special != TextView::npos) return static_cast<unsigned char>(kFirstSpecial + special);
    if (character > 0xFF || (character >= 0x80 && character < 0xA0)) return std::nullopt;
    return static_cast<unsigned char>(character);
}

std::string ToWindows1252(TextView text) {
    std::string bytes;
    for (const char16_t c : text) bytes += static_cast<char>(ToWindows1252(c).value_or('?'));
    return bytes;
}

Text Trim(TextView text) {
    const auto first = text.find_first_not_of(u' ');
    if (first == TextView::npos) return {};
    return Text(text.substr(first, text.find_last_not_of(u' ') - first + 1));
}

char16_t UpperCase(char16_t c) {
    if (c >= u'a' && c <= u'z') return c - 0x20;
    if (c >= u'à' && c <= u'þ' && c != u'÷') return c - 0x20;
    switch (c) {
        case u'š': return u'Š';
        case u'œ': return u'Œ';
        case u'ž': return u'Ž';
        case u'ÿ': return u'Ÿ';
        default: return c;
    }
}

Text UpperCase(TextView text) {
    Text upper(text);
    for (char16_t& c : upper) c = UpperCase(c);
    return upper;
}

Text Decimal(int number) {
    return FromUtf8(std::to_string(number));
}

Text SignedDecimal(int number) {
    Text text = Decimal(number);
    if (number >= 0) text.insert(text.begin(), u' ');
    return text;
}

}  // namespace platform
