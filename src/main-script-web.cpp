// zarpi-script.wasm: plays the game from a text, on the platform of the page. Its other half is
// tests/web/zarpi-script-web.

#include <set>
#include <sstream>

#include "headless/Player.h"
#include "records/Archivos.h"
#include "shell/Juego.h"
#include "web/Page.h"
#include "web/PageDisplay.h"
#include "web/StoredFiles.h"

using namespace platform;
using headless::Outcome;

extern "C" {

/// The text of the script; at most `capacity` bytes are written.
ZARPI_PAGE("script") std::size_t page_script(char* buffer, std::size_t capacity);
/// Whether the game folder is to be furnished as an installation leaves it.
ZARPI_PAGE("is_new") bool page_is_new();
/// Prints the answers, and then why the script is unreadable if it is, and ends with this status.
[[noreturn]] ZARPI_PAGE("finish") void page_finish(const char* answers, std::size_t length, const char* error,
                                                   std::size_t errorLength, int status);

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the run-time library's
/// An exception has nobody to catch it here.
[[noreturn]] void __cxa_throw(void* thrown, void* /*type*/, void (* /*destroy*/)(void*)) {
    const std::string_view what = static_cast<std::exception*>(thrown)->what();
    page_finish(nullptr, 0, what.data(), what.size(), static_cast<int>(Outcome::Unreadable));
}
void* __cxa_allocate_exception(std::size_t size) noexcept {
    return std::malloc(size);
}
// NOLINTEND(bugprone-reserved-identifier)
}

namespace {

/// The stored files in a folder in which a script can put obstacles.
class ScriptFolder : public Files, public headless::Folder {
public:
    bool Exists(std::string_view name) override { return !IsBlocked(name) && files_.Exists(name); }
    bool IsLink(std::string_view name) override { return files_.IsLink(name); }
    std::optional<std::string> Read(std::string_view name) override { return files_.Read(name); }
    std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) override {
        return IsBlocked(name) ? std::nullopt : files_.ReadAt(name, offset, length);
    }
    bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) override {
        return !IsBlocked(name) && files_.WriteAt(name, offset, bytes);
    }
    bool Replace(std::string_view name, std::string_view content) override {
        return !IsBlocked(name) && files_.Replace(name, content);
    }
    bool Rename(std::string_view from, std::string_view to) override {
        return !IsBlocked(to) && files_.Rename(from, to);
    }
    bool Remove(std::string_view name) override { return files_.Remove(name); }

    void Delete(std::string_view name) override {
        blocked_.erase(std::string(name));
        files_.Remove(name);
    }
    void Block(std::string_view name) override {
        Delete(name);
        blocked_.emplace(name);
    }
    [[nodiscard]] std::vector<std::string> Names() const override {
        std::vector<std::string> names = files_.Names();
        names.insert(names.end(), blocked_.begin(), blocked_.end());
        return names;
    }

private:
    [[nodiscard]] bool IsBlocked(std::string_view name) const { return blocked_.contains(name); }

    storage::MemoryFiles files_ = web::StoredFiles();
    std::set<std::string, std::less<>> blocked_;
};

/// Acts as the page does: every deed is an event with the names of what it means.
class PageHand : public headless::Hand {
public:
    PageHand(Screen& screen, web::PageDisplay& display) : screen_(screen), display_(display) {}

    Refusal Click(Control& control) override { return Do("click", control, screen_.Reach(control)); }
    Refusal Click(Form& form) override { return Do({"clickForm", form.Name}, screen_.Reach(form)); }
    Refusal Press(const Key& key) override;
    Refusal Type(TextBox& box, TextView text) override {
        const Refusal refusal = screen_.Reach(box);
        return Do("type", box, refusal == Refusal::None && box.Locked ? Refusal::Disabled : refusal, ToUtf8(text));
    }
    Refusal Select(ListBox& list, int index) override {
        return Do("select", list, screen_.Reach(list), std::to_string(index));
    }
    Refusal Close() override {
        const Form* const front = screen_.Front();
        return front == nullptr ? Refusal::Closed : Do({"close", front->Name}, screen_.Reach(*front));
    }

private:
    Refusal Do(std::string_view deed, Control& control, Refusal refusal, std::string rest = {}) {
        return Do({std::string(deed), control.Owner.Name, control.FullName(), std::move(rest)}, refusal);
    }
    Refusal Do(const web::Event& event, Refusal refusal) {
        if (refusal != Refusal::None) return refusal;
        display_.Take(event);
        display_.Show();
        return Refusal::None;
    }

    Screen& screen_;
    web::PageDisplay& display_;
    int keyTime_ = 0;  // of the last press
};

Refusal PageHand::Press(const Key& key) {
    const Form* const front = screen_.Front();
    const Refusal refusal = front == nullptr ? Refusal::Closed : screen_.Reach(*front);
    if (refusal != Refusal::None) return refusal;
    const web::Event event = {"key",
                              std::to_string(key.Code),
                              std::to_string(static_cast<unsigned>(key.Character)),
                              key.Control ? "1" : "0",
                              key.Repeated ? "1" : "0",
                              std::to_string(++keyTime_)};
    if (!display_.Take(event)) screen_.TypeKey(key);
    display_.Show();
    return Refusal::None;
}

std::string Script() {
    std::string script(page_script(nullptr, 0), '\0');
    page_script(script.data(), script.size());
    return script;
}

}  // namespace

extern "C" {

/// Not needed by a program that never waits.
ZARPI_EXPORT("area") void* zarpi_area() {
    return nullptr;
}
ZARPI_EXPORT("open") void* zarpi_open() {
    return nullptr;
}

ZARPI_EXPORT("run") void zarpi_run(void* /*program*/) {
    ScriptFolder folder;
    if (page_is_new()) juego::EstrenarCarpeta(folder);
    const Scheduler none(web::Now);
    web::PageDisplay display(none);
    headless::Headless platform(folder, &display);
    display.Attach(platform.screen);
    PageHand hand(platform.screen, display);
    juego::Juego juego(platform.Services());
    std::ostringstream answers;
    headless::Player player(
        platform, {.Hand = hand, .Eye = nullptr, .Folder = folder},
        {.forms = juego.Ventanas(),
         .start = [&juego] { juego.Start(); },
         .field = [&juego](std::string_view form, std::string_view field) -> std::optional<headless::Value> {
             const auto value = juego.Campo(form, field);
             if (!value) return std::nullopt;
             return std::visit([](const auto& v) -> headless::Value { return v; }, *value);
         }},
        answers);
    const auto finish = [&player, &answers](Outcome outcome) {
        const std::string text = answers.str();
        page_finish(text.data(), text.size(), player.Error().data(), player.Error().size(), static_cast<int>(outcome));
    };
    platform.SetEnd([&player, &finish] { finish(player.RunAfterEnd()); });
    std::istringstream script(Script());
    finish(player.Run(script));
}
}
