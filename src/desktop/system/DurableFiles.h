#pragma once

#include "platform/Services.h"

namespace platform::desktop {

/// Files of the current folder, on the disk before a call comes back.
class DurableFiles : public Files {
public:
    bool Exists(std::string_view name) override;
    std::optional<std::string> Read(std::string_view name) override;
    std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) override;
    bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) override;
    bool Replace(std::string_view name, std::string_view content) override;
    bool Remove(std::string_view name) override;
};

}  // namespace platform::desktop
