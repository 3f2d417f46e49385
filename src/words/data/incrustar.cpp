// Build tool: turns the two vocabularies into constant tables, and stops with file and line at an entry that breaks
// their rules.
//
//   incrustar castellano.txt ingles.txt Tablas.inc

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "platform/Text.h"

namespace {

using platform::Text;
using platform::TextView;

constexpr std::size_t kEntries = 4000;
constexpr std::size_t kMinLetters = 4;
constexpr std::size_t kMaxLetters = 10;
constexpr std::size_t kMaxTranslation = 54;
constexpr unsigned char kFirstBeyondAscii = 0x80;
constexpr TextView kEnglishLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr TextView kSpanishLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZÑÁÉÍÓÚ";

/// One column of entries, in their order.
using Column = std::vector<Text>;

/// A data file read line by line: the index, the word and, with three columns, its translation.
class Reader {
public:
    Reader(std::string path, std::size_t columns, TextView letters)
        : path_(std::move(path)), columns_(columns), letters_(letters) {}

    std::vector<Column> Read() {
        std::ifstream in(path_);
        std::vector<Column> table(columns_ - 1);
        for (std::string line; std::getline(in, line);) {
            ++line_;
            const std::vector<Text> cells = Split(platform::FromUtf8(line));
            Check(cells.size() == columns_, "wrong number of columns");
            Check(cells[0] == platform::Decimal(line_), "wrong index");
            CheckWord(cells[1]);
            if (columns_ > 2) CheckTranslation(cells[1], cells[2]);
            for (std::size_t i = 1; i < columns_; ++i) table[i - 1].push_back(cells[i]);
        }
        Check(table[0].size() == kEntries, "not 4,000 entries");
        return table;
    }

private:
    static std::vector<Text> Split(TextView line) {
        std::vector<Text> cells(1);
        for (const char16_t c : line) {
            if (c == u'\t') {
                cells.emplace_back();
            } else {
                cells.back() += c;
            }
        }
        return cells;
    }

    void Check(bool good, const char* fault) const {
        if (good) return;
        std::cerr << path_ << ':' << line_ << ": " << fault << '\n';
        std::exit(EXIT_FAILURE);
    }

    void CheckWord(const Text& word) {
        Check(word.size() >= kMinLetters && word.size() <= kMaxLetters, "a word has 4 to 10 letters");
        Check(word.find_first_not_of(letters_) == Text::npos, "a letter that the table does not use");
        Check(lines_.emplace(word, line_).second, "the word stands in the table already");
    }

    void CheckTranslation(const Text& word, const Text& translation) const {
        const bool small = word == u"ASTONISHED" || word == u"CLOWN";
        Check(!translation.empty() && translation.size() <= kMaxTranslation, "a translation has 1 to 54 characters");
        Check(platform::Trim(translation) == translation, "a blank at an end");
        Check(translation.back() != u'.', "a final full stop");
        const auto foreign = [](char16_t c) { return !platform::ToWindows1252(c).has_value(); };
        Check(std::ranges::none_of(translation, foreign), "a character outside Windows-1252");
        const char16_t first = translation.front();
        const bool capital = first == u'(' || (first == platform::UpperCase(first) && first > u'@');
        Check(capital != small, "the first letter");
    }

    std::string path_;
    std::size_t columns_;
    TextView letters_;
    int line_ = 0;
    std::map<Text, int> lines_;
};

/// The entries as Windows-1252 bytes, each with a line feed behind it: less to send over a network than a table of
/// where each begins, and found as fast as it needs to be.
void Write(std::ostream& out, const char* name, const Column& column) {
    out << "constexpr std::string_view k" << name << " =\n";
    for (const Text& entry : column) {
        out << '"';
        for (const char byte : platform::ToWindows1252(entry)) {
            const auto code = static_cast<unsigned char>(byte);
            std::array<char, 8> octal{};
            std::snprintf(octal.data(), octal.size(), "\\%03o", static_cast<unsigned>(code));
            if (code < kFirstBeyondAscii) {
                out << byte;
            } else {
                out << octal.data();
            }
        }
        out << "\\n\"\n";
    }
    out << ";\n";
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) return EXIT_FAILURE;
    const auto spanish = Reader(argv[1], 2, kSpanishLetters).Read();
    const auto english = Reader(argv[2], 3, kEnglishLetters).Read();
    std::ofstream out(argv[3]);
    Write(out, "Castellano", spanish[0]);
    Write(out, "Ingles", english[0]);
    Write(out, "Traducciones", english[1]);
    return out.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
