#pragma once

#include <memory>

#include "storage/OpenFile.h"

namespace platform::storage {

/// Keeps other programs out of the current folder. The system itself holds the lock and lets it go when the program
/// ends, however it ends: what lies in the folder tells nothing about who is there.
class FolderLock {
public:
    /// False if another program has the folder. A folder in which nothing can be locked counts as free.
    bool Take();
    /// Lets the next program in.
    void Release() { held_.reset(); }

private:
    std::unique_ptr<OpenFile> held_;
};

}  // namespace platform::storage
