#pragma once

#include <QAction>
#include <QWidget>

#include "desktop/windows/WindowDisplay.h"

namespace platform::hand {

/// The widget of an element of an open form; null where it has none.
QWidget* FindWidget(const desktop::WindowDisplay& display, const Control& control);

/// The entry of a menu of an open form; null where the form is not open.
QAction* FindAction(const desktop::WindowDisplay& display, const Control& entry);

/// Lets the window system do what it still has to: show, hide, activate windows, move the focus.
void Settle(const desktop::WindowDisplay& display);

}  // namespace platform::hand
