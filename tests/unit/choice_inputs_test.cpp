// SPDX-License-Identifier: GPL-3.0-or-later
#include "html/choice_inputs.h"
#include "html_fixture.h"

#include <gtest/gtest.h>

using tq::test::Golden;
using tq::test::HtmlFixture;
using tq::test::QuestionCase;
namespace html = tq::html;

namespace {

std::string WriteCase(HtmlFixture& f, const QuestionCase& c)
{
    c.Prepare(f);
    const bool survey = c.Mode() == "SURVEY";
    const std::string& t = c.type;
    if (t.rfind("CHECKBOX", 0) == 0) {
        if (survey)
            html::WriteSurveyCheckboxes(f.s, f.port, c.field, c.title, t, c.defaultValue, c.required);
        else
            html::WriteFormCheckboxes(f.s, f.port, c.field, c.title, t, c.defaultValue, c.required);
    } else if (t.rfind("DROPDOWN", 0) == 0 || t == "FOLLOWUP WITH DROPDOWN") {
        if (survey)
            html::WriteSurveyDropdown(f.s, c.field, c.title, c.defaultValue, t, c.required);
        else
            html::WriteFormDropdown(f.s, c.field, c.title, c.defaultValue, t, c.required);
    } else if (survey) {
        html::WriteSurveyChoices(f.s, c.field, c.title, t, c.defaultValue, c.required);
    } else {
        html::WriteFormChoices(f.s, c.field, c.title, t, c.defaultValue, c.required);
    }
    return f.Output();
}

class ChoiceGolden : public ::testing::TestWithParam<QuestionCase>
{
};

} // namespace

