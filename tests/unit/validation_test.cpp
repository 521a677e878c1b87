// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/validation.h"
#include "scripted_port.h"
#include "session.h"

#include <gtest/gtest.h>

using tq::Icon;
using tq::Session;
using tq::View;
using tq::test::ScriptedPort;
using namespace tq::build;

namespace {

std::pair<int, int> Locate(int slot)
{
    int row = -1;
    int page = -1;
    LocateEntry(slot, row, page);
    return {page, row};
}

TEST(LocateEntry, SlotsMapToPagesOfTwentyFiveRows)
{
    // two slots a row (type and text), 25 rows a Page
    for (int slot = 1; slot <= 200; ++slot) {
        const int k = (slot + 1) / 2;
        EXPECT_EQ(Locate(slot), std::make_pair((k - 1) / 25 + 1, (k - 1) % 25)) << slot;
    }
}

TEST(FixLineBreaks, JoinsTheLinesWithNothingBetween)
{
    const std::pair<std::string, std::string> rows[] = {
        {"[Title=A]\r\n\r\n[Info: x]\r\n", "[Title=A][Info: x]"},
        {"a\r\r\n\nb", "ab"}, // the pair that a removal brings together goes too
        {"a\n\rb\r", "a\n\rb\r"}};
    for (auto [text, joined] : rows) {
        FixLineBreaks(text);
        EXPECT_EQ(text, joined);
    }
}

TEST(Reports, UnknownTypeShowsThePageAndTheStopBox)
{
    Session s;
    ScriptedPort ui;
    s.build.buildError = 5;
    ReportUnknownType(s, ui, 53, "Marquee Text");
    EXPECT_EQ(s.build.buildError, 1);
    ASSERT_EQ(ui.views.size(), 1u);
    EXPECT_EQ(ui.views[0], View::Page2);
    ASSERT_EQ(ui.selectedRows.size(), 1u);
    EXPECT_EQ(ui.selectedRows[0], std::make_pair(2, 1));
    EXPECT_TRUE(Said(ui.last(),
                     "MARQUEE TEXT is not a valid input type.\r\rPlease remove the MARQUEE TEXT from the list", "ERROR",
                     Icon::Critical));
}

TEST(Reports, BuildFaultOpensTheEntry)
{
    Session s;
    ScriptedPort ui;
    s.build.buildError = 1;
    ReportBuildFault(s, ui, 105);
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_EQ(ui.views, std::vector<View>{View::Page3});
    ASSERT_EQ(ui.editCalls.size(), 1u);
    EXPECT_EQ(ui.editCalls[0].page, 3);
    EXPECT_EQ(ui.editCalls[0].row, 2);
    EXPECT_TRUE(ui.shown.empty());
}

TEST(RewriteAttribute, ReplacesTheKeyLineThroughTheScratchFiles)
{
    tq::test::TempDir dir;
    Session s;
    s.DataFolder = dir.path();
    s.build.buildError = 1;
    std::string text = "[Title=A]\r\n[Info: x]\r\n\r\n[Align=left]\r\n[Choices=left,right,center]\r\n";
    RewriteAttribute(s, "[ALIGN", "center", text);
    EXPECT_EQ(s.build.buildError, 0);
    const std::string expected = "[Title=A]\r\n[Info: x]\r\n\r\n[Align=center]\r\n[Choices=left,right,center]\r\n";
    EXPECT_EQ(text, expected);
    EXPECT_EQ(tq::test::ReadFileBytes(dir.file("temp11.txt")), expected);
    EXPECT_EQ(tq::test::ReadFileBytes(dir.file("temp.txt")), expected);
}

TEST(RewriteAttribute, AFolderThatCannotBeWrittenSetsBuildError)
{
    Session s;
    s.DataFolder = "/nonexistent/tarnquill";
    std::string text = "[Align=left]\r\n";
    RewriteAttribute(s, "[ALIGN", "center", text);
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_EQ(text, "[Align=left]\r\n");
}

TEST(Pairs, AConditionKeepsItsFollowupBehindIt)
{
    tq::model::EntryStore store;
    auto& page = store.pages[1];
    page[3] = {"Condition With Comment", "", "7"};
    page[4] = {"Followup With Comment", "", "8"};
    EXPECT_TRUE(KeepPairTogether(store, 2, 3));
    EXPECT_EQ(page[4].ReferenceNumber, "7");
    page[6] = {"Download Files With Password", "", "9"};
    page[7] = {"Followup Files With Password", "", "10"};
    EXPECT_FALSE(KeepPairTogether(store, 2, 6)); // the download test never holds
    EXPECT_EQ(page[7].ReferenceNumber, "10");
    page[24] = {"condition with dropdown", "", "3"};
    EXPECT_FALSE(KeepPairTogether(store, 2, 24)); // no row below
}

TEST(Pairs, NamesTellConditionsAndFollowups)
{
    EXPECT_TRUE(IsConditionType("condition with dropdown"));
    EXPECT_FALSE(IsConditionType("Conditio"));
    EXPECT_TRUE(IsFollowupType("Followup Files With Password"));
    EXPECT_FALSE(IsFollowupType("Follow up"));
    EXPECT_TRUE(IsDownloadKey("downl13"));
    EXPECT_TRUE(IsConditionKey("CONDI9d"));
    EXPECT_FALSE(IsDownloadKey("dow"));
}

} // namespace
