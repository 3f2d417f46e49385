#include "Platform.h"

#include <QApplication>
#include <cstdlib>

#ifndef Q_OS_WIN
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "hand/WidgetHand.h"

using namespace platform;

struct Platform::Parts {
    explicit Parts(Files& files) : headless(files, &display) { display.Attach(headless.screen); }
    desktop::WindowDisplay display{desktop::Scale(1)};
    headless::Headless headless;
    hand::WidgetHand hand{headless.screen, display};
};

Platform::Platform(Files& files) : parts_(std::make_unique<Parts>(files)) {}
Platform::~Platform() = default;

headless::Headless& Platform::Services() const {
    return parts_->headless;
}

headless::Hand& Platform::Hand() const {
    return parts_->hand;
}

/// The toolkit's own code is not made for being unwound: a process of its own ends, where a process can be divided.
bool Platform::Ends(const std::function<void()>& statement) const {
#ifdef Q_OS_WIN
    try {
        statement();
    } catch (const headless::Ended&) {
        return true;
    }
    return false;
#else
    const pid_t child = fork();
    if (child == 0) {
        parts_->headless.SetEnd([] { std::_Exit(EXIT_SUCCESS); });
        statement();
        std::_Exit(EXIT_FAILURE);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
#endif
}
