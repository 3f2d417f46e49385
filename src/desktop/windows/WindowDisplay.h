#pragma once

#include <QPointer>
#include <functional>
#include <map>

#include "desktop/keys/Repetitions.h"
#include "desktop/windows/FormWindow.h"
#include "platform/Screen.h"

namespace platform::desktop {

/// The windows on the player's screen.
class WindowDisplay : public Display {
public:
    explicit WindowDisplay(const Scale& scale);
    ~WindowDisplay() override;

    /// Where the player's input goes; to be told before the first form is shown.
    void Attach(Screen& screen) { screen_ = &screen; }

    void Opened(Form& form, bool modal) override;
    void Closed(Form& form) override;
    void Refresh() override;
    void WaitUntil(const std::function<bool()>& done) override;
    void End() override;
    [[nodiscard]] std::optional<PictureSize> SizeOf(TextView picture) const override;

    /// Brings the windows before those of other programs, as far as the desktop lets them.
    void ComeToFront() const;
    /// Lets views glide to new places; without it they are there at once.
    void LetGlide() { glides_ = true; }
    /// Shows everything as the player wishes it from here on.
    void Heed(const Wishes& wishes);
    /// The window of an open form; null if it is not open.
    [[nodiscard]] FormWindow* WindowOf(const Form& form) const;
    /// What its windows are made with.
    [[nodiscard]] Toolkit Kit() { return {*screen_, scale_, pictures_, doubleClicks_, sizing_, wishes_, glides_}; }
    /// The window in front; null if there is none.
    [[nodiscard]] FormWindow* FrontWindow() const;

    std::function<void()> OnFirstWindow;  ///< the first window is up and painted; called from the event loop
    std::function<void()> OnRefresh;      ///< every refresh has run to its end
    std::function<void()> OnEnd;          ///< what must be done before the process ends

private:
    void ShowAnew();

    Scale scale_;
    Sizing sizing_{scale_};
    Wishes wishes_;
    bool glides_ = false;
    const Pictures pictures_{scale_};
    DoubleClicks doubleClicks_;
    Repetitions repetitions_;
    Screen* screen_ = nullptr;
    std::map<const Form*, QPointer<FormWindow>> windows_;
    bool hadWindow_ = false;
};

}  // namespace platform::desktop
