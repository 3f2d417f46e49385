#pragma once

#include <filesystem>
#include <fstream>
#include <string>

/// A game folder of its own for a test, as an installation leaves it; the current folder while it lives.
class Carpeta {
public:
    Carpeta() : before_(std::filesystem::current_path()) {
        std::string name = (std::filesystem::temp_directory_path() / "zarpi-XXXXXX").string();
        folder_ = mkdtemp(name.data());
        std::filesystem::current_path(folder_);
        for (const char* counter : {"Ultimo", "UltPart", "UltCeI", "UltIyC", "UltCas", "UltIng", "UltCoI"}) {
            std::ofstream(std::string(counter) + ".dat", std::ios::binary) << " 0 \r\n";
        }
    }
    ~Carpeta() {
        std::filesystem::current_path(before_);
        std::filesystem::remove_all(folder_);
    }
    Carpeta(const Carpeta&) = delete;
    Carpeta& operator=(const Carpeta&) = delete;

private:
    std::filesystem::path before_;
    std::filesystem::path folder_;
};
