#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "headless/Folder.h"
#include "headless/Hand.h"
#include "headless/Headless.h"

namespace platform::headless {

/// What the player has to know of a program to play it.
struct Program {
    std::vector<Form*> forms;  ///< all windows; the main window first
    std::function<void()> start;
    /// The value of a field of a window; nothing if it has none of this name.
    std::function<std::optional<Value>(std::string_view form, std::string_view field)> field;
};

/// By what means a script is played.
struct Means {
    headless::Hand& Hand;
    const headless::Eye* Eye;  ///< null where the state is what is seen
    headless::Folder& Folder;
};

/// How a script went. A script is unreadable from the first line that cannot be read or names what does not exist.
enum class Outcome { Good, ExpectFailed, Unreadable };

/// The first word of a line, and what follows the blanks behind it.
std::pair<std::string_view, std::string_view> SplitWord(std::string_view line);

/// Plays a program from a script, one command a line. Works in the current folder.
class Player {
public:
    /// Answers go to `out`.
    Player(Headless& platform, Means means, Program program, std::ostream& out);

    /// Runs a script to its end.
    Outcome Run(std::istream& script);
    /// Runs the rest of the script after the end of the program, for a platform whose end does not come back.
    Outcome RunAfterEnd();
    /// Why the script is unreadable.
    [[nodiscard]] const std::string& Error() const { return error_; }

private:
    using Action = void (Player::*)(std::string_view rest);
    struct CommandRow {
        std::string_view name;
        Action action;
        bool afterEnd;  ///< still answers when the program has ended
    };
    static const std::vector<CommandRow>& Commands();

    bool RunNext();
    [[nodiscard]] Outcome Result() const;
    void Execute(std::string_view line);
    /// A key still to be pressed, by its name.
    struct KeyMove {
        std::string name;
        bool repeated = false;
    };
    void PressNextKey();

    // The commands; each gets the rest of its line.
    void SetDate(std::string_view rest);
    void SetTime(std::string_view rest);
    void QueueRnd(std::string_view rest);
    void QueueDraw(std::string_view rest);
    void Start(std::string_view rest);
    void Click(std::string_view name);
    void PressKey(std::string_view names);
    void PressKeys(std::string_view text);
    void HoldKey(std::string_view rest);
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
    std::string RingedName() const;
    std::string Spoken() const;
    /// A value as it is told: where the player sees another one, with that.
    static std::string Told(const Value& state, const std::optional<Value>& seen);
    std::string ValueOf(std::string_view name) const;
    std::optional<std::string> FormValue(std::string_view name) const;
    void ExpectRefused(std::string_view rest);
    void ExpectLog(std::string_view entry, bool wanted);
    void Check(bool good, const std::string& expected, const std::string& found);

    Refusal TryClick(std::string_view name);
    void Tell(std::string_view name, Refusal refusal);
    Form* FindForm(std::string_view name) const;
    Control* FindControl(std::string_view name, bool anywhere) const;
    Control& NeedControl(std::string_view name, Kind kind) const;

    Headless& platform_;
    Means means_;
    Program program_;
    std::ostream& out_;
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
    std::deque<KeyMove> keys_;  ///< each a move of its own
    bool started_ = false;
    bool ended_ = false;
    bool good_ = true;
    std::string error_;
};

}  // namespace platform::headless
