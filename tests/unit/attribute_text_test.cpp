// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/attribute_text.h"
#include "scripted_port.h"

#include <gtest/gtest.h>

using namespace tq;
using namespace tq::model;

namespace {

struct Message
{
    std::string text;
    std::string title;
    Icon icon;
};

const std::string kCrit = "Cannot find left [ bracket in [";
const std::string kFormat = "Right bracket is missing in [TITLE\r\rFormat should be [XXXX=]";

} // namespace

TEST(TakeAttribute, ReadsAndTellsEachShapeOfItem)
{
    const auto E = Icon::Exclamation, C = Icon::Critical;
    const struct
    {
        const char* key;
        std::string text, value, rest;
        int err;
        std::vector<Message> said;
    } rows[] = {
        {"[TITLE", "[Title=A]", "A", "", 0, {}},
        {"[TITLE", "  [Title=A] [Info: x]", "A", "[Info: x]", 0, {}},
        // info items are exempt from the shape check; the key keeps its colon
        {"[INFO:", "[Info: x]", " x", "", 0, {}},
        // "[" takes any item whole; a key is matched whatever its case
        {"[", "[Title Size=3] [Info: Enter Font Size]", "Title Size=3", "[Info: Enter Font Size]", 0, {}},
        {"[title size", "[TITLE SIZE=3]", "3", "", 0, {}},
        // an empty value at the end leaves the bracket; in the middle it is not a valid entry
        {"[TITLE", "[Title=]", "", "]", 0, {}},
        {"[TITLE",
         "[Title=] [Info: x]",
         "(unset)",
         "] [Info: x]",
         1,
         {{"[TITLE is not a valid entry.\r\rShould have a left bracket, followed by a = sign followed by a right "
           "bracket\r\rExample: [TITLE=This is a test]\r\r] ",
           "error", C}}},
        // a missing "[" is told and the read goes on
        {"[TITLE",
         "Title=A]",
         "(unset)",
         "Title=A]",
         1,
         {{"[ bracket missing from Title=A]", "ERROR", E}, {kCrit + "TITLE\r\rTitle=A]", "error", C}}},
        {"[TITLE", "", "(unset)", "", 1, {{"[ bracket missing from ", "ERROR", E}, {kFormat, "FORMAT ERROR", E}}},
        {"[TITLE", "[Title=A", "(unset)", "[Title=A", 1, {{kFormat, "FORMAT ERROR", E}}},
        // an "=" only behind the first "]" is told, and the read still takes the item
        {"[TITLE",
         "[Title A] [Info: x=y]",
         " A",
         "[Info: x=y]",
         1,
         {{"Equals sign needs to follow the [ bracket in [TITLE\r\rFormat should be [XXXX=]", "FORMAT ERROR", E}}},
        // no "=" anywhere: no message
        {"[", "[Security] [Info: x]", "Security", "[Info: x]", 0, {}},
        // a key not at the front shows the item found; an info item without "]" is shown whole
        {"[Align",
         "[Title=A] [Align=left]",
         "(unset)",
         "[Title=A] [Align=left]",
         1,
         {{kCrit + "Align\r\r[Title=A]", "error", C}}},
        {"[TITLE", "[Info: x", "(unset)", "[Info: x", 1, {{kCrit + "TITLE\r\r[Info: x", "error", C}}},
        {"[INFO:",
         "[Info: no end",
         "(unset)",
         "[Info: no end",
         1,
         {{"Cannot find left ] bracket in [INFO:\r\r", "error", C}}},
        {"[TITLE",
         "[Title=A [Info: x]",
         "(unset)",
         "[Title=A [Info: x]",
         1,
         {{"Right ] bracket is missing in [TITLE\r\r", "error", C}}},
        {"[TITLE",
         "[Title=A]]",
         "(unset)",
         "[Title=A]]",
         1,
         {{"You cannot have 2 Right ]] brackets in [TITLE\r\r", "error", C}}},
        {"[TITLE",
         "[Title=A] ]",
         "(unset)",
         "[Title=A] ]",
         1,
         {{"You cannot have 2 Right ]] brackets in [TITLE\r\r", "error", C}}},
        // a "[" inside the value with its "]" right behind passes the bracket test
        // and is caught when the value has no closing bracket of its own
        {"[TITLE",
         "[TitleX=A[]",
         "(unset)",
         "X=A[]",
         1,
         {{"Cannot find right ] bracket in [TITLE\r\rX=A", "error", C}}},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(std::string(r.key) + " in " + r.text);
        test::ScriptedPort port;
        std::string value = "(unset)", text = r.text;
        int err = -1;
        TakeAttribute(port, r.key, value, text, err);
        EXPECT_EQ(err, r.err);
        EXPECT_EQ(value, r.value);
        EXPECT_EQ(text, r.rest);
        ASSERT_EQ(port.shown.size(), r.said.size());
        for (size_t i = 0; i < r.said.size(); ++i)
            EXPECT_TRUE(Said(port.shown[i], r.said[i].text, r.said[i].title, r.said[i].icon));
    }
}

