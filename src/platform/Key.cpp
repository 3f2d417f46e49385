#include "platform/Key.h"

namespace platform {

Key KeyOf(char16_t character) {
    const char16_t upper = UpperCase(character);
    const bool isKey = (upper >= u'0' && upper <= u'9') || (upper >= u'A' && upper <= u'Z') || upper == u'Ñ';
    // Other characters have no key of their own; their codes would be those of the arrows.
    return {.Code = isKey || upper == u' ' ? int{upper} : int{KeyNone}, .Character = character};
}

}  // namespace platform
