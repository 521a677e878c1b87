// SPDX-License-Identifier: GPL-3.0-or-later
// The cursor form of the destructive reader reads as the string form does.
#include "model/attribute_text.h"
#include "scripted_port.h"

#include <gtest/gtest.h>

using tq::model::AttributeCursor;
using tq::model::TakeAttribute;
using tq::test::ScriptedPort;

namespace {

/// Reads with `key` until a fault or the end, through both forms, and checks
/// that every step agrees.
void ExpectSameReads(std::string_view key, const std::string& whole)
{
    ScriptedPort a, b;
    std::string text = whole;
    AttributeCursor cursor(whole);
    for (int step = 0; step < 100; ++step) {
        std::string v1 = "old", v2 = "old", f1, f2;
        int e1 = 0, e2 = 0;
        TakeAttribute(a, key, v1, text, e1, &f1);
        TakeAttribute(b, key, v2, cursor, e2, &f2);
        ASSERT_EQ(e1, e2) << whole << " step " << step;
        ASSERT_EQ(v1, v2) << whole << " step " << step;
        ASSERT_EQ(f1, f2);
        ASSERT_EQ(std::string(cursor.rest()), text) << whole << " step " << step;
        if (e1 != 0 || text.empty())
            break;
    }
    ASSERT_EQ(a.messages().size(), b.messages().size()) << whole;
    for (size_t i = 0; i < a.messages().size(); ++i)
        EXPECT_TRUE(Said(a.messages()[i], b.messages()[i].text, b.messages()[i].title));
}

} // namespace

TEST(AttributeCursor, ReadsEveryItemAsTheStringFormDoes)
{
    ExpectSameReads("[", "[Title=Your name] [Info: help] [Title Size=3]   [Align=LEFT] [Choices=left,right]");
    ExpectSameReads("[", "[Server Download=/srv/files] [Info: x]");
    ExpectSameReads("[TITLE", "[Title=a] [Title=b] [Title=c]");
}

TEST(AttributeCursor, FaultsGiveTheSameMessagesAndRest)
{
    // no "=" inside the item but one further on; brackets doubled; a key that is not there
    ExpectSameReads("[", "[Title] [Width=3]");
    ExpectSameReads("[", "[Title=a]] [b=c]");
    ExpectSameReads("[TITLE", "[Width=3] [Title=a]");
    ExpectSameReads("[", "  no bracket [a=b]");
    ExpectSameReads("[", "[Info: open [Title=x]");
    ExpectSameReads("[", "[a=b] [c=d");
}
