// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/quick_preview.h"
#include "html_fixture.h"
#include "model/attribute_text.h"

#include <gtest/gtest.h>

using tq::test::HtmlFixture;
namespace html = tq::html;

TEST(QuickPreview, WritesTheFileWithTheLastLineLeftOpen)
{
    HtmlFixture f;
    f.s.build.entryPreview = true;
    f.s.build.wholePage = true;
    const std::string path = html::WriteQuickPreview(f.s, "Error Message", "Please fill in\\n  your name\\Nnow");
    EXPECT_EQ(path, f.dir.file("Previewsingle.htm"));
    EXPECT_EQ(tq::test::ReadFileBytes(path), tq::test::Golden("previewsingle.htm"));
    EXPECT_FALSE(f.s.build.entryPreview);
    EXPECT_FALSE(f.s.build.wholePage);
    EXPECT_FALSE(f.s.build.channels[1].isOpen());
}

TEST(QuickPreview, OneLineTextCarriesTheBreakOnItsLine)
{
    HtmlFixture f;
    const std::string out = tq::test::ReadFileBytes(html::WriteQuickPreview(f.s, "instructions", "Just one"));
    EXPECT_NE(out.find("</font></b>\r\nJust one<br>\r\n</form>\r\n"), std::string::npos);
    EXPECT_THROW(html::WriteQuickPreview(f.s, "INSTRUCTIONS", tq::test::Repeat("x\\n", 51) + "y"),
                 tq::model::InternalError);
}

TEST(QuickPreview, PlainTextsGetTheQuickPreviewOthersTheEntryPreview)
{
    HtmlFixture f;
    std::string shown;
    bool entryRan = false;
    bool flagDuringCall = false;
    const std::string value = html::PreviewAttribute(
        f.s, "ERROR MESSAGE", "Line  one\r\nLine two\r\n", false, [&](const std::string& p) { shown = p; },
        [&] { entryRan = true; });
    EXPECT_EQ(value, "Line&nbsp;one\\nLine two");
    EXPECT_EQ(shown, f.dir.file("Previewsingle.htm"));
    EXPECT_FALSE(entryRan);
    html::PreviewAttribute(
        f.s, "TITLE", "A title", false, [&](const std::string& p) { shown = "again " + p; },
        [&] {
            entryRan = true;
            flagDuringCall = f.s.build.entryPreview;
        });
    EXPECT_TRUE(entryRan);
    EXPECT_TRUE(flagDuringCall);
    EXPECT_FALSE(f.s.build.entryPreview);
    EXPECT_EQ(shown, f.dir.file("Previewsingle.htm"));
}
