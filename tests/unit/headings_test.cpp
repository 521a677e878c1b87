// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/headings.h"
#include "html_fixture.h"
#include "model/attribute_text.h"

#include <gtest/gtest.h>

using tq::test::HtmlFixture;
using tq::test::Lines;
namespace html = tq::html;

TEST(FieldName, FiveLettersAndSlotWithTheInnerBlankKept)
{
    EXPECT_EQ(html::FieldName("COMMENTS REQUIRED", 7), "comme7");
    EXPECT_EQ(html::FieldName("NAME", 3), "name3");
    EXPECT_EQ(html::FieldName("User Name", 13), "user 13");
    EXPECT_EQ(html::PreviewFieldName("CELL PHONE NUMBER"), "cell phone number1");
}

TEST(Numbering, PairRuleGivesAAndBAndDownloadCountsPlain)
{
    HtmlFixture f;
    auto& b = f.s.build;
    const std::pair<const char*, const char*> steps[] = {{"NAME", "1. "},
                                                         {"condition with comment", "2a. "},
                                                         {"FOLLOWUP WITH COMMENT", "2b. "},
                                                         {"DOWNLOAD FILES", "3. "},
                                                         {"FOLLOWUP FILES WITH PASSWORD", "3b. "}};
    for (const auto& [type, number] : steps) {
        std::string caption = "x";
        html::NumberForMessage(b, caption, type);
        EXPECT_EQ(caption, std::string(number) + "x") << type;
    }
    EXPECT_EQ(b.messageNumber, 3);
    EXPECT_EQ(b.questionNumber, 0);
}

TEST(Numbering, PageNumbersOnlyWhenAskedAndTheBLineIsIndented)
{
    HtmlFixture f;
    auto& b = f.s.build;
    std::string t = "Title";
    html::NumberForPage(b, t, "NAME");
    EXPECT_EQ(t, "Title");
    EXPECT_EQ(b.questionNumber, 0);
    b.setupValues.NumberEachQuestion = "yes";
    std::string a = "Cond", bb = "Follow";
    html::NumberForPage(b, a, "CONDITION WITH DROPDOWN");
    html::NumberForPage(b, bb, "FOLLOWUP WITH DROPDOWN");
    EXPECT_EQ(a, "1a. &nbsp;Cond");
    EXPECT_EQ(bb, "&nbsp;&nbsp;&nbsp;1b. &nbsp;Follow");
}

TEST(Numbering, RecordQuestionKeepsTheCaptionFreeOfNbsp)
{
    HtmlFixture f;
    auto& b = f.s.build;
    b.setupValues.NumberEachQuestion = "YES";
    std::string title = "Your name";
    html::RecordQuestion(b, "name3", title, "NAME");
    std::string off = "E-mail";
    b.setupValues.NumberEachQuestion = "NO";
    html::RecordQuestion(b, "email5", off, "EMAIL");
    EXPECT_EQ(b.messageLineCount, 4);
    EXPECT_EQ(std::vector<std::string>(b.messageLines.begin() + 1, b.messageLines.begin() + 5),
              (std::vector<std::string>{"1. Your name", "name3", "2. E-mail", "email5"}));
    EXPECT_EQ(title, "1. &nbsp;Your name");
    EXPECT_EQ(off, "E-mail"); // the page carries no number, the caption still does
    // the table holds 500 slots, the next one is an internal error
    for (int i = 4; i < 500; ++i)
        html::AppendMessageLine(b, "x");
    EXPECT_THROW(html::AppendMessageLine(b, "y"), tq::model::InternalError);
    EXPECT_EQ(b.messageLineCount, 500);
}

TEST(SplitTitle, MarkersInAnyCaseEmptyLinesAndNoTrailingLine)
{
    HtmlFixture f;
    auto& lines = f.s.build.TitleLines;
    using V = std::vector<std::string>;
    html::SplitTitle(f.s.build, "a\\n\\Nb");
    EXPECT_EQ(lines.items, (V{"a", "", "b"}));
    html::SplitTitle(f.s.build, "one\\n");
    EXPECT_EQ(lines.items, V{"one"});
    html::SplitTitle(f.s.build, ""); // an empty title leaves the lines as they stand
    EXPECT_EQ(lines.items, V{"one"});
    EXPECT_THROW(html::SplitTitle(f.s.build, tq::test::Repeat("x\\n", 151) + "last"), tq::model::InternalError);
    html::SplitTitle(f.s.build, "  lead\\nabcdef    ghij\\n short");
    // the "f" goes with the cut
    EXPECT_EQ(lines.items, (std::vector<std::string>{"&nbsp;  lead", "abcde&nbsp;  ghij", " short"}));
}

TEST(FormHeading, TwoLinesRequiredWithStylesAndALeadingBlank)
{
    HtmlFixture f;
    f.s.build.values.Italics = "ON";
    f.s.build.values.Bold = "on";
    f.s.build.values.ALIGN = "center";
    html::WriteFormHeading(f.s, "First\\n second", "Yes", "EMAIL");
    EXPECT_EQ(f.Output(), Lines({R"(<font color="000000" face="arial" size="3">)", "<i>", "<b>",
                                 R"(<p align="center">)", "* First <br>", "&nbsp; second", "</i>", "</b>", "<br>"}));
}

TEST(FormHeading, ThreeLinesNumberedAndPasswordDownloadIsAlwaysRequired)
{
    HtmlFixture f;
    f.s.build.setupValues.NumberEachQuestion = "YES";
    std::string title = "A\\nB\\nC";
    html::RecordQuestion(f.s.build, "downl3", title, "DOWNLOAD FILES WITH PASSWORD");
    html::WriteFormHeading(f.s, title, "no", "DOWNLOAD FILES WITH PASSWORD");
    EXPECT_EQ(f.Output(), Lines({R"(<font color="000000" face="arial" size="3">)", R"(<p align="left">)",
                                 "* 1a. &nbsp;A <br>", "B <br>", "C", "<br>"}));
}

TEST(SurveyHeading, FormDWritesEveryLineButTheLastTwice)
{
    HtmlFixture f("SURVEY");
    f.s.build.values.Italics = "on";
    f.s.build.values.ShadeWidth = "80%";
    f.s.build.values.ShadeColorHex = "EEEEEE";
    html::WriteSurveyHeading(f.s, "One\\nTwo\\nThree", "yes", "QUESTION YESNO REQUIRED");
    EXPECT_EQ(f.Output(),
              Lines({R"(<font color="000000" face="arial" size="3">)", "<i>", "",
                     R"(<p align="left"><font face="arial" size="3"></p>)", "",
                     R"(<p align="left"><font face="arial" size="3">* One </p>)", R"(<p align="left">* One)", "</i>",
                     "</font> </p>", "Two </p>", R"(<p align="left">Two)", "</i>", "</font> </p>",
                     R"(<p align="left">Three)", "</i>", "</font> </p>", R"(<div align="left">)",
                     R"(<table border="0" width="80%" bgcolor="EEEEEE">)", R"(<tr><td width="80%" align="center">)"}));
}

TEST(ShadeTable, WritesNothingInForm)
{
    HtmlFixture f("FORM");
    html::WriteShadeOpen(f.s);
    html::WriteShadeClose(f.s);
    EXPECT_EQ(f.Output(), "");
    HtmlFixture g("SURVEY");
    html::WriteShadeClose(g.s);
    EXPECT_EQ(g.Output(), Lines({"</td></tr></table></center></div>", "<br>"}));
}
