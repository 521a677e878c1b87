// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/quick_preview.h"
#include "html_fixture.h"

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
