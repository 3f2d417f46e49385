// Measures a program's window from outside, on the X display at hand.
//
//   window-bench start PROGRAM [ARGUMENT...]    from exec to its first window mapped, milliseconds
//   window-bench play PROGRAM                   zarpi: from a key press to the changed pixel, CPU with and without a
//   word in play,
//                                               proportional memory with music playing
//   window-bench memory PROGRAM [ARGUMENT...]   proportional memory of a window that does nothing

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <signal.h>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// The display, and what its windows do.
class Desk {
public:
    Desk() : display_(XOpenDisplay(nullptr)) {
        if (display_ == nullptr) {
            std::fprintf(stderr, "no display\n");
            std::exit(EXIT_FAILURE);
        }
        XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
        XSync(display_, True);
    }
    ~Desk() { XCloseDisplay(display_); }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// The next window of some size that is mapped.
    Window WaitForWindow() {
        while (true) {
            XEvent event;
            XNextEvent(display_, &event);
            XWindowAttributes attributes;
            if (event.type != MapNotify) continue;
            if (XGetWindowAttributes(display_, event.xmap.window, &attributes) == 0) continue;
            if (attributes.width > 100) return event.xmap.window;
        }
    }
    void Press(KeySym key, bool control = false) {
        const KeyCode code = XKeysymToKeycode(display_, key);
        const KeyCode held = XKeysymToKeycode(display_, XK_Control_L);
        if (control) XTestFakeKeyEvent(display_, held, True, CurrentTime);
        XTestFakeKeyEvent(display_, code, True, CurrentTime);
        XTestFakeKeyEvent(display_, code, False, CurrentTime);
        if (control) XTestFakeKeyEvent(display_, held, False, CurrentTime);
        XFlush(display_);
    }
    /// The pixels where the misses and the letters of the word stand.
    std::string Board(Window window) {
        XImage* image = XGetImage(display_, window, 0, 215, 570, 140, AllPlanes, ZPixmap);
        std::string pixels(image->data, static_cast<std::size_t>(image->bytes_per_line) * image->height);
        XDestroyImage(image);
        return pixels;
    }

private:
    Display* display_;
};

/// A program that runs as long as this lives.
class Child {
public:
    explicit Child(char** program) : pid_(fork()) {
        if (pid_ != 0) return;
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDERR_FILENO);
        execv(program[0], program);
        std::_Exit(127);
    }
    ~Child() {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    /// Proportional set size, MiB.
    [[nodiscard]] double Memory() const {
        std::ifstream file("/proc/" + std::to_string(pid_) + "/smaps_rollup");
        for (std::string line; std::getline(file, line);) {
            if (line.starts_with("Pss:")) return std::atof(line.c_str() + 4) / 1024;
        }
        return -1;
    }
    /// Share of one core used during a while, percent.
    [[nodiscard]] double Cpu(std::chrono::seconds duration) const {
        const double before = CpuSeconds();
        std::this_thread::sleep_for(duration);
        return (CpuSeconds() - before) / static_cast<double>(duration.count()) * 100;
    }

private:
    [[nodiscard]] double CpuSeconds() const {
        // Nanoseconds on the CPU of the main thread, which is the game; another one renders the music.
        std::ifstream file("/proc/" + std::to_string(pid_) + "/task/" + std::to_string(pid_) + "/schedstat");
        double nanoseconds = 0;
        file >> nanoseconds;
        return nanoseconds / 1e9;
    }
    pid_t pid_;
};

double StartOnce(Desk& desk, char** program) {
    const auto start = Clock::now();
    const Child child(program);
    desk.WaitForWindow();
    return Milliseconds(Clock::now() - start);
}

void Start(char** program) {
    Desk desk;
    StartOnce(desk, program);
    std::vector<double> times;
    for (int i = 0; i < 11; ++i) times.push_back(StartOnce(desk, program));
    std::printf("%-28s %8.1f ms\n", "exec to window mapped", Median(times));
}

void Memory(char** program) {
    Desk desk;
    const Child child(program);
    desk.WaitForWindow();
    std::this_thread::sleep_for(2s);
    std::printf("%-28s %8.1f MiB\n", "memory (PSS)", child.Memory());
}

double KeyToPixel(Desk& desk, Window window, KeySym key) {
    const std::string before = desk.Board(window);
    const auto start = Clock::now();
    desk.Press(key);
    while (desk.Board(window) == before) {
        if (Clock::now() - start > 1s) return 1000;
    }
    return Milliseconds(Clock::now() - start);
}

void Play(char** program) {
    std::vector<double> times;
    double idle = 0;
    double playing = 0;
    double memory = 0;
    for (int round = 0; round < 2; ++round) {
        Desk desk;
        const Child child(program);
        desk.WaitForWindow();
        std::this_thread::sleep_for(500ms);
        desk.Press(XK_space);
        const Window window = desk.WaitForWindow();
        std::this_thread::sleep_for(1s);
        if (round == 0) idle = child.Cpu(5s);
        desk.Press(XK_n, true);
        desk.WaitForWindow();
        std::this_thread::sleep_for(300ms);
        desk.Press(XK_Return);
        desk.WaitForWindow();
        std::this_thread::sleep_for(300ms);
        desk.Press(XK_Return);
        std::this_thread::sleep_for(2s);
        if (round == 0) {
            playing = child.Cpu(10s);
            memory = child.Memory();
        }
        for (const KeySym key : {XK_w, XK_k, XK_x, XK_q, XK_j}) {
            times.push_back(KeyToPixel(desk, window, key));
            std::this_thread::sleep_for(100ms);
        }
    }
    std::printf("%-28s %8.2f ms\n", "key press to changed pixel", Median(times));
    std::printf("%-28s %8.3f %%\n", "CPU, no word in play", idle);
    std::printf("%-28s %8.3f %%\n", "CPU, a word in play", playing);
    std::printf("%-28s %8.1f MiB\n", "memory (PSS), music playing", memory);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return EXIT_FAILURE;
    const std::string what = argv[1];
    if (what == "start") Start(argv + 2);
    if (what == "memory") Memory(argv + 2);
    if (what == "play") Play(argv + 2);
}
