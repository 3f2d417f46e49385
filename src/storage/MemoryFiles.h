#pragma once

#include <functional>
#include <map>
#include <vector>

#include "platform/Services.h"

namespace platform::storage {

/// Files that live in memory. Whoever keeps them elsewhere too is told each change.
class MemoryFiles : public Files {
public:
    using Contents = std::map<std::string, std::string, std::less<>>;
    /// Told the new content of a file; nothing when the file is gone.
    using Changed = std::function<void(std::string_view name, const std::string* content)>;

    MemoryFiles() = default;
    explicit MemoryFiles(Contents files, Changed changed = nullptr)
        : files_(std::move(files)), changed_(std::move(changed)) {}

    bool Exists(std::string_view name) override;
    bool IsLink(std::string_view /*name*/) override { return false; }
    std::optional<std::string> Read(std::string_view name) override;
    std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) override;
    bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) override;
    bool Replace(std::string_view name, std::string_view content) override;
    bool Rename(std::string_view from, std::string_view to) override;
    bool Remove(std::string_view name) override;

    /// The names of all files, sorted.
    [[nodiscard]] std::vector<std::string> Names() const;

private:
    /// The content of a file, which is created empty if it is not there.
    std::string& Open(std::string_view name);
    void Tell(std::string_view name, const std::string* content) const;

    Contents files_;
    Changed changed_;
};

}  // namespace platform::storage
