#include "headless/ScriptFolder.h"

#include <filesystem>

namespace platform::headless {

namespace fs = std::filesystem;

void ScriptFolder::Delete(std::string_view name) {
    fs::remove_all(storage::PathOf(name));
}

void ScriptFolder::Block(std::string_view name) {
    Delete(name);
    fs::create_directory(storage::PathOf(name));
}

std::vector<std::string> ScriptFolder::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(".")) {
        const std::u8string name = entry.path().filename().u8string();
        names.emplace_back(name.begin(), name.end());
    }
    return names;
}

}  // namespace platform::headless
