// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/internal_error.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "shell/edit_page.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;
using namespace tq::shell;
using tq::test::Group;
using tq::test::ScriptedPort;
using tq::test::TempDir;

namespace {

std::string SetupText(const std::string& folder, const std::string& frame = "YES")
{
    return Group("[Drive Folder Path=" + folder + "]", "[Info: folder]") +
           Group("[TQL Output File=formtql.htm]", "[Info: file]") + Group("[FROM=My Web Page]", "[Info: from]") +
           Group("[Completed=thankyou.htm]", "[Info: page]") +
           Group("[GLOBAL ALIGN=NONE]", "[Info: Choices are none,left,right,center]") +
           Group("[GLOBAL TEXT COLOR=NONE]", "[Choices=NONE  This is the global text color]") +
           Group("[Email #1=me@site.example]", "[Info: mail]") + Group("[Number Each Question=YES]", "[Info: n]") +
           Group("[Show Tool Tips=YES]", "[Info: tips]") +
           Group("[Include Frame With Form=" + frame + "]", "[Info: f]") +
           Group("[Frame Border Color=52736]", "[Info: c]") + Group("[Frame Color=16384]", "[Info: c]") +
           Group("[Total Frames=1]", "[Info: t]");
}

const std::string kNameText = Group("[Title=Enter your full name]", "[Info: A description]") +
                              Group("[Title Size=3]", "[Info: Enter Font Size]") +
                              Group("[Align=left]", "[Choices=left,right,center]") +
                              Group("[Title Shade Width=40%]", "[Choices=1% to 100%]") +
                              Group("[Text Color=255]", "[Choices=Change the current color.]");

struct Fixture
{
    TempDir data;
    TempDir web;
    std::unique_ptr<Session> s = std::make_unique<Session>();
    ScriptedPort port;

    Fixture()
    {
        s->DataFolder = data.path();
        s->store.pages[0][0] = {"Setup", SetupText(web.path()), "", true};
        s->store.pages[0][1] = {"Name", kNameText, "", true};
    }
    int rowOf(const EditState& st, const std::string& key) const
    {
        for (size_t i = 0; i < st.fields.size(); ++i)
            if (st.fields[i].Key == key)
                return static_cast<int>(i);
        return -1;
    }
};

} // namespace

TEST(EditPageRows, GroupsOfThreeGiveKeyValueHelpAndKind)
{
    const auto fields = ReadEditFields(kNameText);
    ASSERT_EQ(fields.size(), 5u);
    EXPECT_EQ(fields[0].ItemText, "[Title=Enter your full name]");
    EXPECT_EQ(fields[0].Key, "Title");
    EXPECT_EQ(fields[0].Value, "Enter your full name");
    EXPECT_EQ(fields[0].HelpLine, "[Info: A description]");
    EXPECT_EQ(fields[0].HelpText, "Title - [Info: A description]");
    EXPECT_EQ(fields[0].Kind, FieldKind::TextField);
    EXPECT_EQ(fields[1].Kind, FieldKind::NumberList);
    EXPECT_EQ(fields[2].Kind, FieldKind::AlignList);
    // a "[Choices=" line is the row's help line, never a row of its own
    EXPECT_EQ(fields[2].HelpLine, "[Choices=left,right,center]");
    EXPECT_EQ(fields[2].helpChoices, (std::vector<std::string>{"left", "right", "center"}));
    EXPECT_EQ(fields[4].Kind, FieldKind::ColorField);
}

TEST(EditPageRows, ReadingStopsAtAnEmptyGroupAndRefusesMoreThan21)
{
    // an extra blank line puts the groups out of step: fewer rows are shown
    EXPECT_EQ(ReadEditFields(Group("[Title=a]", "[Info: x]") + "\r\n\r\n" + Group("[Bold=off]", "[Info: y]")).size(),
              1u);
    std::string many;
    for (int i = 0; i < kMaxEditFields; ++i)
        many += Group("[Title=t" + std::to_string(i) + "]", "[Info: x]");
    EXPECT_EQ(ReadEditFields(many).size(), 21u);
    EXPECT_THROW(ReadEditFields(many + Group("[Bold=off]", "[Info: y]")), model::InternalError);
}

TEST(EditPageRows, PullDownItems)
{
    EditField f;
    f.Key = "Title Shade Width";
    f.Kind = KindOfKey(f.Key);
    auto items = PullDownItems(f);
    ASSERT_EQ(items.size(), 1000u);
    EXPECT_EQ(items.back(), "1000%");
    f.Key = "GLOBAL ALIGN";
    f.Kind = FieldKind::AlignList;
    EXPECT_EQ(PullDownItems(f), (std::vector<std::string>{"LEFT", "RIGHT", "CENTER", "NONE"}));
    f.Key = "loop";
    f.Kind = KindOfKey(f.Key);
    items = PullDownItems(f);
    ASSERT_EQ(items.size(), 51u);
    EXPECT_EQ(items[50], "infinite");
}

