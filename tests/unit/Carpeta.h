#pragma once

#include <filesystem>
#include <random>
#include <string>

#include "headless/ScriptFolder.h"
#include "records/Archivos.h"

/// A game folder of its own for a test, as an installation leaves it; the current folder while it lives.
class Carpeta {
public:
    Carpeta() : before_(std::filesystem::current_path()) {
        std::random_device random;
        do {
            folder_ = std::filesystem::temp_directory_path() / ("zarpi-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(folder_));
        std::filesystem::current_path(folder_);
        platform::headless::ScriptFolder files;
        juego::EstrenarCarpeta(files);
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
