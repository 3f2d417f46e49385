#include <algorithm>
#include <charconv>
#include <ostream>
#include <stdexcept>

#include "headless/Player.h"

/// What a script asks: `show` and `expect`.
namespace platform::headless {

std::pair<std::string_view, std::string_view> SplitWord(std::string_view line) {
    const auto blank = line.find(' ');
    if (blank == std::string_view::npos) return {line, {}};
    return {line.substr(0, blank), line.substr(std::min(line.size(), line.find_first_not_of(' ', blank)))};
}

namespace {

constexpr const char* kSeen = ", shown as ";

std::string Hex(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string hex;
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        if (!hex.empty()) hex += ' ';
        hex += kDigits[code / 16U];
        hex += kDigits[code % 16U];
    }
    return hex;
}

std::string SizeOf(Files& files, std::string_view name) {
    const auto content = files.Read(name);
    return content ? std::to_string(content->size()) : "missing";
}

std::string Sorted(std::vector<std::string> names) {
    std::ranges::sort(names);
    std::string list;
    for (const std::string& name : names) list += (list.empty() ? "" : " ") + name;
    return list;
}

}  // namespace

void Player::Show(std::string_view what) {
    if (what == "log") {
        for (const std::string& entry : platform_.log.Entries()) out_ << entry << '\n';
        platform_.log.Clear();
        return;
    }
    const bool aboutFile = what.starts_with("file ");
    if (ended_ && !aboutFile) return Tell("show " + std::string(what), Refusal::Closed);
    const Answer answer = Ask(what);
    out_ << answer.subject << " =" << (answer.found.empty() ? "" : " ") << answer.found << '\n';
}

void Player::Expect(std::string_view what) {
    const auto [word, rest] = SplitWord(what);
    if (word == "refused") return ExpectRefused(rest);
    if (word == "log") return ExpectLog(rest, true);
    if (word == "no") {
        if (!rest.starts_with("log ")) throw std::runtime_error("cannot be read: " + std::string(what));
        return ExpectLog(rest.substr(4), false);
    }
    const bool aboutFiles = word == "file" || word == "files" || word == "size";
    if (ended_ && !aboutFiles) {
        Tell("expect " + std::string(what), Refusal::Closed);
        return Check(false, std::string(what), "the program has ended");
    }
    const Answer answer = Ask(what);
    Check(answer.found == answer.expected, answer.subject + " = " + answer.expected, answer.found);
}

void Player::ExpectRefused(std::string_view rest) {
    const auto [word, name] = SplitWord(rest);
    if (word != "click") throw std::runtime_error("cannot be read: refused " + std::string(rest));
    const Refusal refusal = ended_ ? Refusal::Closed : TryClick(name);
    Check(refusal != Refusal::None, "refused click " + std::string(name), "the click went through");
}

void Player::ExpectLog(std::string_view entry, bool wanted) {
    const bool found = std::ranges::find(platform_.log.Entries(), entry) != platform_.log.Entries().end();
    Check(found == wanted, (wanted ? "log " : "no log ") + std::string(entry),
          found ? "it is there" : "it is not there");
}

void Player::Check(bool good, const std::string& expected, const std::string& found) {
    if (good) return;
    good_ = false;
    out_ << "line " << next_ << ": expected " << expected << ", found " << found << '\n';
}

Player::Answer Player::Ask(std::string_view what) const {
    const auto [word, rest] = SplitWord(what);
    if (word == "file") return AskFile(rest);
    if (word == "files") return {"files", Sorted(means_.Folder.Names()), std::string(rest)};
    if (word == "forms") return {"forms", ShownForms(), std::string(rest)};
    if (word == "speech") return {"speech", Spoken(), std::string(rest)};
    if (word == "ring") return {"ring", RingedName(), std::string(rest)};
    if (word == "focus") return {"focus", FocusName(), std::string(rest)};
    if (word == "size") {
        const auto [name, size] = SplitWord(rest);
        return {"size " + std::string(name), SizeOf(platform_.files, name), std::string(size)};
    }
    return {std::string(word), ValueOf(word), std::string(rest)};
}

