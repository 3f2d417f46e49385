#pragma once

#include <QObject>
#include <QPointer>
#include <QPropertyAnimation>
#include <QRect>
#include <QWidget>
#include <memory>
#include <optional>

#include "desktop/sizes/Sizing.h"
#include "desktop/values/Scale.h"
#include "desktop/views/Clicks.h"
#include "desktop/views/Pictures.h"
#include "platform/Contrast.h"
#include "platform/Screen.h"
#include "platform/Wishes.h"

namespace platform::desktop {

/// What every window and every view needs: where input goes, how long a twip is, where pictures come from. All of it
/// outlives the windows.
struct Toolkit {
    platform::Screen& Screen;
    const desktop::Scale& Scale;
    const desktop::Pictures& Pictures;
    desktop::DoubleClicks& DoubleClicks;
    desktop::Sizing& Sizing;
    const platform::Wishes& Wishes;
    const bool& Glides;  ///< views may glide
};

/// Shows the state of one element in one widget, which has the name of the element.
class View {
public:
    View(const Toolkit& toolkit, Control& element, QWidget& widget);
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    /// Shows what has changed since the last time, and touches nothing else. Whether anything had changed.
    virtual bool Refresh() = 0;
    /// The factor has changed: the next refresh shows everything anew.
    virtual void Forget() = 0;
    /// Ends a glide that began before this refresh.
    void Arrive();

    [[nodiscard]] QWidget& Widget() const { return widget_; }
    [[nodiscard]] Control& Element() const { return element_; }
    /// Clicks the element, as the mouse does. The view may have been deleted when this returns.
    void Press() { toolkit_.Screen.Click(element_); }

protected:
    /// Lets the left mouse button click the element, over which the pointer becomes a hand; the form instead, if the
    /// element has nothing to do.
    void TakeClicks();
    /// The colours of letters and their ground as the player wishes them.
    [[nodiscard]] Ink Shown(const Ink& design) const {
        return toolkit_.Wishes.HighContrast ? Readable(design) : design;
    }
    /// Gives the widget its place in the order of the focus and tells the screen when the player moves it there.
    void TakeFocus(int tabIndex);
    /// Whether the way from an old place to a new one may be shown.
    [[nodiscard]] bool Glides(const Place& from, const Place& to) const;
    /// Lets the widget glide to a rectangle; its first frame is on the way already.
    void GlideTo(const QRect& geometry);
    void EndGlide();

    const Toolkit& toolkit_;

private:
    Control& element_;
    QWidget& widget_;  // belongs to the client area
    QPointer<QPropertyAnimation> glide_;
    bool isNew_ = false;  // the glide began in this refresh
};

/// A view that remembers the state it last showed. E is the kind of element, W the widget that shows it.
template <class E, class W>
class ElementView : public View {
public:
    ElementView(const Toolkit& toolkit, E& element, QWidget& client) : ElementView(toolkit, element, *new W(&client)) {}

    bool Refresh() override {
        const platform::Place& place = element_;
        bool changed = place.Visible == widget_.isHidden();
        if (place.Visible) {
            changed = changed || place_ != place || look_ != static_cast<const Look&>(element_);
            if (place_ != place) SetPlace(place);
            if (look_ != static_cast<const Look&>(element_)) SetLook(element_);
        }
        widget_.setVisible(place.Visible);
        return changed;
    }

    void Forget() override {
        place_.reset();
        look_.reset();
    }

protected:
    using Look = typename E::Look;

    /// Puts a changed look into the widget, whose place is already right.
    virtual void Apply(const Look& look) = 0;
    /// The rectangle of the widget in the client area.
    [[nodiscard]] virtual QRect Geometry(const platform::Place& place) const { return toolkit_.Scale.Rect(place); }

    E& element_;
    W& widget_;

private:
    ElementView(const Toolkit& toolkit, E& element, W& widget)
        : View(toolkit, element, widget), element_(element), widget_(widget) {}

    void SetPlace(const platform::Place& place) {
        const bool glides = place_ && Glides(*place_, place);
        EndGlide();
        place_ = place;
        const QRect geometry = Geometry(place);
        if (geometry.size() != widget_.size()) look_.reset();
        if (glides) return GlideTo(geometry);
        widget_.setGeometry(geometry);
    }

    void SetLook(const Look& look) {
        look_ = look;
        Apply(look);
    }

    std::optional<platform::Place> place_;
    std::optional<Look> look_;
};

/// The view of an element, its widget a new child of `client`; null for an element that is never seen.
std::unique_ptr<View> MakeView(const Toolkit& toolkit, Control& element, QWidget& client);

/// Shows a tool tip as plain text, whatever characters it has.
void SetToolTip(QWidget& widget, const Text& text);

}  // namespace platform::desktop
