// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/attribute_text.h"
#include "scripted_port.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;

namespace {

struct Read
{
    std::string value;
    std::string text;
    int err = -1;
};

Read Take(test::ScriptedPort& port, std::string_view key, std::string text, std::string value = "(unset)")
{
    Read r{std::move(value), std::move(text), -1};
    TakeAttribute(port, key, r.value, r.text, r.err);
    return r;
}

void ExpectMessage(const test::Shown& m, const std::string& text, const std::string& title, Icon icon)
{
    EXPECT_TRUE(Said(m, text, title, icon));
}

} // namespace

TEST(TakeAttribute, ReadsTheFrontItemAndTrimsAroundIt)
{
    test::ScriptedPort port;
    Read r = Take(port, "[TITLE", "[Title=A]");
    EXPECT_EQ(r.value, "A");
    EXPECT_EQ(r.text, "");
    EXPECT_EQ(r.err, 0);

    r = Take(port, "[TITLE", "  [Title=A] [Info: x]");
    EXPECT_EQ(r.value, "A");
    EXPECT_EQ(r.text, "[Info: x]");

    // info items are exempt from the shape check; the key keeps its colon
    r = Take(port, "[INFO:", r.text);
    EXPECT_EQ(r.value, " x");
    EXPECT_EQ(r.text, "");

    // "[" takes any item whole
    r = Take(port, "[", "[Title Size=3] [Info: Enter Font Size]");
    EXPECT_EQ(r.value, "Title Size=3");
    EXPECT_EQ(r.text, "[Info: Enter Font Size]");

    // a key is matched whatever its case
    r = Take(port, "[title size", "[TITLE SIZE=3]");
    EXPECT_EQ(r.value, "3");
    EXPECT_TRUE(port.shown.empty());
}

TEST(TakeAttribute, EmptyValueAtTheEndLeavesTheBracketAndNoError)
{
    test::ScriptedPort port;
    Read r = Take(port, "[TITLE", "[Title=]");
    EXPECT_EQ(r.value, "");
    EXPECT_EQ(r.text, "]");
    EXPECT_EQ(r.err, 0);
    EXPECT_TRUE(port.shown.empty());
}

TEST(TakeAttribute, EmptyValueInTheMiddleIsNotAValidEntry)
{
    test::ScriptedPort port;
    Read r = Take(port, "[TITLE", "[Title=] [Info: x]");
    EXPECT_EQ(r.err, 1);
    EXPECT_EQ(r.value, "(unset)");
    EXPECT_EQ(r.text, "] [Info: x]"); // the key is already gone
    ASSERT_EQ(port.shown.size(), 1u);
    ExpectMessage(
        port.shown[0],
        "[TITLE is not a valid entry.\r\rShould have a left bracket, followed by a = sign followed by a right "
        "bracket\r\rExample: [TITLE=This is a test]\r\r] ",
        "error", Icon::Critical);
}

TEST(TakeAttribute, MissingOpeningBracketIsToldAndTheReadGoesOn)
{
    test::ScriptedPort port;
    Read r = Take(port, "[TITLE", "Title=A]");
    EXPECT_EQ(r.err, 1);
    ASSERT_EQ(port.shown.size(), 2u);
    ExpectMessage(port.shown[0], "[ bracket missing from Title=A]", "ERROR", Icon::Exclamation);
    ExpectMessage(port.shown[1], "Cannot find left [ bracket in [TITLE\r\rTitle=A]", "error", Icon::Critical);

    port.clear();
    r = Take(port, "[TITLE", "");
    ASSERT_EQ(port.shown.size(), 2u);
    ExpectMessage(port.shown[0], "[ bracket missing from ", "ERROR", Icon::Exclamation);
    ExpectMessage(port.shown[1], "Right bracket is missing in [TITLE\r\rFormat should be [XXXX=]", "FORMAT ERROR",
                  Icon::Exclamation);
}