TEST(EditWindow, ValueAndWindowTextConvertBothWays)
{
    EXPECT_EQ(ValueToWindow("Title", "line one\\nline two\\Nthree"), "line one\r\nline two\r\nthree");
    EXPECT_EQ(WindowToValue("Title", "line one\r\nline two\nthree"), "line one\\nline two\\nthree");
    EXPECT_EQ(WindowToValue("Title", ValueToWindow("Title", "a\\nb")), "a\\nb");
    // trailing line breaks are cut
    EXPECT_EQ(WindowToValue("Title", "Your name\r\n\r\n"), "Your name");
    EXPECT_EQ(WindowToValue("Title", "none"), "none");
    // a short text keeps no line break inside the item; an empty one stays empty
    EXPECT_EQ(WindowToValue("Title", "ab"), "ab");
    EXPECT_EQ(WindowToValue("Title", "ab\r\n"), "ab");
    EXPECT_EQ(WindowToValue("Title", ""), "");
    EXPECT_EQ(WindowToValue("Title", "a  b\tc"), "a&nbsp;b&nbsp;c");
    EXPECT_EQ(ValueToWindow("Title", "a&nbsp;b"), "a  b");
    EXPECT_EQ(WindowToValue("Error Message", "a  b"), "a  b");
    EXPECT_EQ(ValueToWindow("Error Message", "a&nbsp;b"), "a&nbsp;b");
}

TEST(EditPageHelp, MessagesByKind)
{
    auto fields = ReadEditFields(kNameText);
    EXPECT_EQ(FieldHelpMessage(fields[0]),
              "Click on the Edit Button to make changes.\r\r---> Title <---\r[Info: A description]");
    EXPECT_EQ(FieldHelpMessage(fields[1]).substr(0, 44), "Use the Pull Down Menu to make your changes\r");
    EXPECT_EQ(FieldHelpMessage(fields[4]).rfind("Click on the Change Color Button to change the color.\r\r", 0), 0u);
    EditField longHelp;
    longHelp.Kind = FieldKind::TextField;
    longHelp.HelpText = "Title - [Info: first part\\nsecond part that is long enough to be wrapped on a word "
                        "boundary by the help]";
    const std::string msg = FieldHelpMessage(longHelp);
    EXPECT_NE(msg.find("[Info: first part\rsecond part"), std::string::npos);
    EXPECT_NE(msg.find("word\rboundary"), std::string::npos) << msg;
}

TEST(EditPageSetup, OpenMarksTheRowAndHidesTheFrameRowsByMode)
{
    Fixture f;
    EditState st = OpenEditPage(*f.s, f.port, 1, 0);
    EXPECT_EQ(st.Caption, "Make your changes for Setup and then select Exit");
    EXPECT_EQ(f.s->store.pages[0][0].highlight, model::Highlight::Red);
    EXPECT_EQ(f.port.views.back(), View::EditPage);
    const int frame = f.rowOf(st, "Include Frame With Form");
    for (const auto& field : st.fields)
        EXPECT_TRUE(field.visible);
    // FORM: NO hides the three frame rows and switches the frame off
    SetPullDownValue(*f.s, f.port, st, frame, "NO");
    EXPECT_EQ(f.s->settings.FrameOff, 1);
    EXPECT_FALSE(st.fields[static_cast<size_t>(frame + 1)].visible);
    EXPECT_TRUE(st.fields[static_cast<size_t>(frame)].visible);
    SetPullDownValue(*f.s, f.port, st, frame, "YES");
    EXPECT_EQ(f.s->settings.FrameOff, 0);
    EXPECT_EQ(f.port.last().title, "FRAME");
    EXPECT_TRUE(st.fields[static_cast<size_t>(frame + 3)].visible);
    SetPullDownValue(*f.s, f.port, st, f.rowOf(st, "Show Tool Tips"), "NO");
    EXPECT_EQ(f.s->settings.ShowToolTips, 0);
    // SURVEY: the frame row and all after it stay hidden; a change has no effect
    f.s->store.state.ProjectMode = "SURVEY";
    st = OpenEditPage(*f.s, f.port, 1, 0);
    for (size_t i = 0; i < st.fields.size(); ++i)
        EXPECT_EQ(st.fields[i].visible, static_cast<int>(i) < frame) << i;
    f.s->settings.FrameOff = 1;
    SetPullDownValue(*f.s, f.port, st, frame, "YES");
    EXPECT_EQ(f.s->settings.FrameOff, 1);
    EXPECT_FALSE(st.fields[static_cast<size_t>(frame + 1)].visible);
}

