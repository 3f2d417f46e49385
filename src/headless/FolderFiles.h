#pragma once

#include <filesystem>

#include "headless/Folder.h"
#include "platform/Services.h"

namespace platform::headless {

/// The path of a bare name, whose accents are UTF-8 on every system.
std::filesystem::path PathOf(std::string_view name);

/// The files of the current folder, by means of the standard library alone. It stores nothing for good against a power
/// failure, as the contract of a real platform asks.
class FolderFiles : public Files, public Folder {
public:
    bool Exists(std::string_view name) override;
    std::optional<std::string> Read(std::string_view name) override;
    std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) override;
    bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) override;
    bool Replace(std::string_view name, std::string_view content) override;
    bool Remove(std::string_view name) override;

    void Delete(std::string_view name) override;
    void Block(std::string_view name) override;
    [[nodiscard]] std::vector<std::string> Names() const override;
};

}  // namespace platform::headless
