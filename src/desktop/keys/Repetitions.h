#pragma once

#include <QObject>

#include "platform/HeldKey.h"

namespace platform::desktop {

/// Sees every key of the program before its windows and message boxes do, and sends a press anew that the system has
/// flagged as a repetition where it is none, or has not where it is one.
class Repetitions : public QObject {
public:
    Repetitions();

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    HeldKey held_;
    bool isSentAnew_ = false;  // the press that comes next
};

}  // namespace platform::desktop