TEST(TakeAttribute, ServerDownloadPathGetsItsSlash)
{
    const std::pair<const char*, const char*> rows[] = {
        {"https://x.example/files] [Info: y]", "https://x.example/files/"},
        {"https://x.example/files/]", "https://x.example/files/"},
        {"C:\\files\\]", "C:\\files\\"}, // no "/" at all: left alone
        {"a/b\\]", "a/b\\"}};
    test::ScriptedPort port;
    for (const auto& [item, folder] : rows) {
        std::string value, found, text = std::string("[Server Download=") + item;
        int err = -1;
        TakeAttribute(port, "[SERVER DOWNLOAD", value, text, err, &found);
        EXPECT_EQ(found, folder) << item;
    }
    std::string value, folder, text = "[Server Download=https://x.example/files] [Info: y]";
    int err = -1;
    TakeAttribute(port, "[SERVER DOWNLOAD", value, text, err, &folder);
    EXPECT_EQ(value, "https://x.example/files");
    EXPECT_TRUE(port.shown.empty());
}

TEST(TakeChoiceList, SplitsAtCommasAndTellsEachFault)
{
    using V = std::vector<std::string>;
    const std::string cannot = "Cannot find ";
    const struct
    {
        const char* key;
        std::string text;
        V items;
        std::string rest;
        int err;
        std::string said; // one "error" message, or none
    } rows[] = {
        {"CHOICES", "[Choices=a, ,b]", V{"a", "b"}, "", 0, ""},
        {"CHECK BOX", "  [Check Box=Beginner, Intermediate ,Advanced] [Choices=User selections]  ",
         V{"Beginner", "Intermediate ", "Advanced"}, "[Choices=User selections]", 0, ""},
        // "[" takes the next item; everything up to its "=" goes
        {"[", "[Default Dropdown Value=Ohio,Colorado,Florida] [Choices=x]", V{"Ohio", "Colorado", "Florida"},
         "[Choices=x]", 0, ""},
        {"[FILES", "[Files=test.ppt]", V{"test.ppt"}, "", 0, ""},
        // a second "=" cuts the value before it
        {"CHOICES", "[Choices=a=b,c,]", V{"b", "c"}, "", 0, ""},
        {"CHOICES", "x [Choices=a]", V{}, "x [Choices=a]", 1, cannot + "->[CHOICES <- in \rx [Choices=a]"},
        {"CHOICES", "[Title=a,b]", V{}, "[Title=a,b]", 1, cannot + "[Choices= in \r[Title=a,b]"},
        {"CHOICES", "[Choices=a,b [Info: x]", V{}, "[Choices=a,b [Info: x]", 1,
         cannot + "a right bracket ] in \r[Choices=a,b [Info: x]"},
        {"CHOICES", "[Choices=] [Info: x]", V{}, "[Choices=] [Info: x]", 1,
         cannot + "a comma in User response in \r[Choices=] [Info: x]"},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.text);
        test::ScriptedPort port;
        ChoiceList list;
        std::string text = r.text;
        int err = -1;
        TakeChoiceList(port, r.key, text, list, err);
        EXPECT_EQ(err, r.err);
        EXPECT_EQ(list.items, r.items);
        EXPECT_EQ(text, r.rest);
        ASSERT_EQ(port.shown.size(), r.said.empty() ? 0u : 1u);
        if (!r.said.empty()) {
            EXPECT_TRUE(Said(port.last(), r.said, "error", Icon::Critical));
        }
    }
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

