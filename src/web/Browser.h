#pragma once

#include "platform/Generator.h"
#include "web/PageDisplay.h"
#include "web/PageServices.h"
#include "web/StoredFiles.h"

namespace platform::web {

/// The whole platform: a page in a browser. There is one in a program.
///
///     platform::web::Browser browser;
///     Game game(browser.Services());
///     game.Start();
///     browser.Run();
class Browser {
public:
    Browser();
    Browser(const Browser&) = delete;
    Browser& operator=(const Browser&) = delete;

    /// What the game works with; lives as long as this does.
    platform::Services& Services() { return services_; }

    /// What follows when something written could not be stored for good.
    void OnUnsaved(std::function<void()> tell) { display_.OnUnsaved = std::move(tell); }

    /// Takes the player's input until no form is open, and ends the program.
    [[noreturn]] void Run();

private:
    Scheduler scheduler_{Now};
    PageDisplay display_{scheduler_};
    Screen screen_{display_, scheduler_};

    PageDialogs dialogs_{display_};
    PagePrinter printer_{display_};
    PageClock clock_;
    Generator random_;
    PageMedia media_{display_};
    PageBrowser browser_{display_};
    PageSpeech speech_{display_};
    storage::MemoryFiles files_ = StoredFiles();
    platform::Services services_{screen_, dialogs_, printer_, clock_, random_, media_, browser_, files_, speech_};
};

}  // namespace platform::web
