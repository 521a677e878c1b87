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

// Rows: 0 folder, 3 e-mail, 4 frame switch, 5 frame colour, 6 frames.
std::string SetupText(const std::string& folder)
{
    return Group("[Drive Folder Path=" + folder + "]", "[Info: folder]") +
           Group("[TQL Output File=formtql.htm]", "[Info: file]") + Group("[FROM=My Web Page]", "[Info: from]") +
           Group("[Email #1=me@site.example]", "[Info: mail]") + Group("[Include Frame With Form=YES]", "[Info: f]") +
           Group("[Frame Color=16384]", "[Info: c]") + Group("[Total Frames=1]", "[Info: t]");
}

// Rows: 0 title, 1 size, 2 shade width.
const std::string kNameText = Group("[Title=Enter your full name]", "[Info: A description]") +
                              Group("[Title Size=3]", "[Info: Enter Font Size]") +
                              Group("[Title Shade Width=40%]", "[Choices=1% to 100%]");

struct EditPage : ::testing::Test
{
    TempDir data;
    TempDir web;
    std::unique_ptr<Session> s = std::make_unique<Session>();
    ScriptedPort port;

    void SetUp() override
    {
        s->DataFolder = data.path();
        s->store.pages[0][0] = {"Setup", SetupText(web.path()), "", true};
        s->store.pages[0][1] = {"Name", kNameText, "", true};
    }
};

} // namespace

TEST(EditPageRows, MoreThan21RowsAreAnInternalError)
{
    std::string many;
    for (int i = 0; i < kMaxEditFields; ++i)
        many += Group("[Title=t" + std::to_string(i) + "]", "[Info: x]");
    EXPECT_EQ(ReadEditFields(many).size(), 21u);
    EXPECT_THROW(ReadEditFields(many + Group("[Bold=off]", "[Info: y]")), model::InternalError);
}

TEST_F(EditPage, AFailingCheckKeepsThePageOpenAndExitStoresTheRows)
{
    EditState st = OpenEditPage(*s, port, 1, 1);
    st.fields[2].Value = "40";
    EXPECT_FALSE(ExitEditPage(*s, port, st));
    EXPECT_TRUE(
        Said(port.last(), "TITLE SHADE WIDTH\rMUST HAVE A % AFTER THE TITLE SHADE WIDTH\rEXAMPLE: 40%", "ERROR"));
    EXPECT_TRUE(st.fields[2].failed);
    EXPECT_EQ(s->store.pages[0][1].AttributeText, kNameText);
    st = OpenEditPage(*s, port, 1, 1);
    st.fields[0].Value = "  Your name please ";
    ASSERT_TRUE(ExitEditPage(*s, port, st));
    std::string expected = kNameText;
    expected.replace(expected.find("Enter your full name"), 20, "Your name please");
    EXPECT_EQ(s->store.pages[0][1].AttributeText, expected);
    EXPECT_EQ(s->store.pages[0][1].highlight, model::Highlight::Green);
    EXPECT_EQ(port.views.back(), View::Page1);
}

TEST_F(EditPage, SetupValuesGoIntoTheSettingsAndHiddenRowsAreKept)
{
    s->store.state.ProjectMode = tq::model::Mode::Survey;
    EditState st = OpenEditPage(*s, port, 1, 0);
    EXPECT_FALSE(st.fields[5].visible);
    st.fields[3].Value = "boss@site.example";
    st.fields[6].Value = "x"; // hidden: neither checked nor dropped
    ASSERT_EQ(CommitEditPage(*s, port, st), 0);
    EXPECT_NE(s->store.pages[0][0].AttributeText.find("[Total Frames=x]\r\n[Info: t]\r\n\r\n"), std::string::npos);
    EXPECT_EQ(s->settings.Email1, "boss@site.example");
    EXPECT_EQ(s->settings.FrameOff, 1);
}

TEST_F(EditPage, TheCommitEndsAtTheFirstRowWithoutAKey)
{
    const std::string first = Group("[Title=Enter your full name]", "[Info: t]");
    s->store.pages[0][1].AttributeText =
        first + Group("[=loose]", "[Info: l]") + Group("[Title Shade Width=40]", "[Choices=1% to 100%]");
    EditState st = OpenEditPage(*s, port, 1, 1);
    ASSERT_EQ(st.fields.size(), 3u);
    ASSERT_EQ(CommitEditPage(*s, port, st), 0); // the width behind it is neither checked nor kept
    EXPECT_TRUE(port.shown.empty());
    EXPECT_EQ(s->store.pages[0][1].AttributeText, first);
}

TEST_F(EditPage, TheFrameSwitchedOnInAFormShowsTheWarningOfTheModeSwitch)
{
    s->store.state.ProjectMode = tq::model::Mode::Form;
    EditState st = OpenEditPage(*s, port, 1, 0);
    SetPullDownValue(*s, port, st, 4, "NO");
    EXPECT_TRUE(port.shown.empty());
    EXPECT_EQ(s->settings.FrameOff, 1);
    EXPECT_FALSE(st.fields[5].visible);
    SetPullDownValue(*s, port, st, 4, "YES");
    EXPECT_TRUE(Said(port.last(),
                     "That is because all input type colors must be changed to black\rAll entries must be cleared "
                     "before you can switch the table off.",
                     "ABORTED", Icon::Information));
    EXPECT_EQ(s->settings.FrameOff, 0);
    EXPECT_TRUE(st.fields[5].visible);
}

TEST_F(EditPage, ChangeColorStoresTheValue)
{
    EditState st = OpenEditPage(*s, port, 1, 0);
    port.color(255);
    EXPECT_TRUE(ChangeColor(*s, port, st, 5));
    EXPECT_EQ(port.last().kind, "color");
    EXPECT_EQ(port.last().title, "COLORS");
    EXPECT_EQ(st.fields[5].Value, "255");
    EXPECT_EQ(s->settings.FrameColor, "255");
    port.color(std::nullopt);
    EXPECT_FALSE(ChangeColor(*s, port, st, 5));
    EXPECT_EQ(st.fields[5].Value, "255");
}

TEST_F(EditPage, AbortWithErrorsAsksAndTheTextStays)
{
    EditState st = OpenEditPage(*s, port, 1, 1);
    st.fields[2].Value = "40";
    port.clear();
    port.answer(Answer::No);
    EXPECT_FALSE(AbortEditPage(*s, port, st));
    ASSERT_EQ(port.shown.size(), 1u); // the dry run shows no message of its own
    EXPECT_TRUE(
        Said(port.last(),
             "THERE ARE ERRORS ON THE EDIT PAGE\rYOUR FORM WILL NOT BUILD CORRECTLY\r\rARE YOU SURE YOU WANT TO ABORT?",
             "ABORT"));
    port.answer(Answer::Yes);
    EXPECT_TRUE(AbortEditPage(*s, port, st));
    EXPECT_EQ(s->store.pages[0][1].AttributeText, kNameText);
    EXPECT_EQ(port.views.back(), View::Page1);
}
