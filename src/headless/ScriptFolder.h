#pragma once

#include "headless/Folder.h"
#include "storage/FolderFiles.h"

namespace platform::headless {

/// The files of the current folder, in which a script can put obstacles. No write waits for the disk.
class ScriptFolder : public storage::FolderFiles, public Folder {
public:
    ScriptFolder() : FolderFiles(Wait::ForNone) {}

    void Delete(std::string_view name) override;
    void Block(std::string_view name) override;
    [[nodiscard]] std::vector<std::string> Names() const override;
};

}  // namespace platform::headless
