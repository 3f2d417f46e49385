// The rules of windows and timers that every platform keeps, held on each of them by the hand of a player.

#include "Platform.h"

#include <gtest/gtest.h>
#include <string>

#include "platform/HeldKey.h"
#include "storage/MemoryFiles.h"

namespace platform::headless {
namespace {

struct Main : Form {
    Main() : Form("Main", {.Width = 6000, .Height = 4500, .KeyPreview = true}) {}
    Menu bar{*this, "bar", {.Caption = u"&Bar"}};
    Menu entry{bar, "entry", {.Caption = u"Entry", .Shortcut = ControlKey('E')}};
    Label label{*this, "label", {150, 150, 1500, 450}, {.Caption = u"design"}};
    CommandButton button{*this, "button", {150, 750, 1500, 450}, {.Default = true}};
    Shape shape{*this, "shape", {150, 150, 1500, 450}, {}};
    Timer fast{*this, "fast", 100};
    Timer slow{*this, "slow", 150};
    Timer off{*this, "off", 100, false, &on};
    Timer on{*this, "on", 100};
};

struct Dialog : Form {
    Dialog() : Form("Dialog", {.Width = 4500, .Height = 3000}) {}
    CommandButton ok{*this, "ok", {150, 150, 900, 450}, {.Default = true, .TabIndex = 2}};
    CommandButton no{*this, "no", {1200, 150, 900, 450}, {.Cancel = true, .TabIndex = 3}};
    TextBox box{*this, "box", {150, 750, 1500, 450}, {.MaxLength = 5, .TabIndex = 1}};
    ListBox list{*this, "list", {1800, 750, 1500, 1500}, {.TabIndex = 4}};
    CommandButton sign{*this, "sign", {2250, 150, 900, 450}, {}};
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
        dialog.OnLoad = [this] {
            story += 'L';
            dialog.list.List = {u"one", u"two", u"three"};
            dialog.list.ListIndex = 1;
        };
        dialog.OnQueryUnload = [this] {
            story += 'Q';
            headless.screen.Unload(dialog);
        };
        dialog.ok.Click = [this] { headless.screen.Unload(dialog); };
        dialog.no.Click = [this] { story += 'n'; };
        dialog.tick.Click = [this] { story += 't'; };
        dialog.box.Click = [this] { dialog.box.Text = u""; };
        dialog.list.Click = [this] {
            story += std::to_string(dialog.list.ListIndex);
            if (dialog.list.ListIndex == 0) dialog.list.ListIndex = 1;
        };
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
    storage::MemoryFiles files;
    Main main;
    Dialog dialog;
    std::string story;
    Platform platform{files};
    Headless& headless = platform.Services();
    Hand& hand = platform.Hand();
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

TEST(Timers, DoNotMakeUpForMissedTicks) {
    Moment now(0);
    Main form;
    Scheduler scheduler([&now] { return now; });
    for (Timer* timer : {&form.fast, &form.slow}) {
        timer->Attach(scheduler);
        timer->Start();
    }
    now = Moment(1000);
    EXPECT_EQ(scheduler.TakeDue(now), &form.fast);
    EXPECT_EQ(scheduler.TakeDue(now), &form.slow);
    EXPECT_EQ(scheduler.TakeDue(now), nullptr);
    EXPECT_EQ(scheduler.NextDue(), Moment(1100));
    now = Moment(1120);
    EXPECT_EQ(scheduler.TakeDue(now), &form.fast);
    EXPECT_EQ(scheduler.NextDue(), Moment(1150)) << "a tick that is late does not put off the others";
}

TEST_F(Windows, WhatBlinksStaysInSightWithAMarkWhereThatIsAskedFor) {
    const auto swap = [this](bool shown, Timer& from, Timer& to) {
        main.label.Visible = main.shape.Visible = shown;
        from.Stop();
        to.Start();
    };
    main.off.Click = [this, swap] { swap(false, main.off, main.on); };
    main.on.Click = [this, swap] { swap(true, main.on, main.off); };
    main.off.Start();
    headless.Wait(Moment(100));
    EXPECT_FALSE(main.label.Visible);
    screen.KeepStill(true);
    for (int i = 0; i < 5; ++i) {
        headless.Wait(Moment(100));
        EXPECT_TRUE(main.label.Visible && main.shape.Visible) << i;
    }
    EXPECT_TRUE(screen.IsMarked(main.label));
    EXPECT_FALSE(screen.IsMarked(main.shape)) << "nobody clicks it";
    main.off.Stop();
    main.on.Stop();
    EXPECT_FALSE(screen.IsMarked(main.label));
    screen.KeepStill(false);
    main.off.Start();
    EXPECT_FALSE(screen.IsMarked(main.label));
    headless.Wait(Moment(100));
    EXPECT_FALSE(main.label.Visible);
}

TEST_F(Windows, AModalFormBlocksInputAndLetsTimersGoOn) {
    main.fast.Start();
    ShowModal({[this] { EXPECT_EQ(hand.Click(main.button), Refusal::Blocked); },
               [this] { EXPECT_EQ(hand.Click(main.entry), Refusal::Blocked); },
               [this] { EXPECT_EQ(hand.Click(main), Refusal::Blocked); }, [this] { hand.Press(ControlKey('E')); },
               [this] { headless.Wait(Moment(100)); }, [this] { EXPECT_EQ(screen.Close(main), Refusal::Blocked); },
               [this] { EXPECT_EQ(hand.Click(dialog.ok), Refusal::None); }});
    EXPECT_EQ(story, "LftQ.");
    headless.Wait(Moment(100));
    EXPECT_EQ(story, "LftQ.f") << "the timers of a closed form stand still";
    EXPECT_EQ(hand.Click(dialog.ok), Refusal::Closed);
}

TEST_F(Windows, TheClosingRoutineRunsOnce) {
    ShowModal({[this] { hand.Close(); }});
    EXPECT_EQ(story, "LQ.");
    story.clear();
    ShowModal({[this] { hand.Press({.Code = KeyEnter, .Character = 13}); }});
    EXPECT_EQ(story, "LQ.");
}

TEST_F(Windows, FormsGoBackToTheirDesign) {
    ShowModal({[this] { hand.Type(dialog.box, u"ñťabcdefg"); }, [this] { EXPECT_EQ(dialog.box.Text, u"ñabcd"); },
               [this] { dialog.ok.Top = 7; }, [this] { hand.Close(); }});
    EXPECT_EQ(dialog.box.Text, u"ñabcd") << "what a form held can be read after its closing";
    ShowModal({[this] { EXPECT_EQ(dialog.box.Text, u""); }, [this] { EXPECT_EQ(dialog.ok.Top, 150); },
               [this] { EXPECT_EQ(dialog.Focus(), &dialog.box); }, [this] { hand.Close(); }});
}

TEST_F(Windows, KeysGoTheirWay) {
    hand.Press(KeyOf(u'ñ'));
    hand.Press(KeyOf(u'€'));
    EXPECT_EQ(KeyOf(u'%').Code, KeyNone) << "a character is no arrow key";
    hand.Press(PlainKey(KeyLeft));
    hand.Press(ControlKey('A'));
    hand.Press(ControlKey('E'));
    hand.Press({.Code = KeyEnter, .Character = 13});
    EXPECT_EQ(story, "<241><128><1>e<13>b");
    story.clear();
    main.entry.Enabled = false;
    main.button.Enabled = false;
    hand.Press(ControlKey('E'));
    hand.Press({.Code = KeyEnter, .Character = 13});
    EXPECT_EQ(story, "<13>") << "the shortcut of a disabled entry is no letter";
    ShowModal({[this] { hand.Press({.Code = KeyEscape, .Character = 27}); }, [this] { hand.Press(KeyOf(u'x')); },
               [this] { EXPECT_EQ(dialog.box.Text, u"x"); }, [this] { hand.Click(dialog.no); },
               [this] { hand.Press({.Code = KeySpace, .Character = u' '}); }, [this] { hand.Click(dialog.sign); },
               [this] { EXPECT_EQ(dialog.Focus(), &dialog.no) << "what takes no focus leaves it where it is"; },
               [this] { hand.Close(); }});
    EXPECT_EQ(story, "<13>LnnnQ.");
}

TEST_F(Windows, AClickReachesOnlyWhatIsThere) {
    main.button.Enabled = false;
    EXPECT_EQ(hand.Click(main.button), Refusal::Disabled);
    main.label.Visible = false;
    EXPECT_EQ(hand.Click(main.label), Refusal::Hidden);
    screen.Hide(main);
    EXPECT_EQ(hand.Click(main.entry), Refusal::Closed);
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

TEST_F(Windows, AClickIsOneChoiceWhateverIsSelected) {
    ShowModal({[this] { hand.Select(dialog.list, 2); }, [this] { hand.Select(dialog.list, 2); },
               [this] { hand.Select(dialog.list, 0); }, [this] { hand.Select(dialog.list, 7); },
               [this] { hand.Press(PlainKey(KeyDown)); }, [this] { hand.Press(PlainKey(KeyDown)); },
               [this] { hand.Press(PlainKey(KeyUp)); }, [this] { hand.Press(KeyOf(u't')); },
               [this] { hand.Press(PlainKey(KeyHome)); }, [this] { hand.Press(PlainKey(KeyPageDown)); },
               [this] { hand.Press(PlainKey(KeyEnd)); }, [this] { hand.Press({.Code = KeyUp, .Repeated = true}); },
               [this] { EXPECT_EQ(dialog.list.ListIndex, 1); }, [this] { EXPECT_EQ(dialog.Focus(), &dialog.list); },
               [this] { hand.Type(dialog.box, u"abc"); }, [this] { EXPECT_EQ(dialog.box.Text, u"abc"); },
               [this] { hand.Click(dialog.box); }, [this] { EXPECT_EQ(dialog.box.Text, u""); },
               [this] { hand.Close(); }});
    EXPECT_EQ(story, "L22021021Q.");
}

TEST_F(Windows, TheEndRunsNothingMore) {
    dialog.ok.Click = [this] {
        screen.End();
        story += '!';
    };
    EXPECT_TRUE(platform.Ends([this] { ShowModal({[this] { hand.Click(dialog.ok); }}); }));
    EXPECT_EQ(story.find('!'), std::string::npos);
}

TEST(HeldKey, TellsAPressFromARepetition) {
    struct Row {
        int key;
        int letGo;  // before the press; 0: not told
        int at;
        bool flagged;
        bool repeats;
    };
    const std::vector<Row> rows = {{'A', 0, 100, true, true},      // held since before the first window
                                   {'B', 0, 200, false, false},    // a press
                                   {'B', 0, 700, true, true},      // held down
                                   {'B', 730, 730, false, true},   // held down, and not flagged
                                   {'B', 750, 760, false, false},  // a second press
                                   {'B', 0, 3000, true, false},    // the release was lost
                                   {'C', 0, 3010, true, false},    // another key
                                   {'C', 0, 0, false, false},      // at times that are not told
                                   {'C', 0, 0, false, false}};
    HeldKey held;
    for (const Row& row : rows) {
        if (row.letGo != 0) held.Release(row.key, Moment(row.letGo));
        EXPECT_EQ(held.Repeats(row.key, Moment(row.at), row.flagged), row.repeats) << row.key << " at " << row.at;
    }
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
