// Measures the game's window from outside, on the X display at hand, beside windows of the same size with nothing in
// them: from exec to the first window mapped, proportional memory with music playing, from a key press to the changed
// pixel, CPU with and without a word in play.
//
//   window-bench ZARPI BARE    the two programs

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
using Words = std::vector<std::string>;

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

    /// The next window of some size that is mapped; that size is noted.
    Window WaitForWindow() {
        while (true) {
            XEvent event;
            XNextEvent(display_, &event);
            XWindowAttributes attributes;
            if (event.type != MapNotify) continue;
            if (XGetWindowAttributes(display_, event.xmap.window, &attributes) == 0) continue;
            if (attributes.width <= 100) continue;
            size_ = {std::to_string(attributes.width), std::to_string(attributes.height)};
            return event.xmap.window;
        }
    }
    /// Width and height of the last window.
    [[nodiscard]] const Words& Size() const { return size_; }
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
    Words size_;
};

/// A program that runs as long as this lives.
class Child {
public:
    explicit Child(const Words& command) : pid_(fork()) {
        if (pid_ != 0) return;
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDERR_FILENO);
        std::vector<char*> words;
        for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));
        words.push_back(nullptr);
        execv(words[0], words.data());
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

double StartOnce(Desk& desk, const Words& command) {
    const auto start = Clock::now();
    const Child child(command);
    desk.WaitForWindow();
    return Milliseconds(Clock::now() - start);
}

double Start(Desk& desk, const Words& command) {
    StartOnce(desk, command);
    std::vector<double> times;
    for (int i = 0; i < 11; ++i) times.push_back(StartOnce(desk, command));
    return Median(times);
}

double Memory(Desk& desk, const Words& command) {
    const Child child(command);
    desk.WaitForWindow();
    std::this_thread::sleep_for(2s);
    return child.Memory();
}

void Tell(const char* what, const char* unit, double game, double bare) {
    std::printf("%-28s %8.1f %s   bare %8.1f   %.2f x\n", what, game, unit, bare, game / bare);
}

Words Bare(const std::string& bare, const Words& size) {
    return {bare, size[0], size[1]};
}

void CompareStart(const std::string& game, const std::string& bare) {
    Desk desk;
    const double time = Start(desk, {game});
    Tell("exec to window mapped", "ms ", time, Start(desk, Bare(bare, desk.Size())));
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

void Play(const std::string& game, const std::string& bare) {
    std::vector<double> times;
    double idle = 0;
    double playing = 0;
    double memory = 0;
    Words size;
    for (int round = 0; round < 2; ++round) {
        Desk desk;
        const Child child({game});
        desk.WaitForWindow();
        std::this_thread::sleep_for(500ms);
        desk.Press(XK_space);
        const Window window = desk.WaitForWindow();
        size = desk.Size();
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
    Desk desk;
    Tell("memory (PSS), music playing", "MiB", memory, Memory(desk, Bare(bare, size)));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return EXIT_FAILURE;
    CompareStart(argv[1], argv[2]);
    Play(argv[1], argv[2]);
}
