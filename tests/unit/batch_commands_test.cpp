// SPDX-License-Identifier: GPL-3.0-or-later
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "shell/batch_commands.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;
using tq::test::Group;

namespace {

struct BatchCommands : ::testing::Test
{
    test::TempDir data;
    std::unique_ptr<Session> s = std::make_unique<Session>();
    test::ScriptedPort port;
    const std::string name = Group("[Title=Name]", "[Info: t]") + Group("[Align=left]", "[Choices=l]") +
                             Group("[Text Color=0]", "[Choices=c]");
    const std::string table = Group("[Title=Speed]", "[Info: t]") + Group("[Align=center]", "[Choices=l]") +
                              Group("[Text Color=0]", "[Choices=c]") +
                              Group("[Answer Back Color=12632256]", "[Info: b]");

    void SetUp() override
    {
        s->DataFolder = data.path();
        s->store.pages[0][0] = {"Setup", Group("[GLOBAL ALIGN=NONE]", "[Info: g]"), "1", true};
    }
    void fill()
    {
        s->store.pages[0][1] = {"Name", name, "2", true};
        s->store.pages[2][0] = {"Table Text Required", table, "3", true};
    }
};

} // namespace

TEST_F(BatchCommands, AlignmentNeedsAnEntryAndAGoodAnswerAndSaysWhenNoRowHasTheKey)
{
    EXPECT_EQ(shell::SetAlignmentOnAll(*s, port, "[ALIGN"), -1);
    EXPECT_TRUE(Said(port.last(), "You must add an entry to the list before you can make changes", "ERROR"));

    fill();
    port.clear();
    port.input("middle");
    port.input(" Right ");
    EXPECT_EQ(shell::SetAlignmentOnAll(*s, port, "[ALIGN"), 2);
    EXPECT_EQ(port.shown[0].title, "ALIGN");
    EXPECT_TRUE(Said(port.shown[1], "Value must be left, right or center", "ERROR"));
    EXPECT_EQ(port.shown.size(), 3u); // the second answer is taken without a word
    EXPECT_NE(s->store.pages[0][1].AttributeText.find("[Align=right]\r\n[Choices=l]\r\n\r\n"), std::string::npos);
    EXPECT_NE(s->store.pages[2][0].AttributeText.find("[Align=right]"), std::string::npos);
    EXPECT_EQ(s->store.pages[0][0].AttributeText, Group("[GLOBAL ALIGN=NONE]", "[Info: g]"));

    port.clear();
    port.input("left");
    EXPECT_EQ(shell::SetAlignmentOnAll(*s, port, "[TABLE ALIGN"), 0);
    EXPECT_TRUE(Said(port.last(),
                     "None of the input types that have been added contain a TABLE ALIGN\r\rTABLE ALIGN NOT FOUND",
                     "NO CHANGES MADE"));
}

TEST_F(BatchCommands, TableColoursNeedATableAndChangeTheTablesOnly)
{
    s->store.pages[0][1] = {"Name", name, "2", true};
    EXPECT_EQ(shell::SetTableColor(*s, port, true), -1);
    EXPECT_TRUE(Said(port.last(),
                     "You must first add a table to the list before you can change the foreground and background "
                     "colors\r\rBe sure to add a table to the list before continuing",
                     "No table has been added to the list"));

    fill();
    for (const bool foreground : {true, false}) {
        port.clear();
        port.color(255);
        EXPECT_EQ(shell::SetTableColor(*s, port, foreground), 1);
        ASSERT_EQ(port.shown.size(), 2u);
        EXPECT_TRUE(Said(port.shown[0],
                         foreground ? "Select the table Foreground color" : "Select the table Background color",
                         "CHOOSE A FOREGROUND COLOR"));
        EXPECT_EQ(port.shown[1].kind, "color");
        EXPECT_EQ(port.shown[1].title, "CHOOSE A FOREGROUND COLOR");
    }
    const std::string& t = s->store.pages[2][0].AttributeText;
    EXPECT_NE(t.find("[Text Color=255]"), std::string::npos);
    EXPECT_NE(t.find("[Answer Back Color=255]"), std::string::npos);
    EXPECT_EQ(s->store.pages[0][1].AttributeText, name); // not a table

    port.clear();
    port.color(std::nullopt);
    EXPECT_EQ(shell::SetTableColor(*s, port, true), -1);
}
