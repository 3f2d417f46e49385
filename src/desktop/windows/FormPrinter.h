#pragma once

#include <memory>

#include "platform/Services.h"

class QPrinter;
class QWidget;

namespace platform::desktop {

class FormWindow;
class WindowDisplay;

/// Prints windows as they stand, texts and figures as vectors, as large as the paper allows within its margins.
class FormPrinter : public Printer {
public:
    explicit FormPrinter(WindowDisplay& display);
    ~FormPrinter() override;

    bool ShowDialog() override;
    void PrintForm(const Form& form) override;

private:
    WindowDisplay& display_;
    std::unique_ptr<QPrinter> printer_;  // the printer chosen last; null before
};

/// Sets what the printer dialog begins with: a page as wide or high as the window is, the window's title as the name of
/// the document and, where there is no printer, of a file among the player's documents.
void ProposePage(const FormWindow& window, QPrinter& printer);

/// Draws the client area of a window onto a page.
void PrintWidget(QWidget& widget, QPrinter& printer);

}  // namespace platform::desktop
