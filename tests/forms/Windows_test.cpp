// The rules of events: what a dispatch does at its end, and in which order.
#include "forms/Windows.h"

#include <gtest/gtest.h>

#include "base/Fout.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/User.h"
#include "forms/VScrollBar.h"
#include "support/TestForm.h"

namespace {

using namespace forms;
using Log = std::vector<std::string>;

TEST(Dispatch, ShowsAtItsEndAndActivatesOnce) {
    TestWindows test;
    test.windows.dispatch([&] {
        TestForm& form = test.load("A");
        form.Show();
        form.Show();
        EXPECT_FALSE(form.Visible());
        test.log.push_back("routine ends");
    });
    EXPECT_EQ(test.log, (Log{"load A", "routine ends", "activate A"}));
    EXPECT_EQ(test.windows.active()->name(), "A");
}

TEST(Dispatch, ReportComesInFrontOfAllThatIsShownWithIt) {
    TestWindows test;
    test.windows.dispatch([&] {
        test.load("Report").report = true;
        test.windows.find("Report")->Show();
        test.load("A").Show();
    });
    EXPECT_EQ(test.windows.active()->name(), "Report");
    EXPECT_TRUE(test.windows.find("A")->Visible());
    EXPECT_EQ(test.log, (Log{"load Report", "load A", "activate Report"}));
}

TEST(Dispatch, HidingOrUnloadingTheActiveFormActivatesTheNextVisibleOne) {
    for (const bool unload : {false, true}) {
        TestWindows test;
        test.show({"A", "B"});
        test.log.clear();
        test.windows.dispatch([&] { unload ? test.windows.find("B")->Unload() : test.windows.find("B")->Hide(); });
        EXPECT_EQ(test.windows.active()->name(), "A");
        EXPECT_EQ(test.windows.in_front_order().front()->name(), "A");
        EXPECT_EQ(test.log.back(), "activate A");
    }
}

TEST(Dispatch, FormThatWasHiddenBecomesTheActiveOneAnew) {
    TestWindows test;
    test.show({"A"});
    test.log.clear();
    test.windows.dispatch([&] {
        test.form("A").Hide();
        test.form("A").Show();
    });
    EXPECT_EQ(test.log, (Log{"activate A"}));
}

TEST(Dispatch, FormUnloadedInItsOwnHandlerLivesToTheEnd) {
    TestWindows test;
    test.show({"A", "B"});
    TestForm& form = test.form("B");
    form.button.Click = [&] {
        form.Unload();
        form.Unload();
        form.button.Caption = "still there";
        test.log.push_back(form.button.Caption());
    };
    test.log.clear();
    user::click(form.button);
    EXPECT_EQ(test.log, (Log{"query unload B", "still there", "activate A"}));
}

TEST(Dispatch, QueryUnloadThatUnloadsIsNotAskedForever) {
    TestWindows test;
    test.show({"A", "B"});
    TestForm& form = test.form("B");
    form.on_query_unload = [&] { form.Unload(); };
    test.log.clear();
    user::close(form);
    EXPECT_EQ(test.log, (Log{"query unload B", "activate A"}));
}

TEST(Dispatch, ShowOfAFormThatIsUnloadedMeanwhileIsForgotten) {
    TestWindows test;
    test.show({"A"});
    test.windows.dispatch([&] {
        test.load("B").Show();
        test.windows.find("B")->Unload();
    });
    EXPECT_EQ(test.windows.active()->name(), "A");
}

TEST(Dispatch, EndOfProgramSkipsEveryStatementAfterIt) {
    TestWindows test;
    test.show({"A"});
    bool went_on = false;
    test.windows.dispatch([&] {
        try {
            throw EndOfProgram();
        } catch (const std::exception&) {
            went_on = true;
        }
        went_on = true;
    });
    EXPECT_TRUE(test.windows.ended());
    EXPECT_FALSE(went_on);
    test.windows.dispatch([&] { went_on = true; });
    EXPECT_FALSE(went_on);
}

TEST(User, ActionMakesItsFormTheActiveOneFirst) {
    TestWindows test;
    test.show({"A", "B"});
    TestForm& form = test.form("A");
    form.button.Click = [&] { test.log.push_back("click"); };
    test.log.clear();
    user::click(form.button);
    EXPECT_EQ(test.log, (Log{"activate A", "click"}));
    form.on_activate = [&] { form.button.Enabled = false; };
    user::activate(test.form("B"));
    user::click(form.button);
    EXPECT_EQ(test.log.back(), "activate A") << "the button is disabled by then";
}

TEST(User, CanDoNothingToWhatIsHiddenOrDisabled) {
    TestWindows test;
    test.show({"A"});
    TestForm& form = test.form("A");
    int clicks = 0;
    form.in_frame.Click = [&] { ++clicks; };
    struct Case {
        std::function<void(bool)> set;
        Refusal refusal;
    };
    const Case cases[] = {
        {[&](bool on) { form.in_frame.Visible = on; }, Refusal::Hidden},
        {[&](bool on) { form.frame.Visible = on; }, Refusal::Hidden},
        {[&](bool on) { form.Visible = on; }, Refusal::Hidden},
        {[&](bool on) { form.in_frame.Enabled = on; }, Refusal::Disabled},
        {[&](bool on) { form.frame.Enabled = on; }, Refusal::Disabled},
    };
    test.show({"B"});  // keeps the program alive
    for (const Case& each : cases) {
        test.windows.dispatch([&] { each.set(false); });
        EXPECT_EQ(user::click(form.in_frame), each.refusal);
        test.windows.dispatch([&] { each.set(true); });
    }
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(user::click(form.in_frame), Refusal::None);
    EXPECT_EQ(clicks, 1);
}

TEST(ListBox, ClickIsRaisedByAChangeAndAlwaysByTheUser) {
    TestWindows test;
    test.show({"A"});
    ListBox& list = test.form("A").list;
    int clicks = 0;
    list.Click = [&] { ++clicks; };
    for (const char* line : {"een", "Twee", "tweede"})
        list.AddItem(line);
    const auto expect = [&](int expected) { EXPECT_EQ(std::exchange(clicks, 0), expected); };
    list.ListIndex = 1;
    expect(1);
    list.ListIndex = 1;
    expect(0);
    list.ListIndex = -1;
    expect(1);
    user::select(list, 2);
    user::select(list, 2);
    expect(2);
    list.Clear();
    expect(0);
    EXPECT_EQ(list.ListIndex(), -1);
    EXPECT_THROW(list.ListIndex = 0, base::Fout);
    EXPECT_THROW(list.List(0), base::Fout);
}

TEST(ListBox, SortedListKeepsTextOrder) {
    TestWindows test;
    test.show({"A"});
    ListBox sorted(test.form("A"), "sorted", ListBox::Order::Sorted);
    for (const char* line : {"2240", "2201", "10", "2214"})
        sorted.AddItem(line);
    EXPECT_EQ(sorted.List(0), "10");
    sorted.AddItem("2202");
    EXPECT_EQ(sorted.List(2), "2202");
    EXPECT_EQ(sorted.List(4), "2240");
}

TEST(ListBox, MultipleSelectionTogglesLineByLine) {
    TestWindows test;
    test.show({"A"});
    ListBox& list = test.form("A").list;
    list.MultiSelect = true;
    for (const char* line : {"a", "b", "c"})
        list.AddItem(line);
    int clicks = 0;
    list.Click = [&] { ++clicks; };
    user::select(list, 0);
    user::select(list, 2);
    EXPECT_TRUE(list.Selected(0) && !list.Selected(1) && list.Selected(2));
    user::select(list, 0);
    EXPECT_FALSE(list.Selected(0));
    list.SetSelected(2, false);
    list.SetSelected(2, false);
    EXPECT_EQ(clicks, 4);
}

TEST(TextBox, TypingPassesFilterAndLimitAndAssignmentGoesPast) {
    TestWindows test;
    test.show({"A"});
    TextBox& box = test.form("A").text;
    box.MaxLength = 5;
    box.KeyPress = [](char& key) {
        if (key == 'x') key = 0;
    };
    int changes = 0;
    box.Change = [&] { ++changes; };
    user::type(box, "axbx");
    EXPECT_EQ(box.Text(), "ab");
    user::type(box, "cdefg");
    EXPECT_EQ(box.Text(), "abcde");
    user::type_all(box, "z");
    EXPECT_EQ(box.Text(), "z");
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 0);
    user::type_all(box, "");
    EXPECT_EQ(box.Text(), "");
    box.Text = "xxxxxxx";
    EXPECT_EQ(box.Text(), "xxxxxxx");
    EXPECT_EQ(changes, 5);
}

