// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/entry_store.h"
#include "scripted_port.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;

TEST(EntryStore, RowsStartWithTheirOrdinalAndRowsOutsideThePagesAreInternalErrors)
{
    EntryStore store;
    EXPECT_EQ(GetEntry(store, 1, 0).ReferenceNumber, "1");
    EXPECT_EQ(GetEntry(store, 1, 24).ReferenceNumber, "25");
    EXPECT_EQ(GetEntry(store, 2, 0).ReferenceNumber, "26");
    EXPECT_EQ(GetEntry(store, 4, 24).ReferenceNumber, "100");
    GetEntry(store, 3, 5).ReferenceNumber = "7x";
    InitRowBookkeeping(store);
    EXPECT_EQ(GetEntry(store, 3, 5).ReferenceNumber, "56");
    EXPECT_THROW(GetEntry(store, 0, 0), InternalError);
    EXPECT_THROW(GetEntry(store, 5, 0), InternalError);
    EXPECT_THROW(GetEntry(store, 1, -1), InternalError);
    EXPECT_THROW(GetEntry(store, 1, 25), InternalError);
    test::ScriptedPort port;
    EXPECT_THROW(SetAttributeText(store, port, 4, 25, "[A=1]"), InternalError);
    EXPECT_THROW(SetInputTypeName(store, 0, 3, "Name"), InternalError);
}

TEST(EntryStore, ReferenceNumberSurvivesEmptyingTheRows)
{
    EntryStore store;
    SetInputTypeName(store, 2, 3, "Name");
    SetAttributeTextAsRead(store, 2, 3, "[Title=A]\r\n");
    GetEntry(store, 2, 3).ReferenceNumber = "";
    ResetEntries(store);
    EXPECT_EQ(GetEntry(store, 2, 3).InputTypeName, "");
    EXPECT_EQ(GetEntry(store, 2, 3).AttributeText, "");
    EXPECT_EQ(GetEntry(store, 2, 3).ReferenceNumber, ""); // a blank typed number stays blank
    EXPECT_EQ(GetEntry(store, 2, 4).ReferenceNumber, "30");
}

TEST(EntryStore, SetAttributeTextNormalisesUnlessARowIsDragged)
{
    EntryStore store;
    test::ScriptedPort port;
    SetAttributeText(store, port, 1, 2, "[Title=A] [Info: x] [Align=left] [Choices=left,right]");
    EXPECT_EQ(GetEntry(store, 1, 2).AttributeText,
              "[Title=A]\r\n[Info: x]\r\n\r\n[Align=left]\r\n[Choices=left,right]\r\n");
    // a drag from a row (100 + row) stores the moved text as it is
    const std::string moved = "[Title=A]\r\n[Info: x]\r\n\r\n[Align=left]\r\n";
    store.state.DragSource = 99;
    SetAttributeText(store, port, 1, 3, moved);
    EXPECT_EQ(GetEntry(store, 1, 3).AttributeText, moved);
    store.state.DragSource = 98;
    SetAttributeText(store, port, 1, 3, moved);
    EXPECT_EQ(GetEntry(store, 1, 3).AttributeText, "[Title=A]\r\n");
    // a text read from a project file is stored as read
    SetAttributeTextAsRead(store, 1, 4, moved);
    EXPECT_EQ(GetEntry(store, 1, 4).AttributeText, moved);
    EXPECT_TRUE(port.shown.empty());
}

TEST(EntryStore, CountFilledRowsLooksForTheExactlyEmptyName)
{
    EntryStore store;
    EXPECT_EQ(CountFilledRows(store), 0);
    SetInputTypeName(store, 1, 0, "Setup");
    EXPECT_EQ(CountFilledRows(store), 1);
    SetInputTypeName(store, 4, 24, "Name");
    SetInputTypeName(store, 3, 7, "  "); // blanks count here
    EXPECT_EQ(CountFilledRows(store), 3);
}

