// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/catalogue.h"
#include "model/entry_store.h"
#include "scripted_port.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;

TEST(Bounds, RowsLinesAndTemplatesOutsideTheirListsAreInternalErrors)
{
    EntryStore store;
    test::ScriptedPort port;
    EXPECT_THROW(GetEntry(store, 0, 0), InternalError);
    EXPECT_THROW(GetEntry(store, 5, 0), InternalError);
    EXPECT_THROW(GetEntry(store, 1, -1), InternalError);
    EXPECT_THROW(GetEntry(store, 1, 25), InternalError);
    EXPECT_THROW(SetAttributeText(store, port, 4, 25, "[A=1]"), InternalError);
    EXPECT_THROW(SetInputTypeName(store, 0, 3, "Name"), InternalError);
    for (int bad : {0, 201, -5})
        EXPECT_THROW(FlatLineToRow(bad), InternalError) << bad;
    for (int p = 1; p <= 4; ++p)
        for (int r = 0; r < 25; ++r)
            SetInputTypeName(store, p, r, "T");
    FlatList list;
    FillFlatList(store, list);
    EXPECT_EQ(list.EntryLineCount, 200);
    while (list.EntryLineCount < 400)
        list.push("more");
    EXPECT_THROW(list.push("one more"), InternalError);
    EXPECT_THROW(list.at(0), InternalError);
    Catalogue catalogue;
    TemplateSettings settings;
    BuildCatalogue(catalogue, settings, store.state);
    EXPECT_THROW(CatalogueName(catalogue, 33), InternalError);
    EXPECT_THROW(CatalogueTemplate(catalogue, -1), InternalError);
    EXPECT_NO_THROW(CatalogueTemplate(catalogue, 32));
}
