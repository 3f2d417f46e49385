#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/Services.h"

namespace platform::web {

/// The stored files, in memory from the start of the program on. What changes is noted with the page, which stores all
/// that one event has changed in one transaction; a transaction that fails is told by an event, and what it held is
/// stored with the next one.
class StoredFiles : public Files {
public:
    /// Reads what the page has stored.
    StoredFiles();

    bool Exists(std::string_view name) override;
    std::optional<std::string> Read(std::string_view name) override;
    std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) override;
    bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) override;
    bool Replace(std::string_view name, std::string_view content) override;
    bool Remove(std::string_view name) override;

    /// The names of all files.
    [[nodiscard]] std::vector<std::string> Names() const;
    [[nodiscard]] bool IsEmpty() const { return files_.empty(); }

private:
    std::map<std::string, std::string, std::less<>> files_;
};

}  // namespace platform::web
