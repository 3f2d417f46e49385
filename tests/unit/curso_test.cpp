// The course of whole games, move by move, held against what it was: a player of changing skill plays on, saves,
// resumes, wins and falls, and all that he can see, hear and find in the files goes into one number a course.
//
// A change that means to alter the game records the numbers anew (ZARPI_CURSO=all prints them). To see where a course
// leaves the old one, ZARPI_CURSO=3 writes course 3 down, for this build and for the one before, to be compared.
//
// The same of what is only looked at: the design of every window, and what the hero says at a fall.

#include <gtest/gtest.h>
#include <iostream>

#include "Jugador.h"
#include "commentary/FrasesReaccion.h"

using namespace platform;

namespace {

/// 64 bits of everything that is put in, the same on every machine.
class Digest {
public:
    void Add(std::int64_t number) {
        for (int i = 0; i < 8; ++i) Mix(static_cast<unsigned char>(number >> (8 * i)));
    }
    void Add(std::string_view bytes) {
        for (const char c : bytes) Mix(static_cast<unsigned char>(c));
        Mix(0);
    }
    void Add(TextView text) { Add(ToUtf8(text)); }
    void Add(const Control& control) {
        for (const int number : {control.Left, control.Top, control.Width, control.Height}) Add(number);
        Add(int{control.Visible} + 2 * int{control.IsEnabled()});
        if (control.kind == Kind::Label) {
            const auto& label = static_cast<const Label&>(control);
            Add(label.Caption);
            Add(label.ToolTipText);
            Add(label.BorderStyle + static_cast<int>(100 * label.FontSize));
        } else if (control.kind == Kind::PictureBox) {
            Add(static_cast<const PictureBox&>(control).Picture);
            Add(static_cast<const PictureBox&>(control).ToolTipText);
        } else if (control.kind == Kind::TextBox) {
            Add(static_cast<const TextBox&>(control).Text);
        } else if (control.kind == Kind::ListBox) {
            for (const Text& line : static_cast<const ListBox&>(control).List) Add(line);
        } else if (control.kind == Kind::Menu) {
            Add(int{static_cast<const Menu&>(control).Checked});
        }
    }
    void Add(const Form& form) {
        Add(form.Name);
        Add(form.Caption);
        Add(form.Height);
        for (const Control* control : form.Controls()) Add(*control);
        for (const Menu* menu : form.Menus()) Add(*menu);
    }
    /// What the course of a game does not change.
    void AddDesign(const Form& form) {
        Add(form);
        for (const std::string& picture : {form.Background, form.Icon}) Add(picture);
        for (const int number : {form.Width, form.Left, form.Top, form.BackColor.Rgb}) Add(number);
        for (const Control* control : form.Controls()) {
            switch (control->kind) {
                case Kind::Label: AddLook(static_cast<const Label&>(*control)); break;
                case Kind::PictureBox: Add(static_cast<const PictureBox&>(*control).Stored); break;
                case Kind::Image: Add(static_cast<const Image&>(*control).Stored); break;
                case Kind::Shape: AddLook(static_cast<const Shape&>(*control)); break;
                case Kind::CommandButton: AddLook(static_cast<const CommandButton&>(*control)); break;
                case Kind::TextBox: AddLook(static_cast<const TextBox&>(*control)); break;
                default: break;
            }
        }
    }
    [[nodiscard]] std::uint64_t Value() const { return value_; }

private:
    template <class Look>
    void AddLook(const Look& look) {
        if constexpr (requires { look.BackColor; }) Add(look.BackColor.Rgb);
        if constexpr (requires { look.ForeColor; }) Add(look.ForeColor.Rgb);
        if constexpr (requires { look.FontBold; }) Add(static_cast<int>(look.Font) + 8 * int{look.FontBold});
        if constexpr (requires { look.Align; }) Add(static_cast<int>(look.Align));
        if constexpr (requires { look.TabIndex; }) Add(look.TabIndex);
        if constexpr (requires { look.Cancel; }) Add(look.Caption);
        if constexpr (requires { look.Locked; })
            Add(look.MaxLength + 100 * int{look.Locked} + 200 * int{look.Password});
        if constexpr (requires { look.FillColor; }) Add(look.FillColor.Rgb + static_cast<int>(look.Shape));
    }
    void Mix(unsigned char byte) { value_ = (value_ ^ byte) * 1099511628211U; }

