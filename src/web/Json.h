#pragma once

#include <string>
#include <string_view>

#include "platform/Controls.h"

namespace platform::web {

/// One object of a message to the page, written member by member.
///
///     std::string open = Json("open").Text("form", form.Name).Flag("modal", modal).Done();
class Json {
public:
    /// An object that says what to do.
    explicit Json(std::string_view deed) { Text("do", deed); }

    /// A text in UTF-8.
    Json& Text(std::string_view member, std::string_view utf8);
    Json& Text(std::string_view member, TextView text) { return Text(member, ToUtf8(text)); }
    Json& Number(std::string_view member, long number);
    Json& Flag(std::string_view member, bool flag);
    /// "#RRGGBB", or null for none.
    Json& Colour(std::string_view member, Color color);
    /// What is JSON already.
    Json& Raw(std::string_view member, std::string_view json);

    [[nodiscard]] std::string Done() const { return text_ + "}"; }

private:
    std::string text_;
};

/// A text as JSON writes it, quotation marks included.
std::string Quoted(std::string_view utf8);

}  // namespace platform::web