TEST(EditPageColors, ChangeColorUpdatesTheDefaultsAndRightClickSetsNone)
{
    Fixture f;
    EditState st = OpenEditPage(*f.s, f.port, 1, 0);
    const int frameColor = f.rowOf(st, "Frame Color");
    f.port.color(255);
    EXPECT_TRUE(ChangeColor(*f.s, f.port, st, frameColor));
    EXPECT_EQ(f.port.last().kind, "color");
    EXPECT_EQ(f.port.last().title, "COLORS");
    EXPECT_EQ(st.fields[static_cast<size_t>(frameColor)].Value, "255");
    EXPECT_EQ(FieldColor(st.fields[static_cast<size_t>(frameColor)]), 255);
    EXPECT_EQ(f.s->settings.FrameColor, "255");
    f.port.color(std::nullopt);
    EXPECT_FALSE(ChangeColor(*f.s, f.port, st, frameColor));
    EXPECT_EQ(st.fields[static_cast<size_t>(frameColor)].Value, "255");
    const int global = f.rowOf(st, "GLOBAL TEXT COLOR");
    EXPECT_EQ(FieldColor(st.fields[static_cast<size_t>(global)]), 16777215);
    ClearGlobalTextColor(*f.s, f.port, st, global);
    EXPECT_EQ(f.port.last().title, "SET");
    EXPECT_EQ(f.port.last().text.substr(0, 46), "The Global Text Color is already set to NONE\r\r");
    EXPECT_NE(f.port.last().text.find("in your entire FORM will default"), std::string::npos);
    f.port.color(65280);
    ChangeColor(*f.s, f.port, st, global);
    EXPECT_EQ(f.s->settings.GlobalTextColor, "65280");
    f.port.answer(Answer::No);
    ClearGlobalTextColor(*f.s, f.port, st, global);
    EXPECT_EQ(f.port.last().text, "Aborted...");
    EXPECT_EQ(st.fields[static_cast<size_t>(global)].Value, "65280");
    f.port.answer(Answer::Yes);
    ClearGlobalTextColor(*f.s, f.port, st, global);
    EXPECT_TRUE(Said(f.port.shown[f.port.shown.size() - 2], "Do you want to set the Global Text Color to NONE?",
                     "CHANGE GLOBAL TEXT COLOR"));
    EXPECT_EQ(f.port.last().title, "COMPLETE");
    EXPECT_EQ(st.fields[static_cast<size_t>(global)].Value, "NONE");
}

TEST(EditPageTextRows, EditCommandBranches)
{
    Fixture f;
    EditState st = OpenEditPage(*f.s, f.port, 1, 0);
    const int folder = f.rowOf(st, "Drive Folder Path");
    f.port.file(std::string("/srv/site"));
    EXPECT_EQ(EditTextField(*f.s, f.port, st, folder), EditAction::Done);
    EXPECT_EQ(st.fields[static_cast<size_t>(folder)].Value, "/srv/site");
    f.port.file(std::nullopt);
    EditTextField(*f.s, f.port, st, folder);
    EXPECT_EQ(st.fields[static_cast<size_t>(folder)].Value, "/srv/site");
    const int completed = f.rowOf(st, "Completed");
    f.port.file(std::string("/srv/site/thanks.htm"));
    EXPECT_EQ(EditTextField(*f.s, f.port, st, completed), EditAction::Done);
    EXPECT_EQ(st.fields[static_cast<size_t>(completed)].Value, "thanks.htm");
    EditField image;
    image.ItemText = "[Background image path=;x.gif]";
    image.Key = "Background image path";
    image.Value = ";x.gif";
    st.fields.push_back(image);
    f.port.clear();
    EXPECT_EQ(EditTextField(*f.s, f.port, st, static_cast<int>(st.fields.size()) - 1), EditAction::OpenEditWindow);
    EXPECT_EQ(f.port.last().title, "BACKGROUND IMAGE HELP");
    EXPECT_NE(f.port.last().text.find("background of your FORM then remove"), std::string::npos);
    f.port.clear();
    EXPECT_EQ(EditTextField(*f.s, f.port, st, f.rowOf(st, "FROM")), EditAction::OpenEditWindow);
    EXPECT_TRUE(f.port.shown.empty());
}

