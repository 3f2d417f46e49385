#include "web/StoredFiles.h"

#include <algorithm>
#include <charconv>

#include "web/Page.h"

namespace platform::web {

namespace {

std::string StoredByPage() {
    std::string all(page_stored_files(nullptr, 0), '\0');
    page_stored_files(all.data(), all.size());
    return all;
}

void Store(std::string_view name, std::string_view content) {
    page_store(name.data(), name.size(), content.data(), content.size());
}

}  // namespace

StoredFiles::StoredFiles() {
    const std::string all = StoredByPage();
    std::string_view rest = all;
    while (!rest.empty()) {
        const auto blank = rest.find(' ');
        const auto end = rest.find('\n');
        if (blank == std::string_view::npos || end == std::string_view::npos || blank > end) return;
        std::size_t length = 0;
        std::from_chars(rest.data() + blank + 1, rest.data() + end, length);
        files_[std::string(rest.substr(0, blank))] = rest.substr(end + 1, length);
        rest.remove_prefix(std::min(rest.size(), end + 1 + length));
    }
}

std::vector<std::string> StoredFiles::Names() const {
    std::vector<std::string> names;
    for (const auto& [name, content] : files_) names.push_back(name);
    return names;
}

bool StoredFiles::Exists(std::string_view name) {
    return files_.contains(name);
}

std::optional<std::string> StoredFiles::Read(std::string_view name) {
    const auto file = files_.find(name);
    return file == files_.end() ? std::nullopt : std::optional(file->second);
}

std::optional<std::string> StoredFiles::ReadAt(std::string_view name, std::int64_t offset, std::size_t length) {
    const auto [file, isNew] = files_.try_emplace(std::string(name));
    if (isNew) Store(name, {});
    const auto start = std::min(static_cast<std::size_t>(offset), file->second.size());
    return file->second.substr(start, length);
}

bool StoredFiles::WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) {
    std::string& content = files_[std::string(name)];
    const auto start = static_cast<std::size_t>(offset);
    if (content.size() < start + bytes.size()) content.resize(start + bytes.size(), '\0');
    content.replace(start, bytes.size(), bytes);
    Store(name, content);
    return true;
}

bool StoredFiles::Replace(std::string_view name, std::string_view content) {
    files_[std::string(name)] = content;
    Store(name, content);
    return true;
}

bool StoredFiles::Remove(std::string_view name) {
    const auto file = files_.find(name);
    if (file == files_.end()) return true;
    files_.erase(file);
    page_remove(name.data(), name.size());
    return true;
}

}  // namespace platform::web
