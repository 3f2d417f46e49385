#include "headless/Hand.h"

namespace platform::headless {

Refusal ScreenHand::Press(const Key& key) {
    Form* const front = screen_.Front();
    const Refusal refusal = front == nullptr ? Refusal::Closed : screen_.Reach(*front);
    if (refusal == Refusal::None && !screen_.Press(key)) screen_.TypeKey(key);
    return refusal;
}

Refusal ScreenHand::Close() {
    Form* const front = screen_.Front();
    return front == nullptr ? Refusal::Closed : screen_.Close(*front);
}

}  // namespace platform::headless
