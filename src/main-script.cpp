// zarpi-script: plays the game from a text, on the platform in memory.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>

#include "headless/FolderFiles.h"
#include "headless/Player.h"
#include "records/Archivos.h"
#include "shell/Juego.h"

namespace {

constexpr int kFailed = 1;
constexpr int kUnreadable = 2;

int Fail(std::string_view why) {
    std::cerr << "zarpi-script: " << why << "\nusage: zarpi-script [--folder DIR | --new-folder DIR] [FILE]\n";
    return kUnreadable;
}

/// Makes the folder where it is not there, and a game folder of it, as an installation leaves it.
void EnterNew(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    std::filesystem::current_path(folder);
    platform::headless::FolderFiles files;
    if (!juego::EstrenarCarpeta(files)) throw std::runtime_error("the new folder cannot be written");
}

int Play(std::istream& script) {
    platform::headless::FolderFiles files;
    platform::headless::Headless headless(files);
    juego::Juego juego(headless.Services());
    platform::headless::Player player(
        headless,
        {.forms = juego.Ventanas(),
         .start = [&juego] { juego.Start(); },
         .field = [&juego](std::string_view form, std::string_view field) -> std::optional<platform::headless::Value> {
             const auto value = juego.Campo(form, field);
             if (!value) return std::nullopt;
             return std::visit([](const auto& v) -> platform::headless::Value { return v; }, *value);
         }},
        std::cout);
    return player.Run(script) ? 0 : kFailed;
}

}  // namespace

int main(int argc, char** argv) try {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    std::ifstream file;
    bool fromFile = false;
    std::filesystem::path folder;
    bool isNew = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == "--folder" || arguments[i] == "--new-folder") {
            isNew = arguments[i] == "--new-folder";
            if (++i == arguments.size()) return Fail("a folder is missing");
            folder = arguments[i];
        } else if (!fromFile && !arguments[i].starts_with('-')) {
            fromFile = true;
            file.open(std::filesystem::path(arguments[i]));
            if (!file || std::filesystem::is_directory(arguments[i])) return Fail("the script cannot be read");
        } else {
            return Fail("not understood: " + std::string(arguments[i]));
        }
    }
    if (isNew) EnterNew(folder);
    if (!isNew && !folder.empty()) std::filesystem::current_path(folder);
    return Play(fromFile ? file : std::cin);
} catch (const std::exception& error) {
    return Fail(error.what());
}