TEST(TakeAttribute, ShapeChecks)
{
    test::ScriptedPort port;
    Read r = Take(port, "[TITLE", "[Title=A");
    EXPECT_EQ(r.err, 1);
    EXPECT_EQ(r.text, "[Title=A");
    ExpectMessage(port.last(), "Right bracket is missing in [TITLE\r\rFormat should be [XXXX=]", "FORMAT ERROR",
                  Icon::Exclamation);

    // an "=" only behind the first "]" is told, and the read still takes the item
    port.clear();
    r = Take(port, "[TITLE", "[Title A] [Info: x=y]");
    EXPECT_EQ(r.err, 1);
    EXPECT_EQ(r.value, " A");
    EXPECT_EQ(r.text, "[Info: x=y]");
    ASSERT_EQ(port.shown.size(), 1u);
    ExpectMessage(port.shown[0], "Equals sign needs to follow the [ bracket in [TITLE\r\rFormat should be [XXXX=]",
                  "FORMAT ERROR", Icon::Exclamation);

    // no "=" anywhere: no message
    port.clear();
    r = Take(port, "[", "[Security] [Info: x]");
    EXPECT_EQ(r.err, 0);
    EXPECT_EQ(r.value, "Security");
    EXPECT_TRUE(port.shown.empty());
}

TEST(TakeAttribute, KeyNotAtTheFrontShowsTheItemFound)
{
    test::ScriptedPort port;
    Read r = Take(port, "[Align", "[Title=A] [Align=left]");
    EXPECT_EQ(r.err, 1);
    EXPECT_EQ(r.text, "[Title=A] [Align=left]");
    ExpectMessage(port.last(), "Cannot find left [ bracket in [Align\r\r[Title=A]", "error", Icon::Critical);

    // an info item without any "]" is shown whole
    port.clear();
    Take(port, "[TITLE", "[Info: x");
    ExpectMessage(port.last(), "Cannot find left [ bracket in [TITLE\r\r[Info: x", "error", Icon::Critical);
}

TEST(TakeAttribute, BracketFaults)
{
    test::ScriptedPort port;
    Take(port, "[INFO:", "[Info: no end");
    ExpectMessage(port.last(), "Cannot find left ] bracket in [INFO:\r\r", "error", Icon::Critical);

    port.clear();
    Read r = Take(port, "[TITLE", "[Title=A [Info: x]");
    EXPECT_EQ(r.err, 1);
    EXPECT_EQ(r.text, "[Title=A [Info: x]");
    ExpectMessage(port.last(), "Right ] bracket is missing in [TITLE\r\r", "error", Icon::Critical);

    for (std::string text : {"[Title=A]]", "[Title=A] ]"}) {
        port.clear();
        r = Take(port, "[TITLE", text);
        EXPECT_EQ(r.err, 1);
        EXPECT_EQ(r.text, text);
        ASSERT_EQ(port.shown.size(), 1u) << text;
        ExpectMessage(port.shown[0], "You cannot have 2 Right ]] brackets in [TITLE\r\r", "error", Icon::Critical);
    }

    // a "[" inside the value with its "]" right behind passes the bracket test
    // and is caught when the value has no closing bracket of its own
    port.clear();
    r = Take(port, "[TITLE", "[TitleX=A[]");
    EXPECT_EQ(r.err, 1);
    EXPECT_EQ(r.text, "X=A[]");
    ExpectMessage(port.last(), "Cannot find right ] bracket in [TITLE\r\rX=A", "error", Icon::Critical);
}

TEST(TakeAttribute, ServerDownloadPathGetsItsSlash)
{
    test::ScriptedPort port;
    std::string value, folder;
    int err = -1;
    std::string text = "[Server Download=https://x.example/files] [Info: y]";
    TakeAttribute(port, "[SERVER DOWNLOAD", value, text, err, &folder);
    EXPECT_EQ(value, "https://x.example/files");
    EXPECT_EQ(folder, "https://x.example/files/");

    text = "[Server Download=https://x.example/files/]";
    TakeAttribute(port, "[SERVER DOWNLOAD", value, text, err, &folder);
    EXPECT_EQ(folder, "https://x.example/files/");
    text = "[Server Download=C:\\files\\]";
    TakeAttribute(port, "[SERVER DOWNLOAD", value, text, err, &folder);
    EXPECT_EQ(folder, "C:\\files\\"); // no "/" at all: left alone
    text = "[Server Download=a/b\\]";
    TakeAttribute(port, "[SERVER DOWNLOAD", value, text, err, &folder);
    EXPECT_EQ(folder, "a/b\\");
    EXPECT_TRUE(port.shown.empty());
}

