// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing_fixture.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;
using namespace tq::model;
using test::EditFixture;
using V = std::vector<std::string>;

TEST(AddToFirstFreeRow, APairMovesOffRow24AndFullEntriesAreSaid)
{
    EditFixture f;
    f.fill(1, 0, 23);
    EXPECT_EQ(*AddToFirstFreeRow(f.ctx, 1, f.index("Condition With Comment")), (RowRef{2, 0}));
    EXPECT_EQ(f.name(1, 24), "");
    EXPECT_EQ(f.name(2, 1), "Followup With Comment");
    EXPECT_EQ(f.port.views, (std::vector<View>{View::Page2}));
    EXPECT_EQ(*AddToFirstFreeRow(f.ctx, 1, f.index("Name")), (RowRef{1, 24})); // a single row still fits
    for (int p = 1; p <= 4; ++p)
        f.fill(p, 0, 24);
    EXPECT_FALSE(AddToFirstFreeRow(f.ctx, 1, f.index("Name")).has_value());
    EXPECT_TRUE(Said(f.port.last(), "Entries are full", "full", Icon::Exclamation));
    EXPECT_FALSE(AddToFirstFreeRow(f.ctx, 1, -1).has_value());
    EXPECT_EQ(f.port.last().text, "nothing selected");
}

TEST(InsertAtRow, RefusalsChangeNothingAndSayWhy)
{
    EditFixture f;
    f.fill(1, 0, 0, "Setup");
    f.fill(1, 1, 1, "Condition With Comment");
    f.fill(1, 2, 2, "Followup With Comment");
    f.fill(1, 3, 24);
    const auto before = f.store.pages;
    InsertAtRow(f.ctx, 1, 2, f.index("Name"));
    EXPECT_TRUE(
        Said(f.port.last(),
             "You cannot add a Input Type above a Followup\r\rInput Types can only be added below a Followup or "
             "above a Condition Input type",
             "INVALID", Icon::Exclamation));
    f.port.clear();
    InsertAtRow(f.ctx, 1, 24, f.index("Download Files With Password"));
    EXPECT_TRUE(f.port.shown.empty()); // a pair on row 24: refused without a word
    f.store.state.DragSource = 100;
    InsertAtRow(f.ctx, 1, 5, f.index("Name"));
    EXPECT_TRUE(Said(f.port.last(),
                     "SETUP input type cannot be duplicated.\r\rOnly one instance is required to complete your FORM",
                     "CANNOT COPY SETUP"));
    EXPECT_EQ(f.store.state.DragSource, 0);
    for (int p = 0; p < 4; ++p)
        for (int r = 0; r < 25; ++r)
            EXPECT_EQ(f.store.pages[p][r].AttributeText, before[p][r].AttributeText) << p << " " << r;
}

TEST(InsertAtRow, ADraggedRowIsReadWhereTheMarkPointsAfterTheRoomIsMade)
{
    auto dragged = [](int source, int target) {
        auto f = std::make_unique<EditFixture>();
        f->fill(1, 0, 0, "Setup");
        const char* const types[] = {"Name", "Subject", "Email", "Phone Number"};
        for (int row = 1; row <= 4; ++row)
            f->fill(1, row, row, types[row - 1]);
        f->store.state.DragSource = 100 + source;
        InsertAtRow(f->ctx, 1, target, -1);
        EXPECT_EQ(f->store.state.DragSource, 0);
        return f;
    };
    // from below: the row has moved down with the room, and the mark with it
    auto f = dragged(4, 2);
    EXPECT_EQ(f->names(1, 1, 5),
              (std::vector<std::string>{"Name", "Phone Number", "Subject", "Email", "Phone Number"}));
    EXPECT_EQ(f->at(1, 2).AttributeText, "[Title=Phone Number]\r\n");
    // from above: the mark points at the row after the source
    f = dragged(1, 3);
    EXPECT_EQ(f->names(1, 1, 5), (std::vector<std::string>{"Name", "Subject", "Subject", "Email", "Phone Number"}));
    // right above the drop that row is the room itself: the drop ends with the room made
    f = dragged(2, 3);
    EXPECT_EQ(f->names(1, 1, 5), (std::vector<std::string>{"Name", "Subject", "", "Email", "Phone Number"}));
    // onto an empty row nothing moves and the source stays
    f = dragged(1, 7);
    EXPECT_EQ(f->name(1, 7), "Name");
    EXPECT_EQ(f->name(1, 1), "Name");
}

TEST(ClearAllRows, EachCallerAsksItsOwnQuestionAndNoKeepsEverything)
{
    const std::string head = "You have data on one or more pages\r\rDo you want to clear all entries on all pages";
    const std::string note = "\r\rNote: If you want to clear all entries and used the default settings then select "
                             "CLEAR ALL from the main edit screen";
    const struct
    {
        bool newProject, load;
        std::string text;
    } rows[] = {
        {false, false,
         head + " and reset the SETUP PAGE to the system defaults?\r\rNOTE: If you want to keep the settings on the "
                "SETUP PAGE then select\rFILE\rFORM\rCREATE FORM"},
        {true, false, head + " except for the settings on the SETUP PAGE?" + note},
        {false, true, head + note},
    };
    for (const auto& r : rows) {
        EditFixture f;
        f.fill(1, 0, 2);
        f.store.state.NewProjectPending = r.newProject;
        f.store.state.LoadPending = r.load;
        f.port.answer(Answer::No);
        EXPECT_FALSE(ClearAllRows(f.ctx, 1));
        EXPECT_EQ(f.store.state.AbortFlag, 1);
        EXPECT_EQ(f.name(1, 2), "Name");
        EXPECT_EQ(f.port.last().kind, "ask");
        EXPECT_EQ(f.port.last().buttons, Buttons::YesNo);
        EXPECT_TRUE(Said(f.port.last(), r.text, "Clear Entries"));
    }
    // two rows or fewer: no question
    EditFixture f;
    f.fill(1, 0, 1);
    EXPECT_TRUE(ClearAllRows(f.ctx, 1));
    EXPECT_TRUE(f.port.shown.empty());
    EXPECT_EQ(f.name(1, 1), "");
}
