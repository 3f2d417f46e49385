#pragma once

#include "platform/Services.h"

class QWidget;

namespace platform::desktop {

class WindowDisplay;

/// Message boxes over the window in front.
class MessageDialogs : public Dialogs {
public:
    explicit MessageDialogs(WindowDisplay& display) : display_(display) {}

    void Beep() override;
    void MsgBox(TextView text, TextView title) override;

private:
    WindowDisplay& display_;
};

/// A warning in plain text with one button; `owner` may be null.
void ShowWarning(QWidget* owner, TextView text, TextView title);

}  // namespace platform::desktop