TEST(TakeChoiceList, SplitsAtCommasAndDropsBlankPieces)
{
    test::ScriptedPort port;
    ChoiceList list;
    int err = -1;
    std::string text = "[Choices=a, ,b]";
    TakeChoiceList(port, "CHOICES", text, list, err);
    EXPECT_EQ(err, 0);
    EXPECT_EQ(list.items, (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(text, "");

    text = "  [Check Box=Beginner, Intermediate ,Advanced] [Choices=User selections]  ";
    TakeChoiceList(port, "CHECK BOX", text, list, err);
    EXPECT_EQ(list.items, (std::vector<std::string>{"Beginner", "Intermediate ", "Advanced"}));
    EXPECT_EQ(text, "[Choices=User selections]");

    // "[" takes the next item; everything up to its "=" goes
    text = "[Default Dropdown Value=Ohio,Colorado,Florida] [Choices=x]";
    TakeChoiceList(port, "[", text, list, err);
    EXPECT_EQ(list.items, (std::vector<std::string>{"Ohio", "Colorado", "Florida"}));

    text = "[Files=test.ppt]";
    TakeChoiceList(port, "[FILES", text, list, err);
    EXPECT_EQ(list.items, (std::vector<std::string>{"test.ppt"}));

    // a second "=" cuts the value before it
    text = "[Choices=a=b,c,]";
    TakeChoiceList(port, "CHOICES", text, list, err);
    EXPECT_EQ(list.items, (std::vector<std::string>{"b", "c"}));
    EXPECT_TRUE(port.shown.empty());
}

TEST(TakeChoiceList, Messages)
{
    test::ScriptedPort port;
    ChoiceList list;
    int err = 0;
    std::string text = "x [Choices=a]";
    TakeChoiceList(port, "CHOICES", text, list, err);
    EXPECT_EQ(err, 1);
    ExpectMessage(port.last(), "Cannot find ->[CHOICES <- in \rx [Choices=a]", "error", Icon::Critical);

    text = "[Title=a,b]";
    TakeChoiceList(port, "CHOICES", text, list, err);
    ExpectMessage(port.last(), "Cannot find [Choices= in \r[Title=a,b]", "error", Icon::Critical);

    text = "[Choices=a,b [Info: x]";
    TakeChoiceList(port, "CHOICES", text, list, err);
    ExpectMessage(port.last(), "Cannot find a right bracket ] in \r[Choices=a,b [Info: x]", "error", Icon::Critical);

    text = "[Choices=] [Info: x]";
    TakeChoiceList(port, "CHOICES", text, list, err);
    EXPECT_EQ(err, 1);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(text, "[Choices=] [Info: x]");
    ExpectMessage(port.last(), "Cannot find a comma in User response in \r[Choices=] [Info: x]", "error",
                  Icon::Critical);
    EXPECT_EQ(port.shown.size(), 4u);
}

TEST(TakeChoiceList, PassingTheBoundIsAnInternalError)
{
    test::ScriptedPort port;
    ChoiceList list;
    int err = 0;
    const std::string items = test::Repeat("c,", 100);
    std::string text = "[Choices=" + items + "]";
    TakeChoiceList(port, "CHOICES", text, list, err);
    EXPECT_EQ(list.count(), 100);
    text = "[Choices=" + items + "last]";
    EXPECT_THROW(TakeChoiceList(port, "CHOICES", text, list, err), InternalError);
}

TEST(SplitLines, SeparatorInEitherCaseAndLeftTrimmedLines)
{
    EXPECT_EQ(SplitLines("line1\\nline2").items, (std::vector<std::string>{"line1", "line2"}));
    EXPECT_EQ(SplitLines("line1\\Nline2").items, (std::vector<std::string>{"line1", "line2"}));
    EXPECT_EQ(SplitLines("  one").items, (std::vector<std::string>{"one"}));
    EXPECT_EQ(SplitLines("a \\n  b\\n\\nc\\n  ").items, (std::vector<std::string>{"a ", "b", "", "c"}));
    EXPECT_EQ(SplitLines("\\n\\nabc").count(), 0);
    EXPECT_EQ(SplitLines(" \\nabc").items, (std::vector<std::string>{"", "abc"}));
}

TEST(SplitLines, EmptyTextKeepsThePreviousLinesAndTheTextIsConsumed)
{
    LineList lines;
    std::string text = "x\\ny";
    SplitLines(text, lines);
    EXPECT_EQ(text, "");
    text.clear();
    SplitLines(text, lines);
    EXPECT_EQ(lines.items, (std::vector<std::string>{"x", "y"}));

    EXPECT_THROW(SplitLines(test::Repeat("l\\n", 101)), InternalError);
}

TEST(SplitHtmlLines, KeepsEmptyLinesAndBlanks)
{
    EXPECT_EQ(SplitHtmlLines("").count(), 0);
    EXPECT_EQ(SplitHtmlLines("\\n\\nabc").items, (std::vector<std::string>{"", "", "abc"}));
    EXPECT_EQ(SplitHtmlLines("a\\n").items, (std::vector<std::string>{"a"}));
    EXPECT_EQ(SplitHtmlLines("a\\N\\n").items, (std::vector<std::string>{"a", ""}));
    EXPECT_EQ(SplitHtmlLines(" a \\n b").items, (std::vector<std::string>{" a ", " b"}));
}

TEST(SplitHtmlLines, RunsOfBlanksBecomeNbspLosingThreeCharacters)
{
    EXPECT_EQ(SplitHtmlLines("  x").items, (std::vector<std::string>{"&nbsp;  x"}));
    // four blanks at position 6 of "a" + 8 blanks + "b": characters 5 to 7 are lost
    EXPECT_EQ(SplitHtmlLines("a        b").items, (std::vector<std::string>{"a   &nbsp;  b"}));
    EXPECT_EQ(SplitHtmlLines("ab            c").items, (std::vector<std::string>{"ab  &nbsp;  &nbsp;  c"}));
    // three blanks are not a run; a run before position 6 is not looked at
    EXPECT_EQ(SplitHtmlLines("abcdefg   h").items, (std::vector<std::string>{"abcdefg   h"}));
    EXPECT_EQ(SplitHtmlLines("a    b").items, (std::vector<std::string>{"a    b"}));
}

TEST(SplitHtmlLines, PassingTheBoundIsAnInternalError)
{
    const std::string text = test::Repeat("l\\n", 150);
    EXPECT_EQ(SplitHtmlLines(text).count(), 150);
    EXPECT_THROW(SplitHtmlLines(text + "x"), InternalError);
}

TEST(ColorToHex, RedInTheLowByte)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},        {"255", "FF0000"}, {"16711680", "0000FF"}, {"12632256", "C0C0C0"},
        {"0", "000000"}, {"500", "F40100"}, {"none", "000000"}};
    for (const auto& [in, hex] : cases)
        EXPECT_EQ(ColorToHex(in), hex) << in;
}

