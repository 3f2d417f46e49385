#pragma once

#include <map>

#include "platform/Services.h"

namespace platform::headless {

/// Files that live in memory alone.
class MemoryFiles : public Files {
public:
    bool Exists(std::string_view name) override;
    std::optional<std::string> Read(std::string_view name) override;
    std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) override;
    bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) override;
    bool Replace(std::string_view name, std::string_view content) override;
    bool Remove(std::string_view name) override;

private:
    std::map<std::string, std::string, std::less<>> files_;
};

}  // namespace platform::headless
