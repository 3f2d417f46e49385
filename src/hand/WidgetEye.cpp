#include "hand/WidgetEye.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <cstdlib>

#include "desktop/values/Strings.h"
#include "desktop/views/PictureView.h"
#include "hand/Widgets.h"

namespace platform::hand {

namespace {

using desktop::FormWindow;
using desktop::FromQt;
using desktop::Scale;
using desktop::Toolkit;
using headless::Value;
using Sight = std::optional<Value>;

int ToTwips(const Scale& scale, int pixels) {
    constexpr double kTwipsPerPixel = 15;
    return qRound(pixels * kTwipsPerPixel / scale.Factor());
}

/// A length in twips; the state's own where it makes these very pixels.
Value Length(const Scale& scale, int pixels, int wantedPixels, const Value& state) {
    return pixels == wantedPixels ? state : Value(ToTwips(scale, pixels));
}

/// Where a widget has to lie. Edges are rounded; a picture box stands on whole pixels of the design, and a line has its
/// width on both sides.
QRect WantedPlace(const Scale& scale, const Control& control) {
    const auto place = static_cast<const Place&>(control);
    const QRect box = scale.Rect(control.kind == Kind::PictureBox ? OnPixels(place) : place);
    if (control.kind != Kind::Line) return box;
    const int line = scale.LineWidth(static_cast<const Line&>(control).BorderWidth);
    return {box.topLeft() - QPoint(line / 2, line / 2), box.size().expandedTo(QSize(line, line))};
}

Sight PlaceSeen(const Scale& scale, const Control& control, const QWidget& widget, std::string_view property,
                const Value& state) {
    // What letters need beyond their box is a margin around it.
    const bool label = control.kind == Kind::Label;
    const QRect seen = widget.geometry().marginsRemoved(label ? widget.contentsMargins() : QMargins());
    const QRect wanted = WantedPlace(scale, control);
    if (property == "Left") return Length(scale, seen.x(), wanted.x(), state);
    if (property == "Top") return Length(scale, seen.y(), wanted.y(), state);
    if (property == "Width") return Length(scale, seen.width(), wanted.width(), state);
    if (property == "Height") return Length(scale, seen.height(), wanted.height(), state);
    return std::nullopt;
}

/// A text of several letters may be smaller, down to a half, so that it fits into its box.
Value FontSizeSeen(const Scale& scale, const QWidget& widget, const Value& state) {
    constexpr double kPointsPerTwip = 0.05;
    const double points = std::get<double>(state);
    const int wanted = scale.Font(FontName::Arial, points, false).pixelSize();
    const int seen = widget.font().pixelSize();
    const auto* const label = dynamic_cast<const QLabel*>(&widget);
    const auto* const button = dynamic_cast<const QPushButton*>(&widget);
    const QString text = label != nullptr ? label->text() : button != nullptr ? button->text() : QString();
    const bool shrunk = text.size() > 1 && seen < wanted && seen >= wanted / 2;
    return seen == wanted || shrunk ? state : Value(ToTwips(scale, seen) * kPointsPerTwip);
}

/// The picture seen is the one that its file holds. While the file cannot be read the last one stays.
Value PictureSeen(const Toolkit& kit, const Control& control, const desktop::PictureWidget& widget,
                  const Value& state) {
    const bool box = control.kind == Kind::PictureBox;
    const PictureLook& look = box ? static_cast<const PictureLook&>(static_cast<const PictureBox&>(control))
                                  : static_cast<const Image&>(control);
    const QPixmap wanted = box ? kit.Pictures.OwnSize(look) : kit.Pictures.Fitted(look, widget.size());
    if (wanted.isNull() || wanted.toImage() == widget.Pixmap().toImage()) return state;
    return Text(u"another picture");
}

/// The line that is drawn as the selected one; -1 for none, -2 for several.
int SelectedRow(const QListWidget& list) {
    const QModelIndexList selected = list.selectionModel()->selectedIndexes();
    return selected.empty() ? -1 : selected.size() > 1 ? -2 : selected.front().row();
}

Sight LineSeen(const QListWidget& list, std::string_view property) {
    constexpr std::string_view kLine = "List(";
    if (property == "ListCount") return list.count();
    if (property == "ListIndex") return SelectedRow(list);
    if (!property.starts_with(kLine)) return std::nullopt;
    const auto* const line = list.item(std::atoi(std::string(property.substr(kLine.size())).c_str()));
    return line == nullptr ? Text() : FromQt(line->text());
}

Sight WidgetSeen(const QWidget& widget, std::string_view property) {
    if (property == "Enabled") return widget.isEnabled();
    if (const auto* const label = dynamic_cast<const QLabel*>(&widget); label != nullptr && property == "Caption") {
        return FromQt(label->text());
    }
    if (const auto* const button = dynamic_cast<const QPushButton*>(&widget);
        button != nullptr && property == "Caption") {
        return FromQt(button->text().replace("&&", "&"));
    }
    if (const auto* const edit = dynamic_cast<const QLineEdit*>(&widget); edit != nullptr && property == "Text") {
        return FromQt(edit->text());
    }
    if (const auto* const list = dynamic_cast<const QListWidget*>(&widget)) return LineSeen(*list, property);
    return std::nullopt;
}

Sight EntrySeen(const QAction& entry, std::string_view property) {
    if (property == "Checked") return entry.isChecked();
    if (property == "Enabled") return entry.isEnabled();
    if (property == "Caption") return entry.isSeparator() ? Text(u"-") : FromQt(entry.text().section('\t', 0, 0));
    return std::nullopt;
}

Sight ElementSeen(const Toolkit& kit, const Control& control, const QWidget& widget, std::string_view property,
                  const Value& state) {
    if (property == "FontSize") return FontSizeSeen(kit.Scale, widget, state);
    if (property == "Picture") {
        return PictureSeen(kit, control, dynamic_cast<const desktop::PictureWidget&>(widget), state);
    }
    const Sight place = PlaceSeen(kit.Scale, control, widget, property, state);
    return place ? place : WidgetSeen(widget, property);
}

/// One direction of the place of a window, in pixels of the screen.
struct Stretch {
    int at;           ///< where the window begins
    int frameAt;      ///< and its frame
    int frameLength;  ///< of the window with its frame
    int deskAt;       ///< where the part of the screen begins that windows may take
    int deskLength;   ///< and its length
    int origin;       ///< where the client area of the main window begins
};

/// A window stands where its form says or in the middle of the desk, and on the desk.
Value StandSeen(const Scale& scale, const Stretch& here, const Value& state) {
    constexpr int kTolerance = 1;  // of a middle between two pixels
    const int said = std::get<int>(state);
    const int border = here.at - here.frameAt;
    const int room = here.deskLength - here.frameLength;
    const int wanted = said < 0 ? here.deskAt + room / 2 : here.origin + scale.Pixels(said) - border;
    const int stands = std::max(here.deskAt, std::min(wanted, here.deskAt + room));
    return std::abs(here.frameAt - stands) <= kTolerance
               ? state
               : Value(ToTwips(scale, here.at - (said < 0 ? here.deskAt : here.origin)));
}

Sight WindowSeen(const Scale& scale, const FormWindow& window, QPoint origin, std::string_view property,
                 const Value& state) {
    const auto length = [&](int pixels) { return Length(scale, pixels, scale.Pixels(std::get<int>(state)), state); };
    const QRect frame = window.frameGeometry();
    const QRect desk = window.screen()->availableGeometry();
    const Stretch across{window.geometry().x(), frame.x(), frame.width(), desk.x(), desk.width(), origin.x()};
    const Stretch down{window.geometry().y(), frame.y(), frame.height(), desk.y(), desk.height(), origin.y()};
    if (property == "Caption") return FromQt(window.windowTitle());
    if (property == "Left") return StandSeen(scale, across, state);
    if (property == "Top") return StandSeen(scale, down, state);
    if (property == "Width") return length(window.ClientArea().width());
    if (property == "Height") return length(window.ClientArea().height());
    return std::nullopt;
}

Sight Difference(const Sight& seen, const Value& state) {
    return seen == state ? std::nullopt : seen;
}

}  // namespace

Sight WidgetEye::Seen(const Control& control, std::string_view property, const Value& state) const {
    Settle(display_);
    const FormWindow* const window = display_.WindowOf(control.Owner);
    if (window == nullptr) return std::nullopt;
    if (control.kind == Kind::Menu) return Difference(EntrySeen(*FindAction(display_, control), property), state);
    const QWidget* const widget = FindWidget(display_, control);
    if (widget == nullptr) return std::nullopt;
    const bool visible = widget->isVisible();
    if (property == "Visible") return Difference(visible, state);
    return visible ? Difference(ElementSeen(display_.Kit(), control, *widget, property, state), state) : std::nullopt;
}

Sight WidgetEye::Seen(const Form& form, std::string_view property, const Value& state) const {
    Settle(display_);
    const FormWindow* const window = display_.WindowOf(form);
    const bool visible = window != nullptr && window->isVisible();
    if (property == "Visible") return Difference(visible, state);
    if (!visible) return std::nullopt;
    const FormWindow* const first = display_.WindowOf(*screen_.Shown().front());
    const QPoint origin = (first == nullptr ? window : first)->ClientArea().mapToGlobal(QPoint());
    return Difference(WindowSeen(display_.Kit().Scale, *window, origin, property, state), state);
}

std::string WidgetEye::Forms() const {
    Settle(display_);
    std::vector<std::string> names;
    for (const QWidget* const window : QApplication::topLevelWidgets()) {
        if (dynamic_cast<const FormWindow*>(window) != nullptr && window->isVisible()) {
            names.push_back(window->objectName().toStdString());
        }
    }
    // In the order of the screen, the active one in front; windows do not tell which of them lies over which.
    const auto& shown = screen_.Shown();
    const auto place = [&shown](const std::string& name) { return std::ranges::find(shown, name, &Form::Name); };
    std::ranges::sort(names, {}, place);
    const QWidget* const active = QApplication::activeWindow();
    const std::string front = active == nullptr ? "" : active->objectName().toStdString();
    std::stable_partition(names.begin(), names.end(), [&front](const std::string& name) { return name != front; });
    std::string list;
    for (const std::string& name : names) list += (list.empty() ? "" : " ") + name;
    return list.empty() ? "none" : list;
}

std::string WidgetEye::Focus() const {
    Settle(display_);
    const FormWindow* const front = display_.FrontWindow();
    const QWidget* const focus = QApplication::focusWidget();
    if (front == nullptr || focus == nullptr || focus == &front->ClientArea()) return "none";
    return focus->window()->objectName().toStdString() + "." + focus->objectName().toStdString();
}

/// The largest element that has a name or takes the focus and lies within the ring.
std::string WidgetEye::Ringed() const {
    Settle(display_);
    const FormWindow* const front = display_.FrontWindow();
    const auto* const ring = front == nullptr ? nullptr : front->findChild<QWidget*>("ring");
    if (ring == nullptr || !ring->isVisible()) return "none";
    const Control* best = nullptr;
    for (const Control* control : screen_.Front()->Controls()) {
        const QWidget* const widget = FindWidget(display_, *control);
        const bool isMeant = widget != nullptr && (TabIndexOf(*control) != 0 || !SpokenNameOf(*control).empty());
        if (!isMeant || !ring->geometry().contains(widget->geometry() & front->ClientArea().rect())) continue;
        if (best == nullptr || control->Width * control->Height > best->Width * best->Height) best = control;
    }
    return best == nullptr ? "elsewhere" : best->Owner.Name + "." + best->FullName();
}

}  // namespace platform::hand
