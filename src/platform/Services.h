#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Form.h"
#include "platform/Speech.h"
#include "platform/Text.h"

/// What the game asks of a platform, one narrow interface a subject. A class takes the ones it uses.
namespace platform {

/// Loading, showing and closing windows.
class Forms {
public:
    virtual ~Forms() = default;

    /// Brings a form to its design state and runs its load routine, without showing it. Nothing if it is loaded.
    virtual void Load(Form& form) = 0;
    /// Loads and shows a form and goes on.
    virtual void Show(Form& form) = 0;
    /// Loads and shows a form before all others and comes back when it has been closed. Timers go on meanwhile.
    virtual void ShowModal(Form& form) = 0;
    /// Takes a form off the screen and keeps it loaded.
    virtual void Hide(Form& form) = 0;
    /// Runs the closing routine of a loaded form, once, and takes the form away.
    virtual void Unload(Form& form) = 0;
    /// Ends the program at once: nothing more runs, and the call does not come back.
    virtual void End() = 0;

    /// The form before all others; null while none is shown.
    [[nodiscard]] virtual Form* Front() const = 0;

    /// Called whenever an event has run to its end or a modal form begins to wait, before what has changed is shown.
    std::function<void()> OnSettled;
};

class Dialogs {
public:
    virtual ~Dialogs() = default;

    /// The system's warning sound.
    virtual void Beep() = 0;
    /// A message with an exclamation mark and one OK button; comes back when it is accepted.
    virtual void MsgBox(TextView text, TextView title) = 0;
};

class Printer {
public:
    virtual ~Printer() = default;

    /// Asks for a printer. False: the player has cancelled.
    virtual bool ShowDialog() = 0;
    /// Prints what the client area of a form shows now, on the printer chosen. A failure goes unnoticed.
    virtual void PrintForm(const Form& form) = 0;
};

struct Date {
    int Day = 1;
    int Month = 1;
    int Year = 2000;
};

class Clock {
public:
    virtual ~Clock() = default;

    [[nodiscard]] virtual Date Today() const = 0;
    /// The time of day in whole seconds since midnight, 0 to 86,399.
    [[nodiscard]] virtual std::int32_t Time() const = 0;
    /// Seconds since midnight with their fraction.
    [[nodiscard]] virtual double Timer() const = 0;
};

class Random {
public:
    virtual ~Random() = default;

    /// Mixes a seed into the generator. It never replaces its state: equal seeds still give new numbers.
    virtual void Randomize(double seed) = 0;
    /// A number from 0 up to, not including, 1.
    virtual double Rnd() = 0;
};

/// A player of sound files. `Name` carries the index of an array: "sonMusica(3)".
struct MediaChannel {
    std::string Name;
    Text FileName;
    bool OverMusic = false;  ///< what it sounds is to be heard over the music, which goes back meanwhile
};

enum class MediaCommand {
    Open,   ///< the file is ready on the channel
    Play,   ///< it starts sounding from its beginning, and the program goes on at once
    Prev,   ///< it stands at its beginning for the next use; what is sounding goes on
    Pause,  ///< it stops sounding
    Close,  ///< the channel lets go of its file, and a piece that is sounding stops
};

/// The name of a command as logs tell it.
std::string_view CommandName(MediaCommand command);

class Media {
public:
    virtual ~Media() = default;

    /// A file that is missing or bad and a device that is not there go unnoticed.
    virtual void Command(const MediaChannel& channel, MediaCommand command) = 0;
};

class Web {
public:
    virtual ~Web() = default;

    /// Opens a page in a browser of its own; the result goes unnoticed.
    virtual void Navigate(TextView address) = 0;
};

/// The stored files, by bare name in the game folder.
class Files {
public:
    virtual ~Files() = default;

    /// Whether a file of this name is there, readable or not; also true where that cannot be told. A folder is no file.
    virtual bool Exists(std::string_view name) = 0;
    /// Whether the name is a link, so that what is written under it lands in a file that may lie elsewhere.
    virtual bool IsLink(std::string_view name) = 0;
    /// More than the longest file that is read as a whole.
    static constexpr std::size_t kLongestRead = std::size_t{4} << 20U;
    /// The content, of a longer file the first kLongestRead bytes; nothing when it cannot be read, be it there or not.
    virtual std::optional<std::string> Read(std::string_view name) = 0;
    /// Up to `length` bytes from an offset, fewer at the end of the file. A file that is not there is created empty.
    /// Nothing when that fails.
    virtual std::optional<std::string> ReadAt(std::string_view name, std::int64_t offset, std::size_t length) = 0;
    /// Stores bytes at an offset and has them on the disk before it comes back. The file is created and grows as
    /// needed. False on failure.
    virtual bool WriteAt(std::string_view name, std::int64_t offset, std::string_view bytes) = 0;
    /// Replaces the content in one step: at any moment the file holds the old content or the new. False on failure.
    virtual bool Replace(std::string_view name, std::string_view content) = 0;
    /// Gives a file another name. A link is renamed itself. False on failure, also when anything has that name already.
    virtual bool Rename(std::string_view from, std::string_view to) = 0;
    /// Removes a file; that there is none of this name is no failure. False if it is still there.
    virtual bool Remove(std::string_view name) = 0;
};

/// All services of a platform, for the place that puts the program together.
struct Services {
    platform::Forms& Forms;
    platform::Dialogs& Dialogs;
    platform::Printer& Printer;
    platform::Clock& Clock;
    platform::Random& Random;
    platform::Media& Media;
    platform::Web& Web;
    platform::Files& Files;
    platform::Speech& Speech;
};

/// A number from 1 to n, all equally likely, from a generator seeded anew from the clock.
int Draw(Random& random, const Clock& clock, int n);

/// Plays a file on a channel from its beginning.
void PlaySound(Media& media, MediaChannel& channel, TextView file);

/// "7-3-2004"
Text FormatDate(Date date);

/// Seconds of a day, 0 to 86,399, as "hh:mm:ss".
Text FormatTime(std::int32_t seconds);

/// 1 = Sunday to 7 = Saturday.
int Weekday(Date date);

}  // namespace platform