    std::uint64_t value_ = 14695981039346656037U;
};

/// Plays by lot: how often he is right changes from course to course.
class JugadorDesigual : public Jugador {
public:
    explicit JugadorDesigual(unsigned course) : random_(course), skill_(course % 4) {}

    std::uint64_t Play(int moves, bool trace) {
        trace_ = trace;
        moves_ = moves;
        while (moves_ > 0) {
            Restart();
            headless_->clock.SetDate({1 + static_cast<int>(Pick(28)), 1 + static_cast<int>(Pick(12)), 2004});
            Run();
        }
        for (const char* name : {"Guardar.rnd", "Part.rnd", "CeI.rnd", "IyC.rnd", "Cas.rnd", "Ingl.rnd", "CoI.rnd"}) {
            digest_.Add(files_.Read(name).value_or(""));
        }
        EXPECT_EQ(fault_, "");
        return digest_.Value();
    }

private:
    void Move() override {
        const std::string& front = Front().Name;
        if (front != "Zarpi") return InDialog(front);
        if (Game().fFinPartida) return BetweenGames();
        InGame();
    }

    void LookBack() override {
        const auto& log = headless_->log.Entries();
        for (const std::string& entry : log) digest_.Add(entry);
        for (const Form* form : headless_->screen.Shown()) digest_.Add(*form);
        if (trace_) {
            std::cout << std::hex << digest_.Value() << ' ' << Front().Name << " word " << std::dec << Game().NúmPalabra
                      << ' ' << ToUtf8(Game().Label5.Caption) << " | " << ToUtf8(Game().lblComentario.Caption) << '\n';
            for (const std::string& entry : log) std::cout << "    " << entry << '\n';
        }
    }

    void InDialog(const std::string& front) {
        static const std::array<Text, 5> kNames = {u"", u"Ana", u"Ana y Luis", u"Eva o Paz ", u" y "};
        Form& form = Front();
        if (front == "frmNombre" && Pick(2) == 0) return Type("txtNombre", kNames.at(Pick(kNames.size())));
        if (front == "frmGuardar") {
            Type("txtContraseña", u"x");
            Type("txtContrarep", Pick(5) == 0 ? u"y" : u"x");
        }
        if (front == "frmReanudar") {
            Hand().Select(static_cast<ListBox&>(*form.Find("lstLista")), static_cast<int>(Pick(4)));
            Type("txtContraseña", Pick(6) == 0 ? u"y" : u"x");
        }
        if (front == "frmDiploma" && Pick(20) != 0) return PressKey(PlainKey(Pick(5) == 0 ? KeyRight : KeyLeft));
        if (Pick(6) == 0) return headless_->Wait(Moment(150 * Pick(20)));
        if (Pick(8) == 0) return Click(Pick(2) == 0 ? "cmdImprimir" : "cmdRestablecer");
        PressKey(Pick(9) == 0 ? Key{.Code = KeyEscape, .Character = KeyEscape}
                              : Key{.Code = KeyEnter, .Character = KeyEnter});
    }

    void BetweenGames() {
        static const std::array<const char*, 16> kMenus = {
            "mnuCasteInglés",      "mnuIngléscaste",      "mnuCastellano", "mnuInglés",
            "mnuCasteInglésAlter", "mnuIndefinido",       "mnuIndefinido", "mnuUnMinuto",
            "mnuCuatroMinutos",    "mnuSonido",           "mnuÚltimas",    "mnuReanudar",
            "mnuReanudar",         "mnuCasteInglésHonor", "mnuCasteHonor", "mnuCasteoInglésHonor"};
        if (Game().Caídas == 4) return Pick(5) == 0 ? Click("mnuSalir") : headless_->Wait(Moment(900));
        if (Pick(8) == 0) return headless_->Wait(Moment(50 * Pick(60)));
        Click(Pick(3) == 0 ? "mnuNuevo" : kMenus.at(Pick(kMenus.size())));
    }

