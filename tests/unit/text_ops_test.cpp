// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/text_ops.h"

#include <gtest/gtest.h>
#include <limits>

using namespace tq::model;

TEST(TextOps, CaseChangesTouchAsciiLettersOnly)
{
    // the neighbours of the letter ranges and bytes past 127 stay
    const std::string edges = "@AZ[`az{\xC3\xA9";
    EXPECT_EQ(ToUpper(edges), "@AZ[`AZ{\xC3\xA9");
    EXPECT_EQ(ToLower(edges), "@az[`az{\xC3\xA9");
    EXPECT_EQ(ToProperCase("sURVEY"), "Survey");
    EXPECT_EQ(ToProperCase("9Form"), "9form");
    EXPECT_EQ(ToProperCase(""), "");
}

TEST(TextOps, NoCaseComparisonsAndSearches)
{
    EXPECT_TRUE(EqualsNoCase("Setup", "SETUP"));
    EXPECT_FALSE(EqualsNoCase("Setup", "SETUPS"));
    EXPECT_TRUE(StartsWithNoCase("condition 1", "CONDITION"));
    EXPECT_FALSE(StartsWithNoCase("cond", "CONDITION"));
    EXPECT_EQ(FindNoCase("index.Htm.htm", ".HTM"), 5u);
    EXPECT_EQ(FindNoCase("index.Htm.htm", ".HTM", 6), 9u);
    EXPECT_EQ(FindNoCase("a.ht", ".HTM"), std::string_view::npos);
    EXPECT_EQ(FindNoCase("abc", "", 3), 3u);
    EXPECT_EQ(FindNoCase("abc", "", 4), std::string_view::npos);
    EXPECT_TRUE(ContainsNoCase("[Drive Folder Path=x]", "FOLDER PATH"));
    EXPECT_FALSE(ContainsNoCase("[Drive Folder]", "PATH"));
    EXPECT_TRUE(Contains("a@b", "@"));
    EXPECT_FALSE(Contains("A.B", "a"));
}

TEST(TextOps, TrimsSpacesUnlessToldOtherBlanks)
{
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\t a \t"), "\t a \t");
    EXPECT_EQ(Trim("\t a \r\n", " \t\r\n"), "a");
    EXPECT_EQ(LTrim("  a  "), "a  ");
    EXPECT_EQ(RTrim("  a  "), "  a");
    EXPECT_EQ(Trim("    "), "");
    std::string s = "   x ";
    LTrimInPlace(s);
    EXPECT_EQ(s, "x ");
}

TEST(TextOps, ReplaceAllDoesNotSearchItsOwnReplacements)
{
    std::string s = "a\r\nb\nc";
    ReplaceAll(s, "\r\n", "\\n");
    ReplaceAll(s, "\n", "\\n");
    EXPECT_EQ(s, "a\\nb\\nc");
    s = "aXa";
    ReplaceAll(s, "a", "aa");
    EXPECT_EQ(s, "aaXaa");
    s = "     ";
    ReplaceAll(s, "  ", "&nbsp;");
    EXPECT_EQ(s, "&nbsp;&nbsp; ");
    ReplaceAll(s, "", "x"); // nothing to find: no endless loop
    EXPECT_EQ(s, "&nbsp;&nbsp; ");
}

TEST(TextOps, ValLongRoundsHalfToEvenAndSaturates)
{
    EXPECT_EQ(ValLong(" \t12abc"), 12);
    EXPECT_EQ(ValLong("2.5"), 2);
    EXPECT_EQ(ValLong("3.5"), 4);
    EXPECT_EQ(ValLong("-2.7"), -3);
    EXPECT_EQ(ValLong("+.6"), 1);
    EXPECT_EQ(ValLong("x1"), 0);
    EXPECT_EQ(ValLong("99999999999999999999"), std::numeric_limits<long long>::max());
    EXPECT_EQ(ValLong("-99999999999999999999"), std::numeric_limits<long long>::min());
}

TEST(TextOps, LeadingWholeStopsPastItsLimit)
{
    EXPECT_EQ(LeadingWhole("  -42px", 1000), -42);
    EXPECT_EQ(LeadingWhole("+7", 1000), 7);
    EXPECT_EQ(LeadingWhole("\t7", 1000), 0); // only spaces are skipped
    EXPECT_EQ(LeadingWhole("3.9", 1000), 3);
    // the digit that passes the limit is kept, the rest is not read
    EXPECT_EQ(LeadingWhole("123456789", 1000), 1234);
    EXPECT_EQ(LeadingWhole("1000", 1000), 1000);
}

TEST(TextOps, IsNumericReadsAWholeNumberWithBlanksAround)
{
    for (const char* yes : {"0", " 12 ", "-1.5", "+.5", "5.", "1e5", "2.5E-3"})
        EXPECT_TRUE(IsNumeric(yes)) << yes;
    for (const char* no : {"", "  ", ".", "-", "1.2.3", "1e", "e5", "12px", "1 2", "\t1"})
        EXPECT_FALSE(IsNumeric(no)) << no;
}
