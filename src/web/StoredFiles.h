#pragma once

#include "storage/MemoryFiles.h"

namespace platform::web {

/// The files that the page has stored, in memory from here on. What changes is noted with the page, which stores all
/// that one event has changed in one transaction; a transaction that fails is told by an event, and what it held is
/// stored with the next one.
storage::MemoryFiles StoredFiles();

}  // namespace platform::web
