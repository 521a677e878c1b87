// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing_fixture.h"
#include "model/attribute_text.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;
using test::EditFixture;
using V = std::vector<std::string>;

// --- AddToFirstFreeRow ------------------------------------------------------

TEST(AddToFirstFreeRow, StoresTheTemplateInStoredFormAtTheFirstEmptyRow)
{
    EditFixture f;
    f.fill(1, 0, 2);
    const auto at = AddToFirstFreeRow(f.ctx, 1, f.index("Email"));
    ASSERT_TRUE(at.has_value());
    EXPECT_EQ(*at, (RowRef{1, 3}));
    EXPECT_EQ(f.name(1, 3), "Email");
    test::ScriptedPort quiet;
    EXPECT_EQ(f.at(1, 3).AttributeText,
              NormalizeAttributeText(quiet, CatalogueTemplate(f.catalogue, f.index("Email"))));
    EXPECT_TRUE(f.at(1, 3).EditEnabled);
    EXPECT_EQ(f.catalogue.PickListIndex, f.index("Email"));
}

TEST(AddToFirstFreeRow, APairBringsItsFollowupOfTheActiveMode)
{
    EditFixture f("SURVEY");
    AddToFirstFreeRow(f.ctx, 1, f.index("Condition With Dropdown"));
    EXPECT_EQ(f.names(1, 0, 1), (V{"Condition With Dropdown", "Followup With Dropdown"}));
    EXPECT_NE(f.at(1, 1).AttributeText.find("[Align=center]"), std::string::npos);
}

TEST(AddToFirstFreeRow, APairNeverStartsOnRow24AndMovesToTheNextPage)
{
    EditFixture f;
    f.fill(1, 0, 23);
    const auto at = AddToFirstFreeRow(f.ctx, 1, f.index("Condition With Comment"));
    ASSERT_TRUE(at.has_value());
    EXPECT_EQ(*at, (RowRef{2, 0}));
    EXPECT_EQ(f.name(1, 24), "");
    EXPECT_EQ(f.name(2, 1), "Followup With Comment");
    EXPECT_EQ(f.port.views, (std::vector<View>{View::Page2}));
    // a single-row type still takes row 24
    EXPECT_EQ(*AddToFirstFreeRow(f.ctx, 1, f.index("Name")), (RowRef{1, 24}));
}

TEST(AddToFirstFreeRow, FullPagesRunOnToPage4ThenEntriesAreFullAndNothingSelectedIsSaid)
{
    EditFixture f;
    for (int p = 1; p <= 4; ++p)
        f.fill(p, 0, 24);
    f.at(4, 24).InputTypeName.clear();
    EXPECT_EQ(*AddToFirstFreeRow(f.ctx, 2, f.index("Name")), (RowRef{4, 24}));
    EXPECT_TRUE(f.port.shown.empty());
    EXPECT_FALSE(AddToFirstFreeRow(f.ctx, 1, f.index("Name")).has_value());
    ASSERT_EQ(f.port.messages().size(), 1u);
    EXPECT_TRUE(Said(f.port.last(), "Entries are full", "full", Icon::Exclamation));
    EXPECT_FALSE(AddToFirstFreeRow(f.ctx, 1, -1).has_value());
    EXPECT_EQ(f.port.last().text, "nothing selected");
}

TEST(AddToFirstFreeRow, AQuickPreviewFillsItsSlotsAndNoRow)
{
    EditFixture f;
    f.store.state.QuickPreviewActive = true;
    EXPECT_FALSE(AddToFirstFreeRow(f.ctx, 1, f.index("Download Files With Password")).has_value());
    EXPECT_EQ(f.name(1, 0), "");
    EXPECT_EQ(f.store.state.PreviewSlots[0].InputTypeName, "Download Files With Password");
    EXPECT_EQ(f.store.state.PreviewSlots[1].InputTypeName, "Followup Files With Password");
    EXPECT_EQ(f.store.state.PreviewSlots[1].AttributeText.substr(0, 25), "[Title=Enter the password");
}

// --- InsertAtRow ----------------------------------------------------------

TEST(InsertAtRow, ANewTypeOnAFilledRowPushesThePageDownAndRow24FallsOff)
{
    EditFixture f;
    for (int r = 0; r <= 24; ++r)
        f.put(1, r, "T" + std::to_string(r));
    InsertAtRow(f.ctx, 1, 3, f.index("Email"));
    EXPECT_EQ(f.names(1, 2, 4), (V{"T2", "Email", "T3"}));
    EXPECT_EQ(f.name(1, 24), "T23");
    EXPECT_EQ(f.name(2, 0), ""); // nothing crosses to the next Page
}

