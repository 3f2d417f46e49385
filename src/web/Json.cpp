#include "web/Json.h"

namespace platform::web {

namespace {

std::string Hexadecimal(unsigned number, int digits) {
    std::string text;
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        text += "0123456789abcdef"[(number >> static_cast<unsigned>(shift)) & 0xFU];
    }
    return text;
}

}  // namespace

std::string Quoted(std::string_view utf8) {
    std::string text = "\"";
    for (const char c : utf8) {
        if (c == '"' || c == '\\') {
            text.append(1, '\\').append(1, c);
        } else if (static_cast<unsigned char>(c) < ' ') {
            text.append("\\u").append(Hexadecimal(static_cast<unsigned char>(c), 4));
        } else {
            text += c;
        }
    }
    return text + "\"";
}

Json& Json::Raw(std::string_view member, std::string_view json) {
    text_ += text_.empty() ? '{' : ',';
    text_.append(Quoted(member)).append(":").append(json);
    return *this;
}

Json& Json::Text(std::string_view member, std::string_view utf8) {
    return Raw(member, Quoted(utf8));
}

Json& Json::Number(std::string_view member, long number) {
    return Raw(member, std::to_string(number));
}

Json& Json::Flag(std::string_view member, bool flag) {
    return Raw(member, flag ? "true" : "false");
}

Json& Json::Colour(std::string_view member, Color color) {
    if (color.IsNone()) return Raw(member, "null");
    return Text(member, "#" + Hexadecimal(static_cast<unsigned>(color.Rgb), 6));
}

}  // namespace platform::web
