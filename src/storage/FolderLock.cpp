#include "storage/FolderLock.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <utility>

#ifdef _WIN32
#include <io.h>
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <sys/file.h>
#endif

namespace platform::storage {

namespace {

constexpr const char* kLock = ".zarpi.lock";

#ifdef _WIN32
constexpr std::array<std::pair<const char*, int>, 1> kWays = {{{kLock, _O_RDWR | _O_CREAT}}};

bool Lock(int handle) {
    OVERLAPPED start{};
    return LockFileEx(reinterpret_cast<HANDLE>(_get_osfhandle(handle)),
                      LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &start) != 0;
}
bool IsTaken() {
    return GetLastError() == ERROR_LOCK_VIOLATION;
}
#else
/// What is locked: a file, since folders in a network cannot be; one that another user has left, which can only be
/// read; the folder itself, where something else lies in the place of the file. A pipe there makes nobody wait.
constexpr std::array<std::pair<const char*, int>, 3> kWays = {{{kLock, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK},
                                                               {kLock, O_RDONLY | O_NOFOLLOW | O_NONBLOCK},
                                                               {".", O_RDONLY}}};

bool Lock(int handle) {
    return flock(handle, LOCK_EX | LOCK_NB) == 0;
}
bool IsTaken() {
    return errno == EWOULDBLOCK;
}
#endif

}  // namespace

bool FolderLock::Take() {
    for (const auto& [path, flags] : kWays) {
        auto file = std::make_unique<OpenFile>(path, flags);
        if (!file->IsOpen()) continue;
        if (Lock(file->Handle())) {
            held_ = std::move(file);
            return true;
        }
        if (IsTaken()) return false;
    }
    return true;
}

}  // namespace platform::storage