TEST(RemoveLineBreaks, JoinsAroundEveryBreak)
{
    EXPECT_EQ(RemoveLineBreaks("[A=1]\r\n[B=2]\r\n"), "[A=1][B=2]");
    EXPECT_EQ(RemoveLineBreaks("a\rb\nc"), "abc");
}

TEST(AttributeGroups, ShadeGroupOnlyWhenItStandsAtTheFront)
{
    test::ScriptedPort port;
    std::string width = "w", color = "c";
    int err = -1;
    std::string text = "[Italics=off]";
    TakeShadeGroup(port, text, width, color, err);
    EXPECT_EQ(err, 0);
    EXPECT_EQ(width, "w");
    EXPECT_EQ(text, "[Italics=off]");

    text = "[Shade Width=40%] [Choices=1% to 100%] [Shade Color=12632256] [Choices=Change the current color.] "
           "[Italics=off]";
    TakeShadeGroup(port, text, width, color, err);
    EXPECT_EQ(err, 0);
    EXPECT_EQ(width, "40%");
    EXPECT_EQ(color, "C0C0C0");
    EXPECT_EQ(text, "[Italics=off]");

    text = "[Shade Width=500] [Choices=x] [Shade Color=255] [Choices=y]";
    TakeShadeGroup(port, text, width, color, err);
    EXPECT_EQ(width, "F40100");
    EXPECT_EQ(color, "FF0000");

    // the first failing read ends the group
    text = "[Shade Width=5%] [Info: x] [Shade Color=255] [Choices=y]";
    TakeShadeGroup(port, text, width, color, err);
    EXPECT_EQ(err, 1);
    EXPECT_EQ(port.shown.size(), 1u);
}