    void InGame() {
        static constexpr std::array<unsigned, 4> kErrorsPercent = {1, 3, 12, 35};
        const unsigned chance = Pick(1000);
        if (chance < 15) {
            Click("lblComodín(1)");
            return headless_->Wait(Moment(100 * Pick(8)));
        }
        if (Game().fComodín || chance < 20) return Click("lblLetra(" + std::to_string(Pick(10) + 1) + ")");
        if (chance < 60) return headless_->Wait(Moment(Pick(30) == 0 ? 29000 + 100 * Pick(20) : 100 * Pick(25)));
        if (chance < 70) return Click(Pick(3) == 0 ? "mnuGuardar" : "cmdMostrar");
        if (chance < 75) return Click(Pick(2) == 0 ? "mnuInglésHonor" : "mnuSonido");
        if (chance < 80) return Click("lblTecla(" + std::to_string(Pick(27) + 1) + ")");
        const char16_t good = GoodLetter();
        const bool errs = good == 0 || Pick(100) < kErrorsPercent.at(skill_);
        Press(errs ? static_cast<char16_t>(u'A' + Pick(26)) : good);
    }

    void Type(const char* box, TextView text) { Hand().Type(static_cast<TextBox&>(*Front().Find(box)), text); }
    void Click(const std::string& name) {
        if (Control* control = Front().Find(name)) Hand().Click(*control);
    }
    std::size_t Pick(std::size_t n) { return random_() % n; }

    std::mt19937 random_;
    std::size_t skill_;
    Digest digest_;
    bool trace_ = false;
};

TEST(Curso, IsWhatItWas) {
    constexpr std::array<std::uint64_t, 32> kCourses = {
        0x293da24b2c885590U, 0x12aab9f20fc1b559U, 0x884dfbbeb3ad4ff8U, 0x4771de2328f0bc26U, 0x1affdcaa3c881404U,
        0x5a19f6d040351a68U, 0xd37cffaa1e3b8812U, 0x5339a652533b4504U, 0x21a5a5559749f77cU, 0x1e3bc9d42816ed33U,
        0x3001febd1ee519f8U, 0x1f51d49240c1d7ebU, 0x6016975ae3ad4e08U, 0xa4cb9b95b26eacaU,  0xfeef7284efe64fadU,
        0xfdf99cb418fc39faU, 0xadc71f4ef747dc8fU, 0xa17ba53523c62d87U, 0xe71f99efa72386dcU, 0x461bf9eeda20e34bU,
        0x17266a61717e6a61U, 0x589659008cd4d3c6U, 0xf76e10c1709ec3b5U, 0xe12350f8ee1d579fU, 0xa49877e5a40bba36U,
        0x4ef6beef77f95512U, 0xbc37ccc4af5dfc1dU, 0xa28f8894f579ee25U, 0xc93a3b6ff2a2ccbbU, 0x9420cbf5b002c1ddU,
        0xcfab52e268f41784U, 0x70bb8a9c576ec6efU};
    constexpr int kMoves = 2000;
    const char* const wanted = std::getenv("ZARPI_CURSO");
    for (unsigned course = 0; course < kCourses.size(); ++course) {
        JugadorDesigual player(course);
        const bool trace = wanted != nullptr && std::to_string(course) == wanted;
        const std::uint64_t digest = player.Play(kMoves, trace);
        EXPECT_EQ(digest, kCourses.at(course)) << "course " << course;
        if (wanted != nullptr) std::cout << "0x" << std::hex << digest << "U, ";
    }
}

TEST(Aspecto, IsWhatItWas) {
    constexpr std::array<std::uint64_t, 13> kWindows = {
        0xf55640dc688e886aU, 0x87d7f44ccc884a7dU, 0xd91d1a3b7337c2c4U, 0xe20631f51b60b3fU,  0x5e3d1c7ba710cd50U,
        0x111aabdf048c9bdbU, 0xe8364811dcca4530U, 0x697333a32c2515a7U, 0x1fa1038eda4558f1U, 0x262875cf864cca5bU,
        0xb84f93e703360f21U, 0xc7f1050b970806f8U, 0x2f7bbce1f6d19bd9U};
    storage::MemoryFiles files;
    const Platform platform(files);
    juego::Juego juego(platform.Services().Services());
    for (std::size_t i = 0; const Form* form : juego.Ventanas()) {
        Digest digest;
        digest.AddDesign(*form);
        EXPECT_EQ(digest.Value(), kWindows.at(i++)) << form->Name << " 0x" << std::hex << digest.Value() << "U, ";
    }
    Digest lines;
    for (const auto& table :
         {std::span<const juego::Frase>(juego::frases::TablaAngustia), {juego::frases::TablaCaída}}) {
        for (const juego::Frase& line : table) {
            lines.Add(line.Singular);
            lines.Add(line.Plural);
        }
    }
    EXPECT_EQ(lines.Value(), 0xa2d6c63d636f48c8U) << std::hex << lines.Value();
}

}  // namespace