TEST(InsertAtRow, APairOnAFilledRowOpensTwoRows)
{
    EditFixture f;
    f.fill(1, 0, 5);
    f.put(1, 3, "Subject");
    InsertAtRow(f.ctx, 1, 3, f.index("Condition With Multiple Choices"));
    EXPECT_EQ(f.names(1, 3, 5), (V{"Condition With Multiple Choices", "Followup With Multiple Choices", "Subject"}));
    EXPECT_EQ(f.names(1, 7, 8), (V{"Name", ""}));
}

TEST(InsertAtRow, ADraggedRowIsCopiedAndOtherRowsStay)
{
    EditFixture f;
    f.put(1, 0, "Setup");
    f.put(1, 1, "Name");
    f.put(1, 2, "Email");
    f.at(1, 2).AttributeText = "[Title=as edited]  \r\n"; // kept as it stands
    f.store.state.DragSource = 100 + 2;
    InsertAtRow(f.ctx, 1, 6, f.index("Subject"));
    EXPECT_EQ(f.name(1, 6), "Email");
    EXPECT_EQ(f.at(1, 6).AttributeText, "[Title=as edited]  \r\n");
    EXPECT_EQ(f.names(1, 2, 3), (V{"Email", ""}));
    EXPECT_EQ(f.store.state.DragSource, 0);
}

TEST(InsertAtRow, RefusalsChangeNothingAndSayWhy)
{
    EditFixture f;
    f.put(1, 0, "Setup");
    f.put(1, 1, "Condition With Comment");
    f.put(1, 2, "Followup With Comment");
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
        for (int r = 0; r < 25; ++r) {
            EXPECT_EQ(f.store.pages[p][r].InputTypeName, before[p][r].InputTypeName);
            EXPECT_EQ(f.store.pages[p][r].AttributeText, before[p][r].AttributeText);
        }
}

TEST(InsertAtRow, DroppingAboveAConditionIsAllowed)
{
    EditFixture f;
    f.put(1, 1, "Condition With Comment");
    f.put(1, 2, "Followup With Comment");
    InsertAtRow(f.ctx, 1, 1, f.index("Name"));
    EXPECT_EQ(f.names(1, 1, 3), (V{"Name", "Condition With Comment", "Followup With Comment"}));
}

// --- InsertRows -----------------------------------------------------------

TEST(InsertRows, ModesOpenTwoOrOneRowBeforeTheRow)
{
    EditFixture f;
    for (int r = 0; r <= 24; ++r)
        f.put(2, r, "T" + std::to_string(r));
    f.at(2, 7).ReferenceNumber = "kept";
    InsertRows(f.store, 2, 6, 1);
    EXPECT_EQ(f.names(2, 4, 7), (V{"T4", "", "", "T5"}));
    EXPECT_EQ(f.name(2, 24), "T22");
    EXPECT_EQ(f.at(2, 7).ReferenceNumber, "kept");
    InsertRows(f.store, 2, 1, 2);
    EXPECT_EQ(f.names(2, 0, 1), (V{"", "T0"}));
    // an empty row at the insertion point is not written again in mode 2
    f.put(1, 0, "A");
    f.put(1, 2, "C");
    InsertRows(f.store, 1, 2, 2); // row 1 is empty
    EXPECT_EQ(f.names(1, 0, 2), (V{"A", "", "C"}));
}

// --- ClearRow -------------------------------------------------------------

TEST(ClearRow, EitherHalfOfAPairClearsBothASingleRowItself)
{
    EditFixture f;
    f.put(1, 3, "Condition With Dropdown");
    f.put(1, 4, "Followup With Dropdown");
    f.put(1, 5, "Name");
    f.at(1, 3).ReferenceNumber = "9";
    ClearRow(f.ctx, 1, 4);
    EXPECT_EQ(f.names(1, 3, 5), (V{"", "", "Name"}));
    EXPECT_EQ(f.at(1, 3).ReferenceNumber, "9");
    f.put(3, 10, "Download Files With Password");
    f.put(3, 11, "Followup Files With Password");
    ClearRow(f.ctx, 3, 10);
    EXPECT_EQ(f.name(3, 11), "");
    EXPECT_FALSE(f.at(3, 11).EditEnabled);
    f.put(1, 0, "Name");
    f.put(1, 1, "Email");
    f.put(1, 2, "Subject");
    f.at(1, 0).highlight = Highlight::Red;
    ClearRow(f.ctx, 1, 1);
    EXPECT_EQ(f.name(1, 0), "Name");
    EXPECT_EQ(f.name(1, 2), "Subject");
    EXPECT_EQ(f.at(1, 0).highlight, Highlight::None);
}

// --- ClearAllRows ---------------------------------------------------------

