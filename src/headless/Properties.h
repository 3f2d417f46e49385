#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/Form.h"

namespace platform::headless {

/// What a property or a field holds.
using Value = std::variant<bool, int, double, Text>;

/// The value as a script writes it: True, 24, 21.75, "Mal.".
std::string Format(const Value& value);

/// A property of an element, by the name that it has in the code; "List(2)" for a line of a list box. Nothing if
/// elements of this kind do not have it.
std::optional<Value> PropertyOf(const Control& control, std::string_view name);

/// A property of a form itself.
std::optional<Value> PropertyOf(const Form& form, bool shown, std::string_view name);

}  // namespace platform::headless
