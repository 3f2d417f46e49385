#include "platform/HeldKey.h"

namespace platform {

bool HeldKey::Repeats(int key, Moment at, bool flagged) {
    constexpr Moment kPatience{1200};  // a key that is held down repeats itself within this time
    const bool isFirst = key_ == 0;
    const bool isSame = key == key_;
    // Where the release has reached no window of the game, the next press is flagged as well; it comes later.
    const bool isLate = isSame && at - pressed_ > kPatience;
    const bool isUnflagged = isSame && at != Moment(0) && at == released_;
    key_ = key;
    pressed_ = at;
    released_ = Moment(0);
    return isUnflagged || (flagged && !isLate && (isSame || isFirst));
}

void HeldKey::Release(int key, Moment at) {
    if (key == key_) released_ = at;
}

}  // namespace platform
