// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/reorder.h"
#include "scripted_port.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;

namespace {
struct Rows
{
    EntryStore store;
    test::ScriptedPort port;

    Entry& at(int page, int row) { return GetEntry(store, page, row); }
    void put(int page, int row, std::string name, std::string number)
    {
        at(page, row).InputTypeName = name;
        at(page, row).AttributeText = "[Title=" + name + "]\r\n";
        at(page, row).ReferenceNumber = std::move(number);
    }
    std::vector<std::string> names(int page, int count)
    {
        std::vector<std::string> out;
        for (int r = 0; r < count; ++r)
            out.push_back(at(page, r).InputTypeName);
        return out;
    }
};
} // namespace

TEST(LeadingNumber, ReadsTheNumberAtTheFrontOfTheText)
{
    const std::pair<const char*, double> rows[] = {{"12abc", 12}, {"  7", 7}, {"2.5", 2.5}, {"-3", -3},
                                                   {"1e2", 100},  {"", 0},    {"abc", 0},   {".", 0}};
    for (const auto& [text, number] : rows)
        EXPECT_EQ(LeadingNumber(text), number) << text;
}

TEST(ReorderEntries, SortsAllPagesByNumberAndCompactsFromPage1)
{
    Rows r;
    r.put(1, 0, "Setup", "1");
    r.put(1, 1, "Name", "60");
    r.put(3, 4, "Email", "2");
    r.put(4, 24, "Subject", "3");
    ASSERT_TRUE(ReorderEntries(r.store, r.port));
    EXPECT_EQ(r.names(1, 5), (std::vector<std::string>{"Setup", "Email", "Subject", "Name", ""}));
    EXPECT_EQ(r.at(3, 4).InputTypeName, "");
    EXPECT_EQ(r.at(1, 1).AttributeText, "[Title=Email]\r\n");
    for (int p = 1; p <= 4; ++p)
        for (int row = 0; row < 25; ++row)
            EXPECT_EQ(r.at(p, row).ReferenceNumber, std::to_string(25 * (p - 1) + row + 1));
    EXPECT_TRUE(Said(r.port.last(), "The Order has been updated", "ORDER UPDATED", Icon::Information));
    EXPECT_TRUE(r.at(1, 3).EditEnabled);
}

TEST(ReorderEntries, EqualNumbersKeepPageAndRowOrder)
{
    Rows r;
    r.put(2, 0, "B", "5");
    r.put(1, 3, "A", "5");
    r.put(1, 1, "Z", "9");
    r.put(1, 0, "Condition With Comment", "5");
    r.put(4, 0, "C", "5");
    ASSERT_TRUE(ReorderEntries(r.store, r.port));
    EXPECT_EQ(r.names(1, 5), (std::vector<std::string>{"Condition With Comment", "A", "B", "C", "Z"}));
}

TEST(ReorderEntries, NumbersAbove100AreCutAndFractionsAreLost)
{
    Rows r;
    r.put(1, 0, "Big", "150");
    r.put(1, 1, "Half", "2.5");
    r.put(1, 2, "Three", "3");
    ASSERT_TRUE(ReorderEntries(r.store, r.port));
    EXPECT_EQ(r.names(1, 3), (std::vector<std::string>{"Three", "Big", ""}));
    for (int p = 1; p <= 4; ++p)
        for (int row = 0; row < 25; ++row)
            EXPECT_NE(r.at(p, row).InputTypeName, "Half");
}

TEST(ReorderEntries, AZeroOrBlankNumberOnAnyRowStopsWithNoRowMoved)
{
    for (const char* bad : {"", "0", "abc", " "}) {
        Rows r;
        r.put(1, 0, "Name", "2");
        r.put(1, 1, "Email", "1");
        r.at(4, 20).ReferenceNumber = bad; // an empty row
        EXPECT_FALSE(ReorderEntries(r.store, r.port));
        EXPECT_EQ(r.store.state.buildError, 1);
        EXPECT_EQ(r.names(1, 2), (std::vector<std::string>{"Name", "Email"}));
        ASSERT_EQ(r.port.messages().size(), 1u);
        EXPECT_TRUE(Said(r.port.last(), "Order number must be greater then 0 and contain a number from 1 to 100",
                         "ORDER ERROR", Icon::Critical));
    }
}