TEST(Values, RaiseTheirEventOnAChangeAndRefuseWhatIsOutside) {
    TestWindows test;
    test.show({"A"});
    TestForm& form = test.form("A");
    int events = 0;
    form.check.Click = [&] { ++events; };
    form.scroll.Change = [&] { ++events; };
    form.check.Value = 1;
    form.check.Value = 1;
    user::click(form.check);
    EXPECT_EQ(form.check.Value(), 0);
    form.scroll.Min = -1;
    form.scroll.Max = 3;
    form.scroll.Value = 3;
    user::scroll(form.scroll, 99);
    EXPECT_EQ(form.scroll.Value(), 3);
    user::scroll(form.scroll, -99);
    EXPECT_EQ(form.scroll.Value(), -1);
    EXPECT_EQ(events, 4);
    EXPECT_THROW(form.scroll.Value = 4, base::Fout);
    EXPECT_THROW(form.check.Value = 2, base::Fout);
}

TEST(ControlArray, LoadMakesAHiddenCopyInFrontAndAnUnknownNumberFails) {
    TestWindows test;
    test.show({"A"});
    TestForm& form = test.form("A");
    ControlArray<Label> labels(form, "lbl", {{1, {10, 20, 30, 40}}});
    labels(1).Caption = "x";
    labels(1).FontBold = true;
    Label& made = labels.Load(2);
    EXPECT_FALSE(made.Visible());
    EXPECT_EQ(made.Caption(), "x");
    EXPECT_TRUE(made.FontBold());
    EXPECT_EQ(made.Width(), 30);
    EXPECT_EQ(form.children().back(), &made);
    EXPECT_EQ(&form.control("LBL", 2), &made);
    try {
        labels(3);
        FAIL();
    } catch (const base::Fout& fout) {
        EXPECT_EQ(fout.nummer(), 340);
    }
}

}  // namespace
