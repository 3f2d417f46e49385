#include "storage/MemoryFiles.h"

#include <algorithm>

namespace platform::storage {

bool MemoryFiles::Exists(std::string_view name) {
    return files_.contains(name);
}

std::optional<std::string> MemoryFiles::Read(std::string_view name) {
    const auto file = files_.find(name);
    return file == files_.end() ? std::nullopt : std::optional(file->second.substr(0, kLongestRead));
}

std::optional<std::string> MemoryFiles::ReadAt(std::string_view name, std::int64_t offset, std::size_t length) {
    const std::string& content = Open(name);
    return content.substr(std::min(static_cast<std::size_t>(offset), content.size()), length);
}

bool MemoryFiles::WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) {
    std::string& content = Open(name);
    const auto start = static_cast<std::size_t>(offset);
    if (content.size() < start + bytes.size()) content.resize(start + bytes.size(), '\0');
    content.replace(start, bytes.size(), bytes);
    Tell(name, &content);
    return true;
}

bool MemoryFiles::Replace(std::string_view name, std::string_view content) {
    std::string& file = files_[std::string(name)];
    file = content;
    Tell(name, &file);
    return true;
}

bool MemoryFiles::Rename(std::string_view from, std::string_view to) {
    const auto file = files_.find(from);
    return file != files_.end() && !Exists(to) && Replace(to, file->second) && Remove(from);
}

bool MemoryFiles::Remove(std::string_view name) {
    if (files_.erase(std::string(name)) > 0) Tell(name, nullptr);
    return true;
}

std::vector<std::string> MemoryFiles::Names() const {
    std::vector<std::string> names;
    for (const auto& [name, content] : files_) names.push_back(name);
    return names;
}

std::string& MemoryFiles::Open(std::string_view name) {
    const auto [file, isNew] = files_.try_emplace(std::string(name));
    if (isNew) Tell(name, &file->second);
    return file->second;
}

void MemoryFiles::Tell(std::string_view name, const std::string* content) const {
    if (changed_) changed_(name, content);
}

}  // namespace platform::storage