TEST(ReorderEntries, MovesOnLaterPagesAloneCountAsUnchanged)
{
    Rows r;
    for (int row = 0; row < 25; ++row)
        r.put(1, row, "P1 " + std::to_string(row), std::to_string(row + 1));
    r.put(3, 0, "Late", "52");
    r.put(3, 1, "Early", "51");
    r.store.state.ProjectMode = "survey";
    ASSERT_TRUE(ReorderEntries(r.store, r.port));
    EXPECT_EQ(r.names(2, 2), (std::vector<std::string>{"Early", "Late"})); // they moved all the same
    EXPECT_TRUE(
        Said(r.port.last(),
             "The Survey is already in sequential order and does not need to be sorted.\r\rTo change the Order, "
             "change the numbers below the Order button.",
             "NO CHANGES NEEDED"));
}

TEST(ReorderEntries, ABuildOrASwitchIsSilentButStillCompacts)
{
    Rows r;
    r.put(1, 5, "Name", "6");
    r.store.state.SwitchInProgress = true;
    ASSERT_TRUE(ReorderEntries(r.store, r.port));
    EXPECT_TRUE(r.port.shown.empty());
    EXPECT_EQ(r.at(1, 0).InputTypeName, "Name");
}

TEST(ReorderEntries, TheOrderCommandAsksFirst)
{
    Rows r;
    r.put(1, 5, "Name", "6");
    r.store.state.OrderPrompt = true;
    r.port.answer(Answer::No);
    ASSERT_TRUE(ReorderEntries(r.store, r.port));
    EXPECT_FALSE(r.store.state.OrderPrompt);
    EXPECT_EQ(r.port.shown.size(), 1u);
    EXPECT_TRUE(Said(r.port.last(), "Do you want to reorder your entries based on the reference numbers below?",
                     "REORDER ENTRIES"));
    EXPECT_EQ(r.at(1, 5).InputTypeName, "Name");
    r.store.state.OrderPrompt = true;
    r.port.answer(Answer::Yes);
    ASSERT_TRUE(ReorderEntries(r.store, r.port));
    EXPECT_EQ(r.at(1, 0).InputTypeName, "Name");
}

TEST(FollowPartnerNumber, AConditionGivesItsNumberToTheRowBelowADownloadDoesNot)
{
    Rows r;
    r.put(1, 3, "condition with dropdown", "12");
    r.put(1, 4, "Followup With Dropdown", "5");
    FollowPartnerNumber(r.store, 1, 3);
    EXPECT_EQ(r.at(1, 4).ReferenceNumber, "12");
    r.put(2, 3, "Download Files With Password", "12");
    r.put(2, 4, "Followup Files With Password", "5");
    FollowPartnerNumber(r.store, 2, 3);
    EXPECT_EQ(r.at(2, 4).ReferenceNumber, "5");
    r.put(2, 24, "Condition With Comment", "3");
    FollowPartnerNumber(r.store, 2, 24); // no row below
    EXPECT_EQ(r.at(3, 0).ReferenceNumber, "51");
}

TEST(FindTableEntry, ReordersAndLooksForATable)
{
    Rows r;
    r.put(1, 0, "Setup", "1");
    r.store.state.SwitchInProgress = true;
    EXPECT_FALSE(FindTableEntry(r.store, r.port));
    r.put(4, 2, "Table Text Required", "3");
    EXPECT_TRUE(FindTableEntry(r.store, r.port));
    EXPECT_EQ(r.at(1, 1).InputTypeName, "Table Text Required");
    r.at(2, 2).ReferenceNumber = "0";
    EXPECT_FALSE(FindTableEntry(r.store, r.port));
}