TEST_P(ChoiceGolden, WritesTheFragment)
{
    const QuestionCase& c = GetParam();
    HtmlFixture f(c.Mode());
    EXPECT_EQ(WriteCase(f, c), Golden(c.golden));
    tq::test::ExpectMessages(f, c);
    EXPECT_TRUE(f.port.shown.empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Form, ChoiceGolden, ::testing::Values(
    QuestionCase{.golden = "form/question_yesno_default.htm", .type = "QUESTION YESNO REQUIRED", .field = "quest9",
                 .title = "Agree?", .required = "yes", .defaultValue = " yes", .choices = {"Yes", "No"},
                 .caption = "1. Agree?"},
    QuestionCase{.golden = "form/question_vertical_italic.htm", .type = "QUESTION YESNO VERTICAL REQUIRED",
                 .field = "quest9", .title = "Agree?", .required = "no", .italics = "on", .choices = {"Yes", "No"},
                 .caption = "1. Agree?"},
    QuestionCase{.golden = "form/question_one_choice.htm", .type = "QUESTION MULTIPLE CHOICES", .field = "quest9",
                 .title = "Pick", .required = "no", .choices = {"Only"}, .caption = "1. Pick"},
    QuestionCase{.golden = "form/condition_with_comment_numbered.htm", .type = "CONDITION WITH COMMENT",
                 .field = "condi9", .title = "Cond", .required = "no", .defaultValue = "No", .numbered = true,
                 .choices = {"Yes", "No"}, .caption = "1a. Cond"},
    QuestionCase{.golden = "form/followup_multiple_numbered.htm", .type = "FOLLOWUP WITH MULTIPLE CHOICES",
                 .field = "follo11", .title = "More", .required = "no", .defaultValue = "B", .numbered = true,
                 .numberBefore = 1, .choices = {"A", "B", "C"}, .caption = "1b. More"},
    QuestionCase{.golden = "form/checkbox_vertical_default.htm", .type = "CHECKBOX VERTICAL", .field = "check9",
                 .title = "Pick", .required = "no", .defaultValue = "green", .choices = {"Red", "Green", "Blue"},
                 .caption = "1. Pick"},
    QuestionCase{.golden = "form/checkbox_horizontal_italic.htm", .type = "CHECKBOX HORIZONTAL", .field = "check9",
                 .title = "Pick", .required = "YES", .italics = "on", .choices = {"One", "Two"},
                 .caption = "1. Pick"},
    QuestionCase{.golden = "form/dropdown_default_first.htm", .type = "DROPDOWN REQUIRED", .field = "dropd9",
                 .title = "Size", .required = "yes", .defaultValue = "S", .choices = {"S", "M", "L"},
                 .caption = "1. Size"},
    QuestionCase{.golden = "form/dropdown_no_default.htm", .type = "DROPDOWN NOT REQUIRED", .field = "dropd9",
                 .title = "Size", .required = "no", .choices = {"S", "M"}, .caption = "1. Size"},
    QuestionCase{.golden = "form/table_text_required.htm", .type = "TABLE TEXT REQUIRED", .field = "table9",
                 .title = "Rate us", .required = "yes", .caption = "1. Rate us"}));

INSTANTIATE_TEST_SUITE_P(Survey, ChoiceGolden, ::testing::Values(
    QuestionCase{.golden = "survey/question_yesno_required.htm", .type = "QUESTION YESNO REQUIRED",
                 .field = "quest9", .title = "Agree?", .required = "yes", .defaultValue = "Yes",
                 .choices = {"Yes", "No"}, .caption = "1. Agree?"},
    QuestionCase{.golden = "survey/question_multiple_italic.htm", .type = "QUESTION MULTIPLE CHOICES",
                 .field = "quest9", .title = "Pick", .required = "no", .italics = "on", .choices = {"Only"},
                 .caption = "1. Pick"},
    QuestionCase{.golden = "survey/condition_with_comment_numbered.htm", .type = "CONDITION WITH COMMENT",
                 .field = "condi9", .title = "Cond", .required = "no", .numbered = true, .choices = {"Yes", "No"},
                 .caption = "1a. Cond"},
    QuestionCase{.golden = "survey/followup_multiple_numbered.htm", .type = "FOLLOWUP WITH MULTIPLE CHOICES",
                 .field = "follo11", .title = "More", .required = "no", .numbered = true, .numberBefore = 1,
                 .choices = {"A", "B"}, .caption = "1b. More"},
    QuestionCase{.golden = "survey/checkbox_horizontal_first_default.htm", .type = "CHECKBOX HORIZONTAL",
                 .field = "check9", .title = "Pick", .required = "yes", .defaultValue = "Red",
                 .choices = {"Red", "Green", "Blue"}, .caption = "1. Pick"},
    QuestionCase{.golden = "survey/checkbox_one_italic.htm", .type = "CHECKBOX VERTICAL", .field = "check9",
                 .title = "Pick", .required = "no", .italics = "on", .choices = {"Only"}, .caption = "1. Pick"},
    QuestionCase{.golden = "survey/dropdown_default.htm", .type = "DROPDOWN REQUIRED", .field = "dropd9",
                 .title = "Size", .required = "yes", .defaultValue = "M", .choices = {"S", "M", "L"},
                 .caption = "1. Size"},
    QuestionCase{.golden = "survey/dropdown_no_choices_bold.htm", .type = "DROPDOWN NOT REQUIRED",
                 .field = "dropd9", .title = "Size", .required = "no", .bold = "on", .caption = "1. Size"},
    QuestionCase{.golden = "survey/followup_dropdown_numbered.htm", .type = "FOLLOWUP WITH DROPDOWN",
                 .field = "follo11", .title = "Which", .required = "no", .numbered = true, .numberBefore = 2,
                 .choices = {"A", "B"}, .caption = "2b. Which"}));
// clang-format on

TEST(Checkboxes, AnEmptyFirstChoiceStopsTheBuildInBothModes)
{
    for (const char* mode : {"FORM", "SURVEY"}) {
        HtmlFixture f(mode);
        f.s.build.values.CheckBoxes.push("");
        f.s.build.values.CheckBoxes.push("Two");
        if (std::string(mode) == "FORM")
            html::WriteFormCheckboxes(f.s, f.port, "check9", "Pick one", "CHECKBOX VERTICAL", "", "no");
        else
            html::WriteSurveyCheckboxes(f.s, f.port, "check9", "Pick one", "CHECKBOX VERTICAL", "", "no");
        EXPECT_EQ(f.s.build.buildError, 1);
        EXPECT_FALSE(f.s.build.channels[1].isOpen());
        ASSERT_EQ(f.port.shown.size(), 1u);
        EXPECT_TRUE(Said(f.port.shown[0], "No entry for Pick one\rThere must be a value in the first entry", "NO VALUE",
                         tq::Icon::Critical));
        EXPECT_EQ(f.Output(), "");
        EXPECT_EQ(f.s.build.messageLineCount, 0);
    }
}

TEST(EmptyTitle, OnlyTheTailsAreWritten)
{
    HtmlFixture f("SURVEY");
    f.s.build.values.Italics = "on";
    f.s.build.values.Bold = "on";
    f.s.build.values.Choices.push("A");
    html::WriteSurveyChoices(f.s, "quest9", "", "QUESTION", "", "no");
    html::WriteSurveyDropdown(f.s, "dropd9", "", "", "DROPDOWN REQUIRED", "no");
    EXPECT_EQ(f.Output(), tq::test::Lines({"</i>", "</td></tr></table></center></div>", "<br>", "</i>", "</b>",
                                           "</td></tr></table></center></div>", "<br>"}));
    HtmlFixture g("FORM");
    g.s.build.values.Bold = "on";
    html::WriteFormDropdown(g.s, "dropd9", "", "", "DROPDOWN REQUIRED", "no");
    html::WriteFormCheckboxes(g.s, g.port, "check9", "", "CHECKBOX HORIZONTAL", "", "no");
    EXPECT_EQ(g.Output(), tq::test::Lines({"</b>", "</font>", "<br>"}));
    EXPECT_EQ(f.s.build.messageLineCount + g.s.build.messageLineCount, 0);
}
