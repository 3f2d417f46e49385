#include "desktop/views/View.h"

#include <QEvent>
#include <utility>

#include "desktop/values/Strings.h"
#include "desktop/views/ButtonView.h"
#include "desktop/views/FigureViews.h"
#include "desktop/views/LabelView.h"
#include "desktop/views/ListBoxView.h"
#include "desktop/views/PictureView.h"
#include "desktop/views/TextBoxView.h"

namespace platform::desktop {

namespace {

/// Tells the screen that the player has moved the focus to an element.
class FocusFilter : public QObject {
public:
    FocusFilter(QWidget& widget, Screen& screen, Control& element)
        : QObject(&widget), screen_(screen), element_(element) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
        if (event->type() == QEvent::FocusIn) screen_.Focus(element_);
        return false;
    }

private:
    Screen& screen_;
    Control& element_;
};

template <class V, class E>
std::unique_ptr<View> Make(const Toolkit& toolkit, Control& element, QWidget& client) {
    return std::make_unique<V>(toolkit, static_cast<E&>(element), client);
}

}  // namespace

View::View(const Toolkit& toolkit, Control& element, QWidget& widget)
    : toolkit_(toolkit), element_(element), widget_(widget) {
    widget_.setObjectName(ToQt(std::string_view(element_.FullName())));
    widget_.setFocusPolicy(Qt::NoFocus);
    if (element_.kind == Kind::TextBox || element_.kind == Kind::ListBox) {
        widget_.setAccessibleName(ToQt(SpokenNameOf(element_)));
    }
    widget_.hide();
}

void View::TakeClicks() {
    if (element_.Click) widget_.setCursor(Qt::PointingHandCursor);
    new ClickFilter(widget_, toolkit_.DoubleClicks, [this] {
        if (element_.Click) {
            toolkit_.Screen.Click(element_);
        } else {
            toolkit_.Screen.Click(element_.Owner);
        }
    });
}

void View::TakeFocus(int tabIndex) {
    if (tabIndex == 0) return;
    widget_.setFocusPolicy(Qt::StrongFocus);
    new FocusFilter(widget_, toolkit_.Screen, element_);
}

bool View::Glides(const Place& from, const Place& to) const {
    const bool isMoved = from.Left != to.Left || from.Width != to.Width;
    return isMoved && element_.Glides && toolkit_.Glides && !toolkit_.Wishes.Stillness && widget_.isVisible();
}

void View::GlideTo(const QRect& geometry) {
    constexpr int kDuration = 120;  // ms
    glide_ = new QPropertyAnimation(&widget_, "geometry", &widget_);
    glide_->setDuration(kDuration);
    glide_->setEndValue(geometry);
    glide_->setEasingCurve(QEasingCurve::OutCubic);
    glide_->start(QAbstractAnimation::DeleteWhenStopped);
    constexpr int kFirstFrame = 16;
    glide_->setCurrentTime(kFirstFrame);
    isNew_ = true;
}

void View::EndGlide() {
    if (glide_) glide_->setCurrentTime(glide_->duration());
    glide_.clear();
}

void View::Arrive() {
    if (!std::exchange(isNew_, false)) EndGlide();
}

std::unique_ptr<View> MakeView(const Toolkit& toolkit, Control& element, QWidget& client) {
    switch (element.kind) {
        case Kind::Label: return Make<LabelView, Label>(toolkit, element, client);
        case Kind::PictureBox: return Make<PictureBoxView, PictureBox>(toolkit, element, client);
        case Kind::Image: return Make<ImageView, Image>(toolkit, element, client);
        case Kind::Shape: return Make<ShapeView, Shape>(toolkit, element, client);
        case Kind::Line: return Make<LineView, Line>(toolkit, element, client);
        case Kind::TextBox: return Make<TextBoxView, TextBox>(toolkit, element, client);
        case Kind::ListBox: return Make<ListBoxView, ListBox>(toolkit, element, client);
        case Kind::CommandButton:
            if (static_cast<const CommandButton&>(element).Covered) return nullptr;
            return Make<ButtonView, CommandButton>(toolkit, element, client);
        case Kind::Menu:
        case Kind::Timer: break;
    }
    return nullptr;
}

void SetToolTip(QWidget& widget, const Text& text) {
    const QString plain = ToQt(text);
    widget.setToolTip(Qt::mightBeRichText(plain) ? Qt::convertFromPlainText(plain) : plain);
}

}  // namespace platform::desktop
