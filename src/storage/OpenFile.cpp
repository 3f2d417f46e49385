#include "storage/OpenFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

#ifdef _WIN32
#include <io.h>
#include <sys/stat.h>
#else
#include <unistd.h>
#endif

namespace platform::storage {

namespace {

int Open(const std::filesystem::path& path, int flags) {
#ifdef _WIN32
    return _wopen(path.c_str(), flags | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
#else
    constexpr mode_t kRights = 0666;  // less the player's mask
    return open(path.c_str(), flags | O_CLOEXEC, kRights);
#endif
}

}  // namespace

OpenFile::OpenFile(const std::filesystem::path& path, int flags) : handle_(Open(path, flags)) {}

OpenFile::~OpenFile() {
    if (IsOpen()) close(handle_);
}

std::optional<std::string> OpenFile::Read(std::int64_t offset, std::size_t length) const {
    const std::int64_t size = lseek(handle_, 0, SEEK_END);
    if (size < 0 || offset < 0 || lseek(handle_, static_cast<off_t>(std::min(offset, size)), SEEK_SET) < 0) {
        return std::nullopt;
    }
    std::string bytes(std::min(length, static_cast<std::size_t>(std::max<std::int64_t>(size - offset, 0))), '\0');
    std::size_t done = 0;
    while (done < bytes.size()) {
        const auto part = read(handle_, bytes.data() + done, bytes.size() - done);
        if (part < 0 && errno == EINTR) continue;
        if (part < 0) return std::nullopt;
        if (part == 0) break;
        done += static_cast<std::size_t>(part);
    }
    bytes.resize(done);
    return bytes;
}

bool OpenFile::Write(std::int64_t offset, std::string_view bytes) const {
    if (offset < 0 || lseek(handle_, static_cast<off_t>(offset), SEEK_SET) < 0) return false;
    while (!bytes.empty()) {
        const auto part = write(handle_, bytes.data(), bytes.size());
        if (part < 0 && errno == EINTR) continue;
        if (part <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(part));
    }
    return true;
}

}  // namespace platform::storage