TEST(EntryStore, EditMarkersAndHighlights)
{
    EntryStore store;
    SetInputTypeName(store, 2, 5, "Name");
    SetInputTypeName(store, 3, 1, " ");
    GetEntry(store, 4, 9).EditEnabled = true;
    RefreshEditMarkers(store);
    EXPECT_TRUE(GetEntry(store, 1, 0).EditEnabled); // empty SetupEntry row still offers Edit
    EXPECT_TRUE(GetEntry(store, 2, 5).EditEnabled);
    EXPECT_TRUE(GetEntry(store, 3, 1).EditEnabled);
    EXPECT_FALSE(GetEntry(store, 4, 9).EditEnabled);
    ClearEditMarkers(store);
    EXPECT_TRUE(GetEntry(store, 1, 0).EditEnabled);
    EXPECT_FALSE(GetEntry(store, 2, 5).EditEnabled);
    GetEntry(store, 2, 2).highlight = Highlight::Red;
    GetEntry(store, 4, 24).highlight = Highlight::Green;
    store.state.PreviewFromEdit = true;
    ClearHighlights(store);
    EXPECT_EQ(GetEntry(store, 2, 2).highlight, Highlight::Red);
    store.state.PreviewFromEdit = false;
    ClearHighlights(store);
    EXPECT_EQ(GetEntry(store, 2, 2).highlight, Highlight::None);
    EXPECT_EQ(GetEntry(store, 4, 24).highlight, Highlight::None);
}

TEST(FlatList, GathersRowsInUseInPageAndRowOrder)
{
    EntryStore store;
    SetInputTypeName(store, 1, 0, "Setup");
    SetAttributeTextAsRead(store, 1, 0, "[Background Color=1]\r\n");
    SetInputTypeName(store, 3, 2, "Name");
    SetAttributeTextAsRead(store, 3, 2, "[Title=N]\r\n");
    SetInputTypeName(store, 2, 24, "Email");
    SetInputTypeName(store, 2, 1, "   "); // blank after trimming: not in use
    FlatList list;
    list.push("stale");
    FillFlatList(store, list);
    EXPECT_EQ(list.EntryLineCount, 6);
    EXPECT_EQ(list.at(1), "Setup");
    EXPECT_EQ(list.at(2), "[Background Color=1]\r\n");
    EXPECT_EQ(list.at(3), "Email");
    EXPECT_EQ(list.at(5), "Name");
    EXPECT_EQ(list.at(6), "[Title=N]\r\n");
    EXPECT_EQ(list.at(7), "");
    EXPECT_THROW(list.at(0), InternalError);
    EXPECT_THROW(list.at(401), InternalError);
}

TEST(FlatList, FullPagesTakeTwoHundredLinesAndTheListBoundIsFourHundred)
{
    EntryStore store;
    for (int p = 1; p <= 4; ++p)
        for (int r = 0; r < 25; ++r)
            SetInputTypeName(store, p, r, "T" + std::to_string(RowOrdinal(p, r)));
    FlatList list;
    FillFlatList(store, list);
    EXPECT_EQ(list.EntryLineCount, 200);
    EXPECT_EQ(list.at(199), "T100");
    while (list.EntryLineCount < 400)
        list.push("more");
    EXPECT_THROW(list.push("one more"), InternalError);
}

TEST(FlatList, FlatLineToRowTestsTheLineNumber)
{
    for (int bad : {0, 201, -5})
        EXPECT_THROW(FlatLineToRow(bad), InternalError) << bad;
    // every line maps to the row of ordinal (n + 1) / 2: 25 rows a page, two lines a row
    for (int n = 1; n <= 200; ++n) {
        const int k = (n + 1) / 2;
        EXPECT_EQ(FlatLineToRow(n), (RowRef{(k - 1) / 25 + 1, (k - 1) % 25})) << n;
        EXPECT_EQ(RowOrdinal((k - 1) / 25 + 1, (k - 1) % 25), k);
    }
}
