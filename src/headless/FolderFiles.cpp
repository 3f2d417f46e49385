#include "headless/FolderFiles.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace platform::headless {

namespace fs = std::filesystem;

namespace {

/// Makes an empty file; one that is there after all keeps its content.
bool Create(const fs::path& path) {
    return std::ofstream(path, std::ios::binary | std::ios::app).is_open();
}

}  // namespace

fs::path PathOf(std::string_view name) {
    return {std::u8string(name.begin(), name.end())};
}

bool FolderFiles::Exists(std::string_view name) {
    std::error_code error;
    const auto type = fs::status(PathOf(name), error).type();
    return type != fs::file_type::not_found && type != fs::file_type::directory;
}

std::optional<std::string> FolderFiles::Read(std::string_view name) {
    if (!Exists(name)) return std::nullopt;
    const std::ifstream file(PathOf(name), std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    if (!file || content.bad()) return std::nullopt;
    return content.str();
}

std::optional<std::string> FolderFiles::ReadAt(std::string_view name, std::int64_t offset, std::size_t length) {
    if (!Exists(name) && !Create(PathOf(name))) return std::nullopt;
    std::ifstream file(PathOf(name), std::ios::binary);
    if (!file) return std::nullopt;
    std::string bytes(length, '\0');
    file.seekg(offset);
    file.read(bytes.data(), static_cast<std::streamsize>(length));
    if (file.bad()) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
    return bytes;
}

bool FolderFiles::WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) {
    if (!Exists(name) && !Create(PathOf(name))) return false;
    // Opened for reading too, which keeps what the file holds.
    std::fstream file(PathOf(name), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(offset);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(file.flush());
}

bool FolderFiles::Replace(std::string_view name, std::string_view content) {
    const fs::path beside = PathOf(std::string(name) + ".new");
    std::error_code error;
    {
        std::ofstream file(beside, std::ios::binary);
        file.write(content.data(), static_cast<std::streamsize>(content.size()));
        if (!file.flush()) error = std::make_error_code(std::errc::io_error);
    }
    if (!error) fs::rename(beside, PathOf(name), error);
    if (!error) return true;
    std::error_code ignored;
    fs::remove(beside, ignored);
    return false;
}

bool FolderFiles::Remove(std::string_view name) {
    std::error_code error;
    if (Exists(name)) fs::remove(PathOf(name), error);
    return !error;
}

void FolderFiles::Delete(std::string_view name) {
    fs::remove_all(PathOf(name));
}

void FolderFiles::Block(std::string_view name) {
    Delete(name);
    fs::create_directory(PathOf(name));
}

std::vector<std::string> FolderFiles::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(".")) {
        const std::u8string name = entry.path().filename().u8string();
        names.emplace_back(name.begin(), name.end());
    }
    return names;
}

}  // namespace platform::headless
