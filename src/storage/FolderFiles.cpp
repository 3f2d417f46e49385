#include "storage/FolderFiles.h"

#include <cerrno>
#include <fcntl.h>

#include "storage/OpenFile.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace platform::storage {

namespace fs = std::filesystem;

namespace {

/// The type of the file that a name leads to, not_found where there is nothing of this name. It is that of a link only
/// where the link leads nowhere.
fs::file_type TypeOf(const fs::path& path) {
    std::error_code error;
    const auto type = fs::status(path, error).type();
    return type == fs::file_type::not_found ? fs::symlink_status(path, error).type() : type;
}

bool IsRegular(const fs::path& path) {
    return TypeOf(path) == fs::file_type::regular;
}

bool IsFree(const fs::path& path) {
    return TypeOf(path) == fs::file_type::not_found;
}

/// The file that a name leads to, by the link that the player may have put in its place.
fs::path Target(const fs::path& path) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error))) return path;
    const fs::path target = fs::canonical(path, error);
    return error ? path : target;
}

}  // namespace

fs::path PathOf(std::string_view name) {
    return {std::u8string(name.begin(), name.end())};
}

bool FolderFiles::Exists(std::string_view name) {
    const auto type = TypeOf(PathOf(name));
    return type != fs::file_type::not_found && type != fs::file_type::directory;
}

bool FolderFiles::IsLink(std::string_view name) {
    std::error_code error;
    return fs::is_symlink(fs::symlink_status(PathOf(name), error));
}

std::optional<std::string> FolderFiles::Read(std::string_view name) {
    const fs::path path = PathOf(name);
    if (!IsRegular(path)) return std::nullopt;
    const OpenFile file(path, O_RDONLY);
    return file.IsOpen() ? file.Read(0, kLongestRead) : std::nullopt;
}

std::optional<std::string> FolderFiles::ReadAt(std::string_view name, std::int64_t offset, std::size_t length) {
    const fs::path path = PathOf(name);
    if (!IsRegular(path) && !IsFree(path)) return std::nullopt;
    const OpenFile file(path, IsRegular(path) ? O_RDONLY : O_RDWR | O_CREAT);
    return file.IsOpen() ? file.Read(offset, length) : std::nullopt;
}

bool FolderFiles::WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) {
    const fs::path path = PathOf(name);
    const bool isNew = IsFree(path);
    if (!isNew && !IsRegular(path)) return false;
    const OpenFile file(path, O_RDWR | O_CREAT);
    if (!file.IsOpen() || !file.Write(offset, bytes) || !Sync(file.Handle())) return false;
    return !isNew || SyncFolder(".");
}

bool FolderFiles::Replace(std::string_view name, std::string_view content) {
    const fs::path path = Target(PathOf(name));
    const bool isNew = IsFree(path);
    // A file that may not be written is not replaced either.
    if (!isNew && !(IsRegular(path) && OpenFile(path, O_WRONLY).IsOpen())) return false;
    const fs::path beside = path.parent_path() / PathOf(kBeside);
    std::error_code error;
    fs::remove(beside, error);
    bool done = WriteNew(beside, content);
    if (done && !isNew) fs::permissions(beside, fs::status(path, error).permissions(), error);
    if (done) fs::rename(beside, path, error);
    done = done && !error;
    if (!done) fs::remove(beside, error);
    return done && SyncFolder(path.parent_path());
}

bool FolderFiles::Rename(std::string_view from, std::string_view to) {
    std::error_code error;
    if (!IsFree(PathOf(to))) return false;
    fs::rename(PathOf(from), PathOf(to), error);
    return !error && SyncFolder(".");
}

bool FolderFiles::Remove(std::string_view name) {
    std::error_code error;
    if (Exists(name)) fs::remove(PathOf(name), error);
    if (error) return false;
    // It is gone, also where the disk does not know yet.
    static_cast<void>(SyncFolder("."));
    return true;
}

/// Waits until the disk has what was written.
bool FolderFiles::Sync(int handle) const {
    if (wait_ == Wait::ForNone) return true;
#if defined(_WIN32)
    return _commit(handle) == 0;
#elif defined(F_FULLFSYNC)
    return fcntl(handle, F_FULLFSYNC) != -1 || fsync(handle) == 0;
#else
    return fsync(handle) == 0;
#endif
}

/// Waits until the disk has the names in a folder. Some systems have no way to, which is no failure.
bool FolderFiles::SyncFolder([[maybe_unused]] const fs::path& folder) const {
#ifdef _WIN32
    return true;
#else
    const OpenFile names(folder.empty() ? fs::path(".") : folder, O_RDONLY | O_DIRECTORY);
    return !names.IsOpen() || Sync(names.Handle()) || errno != EIO;
#endif
}

/// Writes a file that is not there yet, and nothing through a link.
bool FolderFiles::WriteNew(const fs::path& path, std::string_view content) const {
    const OpenFile file(path, O_WRONLY | O_CREAT | O_EXCL);
    return file.IsOpen() && file.Write(0, content) && Sync(file.Handle());
}

}  // namespace platform::storage