/// "NAME BYTES", or "NAME@OFFSET BYTES" for as many bytes from an offset.
Player::Answer Player::AskFile(std::string_view rest) const {
    const auto [place, bytes] = SplitWord(rest);
    const auto at = place.find('@');
    const auto content = platform_.files.Read(place.substr(0, at));
    const std::string subject = "file " + std::string(place);
    if (!content) return {subject, "missing", std::string(bytes)};
    if (at == std::string_view::npos) return {subject, Hex(*content), std::string(bytes)};
    std::size_t offset = content->size();
    std::from_chars(place.data() + at + 1, place.data() + place.size(), offset);
    const std::size_t length = (bytes.size() + 1) / 3;
    const std::string part = offset < content->size() ? content->substr(offset, length) : std::string();
    return {subject, Hex(part), std::string(bytes)};
}

std::string Player::ShownForms() const {
    std::string names;
    for (const Form* form : platform_.screen.Shown()) names += (names.empty() ? "" : " ") + form->Name;
    if (names.empty()) names = "none";
    const std::string seen = means_.Eye == nullptr ? names : means_.Eye->Forms();
    return seen == names ? names : names + kSeen + seen;
}

/// What was said, with bars between the utterances and braces around what is English.
std::string Player::Spoken() const {
    Text said;
    for (const Utterance& utterance : platform_.spoken) {
        if (!said.empty()) said += u" |";
        for (const Phrase& run : utterance) {
            if (!said.empty()) said += u' ';
            said += run.In == Language::English ? u"{en " + run.Words + u"}" : run.Words;
        }
    }
    platform_.spoken.clear();
    return Format(said);
}

/// Where a player without a mouse is.
std::string Player::RingedName() const {
    const Control* const here = platform_.screen.Here();
    const std::string name = here == nullptr ? "none" : here->Owner.Name + "." + here->FullName();
    const std::string seen = means_.Eye == nullptr ? name : means_.Eye->Ringed();
    return seen == name ? name : name + kSeen + seen;
}

std::string Player::FocusName() const {
    const Form* const front = platform_.screen.Front();
    const bool none = front == nullptr || front->Focus() == nullptr;
    const std::string name = none ? "none" : front->Name + "." + front->Focus()->FullName();
    const std::string seen = means_.Eye == nullptr ? name : means_.Eye->Focus();
    return seen == name ? name : name + kSeen + seen;
}

std::string Player::Told(const Value& state, const std::optional<Value>& seen) {
    return seen ? Format(state) + kSeen + Format(*seen) : Format(state);
}

/// A field or a property of a form: "Zarpi.Fallo", "frmPuntos.f200", "frmCuadro.Height".
std::optional<std::string> Player::FormValue(std::string_view name) const {
    const auto dot = name.find('.');
    if (dot == std::string_view::npos) return std::nullopt;
    const std::string_view owner = name.substr(0, dot);
    const std::string_view member = name.substr(dot + 1);
    if (const auto field = program_.field(owner, member)) return Format(*field);
    const Form* const form = FindForm(owner);
    if (form == nullptr) return std::nullopt;
    const auto& shown = platform_.screen.Shown();
    const auto value = PropertyOf(*form, std::ranges::find(shown, form) != shown.end(), member);
    if (!value) return std::nullopt;
    return Told(*value, means_.Eye == nullptr ? std::nullopt : means_.Eye->Seen(*form, member, *value));
}

std::string Player::ValueOf(std::string_view name) const {
    if (const auto value = FormValue(name)) return *value;
    const auto dot = name.rfind('.');
    const Control* control = dot == std::string_view::npos ? nullptr : FindControl(name.substr(0, dot), false);
    const std::string_view property = name.substr(dot + 1);
    const auto value = control == nullptr ? std::nullopt : PropertyOf(*control, property);
    if (!value) throw std::runtime_error("no such value: " + std::string(name));
    return Told(*value, means_.Eye == nullptr ? std::nullopt : means_.Eye->Seen(*control, property, *value));
}

}  // namespace platform::headless
