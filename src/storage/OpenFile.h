#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace platform::storage {

/// An open file of the system. Other programs that this one starts do not inherit it.
class OpenFile {
public:
    /// `flags` are those of the system's `open`.
    OpenFile(const std::filesystem::path& path, int flags);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// Whether it could be opened.
    [[nodiscard]] bool IsOpen() const { return handle_ >= 0; }
    [[nodiscard]] int Handle() const { return handle_; }

    /// Up to `length` bytes from an offset, fewer at the end of the file. Nothing on failure.
    [[nodiscard]] std::optional<std::string> Read(std::int64_t offset, std::size_t length) const;
    /// False on failure; a part of the bytes may be written then.
    [[nodiscard]] bool Write(std::int64_t offset, std::string_view bytes) const;

private:
    int handle_;
};

}  // namespace platform::storage
