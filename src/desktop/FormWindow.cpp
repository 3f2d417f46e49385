#include "desktop/FormWindow.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "desktop/Colors.h"
#include "desktop/Strings.h"

namespace platform::desktop {

namespace {

Qt::WindowFlags FlagsOf(const Form& form, bool modal) {
    const Qt::WindowFlags frame = Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                  Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint;
    return frame | (modal ? Qt::Dialog : Qt::Window) |
           (form.MinButton ? Qt::WindowMinimizeButtonHint : Qt::WindowFlags());
}

std::vector<Control*> BackToFront(const Form& form) {
    const auto controls = form.Controls();
    return {controls.rbegin(), controls.rend()};
}

}  // namespace

FormWindow::FormWindow(const Toolkit& toolkit, Form& form, QWidget* owner, bool modal)
    : QWidget(modal ? owner : nullptr, FlagsOf(form, modal)),
      toolkit_(toolkit),
      form_(form),
      client_(*new Client(this)),
      keys_(*new KeyFilter(toolkit.Screen, form, client_)) {
    setObjectName(ToQt(std::string_view(form.Name)));
    if (modal) setWindowModality(owner == nullptr ? Qt::ApplicationModal : Qt::WindowModal);
    client_.OnClick = [this] { toolkit_.Screen.Click(form_); };
    if (!form.Menus().empty()) menu_ = std::make_unique<MenuView>(toolkit.Screen, form, *this);
    RefreshFrame();
    MakeViews();
    SetPlace();
    Refresh();
}

FormWindow::~FormWindow() = default;

void FormWindow::MakeViews() {
    layers_ = BackToFront(form_);
    for (Control* control : layers_) {
        if (auto view = MakeView(toolkit_, *control, client_)) views_.emplace(control, std::move(view));
    }
    SetTabOrder();
}

void FormWindow::SetTabOrder() {
    std::vector<const Control*> order;
    for (const auto& [control, view] : views_) {
        if (TabIndexOf(*control) != 0) order.push_back(control);
    }
    std::ranges::sort(order, {}, [](const Control* control) { return TabIndexOf(*control); });
    QWidget* previous = nullptr;
    for (const Control* control : order) {
        QWidget& widget = views_.at(control)->Widget();
        keys_.Watch(widget);
        if (previous != nullptr) setTabOrder(previous, &widget);
        previous = &widget;
    }
}

void FormWindow::Refresh() {
    if (shown_ != static_cast<const FormLook&>(form_)) RefreshFrame();
    if (menu_) menu_->Refresh();
    RefreshLayers();
    for (const auto& [control, view] : views_) view->Refresh();
    RefreshFocus();
}

void FormWindow::RefreshFrame() {
    const FormLook& look = form_;
    const FormLook before = shown_.value_or(FormLook{});
    const bool resized = !shown_ || look.Width != before.Width || look.Height != before.Height;
    if (look.Caption != before.Caption) setWindowTitle(ToQt(look.Caption));
    if (resized) SetSize();
    if (resized || look.Background != before.Background || look.BackColor != before.BackColor) SetGround();
    if (look.Icon != before.Icon) {
        QIcon icon(toolkit_.Pictures.Stored(look.Icon, {32, 32}));
        icon.addPixmap(toolkit_.Pictures.Stored(look.Icon, {64, 64}));
        setWindowIcon(icon);
    }
    shown_ = look;
}

void FormWindow::SetSize() {
    const QSize client(toolkit_.Scale.Pixels(form_.Width), toolkit_.Scale.Pixels(form_.Height));
    int top = 0;
    if (menu_) {
        QMenuBar& bar = menu_->Bar();
        top = bar.isNativeMenuBar() ? 0 : bar.heightForWidth(client.width());
        bar.setGeometry(0, 0, client.width(), top);
    }
    client_.setGeometry(QRect(QPoint(0, top), client));
    setFixedSize(client.width(), client.height() + top);
}

void FormWindow::SetGround() {
    const FormLook& look = form_;
    const bool pictured = !look.Background.empty();
    client_.SetGround(pictured ? toolkit_.Pictures.Stored(look.Background, client_.size()) : QPixmap(),
                      look.BackColor.IsNone() ? palette().color(QPalette::Window) : ToQt(look.BackColor));
}

/// Where the form says, from the corner of the screen; in the middle of its owner or of the screen if it says nothing.
void FormWindow::SetPlace() {
    const QWidget* const owner = parentWidget();
    const QRect desk = (owner == nullptr ? QGuiApplication::primaryScreen() : owner->screen())->availableGeometry();
    QPoint corner = desk.topLeft() + QPoint(toolkit_.Scale.Pixels(form_.Left), toolkit_.Scale.Pixels(form_.Top));
    if (form_.Left < 0) {
        QRect frame(QPoint(), size());
        frame.moveCenter(owner == nullptr ? desk.center() : owner->frameGeometry().center());
        corner = frame.topLeft();
    }
    const QPoint last(desk.right() + 1 - width(), desk.bottom() + 1 - height());
    move(std::max(desk.left(), std::min(corner.x(), last.x())), std::max(desk.top(), std::min(corner.y(), last.y())));
}

/// Raises what has come to the front. From the back on, widgets stay where they are as long as the order is the old
/// one.
void FormWindow::RefreshLayers() {
    const auto now = form_.Controls();
    if (std::equal(now.rbegin(), now.rend(), layers_.begin(), layers_.end())) return;
    const std::vector<Control*> before = std::exchange(layers_, BackToFront(form_));
    auto kept = layers_.begin();
    for (const Control* control : before) {
        if (kept != layers_.end() && *kept == control) ++kept;
    }
    for (; kept != layers_.end(); ++kept) {
        if (const auto view = views_.find(*kept); view != views_.end()) view->second->Widget().raise();
    }
}

void FormWindow::RefreshFocus() {
    QWidget* wanted = &client_;
    if (const auto view = views_.find(form_.Focus()); view != views_.end()) {
        QWidget& widget = view->second->Widget();
        if (widget.isVisibleTo(this) && widget.isEnabled()) wanted = &widget;
    }
    if (focusWidget() != wanted) wanted->setFocus();
}

void FormWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    toolkit_.Screen.Close(form_);
}

}  // namespace platform::desktop
