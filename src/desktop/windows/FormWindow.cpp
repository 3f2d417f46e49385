#include "desktop/windows/FormWindow.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "desktop/sizes/WindowPlace.h"
#include "desktop/values/Colors.h"
#include "desktop/values/Strings.h"
#include "desktop/views/LabelView.h"

namespace platform::desktop {

namespace {

/// Of what lies round the content, as on the page.
constexpr QColor kGround(0x30, 0x3A, 0x54);

Qt::WindowFlags FlagsOf(const Form& form, bool modal) {
    const Qt::WindowFlags frame =
        Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    return frame | (modal ? Qt::Dialog : Qt::Window) |
           (form.MinButton ? Qt::WindowMinimizeButtonHint : Qt::MSWindowsFixedSizeDialogHint);
}

std::vector<Control*> BackToFront(const Form& form) {
    const auto controls = form.Controls();
    return {controls.rbegin(), controls.rend()};
}

}  // namespace

FormWindow::FormWindow(const Toolkit& toolkit, Form& form, const Before& before, bool modal)
    : QWidget(modal ? before.front : nullptr, FlagsOf(form, modal)),
      toolkit_(toolkit),
      form_(form),
      client_(*new Client(this)),
      cursor_(toolkit_, form, board_, client_),
      mark_(*new Ring(client_, toolkit.Scale, {.Outer = Qt::black, .Inner = Qt::yellow, .Band = 3, .Gap = 0})),
      keys_(*new KeyFilter(toolkit_, form, client_)) {
    setObjectName(ToQt(std::string_view(form.Name)));
    mark_.setObjectName("mark");
    // Modal to one window, a dialog would lose the keyboard to it at a click there.
    if (modal) setWindowModality(Qt::ApplicationModal);
    TakeClicks();
    if (!form.Menus().empty()) menu_ = std::make_unique<MenuView>(toolkit.Screen, form, *this);
    if (IsMain()) toolkit_.Sizing.Follow(*this, DesignSize());
    RefreshFrame();
    MakeViews();
    SetPlace(before.first);
    Refresh();
}

FormWindow::~FormWindow() = default;

void FormWindow::TakeClicks() {
    if (form_.OnClick) client_.setCursor(Qt::PointingHandCursor);
    new ClickFilter(client_, toolkit_.DoubleClicks, [this] { toolkit_.Screen.Click(form_); });
}

void FormWindow::MakeViews() {
    layers_ = BackToFront(form_);
    for (Control* control : layers_) {
        auto view = MakeView(toolkit_, *control, client_);
        if (!view) continue;
        if (auto* const label = dynamic_cast<LabelView*>(view.get())) labels_.push_back(label);
        if (control->Wanted) {
            view->Widget().unsetCursor();
            hints_.emplace_back(view.get(), nullptr);
        }
        board_.Add(*view);
        views_.emplace(control, std::move(view));
    }
    WatchKeys();
}

/// Keys go to what has the focus.
void FormWindow::WatchKeys() {
    for (const auto& [control, view] : views_) {
        if (TabIndexOf(*control) != 0) view->Widget().installEventFilter(&keys_);
    }
}

void FormWindow::Refresh() {
    if (shown_ != static_cast<const FormLook&>(form_)) RefreshFrame();
    if (menu_) menu_->Refresh();
    RefreshLayers();
    bool changed = false;
    for (const auto& [control, view] : views_) changed = view->Refresh() || changed;
    if (changed) {
        for (const auto& [control, view] : views_) view->Arrive();
        LevelTexts();
    }
    if (changed && toolkit_.Wishes.HighContrast) RaiseContrast();
    RefreshFocus();
    cursor_.Refresh();
    RefreshMark();
    RefreshHints();
}

void FormWindow::RefreshFrame() {
    const FormLook& look = form_;
    const FormLook before = shown_.value_or(FormLook{});
    const bool resized = !shown_ || look.Width != before.Width || look.Height != before.Height;
    if (look.Caption != before.Caption) setWindowTitle(ToQt(look.Caption));
    if (resized) Arrange();
    if (resized || look.Background != before.Background || look.BackColor != before.BackColor) SetGround();
    if (look.Icon != before.Icon) {
        QIcon icon(toolkit_.Pictures.Stored(look.Icon, {32, 32}));
        icon.addPixmap(toolkit_.Pictures.Stored(look.Icon, {64, 64}));
        setWindowIcon(icon);
    }
    shown_ = look;
}

/// In twips, with the menu bar.
QSize FormWindow::DesignSize() const {
    const bool hasBar = menu_ && !menu_->Bar().isNativeMenuBar();
    return {form_.Width, form_.Height + (hasBar ? Scale::kMenuHeight : 0)};
}

void FormWindow::Arrange() {
    const Scale& scale = toolkit_.Scale;
    const QSize all = scale.Size(DesignSize());
    const QSize content = scale.Size({form_.Width, form_.Height});
    const int top = all.height() - content.height();
    if (!IsMain()) setFixedSize(all);
    const QPoint corner(qMax(0, width() - all.width()) / 2, qMax(0, height() - all.height()) / 2);
    if (menu_) menu_->SetPlace({corner, QSize(qMin(width(), all.width()), top)});
    client_.setGeometry(QRect(corner + QPoint(0, top), content));
}

void FormWindow::ShowAnew(const FormWindow& first) {
    for (const auto& [control, view] : views_) view->Forget();
    shown_.reset();
    Refresh();
    if (this != &first) SetPlace(&first);
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    Arrange();
    QWidget::resizeEvent(event);
}

/// The surroundings of a content that cannot fill its window.
void FormWindow::paintEvent(QPaintEvent* event) {
    QPainter(this).fillRect(event->rect(), kGround);
}

void FormWindow::SetGround() {
    const FormLook& look = form_;
    const bool pictured = !look.Background.empty();
    client_.SetGround(pictured ? toolkit_.Pictures.Covering(look.Background, client_.size()) : std::future<QImage>(),
                      look.BackColor.IsNone() ? palette().color(QPalette::Window) : ToQt(look.BackColor));
}

void FormWindow::SetPlace(const FormWindow* first) {
    Surroundings around;
    if (first == nullptr) {
        around.desk = QGuiApplication::primaryScreen()->availableGeometry();
    } else {
        const QRect inner = first->geometry();
        const QRect outer = first->frameGeometry();
        around.desk = first->screen()->availableGeometry();
        around.origin = first->client_.mapToGlobal(QPoint());
        around.frame = {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
                        outer.bottom() - inner.bottom()};
    }
    setGeometry(PlaceOf(form_, size(), toolkit_.Scale, around));
}

/// Labels that look alike keep letters of one size: where one of them has to shrink, all do.
void FormWindow::LevelTexts() {
    std::map<QString, int> smallest;
    for (const LabelView* label : labels_) {
        if (!label->Element().Visible) continue;
        const auto [size, isFirst] = smallest.try_emplace(label->Family(), label->NeededSize());
        if (!isFirst) size->second = std::min(size->second, label->NeededSize());
    }
    for (LabelView* label : labels_) {
        if (label->Element().Visible) label->SetFontSize(smallest.at(label->Family()));
    }
}

void FormWindow::RaiseContrast() {
    for (LabelView* label : labels_) {
        if (label->Element().Visible) label->RaiseContrast();
    }
}

void FormWindow::RefreshMark() {
    const auto marked =
        std::ranges::find_if(views_, [this](const auto& view) { return toolkit_.Screen.IsMarked(*view.first); });
    mark_.Surround(marked == views_.end() ? nullptr : &marked->second->Widget());
}

void FormWindow::RefreshHints() {
    for (auto& [view, ring] : hints_) {
        const bool isWanted = view->Element().Visible && view->Element().Wanted();
        if (!isWanted && ring == nullptr) continue;
        if (ring == nullptr) {
            ring = new Ring(client_, toolkit_.Scale, {.Outer = kGround, .Inner = {}, .Band = 2, .Gap = -6});
            ring->setObjectName("hint");
        }
        view->Widget().setCursor(isWanted ? Qt::PointingHandCursor : Qt::ArrowCursor);
        ring->Surround(isWanted ? &PlateOf(view->Widget()) : nullptr);
    }
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
