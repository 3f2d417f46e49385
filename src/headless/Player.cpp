#include "headless/Player.h"

#include <algorithm>
#include <charconv>
#include <istream>
#include <locale>
#include <map>
#include <ostream>
#include <sstream>
#include <stdexcept>

namespace platform::headless {

namespace {

std::string_view TrimmedView(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// Ends the script; caught where its line is run, so that it never passes through the program.
[[noreturn]] void Fail(const std::string& what) {
    throw std::runtime_error(what);
}

template <class Number>
Number ParseNumber(std::string_view text) {
    Number number{};
    std::istringstream in{std::string(text)};
    in.imbue(std::locale::classic());
    in >> std::noskipws >> number;
    if (in.fail() || in.peek() != std::istringstream::traits_type::eof()) Fail("no number: " + std::string(text));
    return number;
}

/// What stands between separators: one piece at least.
std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> pieces;
    for (auto end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        pieces.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    pieces.push_back(text);
    return pieces;
}

/// Numbers between separators: "7-3-2004".
std::vector<int> ParseNumbers(std::string_view text, char separator, std::size_t count) {
    std::vector<int> numbers;
    for (const std::string_view piece : Split(text, separator)) numbers.push_back(ParseNumber<int>(piece));
    if (numbers.size() != count) Fail("cannot be read: " + std::string(text));
    return numbers;
}

/// First word and rest of a line.
Key ParseKey(std::string_view name) {
    static const std::map<std::string_view, Key> kNamed = {{"Enter", {.Code = KeyEnter, .Character = KeyEnter}},
                                                           {"Esc", {.Code = KeyEscape, .Character = KeyEscape}},
                                                           {"Space", {.Code = KeySpace, .Character = KeySpace}},
                                                           {"Tab", PlainKey(KeyTab)},
                                                           {"Shift+Tab", PlainKey(KeyBacktab)},
                                                           {"Home", PlainKey(KeyHome)},
                                                           {"End", PlainKey(KeyEnd)},
                                                           {"PageUp", PlainKey(KeyPageUp)},
                                                           {"PageDown", PlainKey(KeyPageDown)},
                                                           {"Left", PlainKey(KeyLeft)},
                                                           {"Right", PlainKey(KeyRight)},
                                                           {"Up", PlainKey(KeyUp)},
                                                           {"Down", PlainKey(KeyDown)},
                                                           {"F1", PlainKey(KeyF1)},
                                                           {"F2", PlainKey(KeyF1 + 1)},
                                                           {"F3", PlainKey(KeyF1 + 2)},
                                                           {"F4", PlainKey(KeyF1 + 3)},
                                                           {"F5", PlainKey(KeyF5)},
                                                           {"F7", PlainKey(KeyF7)},
                                                           {"F8", PlainKey(KeyF8)}};
    if (const auto named = kNamed.find(name); named != kNamed.end()) return named->second;
    constexpr std::string_view kControl = "Ctrl+";
    if (name.starts_with(kControl) && name.size() == kControl.size() + 1) {
        const char letter = name.back();
        if (letter >= 'A' && letter <= 'Z') return ControlKey(letter);
    }
    const Text character = FromUtf8(name);
    if (character.size() != 1) Fail("no key: " + std::string(name));
    return KeyOf(character.front());
}

std::string_view ReasonName(Refusal refusal) {
    switch (refusal) {
        case Refusal::Closed: return "closed";
        case Refusal::Blocked: return "blocked";
        case Refusal::Hidden: return "hidden";
        case Refusal::Disabled: return "disabled";
        case Refusal::None: break;
    }
    return "none";
}

}  // namespace

Player::Player(Headless& platform, Means means, Program program, std::ostream& out)
    : platform_(platform), means_(means), program_(std::move(program)), out_(out) {
    platform_.SetPlayer([this] { return RunNext(); });
}

const std::vector<Player::CommandRow>& Player::Commands() {
    static const std::vector<CommandRow> kCommands = {
        {"date", &Player::SetDate, false},
        {"time", &Player::SetTime, false},
        {"rnd", &Player::QueueRnd, false},
        {"draw", &Player::QueueDraw, false},
        {"start", &Player::Start, false},
        {"click", &Player::Click, false},
        {"key", &Player::PressKey, false},
        {"keys", &Player::PressKeys, false},
        {"hold", &Player::HoldKey, false},
        {"type", &Player::Type, false},
        {"select", &Player::Select, false},
        {"close", &Player::Close, false},
        {"wait", &Player::Wait, false},
        {"listen", &Player::Listen, false},
        {"printer", &Player::AnswerPrinter, false},
        {"show", &Player::Show, true},
        {"expect", &Player::Expect, true},
        {"forget", &Player::Forget, true},
        {"write", &Player::WriteFile, false},
        {"delete", &Player::DeleteFile, false},
        {"block", &Player::BlockFile, false},
    };
    return kCommands;
}

Outcome Player::Run(std::istream& script) {
    for (std::string line; std::getline(script, line);) lines_.push_back(std::move(line));
    if (script.bad()) error_ = "the script cannot be read";
    try {
        while (RunNext()) {
        }
    } catch (const Ended&) {
        return RunAfterEnd();
    }
    return Result();
}

Outcome Player::RunAfterEnd() {
    ended_ = true;
    keys_.clear();
    while (RunNext()) {
    }
    return Result();
}

Outcome Player::Result() const {
    if (!error_.empty()) return Outcome::Unreadable;
    return good_ ? Outcome::Good : Outcome::ExpectFailed;
}

bool Player::RunNext() {
    if (!error_.empty()) return false;
    if (!keys_.empty()) {
        PressNextKey();
        return true;
    }
    if (next_ >= lines_.size()) return false;
    std::string_view line = lines_[next_++];
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.starts_with('#') || TrimmedView(line).empty()) return true;
    try {
        Execute(line);
    } catch (const std::exception& error) {
        if (error_.empty()) error_ = "line " + std::to_string(next_) + ": " + error.what();
    }
    return true;
}

void Player::Execute(std::string_view line) {
    const auto [word, rest] = SplitWord(line);
    const auto row = std::ranges::find(Commands(), word, &CommandRow::name);
    if (row == Commands().end()) Fail("no command: " + std::string(word));
    if (ended_ && !row->afterEnd) {
        Tell(word == "click" ? rest : line, Refusal::Closed);
        return;
    }
    // The blanks of a text to be typed are its own.
    (this->*row->action)(word == "keys" ? line.substr(std::min(line.size(), word.size() + 1)) : TrimmedView(rest));
}

void Player::SetDate(std::string_view rest) {
    const auto numbers = ParseNumbers(rest, '-', 3);
    const auto day = std::chrono::year(numbers[2]) / numbers[1] / numbers[0];
    if (!day.ok()) Fail("no date: " + std::string(rest));
    platform_.clock.SetDate({numbers[0], numbers[1], numbers[2]});
}

void Player::SetTime(std::string_view rest) {
    const auto numbers = ParseNumbers(rest, ':', 3);
    platform_.clock.SetTime((numbers[0] * 60 + numbers[1]) * 60 + numbers[2]);
}

void Player::QueueRnd(std::string_view rest) {
    std::stringstream in{std::string(rest)};
    for (std::string number; in >> number;) platform_.random.Queue(ParseNumber<double>(number));
}

void Player::QueueDraw(std::string_view rest) {
    constexpr double kMiddle = 0.5;
    for (const std::string_view draw : Split(rest, ',')) {
        const auto [n, of] = SplitWord(TrimmedView(draw));
        const auto [word, m] = SplitWord(of);
        if (word != "of") Fail("cannot be read: " + std::string(rest));
        platform_.random.Queue((ParseNumber<int>(n) - kMiddle) / ParseNumber<int>(m));
    }
}

void Player::Start(std::string_view /*rest*/) {
    if (started_) return;
    started_ = true;
    program_.start();
}

Refusal Player::TryClick(std::string_view name) {
    if (Form* form = FindForm(name)) return means_.Hand.Click(*form);
    Control* control = FindControl(name, true);
    if (control == nullptr) Fail("no element: " + std::string(name));
    return means_.Hand.Click(*control);
}

void Player::Click(std::string_view name) {
    Tell(name, TryClick(name));
}

void Player::PressKey(std::string_view names) {
    for (const std::string_view name : Split(names, ' ')) {
        static_cast<void>(ParseKey(name));
        keys_.push_back({std::string(name)});
    }
}

void Player::PressKeys(std::string_view text) {
    for (const char16_t character : FromUtf8(text)) keys_.push_back({ToUtf8(Text(1, character))});
}

/// A key held down: its press and this many repetitions, each a move of its own.
void Player::HoldKey(std::string_view rest) {
    const auto [name, number] = SplitWord(rest);
    static_cast<void>(ParseKey(name));
    const int repetitions = ParseNumber<int>(TrimmedView(number));
    for (int i = 0; i <= repetitions; ++i) keys_.push_back({std::string(name), i > 0});
}

void Player::PressNextKey() {
    const auto [name, repeated] = std::move(keys_.front());
    keys_.pop_front();
    Key key = ParseKey(name);
    key.Repeated = repeated;
    Tell(name, means_.Hand.Press(key));
}

void Player::Type(std::string_view rest) {
    const auto [name, quoted] = SplitWord(rest);
    const auto text = TrimmedView(quoted);
    if (text.size() < 2 || text.front() != '"' || text.back() != '"') Fail("no text in quotes: " + std::string(rest));
    auto& box = static_cast<TextBox&>(NeedControl(name, Kind::TextBox));
    Tell(name, means_.Hand.Type(box, FromUtf8(text.substr(1, text.size() - 2))));
}

void Player::Select(std::string_view rest) {
    const auto [name, line] = SplitWord(rest);
    auto& list = static_cast<ListBox&>(NeedControl(name, Kind::ListBox));
    Tell(name, means_.Hand.Select(list, ParseNumber<int>(TrimmedView(line))));
}

void Player::Close(std::string_view /*rest*/) {
    Tell("close", means_.Hand.Close());
}

void Player::Wait(std::string_view rest) {
    platform_.Wait(Moment(ParseNumber<int>(rest)));
}

/// Somebody listens from here on: `show speech` and `expect speech` tell what has been said since the last of them.
void Player::Listen(std::string_view /*rest*/) {
    platform_.Listen();
}

void Player::AnswerPrinter(std::string_view rest) {
    if (rest != "accept" && rest != "cancel") Fail("cannot be read: " + std::string(rest));
    platform_.AcceptPrinter = rest == "accept";
}

void Player::Forget(std::string_view rest) {
    if (rest != "log") Fail("cannot be read: " + std::string(rest));
    platform_.log.Clear();
}

void Player::WriteFile(std::string_view rest) {
    const auto [name, hex] = SplitWord(rest);
    std::string bytes;
    std::stringstream in{std::string(hex)};
    for (std::string byte; in >> byte;) {
        int code = -1;
        const auto result = std::from_chars(byte.data(), byte.data() + byte.size(), code, 16);
        if (result.ec != std::errc() || byte.size() > 2) Fail("no byte: " + byte);
        bytes += static_cast<char>(code);
    }
    if (!platform_.files.Replace(name, bytes)) Fail("cannot be written: " + std::string(name));
}

void Player::DeleteFile(std::string_view name) {
    means_.Folder.Delete(name);
}

void Player::BlockFile(std::string_view name) {
    means_.Folder.Block(name);
}

void Player::Tell(std::string_view name, Refusal refusal) {
    if (refusal != Refusal::None) out_ << "refused " << name << ": " << ReasonName(refusal) << '\n';
}

Form* Player::FindForm(std::string_view name) const {
    const auto form = std::ranges::find(program_.forms, name, &Form::Name);
    return form == program_.forms.end() ? nullptr : *form;
}

/// An element by its name, with or without its form. Without one it is looked for on the form in front, then on the
/// main window; `anywhere` goes on to the other windows, where no click can reach it now.
Control* Player::FindControl(std::string_view name, bool anywhere) const {
    if (const auto dot = name.find('.'); dot != std::string_view::npos) {
        const Form* form = FindForm(name.substr(0, dot));
        return form == nullptr ? nullptr : form->Find(name.substr(dot + 1));
    }
    std::vector<Form*> places;
    if (Form* front = platform_.screen.Front()) places.push_back(front);
    places.push_back(program_.forms.front());
    if (anywhere) places.insert(places.end(), program_.forms.begin(), program_.forms.end());
    for (const Form* form : places) {
        if (Control* control = form->Find(name)) return control;
    }
    return nullptr;
}

Control& Player::NeedControl(std::string_view name, Kind kind) const {
    Control* control = FindControl(name, true);
    if (control == nullptr || control->kind != kind) Fail("no such element: " + std::string(name));
    return *control;
}

}  // namespace platform::headless
