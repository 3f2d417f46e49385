#include "headless/MemoryFiles.h"

#include <algorithm>

namespace platform::headless {

bool MemoryFiles::Exists(std::string_view name) {
    return files_.contains(name);
}

std::optional<std::string> MemoryFiles::Read(std::string_view name) {
    const auto file = files_.find(name);
    return file == files_.end() ? std::nullopt : std::optional(file->second);
}

std::optional<std::string> MemoryFiles::ReadAt(std::string_view name, std::int64_t offset, std::size_t length) {
    const std::string& content = files_[std::string(name)];
    const auto start = std::min(static_cast<std::size_t>(offset), content.size());
    return content.substr(start, length);
}

bool MemoryFiles::WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) {
    std::string& content = files_[std::string(name)];
    const auto start = static_cast<std::size_t>(offset);
    if (content.size() < start + bytes.size()) content.resize(start + bytes.size(), '\0');
    content.replace(start, bytes.size(), bytes);
    return true;
}

bool MemoryFiles::Replace(std::string_view name, std::string_view content) {
    files_[std::string(name)] = content;
    return true;
}

bool MemoryFiles::Remove(std::string_view name) {
    files_.erase(std::string(name));
    return true;
}

}  // namespace platform::headless
