#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <chrono>
#include <map>

namespace platform::desktop {

/// Gives presses back that the toolkit took for repetitions. Where a key's release reaches no window of the game, as
/// another program came to the front with the press or a window went, the next press of the key is told as a
/// repetition on some systems. What comes long after the last press or repetition of its key is none.
class LostReleases : public QObject {
public:
    /// Looks at all keys of the program. A key that is held down repeats itself within `patience`.
    explicit LostReleases(std::chrono::milliseconds patience = std::chrono::milliseconds(1200));

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    const std::chrono::milliseconds patience_;
    std::map<int, QElapsedTimer> last_;  // by key
};

}  // namespace platform::desktop
