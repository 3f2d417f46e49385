#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// A text as the game handles it: one code unit is one letter, because every character that can be
/// typed, stored or shown belongs to Windows-1252.
using Text = std::u16string;
using TextView = std::u16string_view;

/// UTF-8 to text. Ill-formed bytes and characters beyond 16 bits become U+FFFD.
Text FromUtf8(std::string_view bytes);

/// Text to UTF-8.
std::string ToUtf8(TextView text);

/// The character behind a Windows-1252 code. The five unassigned codes keep their number.
char16_t FromWindows1252(unsigned char code);
Text FromWindows1252(std::string_view bytes);

/// The Windows-1252 code of a character; none when the code page does not have it.
std::optional<unsigned char> ToWindows1252(char16_t character);

/// Text to Windows-1252; a character that the code page does not have becomes "?".
std::string ToWindows1252(TextView text);

/// The text without the blanks (U+0020 only) at its two ends.
Text Trim(TextView text);

/// Upper case for every letter of Windows-1252, accents and Ñ included.
char16_t UpperCase(char16_t character);
Text UpperCase(TextView text);

/// The number in decimal: "7".
Text Decimal(int number);

/// The number in decimal behind its sign; the sign of a number that is not negative is a blank: " 7".
Text SignedDecimal(int number);

}  // namespace platform
