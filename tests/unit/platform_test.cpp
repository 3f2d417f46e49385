// The rules of windows and timers that every platform keeps.

#include <gtest/gtest.h>
#include <string>

#include "headless/Headless.h"
#include "headless/MemoryFiles.h"

namespace platform::headless {
namespace {

struct Main : Form {
    Main() : Form("Main", {.KeyPreview = true}) {}
    Menu bar{*this, "bar", {.Caption = u"&Bar"}};
    Menu entry{bar, "entry", {.Caption = u"Entry", .Shortcut = ControlKey('E')}};
    Label label{*this, "label", {}, {.Caption = u"design"}};
    CommandButton button{*this, "button", {}, {.Default = true}};
    Shape shape{*this, "shape", {}, {}};
    Timer fast{*this, "fast", 100};
    Timer slow{*this, "slow", 150};
};

struct Dialog : Form {
    Dialog() : Form("Dialog", {}) {}
    CommandButton ok{*this, "ok", {}, {.Default = true, .TabIndex = 2}};
    CommandButton no{*this, "no", {}, {.Cancel = true, .TabIndex = 3}};
    TextBox box{*this, "box", {}, {.MaxLength = 5, .TabIndex = 1}};
    Timer tick{*this, "tick", 100, true};
};

/// Writes down what happens, in order.
class Windows : public testing::Test {
protected:
    Windows() {
        main.fast.Click = [this] { story += 'f'; };
        main.slow.Click = [this] { story += 's'; };
        main.entry.Click = [this] { story += 'e'; };
        main.button.Click = [this] { story += 'b'; };
        main.label.Click = [this] { story += 'l'; };
        main.OnKeyPress = [this](int code) { story += "<" + std::to_string(code) + ">"; };
        dialog.OnLoad = [this] { story += 'L'; };
        dialog.OnQueryUnload = [this] {
            story += 'Q';
            headless.screen.Unload(dialog);
        };
        dialog.ok.Click = [this] { headless.screen.Unload(dialog); };
        dialog.no.Click = [this] { story += 'n'; };
        dialog.tick.Click = [this] { story += 't'; };
        headless.screen.Show(main);
    }
    /// Shows the dialog; `moves` run while it waits, one at a time.
    void ShowModal(std::vector<std::function<void()>> moves) {
        std::size_t next = 0;
        headless.SetPlayer([&moves, next]() mutable {
            if (next == moves.size()) return false;
            moves[next++]();
            return true;
        });
        headless.screen.ShowModal(dialog);
        story += '.';
    }
    MemoryFiles files;
    Headless headless{files};
    Main main;
    Dialog dialog;
    std::string story;
    Screen& screen = headless.screen;
};

TEST_F(Windows, StartingARunningTimerChangesNothing) {
    main.fast.Start();
    headless.Wait(Moment(60));
    main.fast.Start();
    headless.Wait(Moment(40));
    EXPECT_EQ(story, "f");
    main.fast.Stop();
    main.fast.Start();
    headless.Wait(Moment(99));
    EXPECT_EQ(story, "f");
    headless.Wait(Moment(1));
    EXPECT_EQ(story, "ff");
}

TEST_F(Windows, TimersDueTogetherComeInTheOrderOfTheirStart) {
    main.slow.Start();
    headless.Wait(Moment(50));
    main.fast.Start();
    headless.Wait(Moment(100));
    EXPECT_EQ(story, "sf");
    headless.Wait(Moment(150));
    EXPECT_EQ(story, "sffs");
}

TEST_F(Windows, AModalFormBlocksInputAndLetsTimersGoOn) {
    main.fast.Start();
    ShowModal({[this] { EXPECT_EQ(screen.Click(main.button), Refusal::Blocked); },
               [this] { EXPECT_EQ(screen.Click(main.entry), Refusal::Blocked); },
               [this] { EXPECT_EQ(screen.Click(main), Refusal::Blocked); }, [this] { screen.Press(ControlKey('E')); },
               [this] { headless.Wait(Moment(100)); }, [this] { EXPECT_EQ(screen.Close(main), Refusal::Blocked); },
               [this] { EXPECT_EQ(screen.Click(dialog.ok), Refusal::None); }});
    EXPECT_EQ(story, "LftQ.");
    headless.Wait(Moment(100));
    EXPECT_EQ(story, "LftQ.f") << "the timers of a closed form stand still";
    EXPECT_EQ(screen.Click(dialog.ok), Refusal::Closed);
}

TEST_F(Windows, TheClosingRoutineRunsOnce) {
    ShowModal({[this] { screen.Close(dialog); }});
    EXPECT_EQ(story, "LQ.");
    story.clear();
    ShowModal({[this] { screen.Press({.Code = KeyEnter, .Character = 13}); }});
    EXPECT_EQ(story, "LQ.");
}

TEST_F(Windows, FormsGoBackToTheirDesign) {
    ShowModal({[this] { screen.Type(dialog.box, u"ñťabcdefg"); }, [this] { EXPECT_EQ(dialog.box.Text, u"ñabcd"); },
               [this] { dialog.ok.Top = 7; }, [this] { screen.Close(dialog); }});
    EXPECT_EQ(dialog.box.Text, u"ñabcd") << "what a form held can be read after its closing";
    ShowModal({[this] { EXPECT_EQ(dialog.box.Text, u""); }, [this] { EXPECT_EQ(dialog.ok.Top, 0); },
               [this] { EXPECT_EQ(dialog.Focus(), &dialog.box); }, [this] { screen.Close(dialog); }});
}

TEST_F(Windows, KeysGoTheirWay) {
    screen.Press(KeyOf(u'ñ'));
    screen.Press(KeyOf(u'€'));
    EXPECT_EQ(KeyOf(u'%').Code, KeyNone) << "a character is no arrow key";
    screen.Press(PlainKey(KeyLeft));
    screen.Press(ControlKey('A'));
    screen.Press(ControlKey('E'));
    screen.Press({.Code = KeyEnter, .Character = 13});
    EXPECT_EQ(story, "<241><128><1>e<13>b");
    story.clear();
    main.entry.Enabled = false;
    main.button.Enabled = false;
    screen.Press(ControlKey('E'));
    screen.Press({.Code = KeyEnter, .Character = 13});
    EXPECT_EQ(story, "<13>") << "the shortcut of a disabled entry is no letter";
    ShowModal({[this] { screen.Press({.Code = KeyEscape, .Character = 27}); },
               [this] { EXPECT_FALSE(screen.Press(KeyOf(u'x'))); }, [this] { screen.TypeKey(KeyOf(u'x')); },
               [this] { EXPECT_EQ(dialog.box.Text, u"x"); }, [this] { screen.Focus(dialog.no); },
               [this] { screen.Press({.Code = KeySpace, .Character = u' '}); }, [this] { screen.Close(dialog); }});
    EXPECT_EQ(story, "<13>LnnQ.");
}

TEST_F(Windows, AClickReachesOnlyWhatIsThere) {
    main.button.Enabled = false;
    EXPECT_EQ(screen.Click(main.button), Refusal::Disabled);
    main.label.Visible = false;
    EXPECT_EQ(screen.Click(main.label), Refusal::Hidden);
    screen.Hide(main);
    EXPECT_EQ(screen.Click(main.entry), Refusal::Closed);
    EXPECT_EQ(story, "");
}

TEST_F(Windows, ButtonsStandBeforeLabelsWhateverComesToTheFront) {
    const auto order = [this] { return std::vector(main.Controls().begin(), main.Controls().end()); };
    EXPECT_EQ(order(), (std::vector<Control*>{&main.button, &main.label, &main.shape}));
    main.ZOrder(main.shape);
    EXPECT_EQ(order(), (std::vector<Control*>{&main.button, &main.shape, &main.label}));
    main.ToDesign();
    EXPECT_EQ(order(), (std::vector<Control*>{&main.button, &main.label, &main.shape}));
}

TEST_F(Windows, TheEndRunsNothingMore) {
    dialog.ok.Click = [this] {
        screen.End();
        story += '!';
    };
    EXPECT_THROW(ShowModal({[this] { screen.Click(dialog.ok); }}), Ended);
    EXPECT_EQ(story, "L");
}

TEST(Generator, NeverRepeatsItselfForEqualSeeds) {
    Generator generator(1);
    generator.Randomize(5);
    const double first = generator.Rnd();
    generator.Randomize(5);
    EXPECT_NE(generator.Rnd(), first);
    for (int i = 0; i < 1000; ++i) {
        const double r = generator.Rnd();
        EXPECT_TRUE(r >= 0 && r < 1);
    }
}

TEST(ManualClock, CrossesMidnightAndKnowsItsDays) {
    ManualClock clock;
    clock.SetDate({28, 2, 2028});
    clock.SetTime(86399);
    clock.MoveTo(Moment(1500));
    EXPECT_EQ(FormatDate(clock.Today()), u"29-2-2028");
    EXPECT_EQ(clock.Time(), 0);
    EXPECT_EQ(Weekday(clock.Today()), 3);
    EXPECT_EQ(FormatTime(3661), u"01:01:01");
}

}  // namespace
}  // namespace platform::headless