TEST(ClearAllRows, AsksWithTheResetTextAndOnNoKeepsEverything)
{
    EditFixture f;
    f.put(1, 0, "Setup");
    f.fill(1, 1, 3);
    f.port.answer(Answer::No);
    EXPECT_FALSE(ClearAllRows(f.ctx, 1));
    EXPECT_EQ(f.store.state.AbortFlag, 1);
    EXPECT_EQ(f.name(1, 3), "Name");
    EXPECT_EQ(f.port.last().kind, "ask");
    EXPECT_EQ(f.port.last().title, "Clear Entries");
    EXPECT_EQ(f.port.last().buttons, Buttons::YesNo);
    EXPECT_EQ(f.port.last().text,
              "You have data on one or more pages\r\rDo you want to clear all entries on all pages and reset the "
              "SETUP PAGE to the system defaults?\r\rNOTE: If you want to keep the settings on the SETUP PAGE then "
              "select\rFILE\rFORM\rCREATE FORM");
}

TEST(ClearAllRows, NewProjectAndLoadHaveTheirOwnQuestions)
{
    EditFixture f;
    f.fill(1, 0, 2);
    f.store.state.NewProjectPending = true;
    f.port.answer(Answer::Yes);
    EXPECT_TRUE(ClearAllRows(f.ctx, 1));
    EXPECT_EQ(f.port.last().text,
              "You have data on one or more pages\r\rDo you want to clear all entries on all pages except for the "
              "settings on the SETUP PAGE?\r\rNote: If you want to clear all entries and used the default settings "
              "then select CLEAR ALL from the main edit screen");
    f.fill(1, 0, 2);
    f.store.state.NewProjectPending = false;
    f.store.state.LoadPending = true;
    f.port.answer(Answer::Yes);
    EXPECT_TRUE(ClearAllRows(f.ctx, 1));
    EXPECT_EQ(f.port.last().text,
              "You have data on one or more pages\r\rDo you want to clear all entries on all pages\r\rNote: If you "
              "want to clear all entries and used the default settings then select CLEAR ALL from the main edit "
              "screen");
}

TEST(ClearAllRows, NoQuestionForOneOrExactlyTwoRowsModes2And22OrASkippedPrompt)
{
    for (int filled : {1, 2}) {
        EditFixture f;
        f.fill(1, 0, filled - 1);
        EXPECT_TRUE(ClearAllRows(f.ctx, 1));
        EXPECT_TRUE(f.port.shown.empty());
    }
    for (int mode : {2, 22}) {
        EditFixture f;
        f.fill(1, 0, 9);
        EXPECT_TRUE(ClearAllRows(f.ctx, mode));
        EXPECT_TRUE(f.port.shown.empty());
        EXPECT_EQ(f.name(1, 9), "");
    }
    EditFixture f;
    f.fill(1, 0, 9);
    f.store.state.SkipClearPrompt = true;
    EXPECT_TRUE(ClearAllRows(f.ctx, 1));
    EXPECT_FALSE(f.store.state.SkipClearPrompt); // one shot
    EXPECT_TRUE(f.port.shown.empty());
}

TEST(ClearAllRows, EmptiesEveryRowKeepsNumbersAndSavesTheSetupRow)
{
    EditFixture f;
    f.put(1, 0, "Setup");
    f.put(4, 24, "Name");
    f.at(4, 24).ReferenceNumber = "77";
    f.settings.Bold = "on";
    EXPECT_TRUE(ClearAllRows(f.ctx, 2));
    EXPECT_EQ(f.name(1, 0), "");
    EXPECT_EQ(f.name(4, 24), "");
    EXPECT_EQ(f.at(4, 24).ReferenceNumber, "77");
    EXPECT_EQ(f.store.state.SavedSetupName, "Setup");
    EXPECT_EQ(f.store.state.SavedSetupText, "[Title=Setup]\r\n");
    EXPECT_EQ(f.settings.Bold, "off");
    EXPECT_TRUE(f.at(1, 0).EditEnabled);
    EXPECT_FALSE(f.at(1, 1).EditEnabled);
    // the switch menus regenerate the SetupEntry: nothing is saved then
    f.put(1, 0, "Setup");
    f.at(1, 0).AttributeText = "other";
    f.store.state.KeepSetupRow = true;
    EXPECT_TRUE(ClearAllRows(f.ctx, 2));
    EXPECT_EQ(f.store.state.SavedSetupText, "[Title=Setup]\r\n");
}

TEST(ClearAllRows, ClrAllLeavesOnlyADefaultSetupRow)
{
    EditFixture f;
    f.put(1, 0, "Setup");
    f.fill(2, 0, 4);
    f.settings.FromName = "Me";
    f.port.answer(Answer::Yes);
    ClearAllCommand(f.ctx);
    EXPECT_EQ(f.name(1, 0), "Setup");
    EXPECT_NE(f.at(1, 0).AttributeText.find("[FROM=;My Web Page]\r\n"), std::string::npos);
    EXPECT_EQ(CountFilledRows(f.store), 1);
    f.fill(2, 0, 4);
    f.port.answer(Answer::No);
    ClearAllCommand(f.ctx);
    EXPECT_EQ(CountFilledRows(f.store), 6);
}
