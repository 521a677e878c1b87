// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/reorder.h"
#include "scripted_port.h"

#include <gtest/gtest.h>
#include <tuple>

using namespace tq;
using namespace tq::model;
using V = std::vector<std::string>;

namespace {
const std::string kBad = "Order number must be greater then 0 and contain a number from 1 to 100";
} // namespace

// Each case: the rows (page, row, name, number) and the first names of Page 1 afterwards.
TEST(ReorderEntries, EdgeCases)
{
    const struct
    {
        const char* what;
        std::vector<std::tuple<int, int, std::string, std::string>> rows;
        V page1;
        std::string said, title;
    } cases[] = {
        {"sorts every Page and compacts from Page 1",
         {{1, 0, "Setup", "1"}, {1, 1, "Name", "60"}, {3, 4, "Email", "2"}, {4, 24, "Subject", "3"}},
         V{"Setup", "Email", "Subject", "Name", ""},
         "The Order has been updated",
         "ORDER UPDATED"},
        {"equal numbers keep Page and row order",
         {{2, 0, "B", "5"}, {1, 3, "A", "5"}, {1, 1, "Z", "9"}, {1, 0, "C0", "5"}, {4, 0, "C", "5"}},
         V{"C0", "A", "B", "C", "Z"},
         "The Order has been updated",
         "ORDER UPDATED"},
        {"above 100 is cut, a fraction loses its row",
         {{1, 0, "Big", "150"}, {1, 1, "Half", "2.5"}, {1, 2, "Three", "3"}},
         V{"Three", "Big", ""},
         "The Order has been updated",
         "ORDER UPDATED"},
        {"a blank number, even on an empty row, stops",
         {{1, 0, "Name", "2"}, {1, 1, "Email", "1"}, {4, 20, "", ""}},
         V{"Name", "Email"},
         kBad,
         "ORDER ERROR"},
        {"a zero stops", {{1, 0, "Name", "2"}, {1, 1, "Email", "0"}}, V{"Name", "Email"}, kBad, "ORDER ERROR"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EntryStore store;
        test::ScriptedPort port;
        for (const auto& [page, row, name, number] : c.rows) {
            auto& e = GetEntry(store, page, row);
            e.InputTypeName = name;
            e.AttributeText = "[Title=" + name + "]\r\n";
            e.ReferenceNumber = number;
        }
        const bool stop = c.title == "ORDER ERROR";
        EXPECT_EQ(ReorderEntries(store, port), !stop);
        V names;
        for (size_t r = 0; r < c.page1.size(); ++r)
            names.push_back(GetEntry(store, 1, static_cast<int>(r)).InputTypeName);
        EXPECT_EQ(names, c.page1);
        ASSERT_EQ(port.messages().size(), 1u);
        EXPECT_TRUE(Said(port.last(), c.said, c.title, stop ? Icon::Critical : Icon::Information));
        if (!stop) {
            EXPECT_EQ(GetEntry(store, 1, 1).AttributeText, "[Title=" + names[1] + "]\r\n");
            EXPECT_EQ(GetEntry(store, 4, 24).ReferenceNumber, "100"); // renumbered
        }
    }
}

TEST(ReorderEntries, TheOrderCommandAsksAndABuildIsSilent)
{
    EntryStore store;
    test::ScriptedPort port;
    GetEntry(store, 1, 5).InputTypeName = "Name";
    store.state.OrderPrompt = true;
    port.answer(Answer::No);
    ASSERT_TRUE(ReorderEntries(store, port));
    EXPECT_TRUE(Said(port.last(), "Do you want to reorder your entries based on the reference numbers below?",
                     "REORDER ENTRIES"));
    EXPECT_EQ(GetEntry(store, 1, 5).InputTypeName, "Name");
    // during a build or a switch nothing is said, the rows still close up
    port.clear();
    store.state.SwitchInProgress = true;
    ASSERT_TRUE(ReorderEntries(store, port));
    EXPECT_TRUE(port.shown.empty());
    EXPECT_EQ(GetEntry(store, 1, 0).InputTypeName, "Name");
}
