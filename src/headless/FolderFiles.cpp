#include "headless/FolderFiles.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace platform::headless {

namespace fs = std::filesystem;

namespace {

/// The file open for reading and writing, created when it is not there.
std::fstream OpenRecordFile(const fs::path& path) {
    constexpr auto kMode = std::ios::in | std::ios::out | std::ios::binary;
    std::fstream file(path, kMode);
    if (!file.is_open()) file.open(path, kMode | std::ios::trunc);
    return file;
}

}  // namespace

fs::path PathOf(std::string_view name) {
    return {std::u8string(name.begin(), name.end())};
}

std::optional<std::string> FolderFiles::Read(std::string_view name) {
    if (!fs::is_regular_file(PathOf(name))) return std::nullopt;
    std::ifstream file(PathOf(name), std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

std::optional<std::string> FolderFiles::ReadAt(std::string_view name, std::int64_t offset, std::size_t length) {
    std::fstream file = OpenRecordFile(PathOf(name));
    if (!file) return std::nullopt;
    std::string bytes(length, '\0');
    file.seekg(offset);
    file.read(bytes.data(), static_cast<std::streamsize>(length));
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
    return bytes;
}

bool FolderFiles::WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) {
    std::fstream file = OpenRecordFile(PathOf(name));
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
    if (fs::is_regular_file(PathOf(name))) fs::remove(PathOf(name), error);
    return !error;
}

}  // namespace platform::headless
