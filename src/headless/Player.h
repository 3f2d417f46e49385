#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "headless/Headless.h"
#include "headless/Properties.h"

namespace platform::headless {

/// What the player has to know of a program to play it.
struct Program {
    std::vector<Form*> forms;  ///< all windows; the main window first
    std::function<void()> start;
    /// The value of a field of a window; nothing if it has none of this name.
    std::function<std::optional<Value>(std::string_view form, std::string_view field)> field;
};

/// A script that cannot be read, or that names what does not exist.
struct ScriptError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Plays a program from a script, one command a line. Works in the current folder.
class Player {
public:
    /// Answers go to `out`.
    Player(Headless& platform, Program program, std::ostream& out);

    /// Runs a script to its end. False if an `expect` failed; throws ScriptError.
    bool Run(std::istream& script);

private:
    using Action = void (Player::*)(std::string_view rest);
    struct CommandRow {
        std::string_view name;
        Action action;
        bool afterEnd;  ///< still answers when the program has ended
    };
    static const std::vector<CommandRow>& Commands();

    bool RunNext();
    void Execute(std::string_view line);
    void PressNextKey();

    // The commands; each gets the rest of its line.
    void SetDate(std::string_view rest);
    void SetTime(std::string_view rest);
    void QueueRnd(std::string_view rest);
    void QueueDraw(std::string_view rest);
    void Start(std::string_view rest);
    void Click(std::string_view name);
    void PressKey(std::string_view name);
    void PressKeys(std::string_view text);
    void Type(std::string_view rest);
    void Select(std::string_view rest);
    void Close(std::string_view rest);
    void Wait(std::string_view rest);
    void Listen(std::string_view rest);
    void AnswerPrinter(std::string_view rest);
    void Show(std::string_view what);
    void Expect(std::string_view what);
    void Forget(std::string_view rest);
    void WriteFile(std::string_view rest);
    void DeleteFile(std::string_view name);
    void BlockFile(std::string_view name);

    /// A question of `show` and `expect`: how its answer reads, and how the expectation.
    struct Answer {
        std::string subject;   ///< "Label5.Caption"
        std::string found;     ///< "\"Mal.\""
        std::string expected;  ///< the rest of the line
    };
    Answer Ask(std::string_view what) const;
    Answer AskFile(std::string_view rest) const;
    std::string ShownForms() const;
    std::string FocusName() const;
    std::string Spoken() const;
    std::string ValueOf(std::string_view name) const;
    std::optional<Value> FormValue(std::string_view name) const;
    void ExpectRefused(std::string_view rest);
    void ExpectLog(std::string_view entry, bool wanted);
    void Check(bool good, const std::string& expected, const std::string& found);

    Refusal TryClick(std::string_view name);
    void Tell(std::string_view name, Refusal refusal);
    Form* FindForm(std::string_view name) const;
    Control* FindControl(std::string_view name, bool anywhere) const;
    Control& NeedControl(std::string_view name, Kind kind) const;

    Headless& platform_;
    Program program_;
    std::ostream& out_;
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
    Text keys_;  ///< characters of a `keys` command still to be pressed, each a move of its own
    bool started_ = false;
    bool ended_ = false;
    bool good_ = true;
};

}  // namespace platform::headless
