// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/choice_inputs.h"
#include "html/conditions.h"
#include "html_fixture.h"

#include <gtest/gtest.h>

using tq::test::Golden;
using tq::test::HtmlFixture;
using tq::test::QuestionCase;
namespace html = tq::html;

namespace {

// The condition types as the dispatcher sends them; downloads come through the radio writers.
std::string WriteCase(HtmlFixture& f, const QuestionCase& c)
{
    c.Prepare(f);
    if (c.type == "CONDITION WITH MULTIPLE CHOICES")
        html::WriteConditionChoices(f.s, c.field, c.title, c.type, c.defaultValue, c.required);
    else if (c.type == "CONDITION WITH DROPDOWN")
        html::WriteConditionDropdown(f.s, c.field, c.title, c.type, c.defaultValue, c.required);
    else if (c.Mode() == "SURVEY")
        html::WriteSurveyChoices(f.s, c.field, c.title, c.type, c.defaultValue, c.required);
    else
        html::WriteFormChoices(f.s, c.field, c.title, c.type, c.defaultValue, c.required);
    return f.Output();
}

class ConditionGolden : public ::testing::TestWithParam<QuestionCase>
{
};

} // namespace

TEST_P(ConditionGolden, WritesTheFragment)
{
    const QuestionCase& c = GetParam();
    HtmlFixture f(c.Mode());
    EXPECT_EQ(WriteCase(f, c), Golden(c.golden));
    tq::test::ExpectMessages(f, c);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Conditions, ConditionGolden, ::testing::Values(
    QuestionCase{.golden = "survey/condition_multiple_numbered.htm", .type = "CONDITION WITH MULTIPLE CHOICES",
                 .field = "condi9", .title = "Cond", .required = "no", .defaultValue = "A", .numbered = true,
                 .choices = {"A", "B"}, .caption = "1a. Cond"},
    QuestionCase{.golden = "survey/condition_dropdown_default_bold.htm", .type = "CONDITION WITH DROPDOWN",
                 .field = "condi9", .title = "Cond", .required = "no", .defaultValue = "No", .bold = "on",
                 .choices = {"Yes", "No", "Maybe"}, .caption = "1a. Cond"}));

INSTANTIATE_TEST_SUITE_P(Downloads, ConditionGolden, ::testing::Values(
    QuestionCase{.golden = "form/download_labels_left.htm", .type = "DOWNLOAD FILES", .field = "downl3",
                 .title = "Files", .required = "no", .files = {"a.zip", "b.pdf"}, .labels = "Yes",
                 .visible = "yes",
                 .messages = {"1. Files", "downl3", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip  b.pdf"}},
    QuestionCase{.golden = "form/download_no_labels_left.htm", .type = "DOWNLOAD FILES", .field = "downl3",
                 .title = "Files", .required = "no", .files = {"a.zip", "b.pdf"}, .labels = "NO",
                 .visible = "YES",
                 .messages = {"1. Files", "downl3", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip  b.pdf"}},
    QuestionCase{.golden = "form/download_password_hidden.htm", .type = "DOWNLOAD FILES WITH PASSWORD",
                 .field = "downl3", .title = "Get", .required = "no", .files = {"a.zip"}, .labels = "yes",
                 .visible = "no", .messages = {"1a. Get", "", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip"}},
    QuestionCase{.golden = "survey/download_one_file_center.htm", .type = "DOWNLOAD FILES", .field = "downl3",
                 .title = "Files", .required = "no", .align = "center", .files = {"a.zip"}, .labels = "YES",
                 .visible = "YES",
                 .messages = {"1. Files", "downl3", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip"}},
    QuestionCase{.golden = "survey/download_password_labels_center.htm", .type = "DOWNLOAD FILES WITH PASSWORD",
                 .field = "downl3", .title = "Get", .required = "no", .align = "center",
                 .files = {"a.zip", "b.pdf"}, .labels = "YES", .visible = "YES",
                 .messages = {"1a. Get", "", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip  b.pdf"}},
    QuestionCase{.golden = "survey/download_no_labels_right.htm", .type = "DOWNLOAD FILES", .field = "downl3",
                 .title = "Files", .required = "no", .align = "right", .files = {"a.zip", "b.pdf"}, .labels = "no",
                 .visible = "yes",
                 .messages = {"1. Files", "downl3", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip  b.pdf"}}));
// clang-format on

TEST(ConditionWriters, AnEmptyTitleWritesOnlyTheShadeClose)
{
    HtmlFixture f("SURVEY");
    f.s.build.values.Choices.push("A");
    html::WriteConditionChoices(f.s, "condi9", "", "CONDITION WITH MULTIPLE CHOICES", "", "no");
    html::WriteConditionDropdown(f.s, "condi9", "", "CONDITION WITH DROPDOWN", "", "no");
    EXPECT_EQ(f.Output(), tq::test::Lines({"</td></tr></table></center></div>", "<br>",
                                           "</td></tr></table></center></div>", "<br>"}));
    EXPECT_EQ(f.s.build.messageLineCount, 0);
}

TEST(AttributeConversion, TextAndAttributeConvertBothWays)
{
    tq::test::TempDir dir;
    EXPECT_EQ(html::TextToAttribute(dir.path(), "Line one\r\nLine  two\r\n\r\n", false), "Line one\\nLine&nbsp;two");
    EXPECT_EQ(html::TextToAttribute(dir.path(), "a\tb c  d", true), "a\tb c  d");
    EXPECT_EQ(html::TextToAttribute(dir.path(), "tab\there", false), "tab&nbsp;&nbsp;&nbsp;here");
    EXPECT_EQ(html::TextToAttribute(dir.path(), "a  b", false), "a  b"); // fewer than 5 characters
    EXPECT_EQ(html::TextToAttribute(dir.path(), "NoNe", false), "NoNe");
    EXPECT_EQ(html::TextToAttribute(dir.path(), "one\ntwo  x", false), "one\\ntwo&nbsp;x");
    EXPECT_TRUE(std::filesystem::exists(dir.file("junk.txt")));
    EXPECT_EQ(html::AttributeToText(dir.path(), "Line one\\nLine&nbsp;two\\Nthree"), "Line one\r\nLine  two\r\nthree");
    EXPECT_EQ(html::AttributeToText(dir.path(), "none"), "none");
    EXPECT_EQ(html::AttributeToText(dir.path(), ""), "");
}