TEST(AttributeGroups, LineGroupReadsStoredLines)
{
    test::ScriptedPort port;
    std::string text = "[Line Width=100%]\r\n[Info: w]\r\n\r\n[Line Size=2]\r\n[Info: s]\r\n[Align=center]\r\n"
                       "[Choices=left,right,center]\r\n[Line Color=0]\r\n[Choices=c]\r\n";
    std::string width, size, align, color;
    int err = -1;
    TakeLineGroup(port, text, width, size, align, color, err);
    EXPECT_EQ(err, 0);
    EXPECT_EQ(width, "100%");
    EXPECT_EQ(size, "2");
    EXPECT_EQ(align, "center");
    EXPECT_EQ(color, "0");
    EXPECT_EQ(text, "");

    text = "[Line Width=1] [Line Size=2]";
    TakeLineGroup(port, text, width, size, align, color, err);
    EXPECT_EQ(err, 1);
    EXPECT_EQ(port.shown.size(), 1u);
}

TEST(NormalizeAttributeText, BlockKeyFirstLosesItsBlankLineAndRunsBecomeOne)
{
    test::ScriptedPort port;
    // two keys match "BACKGROUND IMAGE PATH ON YOUR WEB SERVER" in the middle: one blank line stays
    EXPECT_EQ(NormalizeAttributeText(port, "[Background Color=16777215] [Info: page colour] "
                                           "[Background Image Path On Your Web Server=;x] [Info: y]"),
              "[Background Color=16777215]\r\n[Info: page colour]\r\n\r\n"
              "[Background Image Path On Your Web Server=;x]\r\n[Info: y]\r\n");
    // at the front only the first blank line goes, the second is written
    EXPECT_EQ(NormalizeAttributeText(port, "[Background Image Path On Your Web Server=;x] [Info: y]"),
              "\r\n[Background Image Path On Your Web Server=;x]\r\n[Info: y]\r\n");
    EXPECT_TRUE(port.shown.empty());
}

TEST(NormalizeAttributeText, SecurityIsComparedOverTwelveCharacters)
{
    test::ScriptedPort port;
    EXPECT_EQ(NormalizeAttributeText(port, "[Title=T] [Security=abc] [Info: x] [Security]"),
              "[Title=T]\r\n[Security=abc]\r\n[Info: x]\r\n\r\n[Security]\r\n");
    // the value-less item after an "=" is told once, and the text is still stored
    ASSERT_EQ(port.shown.size(), 0u);
    EXPECT_EQ(NormalizeAttributeText(port, "[Security] [Title=T]"), "[Security]\r\n[Title=T]\r\n");
    ASSERT_EQ(port.shown.size(), 1u);
    EXPECT_EQ(port.shown[0].title, "FORMAT ERROR");
}

TEST(NormalizeAttributeText, OnlyTheFirstLineIsReadAndTextOutsideItemsGoes)
{
    test::ScriptedPort port;
    EXPECT_EQ(NormalizeAttributeText(port, "[A=1]  [B=2] tail\r\n[C=3]\r\n"), "[A=1]\r\n[B=2]\r\n");
    EXPECT_EQ(NormalizeAttributeText(port, "no items"), "");
    EXPECT_EQ(NormalizeAttributeText(port, ""), "");
    EXPECT_EQ(NormalizeAttributeText(port, "[Title=] [Info: x]"), "[Title=]\r\n[Info: x]\r\n");
    EXPECT_TRUE(port.shown.empty());
}

TEST(NormalizeAttributeText, BrokenTextStaysAsTheLastLine)
{
    test::ScriptedPort port;
    EXPECT_EQ(NormalizeAttributeText(port, "[Title=A] [Broken [Info: x]"), "[Title=A]\r\n[Broken [Info: x]\r\n");
    ASSERT_EQ(port.shown.size(), 1u);
    EXPECT_EQ(port.shown[0].text, "Right ] bracket is missing in [\r\r");

    port.clear();
    EXPECT_EQ(NormalizeAttributeText(port, "  lead [Title=A]"), "lead [Title=A]\r\n");
    EXPECT_EQ(port.shown.size(), 2u);

    port.clear();
    EXPECT_EQ(NormalizeAttributeText(port, "[Title=A] [Unclosed"), "[Title=A]\r\n[Unclosed\r\n");

    // a fault found after the reader took the "[" off still keeps the whole rest
    port.clear();
    EXPECT_EQ(NormalizeAttributeText(port, "[A=1] [x[]"), "[A=1]\r\n[x[]\r\n");
    ASSERT_EQ(port.shown.size(), 1u);
    EXPECT_EQ(port.shown[0].text, "Cannot find right ] bracket in [\r\rx");
}
