#pragma once

#include <filesystem>

#include "platform/Services.h"

namespace platform::storage {

/// The path of a bare name, whose accents are UTF-8 on every system.
std::filesystem::path PathOf(std::string_view name);

/// The files of the current folder. Only regular files are opened, so that a pipe or a device in the place of one
/// neither blocks nor fills the memory. A link to a regular file is followed; one that leads nowhere is a file that
/// cannot be read or written.
class FolderFiles : public Files {
public:
    /// What a write waits for.
    enum class Wait {
        ForDisk,  ///< it is on the disk before the call comes back, and a disk that fails is told
        ForNone,  ///< a power failure may lose it: for tests, which would take much longer
    };
    explicit FolderFiles(Wait wait = Wait::ForDisk) : wait_(wait) {}

    bool Exists(std::string_view name) override;
    bool IsLink(std::string_view name) override;
    std::optional<std::string> Read(std::string_view name) override;
    std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) override;
    bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) override;
    bool Replace(std::string_view name, std::string_view content) override;
    bool Rename(std::string_view from, std::string_view to) override;
    bool Remove(std::string_view name) override;

    /// The name under which `Replace` writes before it renames. A program that is killed may leave such a file; the
    /// next `Replace` takes it away.
    static constexpr std::string_view kBeside = ".zarpi.nuevo";

private:
    [[nodiscard]] bool Sync(int handle) const;
    [[nodiscard]] bool SyncFolder(const std::filesystem::path& folder) const;
    [[nodiscard]] bool WriteNew(const std::filesystem::path& path, std::string_view content) const;

    Wait wait_;
};

}  // namespace platform::storage
