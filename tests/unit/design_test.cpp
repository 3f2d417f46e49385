// The design of every window and the hero's lines at the edge and after a fall, held against a list of them.
//
// A change that means to alter the design writes the list anew: ZARPI_DESIGN=1 unit-tests --gtest_filter='Design.*'.

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "Platform.h"
#include "commentary/FrasesReaccion.h"
#include "headless/Properties.h"
#include "shell/Juego.h"
#include "storage/MemoryFiles.h"

using namespace platform;

namespace {

constexpr const char* kList = ZARPI_DESIGN_LIST;

/// What an element or a window of this name looks like, on one line.
template <class Read>
void Describe(std::ostream& out, const std::string& name, Read read) {
    out << name;
    for (const char* property :
         {"Left",        "Top",         "Width",       "Height",    "Visible",  "Caption",   "Text",
          "BackColor",   "ForeColor",   "FontName",    "FontSize",  "FontBold", "FillColor", "BorderColor",
          "BorderWidth", "BorderStyle", "ToolTipText", "MaxLength", "Locked",   "Default",   "Cancel",
          "Enabled",     "Checked",     "Interval",    "KeyPreview"}) {
        std::optional<headless::Value> value = read(property);
        if (value) out << '\t' << property << ' ' << headless::Format(*value);
    }
    out << '\n';
}

void Describe(std::ostream& out, const Form& form) {
    Describe(out, form.Name, [&form](const char* name) { return headless::PropertyOf(form, false, name); });
    const auto describe = [&out, &form](const Control& control) {
        Describe(out, form.Name + '.' + control.FullName(),
                 [&control](const char* name) { return headless::PropertyOf(control, name); });
    };
    for (const Control* control : form.Controls()) describe(*control);
    for (const Menu* menu : form.Menus()) describe(*menu);
    for (const Timer* timer : form.Timers()) describe(*timer);
}

std::string Design() {
    storage::MemoryFiles files;
    const Platform platform(files);
    juego::Juego juego(platform.Services().Services());
    std::ostringstream out;
    for (const Form* form : juego.Ventanas()) Describe(out, *form);
    for (const auto& table :
         {std::span<const juego::Frase>(juego::frases::TablaAngustia), {juego::frases::TablaCaída}}) {
        for (const juego::Frase& line : table) out << ToUtf8(line.Singular) << '\t' << ToUtf8(line.Plural) << '\n';
    }
    return out.str();
}

TEST(Design, IsThatOfTheList) {
    const std::string design = Design();
    if (std::getenv("ZARPI_DESIGN") != nullptr) std::ofstream(kList) << design;
    std::ifstream expected(kList);
    std::istringstream found(design);
    std::string wanted;
    std::string line;
    while (std::getline(expected, wanted)) {
        std::getline(found, line);
        EXPECT_EQ(line, wanted);
    }
    EXPECT_FALSE(std::getline(found, line)) << line;
}

}  // namespace
