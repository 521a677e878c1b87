// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/attribute_text.h"
#include "scripted_port.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;

namespace {

struct Message
{
    std::string text, title;
    Icon icon;
};

const Icon E = Icon::Exclamation, C = Icon::Critical;
const std::string kCrit = "Cannot find left [ bracket in [";
const std::string kFormat = "Right bracket is missing in [TITLE\r\rFormat should be [XXXX=]";

} // namespace

TEST(TakeAttribute, ReadsAnItemOrTellsWhyNot)
{
    const struct
    {
        const char* key;
        std::string text, value, rest;
        std::vector<Message> said; // an error is set exactly when something is said
    } rows[] = {
        {"[TITLE", "  [Title=A] [Info: x]", "A", "[Info: x]", {}},
        {"[", "[Title Size=3] [Info: y]", "Title Size=3", "[Info: y]", {}},
        {"[TITLE", "[Title=]", "", "]", {}},
        {"[TITLE",
         "[Title=] [Info: x]",
         "(unset)",
         "] [Info: x]",
         {{"[TITLE is not a valid entry.\r\rShould have a left bracket, followed by a = sign followed by a right "
           "bracket\r\rExample: [TITLE=This is a test]\r\r] ",
           "error", C}}},
        {"[TITLE",
         "Title=A]",
         "(unset)",
         "Title=A]",
         {{"[ bracket missing from Title=A]", "ERROR", E}, {kCrit + "TITLE\r\rTitle=A]", "error", C}}},
        {"[TITLE", "", "(unset)", "", {{"[ bracket missing from ", "ERROR", E}, {kFormat, "FORMAT ERROR", E}}},
        {"[TITLE", "[Title=A", "(unset)", "[Title=A", {{kFormat, "FORMAT ERROR", E}}},
        {"[TITLE",
         "[Title A] [Info: x=y]",
         " A",
         "[Info: x=y]",
         {{"Equals sign needs to follow the [ bracket in [TITLE\r\rFormat should be [XXXX=]", "FORMAT ERROR", E}}},
        {"[Align",
         "[Title=A] [Align=left]",
         "(unset)",
         "[Title=A] [Align=left]",
         {{kCrit + "Align\r\r[Title=A]", "error", C}}},
        {"[INFO:",
         "[Info: no end",
         "(unset)",
         "[Info: no end",
         {{"Cannot find left ] bracket in [INFO:\r\r", "error", C}}},
        {"[TITLE",
         "[Title=A [Info: x]",
         "(unset)",
         "[Title=A [Info: x]",
         {{"Right ] bracket is missing in [TITLE\r\r", "error", C}}},
        {"[TITLE",
         "[Title=A] ]",
         "(unset)",
         "[Title=A] ]",
         {{"You cannot have 2 Right ]] brackets in [TITLE\r\r", "error", C}}},
        {"[TITLE", "[TitleX=A[]", "(unset)", "X=A[]", {{"Cannot find right ] bracket in [TITLE\r\rX=A", "error", C}}},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(std::string(r.key) + " in " + r.text);
        test::ScriptedPort port;
        std::string value = "(unset)", text = r.text;
        int err = -1;
        TakeAttribute(port, r.key, value, text, err);
        EXPECT_EQ(err, r.said.empty() ? 0 : 1);
        EXPECT_EQ(value, r.value);
        EXPECT_EQ(text, r.rest);
        ASSERT_EQ(port.shown.size(), r.said.size());
        for (size_t i = 0; i < r.said.size(); ++i)
            EXPECT_TRUE(Said(port.shown[i], r.said[i].text, r.said[i].title, r.said[i].icon));
    }
}

TEST(TakeChoiceList, SplitsAtCommasOrTellsWhyNot)
{
    using V = std::vector<std::string>;
    const std::string cannot = "Cannot find ";
    const struct
    {
        const char* key;
        std::string text;
        V items;
        std::string rest, said; // one "error" message, or none
    } rows[] = {
        {"CHOICES", "[Choices=a, ,b]", V{"a", "b"}, "", ""},
        {"CHOICES", "[Choices=a=b,c,]", V{"b", "c"}, "", ""},
        {"CHOICES", "x [Choices=a]", V{}, "x [Choices=a]", cannot + "->[CHOICES <- in \rx [Choices=a]"},
        {"CHOICES", "[Title=a,b]", V{}, "[Title=a,b]", cannot + "[Choices= in \r[Title=a,b]"},
        {"CHOICES", "[Choices=a,b [Info: x]", V{}, "[Choices=a,b [Info: x]",
         cannot + "a right bracket ] in \r[Choices=a,b [Info: x]"},
        {"CHOICES", "[Choices=] [Info: x]", V{}, "[Choices=] [Info: x]",
         cannot + "a comma in User response in \r[Choices=] [Info: x]"},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.text);
        test::ScriptedPort port;
        ChoiceList list;
        std::string text = r.text;
        int err = -1;
        TakeChoiceList(port, r.key, text, list, err);
        EXPECT_EQ(err, r.said.empty() ? 0 : 1);
        EXPECT_EQ(list.items, r.items);
        EXPECT_EQ(text, r.rest);
        ASSERT_EQ(port.shown.size(), r.said.empty() ? 0u : 1u);
        for (const auto& m : port.shown)
            EXPECT_TRUE(Said(m, r.said, "error", C));
    }
}

TEST(SplitHtmlLines, KeepsEmptyLinesAndTurnsRunsOfBlanksIntoNbsp)
{
    using V = std::vector<std::string>;
    // runs of blanks from position 6 become "&nbsp;" losing three characters; three blanks are not a run
    const std::pair<const char*, V> rows[] = {{"\\n\\nabc", V{"", "", "abc"}},
                                              {"a\\N\\n", V{"a", ""}},
                                              {"  x", V{"&nbsp;  x"}},
                                              {"a        b", V{"a   &nbsp;  b"}},
                                              {"ab            c", V{"ab  &nbsp;  &nbsp;  c"}},
                                              {"abcdefg   h", V{"abcdefg   h"}},
                                              {"a    b", V{"a    b"}}};
    for (const auto& [in, want] : rows)
        EXPECT_EQ(SplitHtmlLines(in).items, want) << in;
}

TEST(NormalizeAttributeText, BrokenTextIsKeptAsTheLastLine)
{
    const std::pair<std::string, std::string> rows[] = {
        {"[Title=A] [Broken [Info: x]", "[Title=A]\r\n[Broken [Info: x]\r\n"},
        {"[Title=A] [Unclosed", "[Title=A]\r\n[Unclosed\r\n"},
        {"[A=1] [x[]", "[A=1]\r\n[x[]\r\n"},
        {"[A=1]  [B=2] tail\r\n[C=3]\r\n", "[A=1]\r\n[B=2]\r\n"}, // only the first line is read
    };
    for (const auto& [in, out] : rows) {
        test::ScriptedPort port;
        EXPECT_EQ(NormalizeAttributeText(port, in), out) << in;
    }
}