TEST(SplitLines, BothSplittersLineByLine)
{
    using V = std::vector<std::string>;
    // SplitLines: separator in either case, lines left-trimmed, an empty first line ends the list
    const std::pair<const char*, V> plain[] = {{"line1\\nline2", V{"line1", "line2"}},
                                               {"line1\\Nline2", V{"line1", "line2"}},
                                               {"  one", V{"one"}},
                                               {"a \\n  b\\n\\nc\\n  ", V{"a ", "b", "", "c"}},
                                               {"\\n\\nabc", V{}},
                                               {" \\nabc", V{"", "abc"}}};
    for (const auto& [in, want] : plain)
        EXPECT_EQ(SplitLines(in).items, want) << in;
    // SplitHtmlLines keeps empty lines and blanks; runs of blanks from position 6 become
    // "&nbsp;" losing three characters, three blanks are not a run
    const std::pair<const char*, V> html[] = {{"", V{}},
                                              {"\\n\\nabc", V{"", "", "abc"}},
                                              {"a\\n", V{"a"}},
                                              {"a\\N\\n", V{"a", ""}},
                                              {" a \\n b", V{" a ", " b"}},
                                              {"  x", V{"&nbsp;  x"}},
                                              {"a        b", V{"a   &nbsp;  b"}},
                                              {"ab            c", V{"ab  &nbsp;  &nbsp;  c"}},
                                              {"abcdefg   h", V{"abcdefg   h"}},
                                              {"a    b", V{"a    b"}}};
    for (const auto& [in, want] : html)
        EXPECT_EQ(SplitHtmlLines(in).items, want) << in;
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

TEST(NormalizeAttributeText, OneItemALineFromTheFirstLineOnly)
{
    const struct
    {
        std::string in, out;
        int messages;
        std::string first; // "title: text" of the first message
    } rows[] = {
        // two keys match "BACKGROUND IMAGE PATH ON YOUR WEB SERVER" in the middle: one blank line stays
        {"[Background Color=16777215] [Info: page colour] [Background Image Path On Your Web Server=;x] [Info: y]",
         "[Background Color=16777215]\r\n[Info: page colour]\r\n\r\n"
         "[Background Image Path On Your Web Server=;x]\r\n[Info: y]\r\n",
         0, ""},
        // at the front only the first blank line goes, the second is written
        {"[Background Image Path On Your Web Server=;x] [Info: y]",
         "\r\n[Background Image Path On Your Web Server=;x]\r\n[Info: y]\r\n", 0, ""},
        // SECURITY is compared over twelve characters; a value-less item after an "=" is told once
        {"[Title=T] [Security=abc] [Info: x] [Security]",
         "[Title=T]\r\n[Security=abc]\r\n[Info: x]\r\n\r\n[Security]\r\n", 0, ""},
        {"[Security] [Title=T]", "[Security]\r\n[Title=T]\r\n", 1,
         "FORMAT ERROR: Equals sign needs to follow the [ bracket in [\r\rFormat should be [XXXX=]"},
        // text outside the items goes, and so do the lines after the first
        {"[A=1]  [B=2] tail\r\n[C=3]\r\n", "[A=1]\r\n[B=2]\r\n", 0, ""},
        {"no items", "", 0, ""},
        {"", "", 0, ""},
        {"[Title=] [Info: x]", "[Title=]\r\n[Info: x]\r\n", 0, ""},
        // broken text stays as the last line, even after the reader took the "[" off
        {"[Title=A] [Broken [Info: x]", "[Title=A]\r\n[Broken [Info: x]\r\n", 1,
         "error: Right ] bracket is missing in [\r\r"},
        {"  lead [Title=A]", "lead [Title=A]\r\n", 2, ""},
        {"[Title=A] [Unclosed", "[Title=A]\r\n[Unclosed\r\n", 1, ""},
        {"[A=1] [x[]", "[A=1]\r\n[x[]\r\n", 1, "error: Cannot find right ] bracket in [\r\rx"},
    };
    for (const auto& r : rows) {
        SCOPED_TRACE(r.in);
        test::ScriptedPort port;
        EXPECT_EQ(NormalizeAttributeText(port, r.in), r.out);
        ASSERT_EQ(port.shown.size(), static_cast<size_t>(r.messages));
        if (!r.first.empty()) {
            EXPECT_EQ(port.shown[0].title + ": " + port.shown[0].text, r.first);
        }
    }
}
