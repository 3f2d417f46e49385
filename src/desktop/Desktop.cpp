#include "desktop/Desktop.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QScreen>
#include <QTranslator>
#include <cstdlib>
#include <random>

#include "desktop/access/Access.h"
#include "desktop/access/Announcer.h"
#include "desktop/system/Doorbell.h"
#include "desktop/system/Heartbeat.h"
#include "desktop/system/MediaPlayer.h"
#include "desktop/system/SystemServices.h"
#include "desktop/system/SystemWishes.h"
#include "desktop/values/Strings.h"
#include "desktop/windows/FormPrinter.h"
#include "desktop/windows/Look.h"
#include "desktop/windows/MessageDialogs.h"
#include "desktop/windows/WindowDisplay.h"
#include "platform/Generator.h"
#include "storage/FolderFiles.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace platform::desktop {

namespace {

/// Keeps pictures out of the heap, where the place of a large one that is gone would stay taken.
void ReturnLargeMemory() {
#ifdef __GLIBC__
    constexpr int kLarge = 64 * 1024;
    mallopt(M_MMAP_THRESHOLD, kLarge);
    mallopt(M_TRIM_THRESHOLD, kLarge);
#endif
}

constexpr TextView kTaken = u"El juego ya está abierto en otra ventana.";
constexpr TextView kTemporary =
    u"Puedes jugar, pero lo que guardes se perderá al cerrar el juego: no se puede escribir en la carpeta de las "
    u"partidas, ";

std::uint64_t Seed() {
    std::random_device device;
    return (std::uint64_t{device()} << 32U) | device();
}

}  // namespace

/// The parts in the order in which they are made; each uses those above it.
class Desktop::Parts {
public:
    Parts(int& argc, char** argv);

    bool EnterFolder(const GameFolder::Keeper& keeper);
    int Run();
    platform::Services& Services() { return services_; }

private:
    void LoadTranslation();

    QApplication app_;
    QTranslator translator_;
    GameFolder folder_;
    WindowDisplay display_;
    Heartbeat heartbeat_;
    Scheduler scheduler_;
    Screen screen_;

    MediaPlayer media_;
    MessageDialogs dialogs_{display_};
    FormPrinter printer_{display_};
    SystemClock clock_;
    SystemBrowser browser_;
    Generator random_{Seed()};
    storage::FolderFiles files_;
    SystemWishes wishes_;
    Doorbell doorbell_;
    Announcer speech_{[this] { return display_.FrontWindow(); }};
    platform::Services services_{screen_, dialogs_, printer_, clock_, random_, media_, browser_, files_, speech_};
};

Desktop::Parts::Parts(int& argc, char** argv)
    : app_(argc, argv),
      display_(Scale::For(QApplication::primaryScreen()->availableSize())),
      scheduler_([this] { return heartbeat_.Now(); }),
      screen_(display_, scheduler_) {
    display_.Attach(screen_);
    InstallAccess();
    heartbeat_.Attach(scheduler_, screen_);
    display_.OnRefresh = [this] { heartbeat_.Arm(); };
    media_.UnderVoice(speech_.IsHeard());
    speech_.OnHeard = [this](bool listens) { media_.UnderVoice(listens); };
    display_.OnEnd = [this] { folder_.Leave(); };
    display_.LetGlide();
    display_.OnFirstWindow = [this] {
        media_.Start();
        LoadTranslation();
        doorbell_.Answer([this] { display_.ComeToFront(); });
        wishes_.Watch([this](const Wishes& wishes) { display_.Heed(wishes); });
    };
}

bool Desktop::Parts::EnterFolder(const GameFolder::Keeper& keeper) {
    QApplication::setApplicationName("zarpi");
    const GameFolder::Places places = GameFolder::SystemPlaces();
    GameFolder::Entry entry = folder_.Enter(places, keeper);
    if (entry == GameFolder::Entry::Taken) {
        if (Doorbell::Ring()) return false;
        // The game that had the folder may have ended instead of answering.
        entry = folder_.Enter(places, keeper);
    }
    display_.Kit().Sizing.Recall();
    SetLook(display_.Kit().Scale);
    if (entry == GameFolder::Entry::Free) return true;
    QApplication::setWindowIcon(display_.Kit().Pictures.Stored("icon", {64, 64}));
    const bool isTaken = entry == GameFolder::Entry::Taken;
    ShowWarning(nullptr, isTaken ? Text(kTaken) : Text(kTemporary) + FromQt(places.Own), u"Juego de Zarpi");
    return !isTaken;
}

/// The texts that Qt itself brings to dialogs and menus of text boxes.
void Desktop::Parts::LoadTranslation() {
    if (!translator_.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) return;
    QApplication::installTranslator(&translator_);
}

int Desktop::Parts::Run() {
    if (screen_.Shown().empty()) return EXIT_SUCCESS;
    display_.OnRefresh = [this] {
        heartbeat_.Arm();
        if (screen_.Shown().empty()) QApplication::quit();
    };
    display_.Refresh();
    const int status = QApplication::exec();
    folder_.Leave();
    return status;
}

Desktop::Desktop(int& argc, char** argv) {
    ReturnLargeMemory();
    QApplication::setStyle("fusion");
    parts_ = std::make_unique<Parts>(argc, argv);
}

Desktop::~Desktop() = default;

platform::Services& Desktop::Services() {
    return parts_->Services();
}

bool Desktop::EnterFolder(const GameFolder::Keeper& keeper) {
    return parts_->EnterFolder(keeper);
}

int Desktop::Run() {
    return parts_->Run();
}

}  // namespace platform::desktop
