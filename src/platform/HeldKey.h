#pragma once

#include "platform/Scheduler.h"

namespace platform {

/// Tells a press of a key from the repetitions that a system makes while the key is held down. Systems repeat the key
/// that was pressed last. There is one for all windows.
class HeldKey {
public:
    /// Whether this press is a repetition. `key` is any number that belongs to this key alone, `at` the time of the
    /// press (0: not known), `flagged` whether the system calls it a repetition.
    bool Repeats(int key, Moment at, bool flagged);
    /// The key is let go, or the system says so: some tell each repetition as a release and a press at one time.
    void Release(int key, Moment at);

private:
    int key_ = 0;  ///< the last one pressed
    Moment pressed_{0};
    Moment released_{0};
};

}  // namespace platform
