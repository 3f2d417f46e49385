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

/// The files in the text of the page: of each its name, a blank, its length, a line feed and its bytes.
storage::MemoryFiles::Contents Parse(std::string_view rest) {
    storage::MemoryFiles::Contents files;
    while (!rest.empty()) {
        const auto blank = rest.find(' ');
        const auto end = rest.find('\n');
        if (blank == std::string_view::npos || end == std::string_view::npos || blank > end) break;
        std::size_t length = 0;
        std::from_chars(rest.data() + blank + 1, rest.data() + end, length);
        files[std::string(rest.substr(0, blank))] = rest.substr(end + 1, length);
        rest.remove_prefix(std::min(rest.size(), end + 1 + length));
    }
    return files;
}

void Note(std::string_view name, const std::string* content) {
    if (content == nullptr) {
        page_remove(name.data(), name.size());
    } else {
        page_store(name.data(), name.size(), content->data(), content->size());
    }
}

}  // namespace

storage::MemoryFiles StoredFiles() {
    return storage::MemoryFiles(Parse(StoredByPage()), Note);
}

}  // namespace platform::web