TEST(EditPageCommit, AFailingCheckKeepsThePageOpenExitStoresTheRowsAndMarksItGreen)
{
    Fixture f;
    EditState st = OpenEditPage(*f.s, f.port, 1, 1);
    const int shade = f.rowOf(st, "Title Shade Width");
    st.fields[static_cast<size_t>(shade)].Value = "40";
    EXPECT_FALSE(ExitEditPage(*f.s, f.port, st));
    EXPECT_TRUE(
        Said(f.port.last(), "TITLE SHADE WIDTH\rMUST HAVE A % AFTER THE TITLE SHADE WIDTH\rEXAMPLE: 40%", "ERROR"));
    EXPECT_EQ(st.failedRow, shade);
    EXPECT_TRUE(st.fields[static_cast<size_t>(shade)].failed);
    EXPECT_EQ(f.s->store.pages[0][1].AttributeText, kNameText);
    EXPECT_EQ(f.s->store.state.commitMode, 0);
    st = OpenEditPage(*f.s, f.port, 1, 1);
    st.fields[0].Value = "  Your name please ";
    ASSERT_TRUE(ExitEditPage(*f.s, f.port, st));
    std::string expected = kNameText;
    expected.replace(expected.find("Enter your full name"), 20, "Your name please");
    EXPECT_EQ(f.s->store.pages[0][1].AttributeText, expected);
    EXPECT_EQ(f.s->store.pages[0][1].highlight, model::Highlight::Green);
    EXPECT_EQ(f.port.views.back(), View::Page1);
    ASSERT_FALSE(f.port.selectedRows.empty());
    EXPECT_EQ(f.port.selectedRows.back(), std::make_pair(1, 1));
}

TEST(EditPageCommit, SetupValuesGoIntoTheSettingsAndHiddenRowsAreKept)
{
    Fixture f;
    f.s->store.state.ProjectMode = "SURVEY";
    EditState st = OpenEditPage(*f.s, f.port, 1, 0);
    st.fields[static_cast<size_t>(f.rowOf(st, "Email #1"))].Value = "boss@site.example";
    st.fields[static_cast<size_t>(f.rowOf(st, "Number Each Question"))].Value = "NO";
    // a hidden row is neither checked nor dropped
    st.fields[static_cast<size_t>(f.rowOf(st, "Total Frames"))].Value = "x";
    ASSERT_EQ(CommitEditPage(*f.s, f.port, st), 0);
    const std::string& text = f.s->store.pages[0][0].AttributeText;
    EXPECT_NE(text.find("[Total Frames=x]\r\n[Info: t]\r\n\r\n"), std::string::npos);
    EXPECT_NE(text.find("[Frame Border Color=52736]"), std::string::npos);
    EXPECT_EQ(f.s->settings.Email1, "boss@site.example");
    EXPECT_EQ(f.s->settings.NumberEachQuestion, 0);
    EXPECT_EQ(f.s->settings.FrameOff, 1);
    EXPECT_EQ(f.s->settings.TotalFrames, "x");
    EXPECT_EQ(ReadEditFields(text).size(), st.fields.size());
}

TEST(EditPageAbort, ErrorsAskBeforeLeavingAndTheTextStays)
{
    Fixture f;
    EditState st = OpenEditPage(*f.s, f.port, 1, 1);
    st.fields[static_cast<size_t>(f.rowOf(st, "Title Shade Width"))].Value = "40";
    f.port.clear();
    f.port.answer(Answer::No);
    EXPECT_FALSE(AbortEditPage(*f.s, f.port, st));
    ASSERT_EQ(f.port.shown.size(), 1u); // the dry run shows no message of its own
    EXPECT_TRUE(
        Said(f.port.last(),
             "THERE ARE ERRORS ON THE EDIT PAGE\rYOUR FORM WILL NOT BUILD CORRECTLY\r\rARE YOU SURE YOU WANT TO ABORT?",
             "ABORT"));
    f.port.answer(Answer::Yes);
    EXPECT_TRUE(AbortEditPage(*f.s, f.port, st));
    EXPECT_EQ(f.s->store.pages[0][1].AttributeText, kNameText);
    EXPECT_EQ(f.port.views.back(), View::Page1);
    // without errors the page is left at once
    st = OpenEditPage(*f.s, f.port, 1, 1);
    st.fields[0].Value = "changed";
    f.port.clear();
    EXPECT_TRUE(AbortEditPage(*f.s, f.port, st));
    EXPECT_TRUE(f.port.shown.empty());
    EXPECT_EQ(f.s->store.pages[0][1].AttributeText, kNameText);
}
