#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform::headless {

/// The game folder as a script prepares it and looks at it, beyond what a game does with it.
class Folder {
public:
    virtual ~Folder() = default;

    /// Takes away what has this name, whatever it is.
    virtual void Delete(std::string_view name) = 0;
    /// Puts a folder in the place of a file, so that opening it fails.
    virtual void Block(std::string_view name) = 0;
    /// The names of all that lies in it.
    [[nodiscard]] virtual std::vector<std::string> Names() const = 0;
};

}  // namespace platform::headless
