// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/build_driver.h"
#include "scripted_port.h"
#include "session.h"
#include "store/project_file.h"
#include "store/text_file.h"

#include <gtest/gtest.h>
#include <string>

using tq::test::ReadFileBytes;
using tq::test::ScriptedPort;
using tq::test::TempDir;

namespace {

// A session holding the e2e FORM (Setup, Title, Name, Email, ...) that builds
// into `web`.
struct ReorderFixture
{
    TempDir web;
    TempDir data;
    tq::Session s;
    ScriptedPort port;

    ReorderFixture()
    {
        s.DataFolder = data.path();
        s.store.state.ProjectMode = "FORM";
        const auto bytes = tq::store::ReadWholeFile(std::string(TQ_SOURCE_DIR) + "/tests/e2e/fixtures/e2e_form.fms");
        auto reader = tq::store::ReaderOf(bytes.value_or(""));
        tq::store::ReadEntries(s.store, reader);
        auto& setup = s.store.pages[0][0].AttributeText;
        const std::string key = "[Drive Folder Path=";
        const size_t at = setup.find(key) + key.size();
        setup.replace(at, setup.find(']', at) - at, web.path());
    }

    std::string html() { return ReadFileBytes(web.file("formtql.htm")); }
};

} // namespace

TEST(BuildReorder, RowsAreBuiltInReferenceOrderAndCompacted)
{
    ReorderFixture f;
    auto& rows = f.s.store.pages[0];
    ASSERT_EQ(rows[2].InputTypeName, "Name");
    ASSERT_EQ(rows[3].InputTypeName, "Email");
    // Email before Name; the Title moves to the end of Page 2
    rows[2].ReferenceNumber = "4";
    rows[3].ReferenceNumber = "3";
    rows[1].ReferenceNumber = "40";
    tq::build::CreateFormOnly(f.s, f.port);
    ASSERT_EQ(f.s.build.buildError, 0);
    // no word of the reorder during a build
    for (const auto& m : f.port.shown)
        EXPECT_TRUE(m.title != "NO CHANGES NEEDED" && m.title != "ORDER UPDATED") << m.title;
    EXPECT_EQ(rows[1].InputTypeName, "Email");
    EXPECT_EQ(rows[2].InputTypeName, "Name");
    // the rows close up behind the moved Title, which lands last
    int last = 0;
    for (int r = 1; r < 25 && !rows[r].InputTypeName.empty(); ++r)
        last = r;
    EXPECT_EQ(rows[last].InputTypeName, "Title 1 Single Line");
    for (int r = 0; r < 25; ++r)
        EXPECT_EQ(rows[r].ReferenceNumber, std::to_string(r + 1));
    // the page follows the new order, and the field names the new slots
    const std::string page = f.html();
    const size_t email = page.find("name=\"email3\"");
    const size_t name = page.find("name=\"name5\"");
    ASSERT_NE(email, std::string::npos);
    ASSERT_NE(name, std::string::npos);
    EXPECT_LT(email, name);
    EXPECT_LT(page.find("Required fields are marked with a *"), std::string::npos);
    EXPECT_GT(page.find("Required fields are marked with a *"), page.find("name=\"follo"));
}

TEST(BuildReorder, AnOrderNumberOfZeroStopsTheBuild)
{
    ReorderFixture f;
    // an empty row counts as well
    f.s.store.pages[2][7].ReferenceNumber = "none";
    const auto before = f.s.store.pages;
    tq::build::CreateFormOnly(f.s, f.port);
    EXPECT_EQ(f.s.build.buildError, 1);
    ASSERT_FALSE(f.port.shown.empty());
    EXPECT_TRUE(Said(f.port.shown.back(), "Order number must be greater then 0 and contain a number from 1 to 100",
                     "ORDER ERROR", tq::Icon::Critical));
    for (int p = 0; p < 4; ++p)
        for (int r = 0; r < 25; ++r)
            EXPECT_EQ(f.s.store.pages[p][r].InputTypeName, before[p][r].InputTypeName);
    EXPECT_EQ(f.html(), "");
}
