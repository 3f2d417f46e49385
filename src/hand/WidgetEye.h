#pragma once

#include "desktop/windows/WindowDisplay.h"
#include "headless/Hand.h"

namespace platform::hand {

/// The eye on the windows of a display: captions, texts, lines, check marks, pictures, and every place to the pixel. An
/// element that is hidden or whose form is not open shows nothing that could differ.
class WidgetEye : public headless::Eye {
public:
    /// Both must outlive the eye.
    WidgetEye(const Screen& screen, desktop::WindowDisplay& display) : screen_(screen), display_(display) {}

    [[nodiscard]] std::optional<headless::Value> Seen(const Control& control, std::string_view property,
                                                      const headless::Value& state) const override;
    [[nodiscard]] std::optional<headless::Value> Seen(const Form& form, std::string_view property,
                                                      const headless::Value& state) const override;
    [[nodiscard]] std::string Forms() const override;
    [[nodiscard]] std::string Focus() const override;
    [[nodiscard]] std::string Ringed() const override;

private:
    const Screen& screen_;
    desktop::WindowDisplay& display_;
};

}  // namespace platform::hand
