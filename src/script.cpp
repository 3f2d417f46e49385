#include "script.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

#include "headless/ScriptFolder.h"
#include "records/Archivos.h"
#include "shell/Juego.h"

using namespace platform::headless;

namespace {

namespace fs = std::filesystem;

struct Arguments {
    fs::path program;
    fs::path folder;     ///< the game folder; empty: the current one
    bool isNew = false;  ///< the folder is to be made, as an installation leaves it
    fs::path script;     ///< empty: standard input
    std::string error;
};

Arguments Read(std::span<char*> words) {
    Arguments arguments{
        .program = fs::path(words.front()).filename(), .folder = {}, .isNew = false, .script = {}, .error = {}};
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::string_view word = words[i];
        const bool namesFolder = word == "--folder" || word == "--new-folder";
        if (namesFolder && i + 1 == words.size()) {
            arguments.error = std::string(word) + " needs a folder";
        } else if (namesFolder) {
            arguments.folder = words[++i];
            arguments.isNew = word == "--new-folder";
        } else if (arguments.script.empty() && !word.starts_with('-')) {
            arguments.script = word;
        } else {
            arguments.error = "not understood: " + std::string(word);
        }
    }
    return arguments;
}

int Fail(const fs::path& program, std::string_view why) {
    std::cerr << program.string() << ": " << why << "\nusage: " << program.string()
              << " [--folder DIR | --new-folder DIR] [FILE]\n";
    return static_cast<int>(Outcome::Unreadable);
}

void Enter(const Arguments& arguments) {
    if (arguments.isNew) fs::create_directories(arguments.folder);
    if (!arguments.folder.empty()) fs::current_path(arguments.folder);
    ScriptFolder files;
    if (arguments.isNew && !juego::EstrenarCarpeta(files)) throw std::runtime_error("the new folder cannot be written");
}

Program ProgramOf(juego::Juego& juego) {
    return {.forms = juego.Ventanas(),
            .start = [&juego] { juego.Start(); },
            .field = [&juego](std::string_view form, std::string_view field) -> std::optional<Value> {
                const auto value = juego.Campo(form, field);
                if (!value) return std::nullopt;
                return std::visit([](const auto& v) -> Value { return v; }, *value);
            }};
}

}  // namespace

int PlayScript(int argc, char** argv, Headless& platform, Means means) try {
    const Arguments arguments = Read({argv, static_cast<std::size_t>(argc)});
    if (!arguments.error.empty()) return Fail(arguments.program, arguments.error);
    std::ifstream file;
    if (!arguments.script.empty()) {
        file.open(arguments.script);
        if (!file || fs::is_directory(arguments.script)) return Fail(arguments.program, "the script cannot be read");
    }
    Enter(arguments);

    juego::Juego juego(platform.Services());
    Player player(platform, means, ProgramOf(juego), std::cout);
    const auto status = [&player, &arguments](Outcome outcome) {
        std::cout.flush();
        return outcome == Outcome::Unreadable ? Fail(arguments.program, player.Error()) : static_cast<int>(outcome);
    };
    // The end of the game comes in the midst of its handlers, and none of them may go on.
    platform.SetEnd([&player, &status] { std::_Exit(status(player.RunAfterEnd())); });
    return status(player.Run(arguments.script.empty() ? std::cin : file));
} catch (const std::exception& error) {
    return Fail(argv[0], error.what());
}
