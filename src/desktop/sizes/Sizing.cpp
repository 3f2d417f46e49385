#include "desktop/sizes/Sizing.h"

#include <QEvent>
#include <QFileInfo>
#include <QScreen>
#include <QSettings>
#include <algorithm>
#include <chrono>

namespace platform::desktop {

namespace {

constexpr Qt::WindowStates kFilling = Qt::WindowMaximized | Qt::WindowFullScreen;
constexpr auto kAtRest = std::chrono::milliseconds(300);  // since the last change: the edge has been let go

constexpr const char* kStored = "ventana.ini";

QSettings Stored() {
    return {kStored, QSettings::IniFormat};
}

/// Whether nothing lies in the place of the settings that would block, fill the memory or lead out of the folder.
bool IsUsable() {
    constexpr qint64 kLongest = 65536;
    const QFileInfo file(kStored);
    return !file.isSymLink() && (!file.exists() || (file.isFile() && file.size() <= kLongest));
}

Scale Smaller(const Scale& a, const Scale& b) {
    return a.Factor() < b.Factor() ? a : b;
}

}  // namespace

Sizing::Sizing(Scale& scale) : scale_(scale) {
    settled_.setSingleShot(true);
    settled_.setInterval(kAtRest);
    QObject::connect(&settled_, &QTimer::timeout, this, [this] { Settle(); });
}

void Sizing::Recall() {
    if (!IsUsable()) return;
    const QSettings stored = Stored();
    const double factor = stored.value("factor").toDouble();
    const bool isFactor = factor >= Scale::kLeast && factor <= Scale::kLargest;
    if (isFactor) scale_ = Smaller(scale_, Scale(factor));
    state_ = Qt::WindowStates(stored.value("estado").toInt()) & kFilling;
}

void Sizing::Follow(QWidget& main, QSize design) {
    main_ = &main;
    design_ = design;
    main.setMinimumSize(Smaller(scale_, Scale(Scale::kLeast)).Size(design));
    main.resize(scale_.Size(design));
    main.installEventFilter(this);
}

void Sizing::Show() {
    main_->setWindowState(main_->windowState() | state_);
    main_->show();
}

void Sizing::SwitchFullScreen() {
    if (main_) main_->setWindowState(main_->windowState() ^ Qt::WindowFullScreen);
}

bool Sizing::eventFilter(QObject* /*receiver*/, QEvent* event) {
    if (event->type() == QEvent::Resize) Adapt();
    if (event->type() == QEvent::Resize || event->type() == QEvent::WindowStateChange) settled_.start();
    return false;
}

/// Dialogs, which have the same factor, must fit on the screen too.
void Sizing::Adapt() {
    const Scale largest = Scale::For(main_->screen()->availableSize());
    const Scale wanted = Smaller(largest, Scale::Filling(main_->size(), design_));
    if (wanted.Factor() == scale_.Factor()) return;
    scale_ = wanted;
    if (OnFactor) OnFactor();
}

/// A window that does not fill the screen has nothing beside its content.
void Sizing::Settle() {
    if (!main_ || !main_->isVisible()) return;
    if (!(main_->windowState() & kFilling)) main_->resize(scale_.Size(design_));
    Remember();
}

/// The factor that fills the screen is the screen's, not the player's.
void Sizing::Remember() const {
    if (!IsUsable()) return;
    const Qt::WindowStates state = main_->windowState() & kFilling;
    QSettings stored = Stored();
    stored.setValue("estado", state.toInt());
    if (state == Qt::WindowNoState) stored.setValue("factor", scale_.Factor());
}

}  // namespace platform::desktop
