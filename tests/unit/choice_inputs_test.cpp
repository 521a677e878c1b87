// SPDX-License-Identifier: GPL-3.0-or-later
#include "html_fixture.h"

#include <gtest/gtest.h>

using tq::test::QuestionCase;
using tq::test::QuestionGolden;

TEST_P(QuestionGolden, WritesTheFragment)
{
    Check();
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Form, QuestionGolden, ::testing::Values(
    QuestionCase{.golden = "form/question_yesno_default.htm", .type = "QUESTION YESNO REQUIRED", .field = "quest9",
                 .title = "Agree?", .required = "yes", .defaultValue = " yes", .choices = {"Yes", "No"},
                 .caption = "1. Agree?"},
    QuestionCase{.golden = "form/question_vertical_italic.htm", .type = "QUESTION YESNO VERTICAL REQUIRED",
                 .field = "quest9", .title = "Agree?", .italics = "on", .choices = {"Yes", "No"},
                 .caption = "1. Agree?"},
    QuestionCase{.golden = "form/question_one_choice.htm", .type = "QUESTION MULTIPLE CHOICES", .field = "quest9",
                 .title = "Pick", .choices = {"Only"}, .caption = "1. Pick"},
    QuestionCase{.golden = "form/condition_with_comment_numbered.htm", .type = "CONDITION WITH COMMENT",
                 .field = "condi9", .title = "Cond", .defaultValue = "No", .numbered = true, .choices = {"Yes", "No"},
                 .caption = "1a. Cond"},
    QuestionCase{.golden = "form/followup_multiple_numbered.htm", .type = "FOLLOWUP WITH MULTIPLE CHOICES",
                 .field = "follo11", .title = "More", .defaultValue = "B", .numbered = true, .numberBefore = 1,
                 .choices = {"A", "B", "C"}, .caption = "1b. More"},
    QuestionCase{.golden = "form/checkbox_vertical_default.htm", .type = "CHECKBOX VERTICAL", .field = "check9",
                 .title = "Pick", .defaultValue = "green", .choices = {"Red", "Green", "Blue"}, .caption = "1. Pick"},
    QuestionCase{.golden = "form/checkbox_horizontal_italic.htm", .type = "CHECKBOX HORIZONTAL", .field = "check9",
                 .title = "Pick", .required = "YES", .italics = "on", .choices = {"One", "Two"}, .caption = "1. Pick"},
    QuestionCase{.golden = "form/dropdown_default_first.htm", .type = "DROPDOWN REQUIRED", .field = "dropd9",
                 .title = "Size", .required = "yes", .defaultValue = "S", .choices = {"S", "M", "L"},
                 .caption = "1. Size"},
    QuestionCase{.golden = "form/dropdown_no_default.htm", .type = "DROPDOWN NOT REQUIRED", .field = "dropd9",
                 .title = "Size", .choices = {"S", "M"}, .caption = "1. Size"},
    QuestionCase{.golden = "form/table_text_required.htm", .type = "TABLE TEXT REQUIRED", .field = "table9",
                 .title = "Rate us", .required = "yes", .caption = "1. Rate us"}));

INSTANTIATE_TEST_SUITE_P(Survey, QuestionGolden, ::testing::Values(
    QuestionCase{.golden = "survey/question_yesno_required.htm", .type = "QUESTION YESNO REQUIRED", .field = "quest9",
                 .title = "Agree?", .required = "yes", .defaultValue = "Yes", .choices = {"Yes", "No"},
                 .caption = "1. Agree?"},
    QuestionCase{.golden = "survey/question_multiple_italic.htm", .type = "QUESTION MULTIPLE CHOICES",
                 .field = "quest9", .title = "Pick", .italics = "on", .choices = {"Only"}, .caption = "1. Pick"},
    QuestionCase{.golden = "survey/condition_with_comment_numbered.htm", .type = "CONDITION WITH COMMENT",
                 .field = "condi9", .title = "Cond", .numbered = true, .choices = {"Yes", "No"},
                 .caption = "1a. Cond"},
    QuestionCase{.golden = "survey/followup_multiple_numbered.htm", .type = "FOLLOWUP WITH MULTIPLE CHOICES",
                 .field = "follo11", .title = "More", .numbered = true, .numberBefore = 1, .choices = {"A", "B"},
                 .caption = "1b. More"},
    QuestionCase{.golden = "survey/checkbox_horizontal_first_default.htm", .type = "CHECKBOX HORIZONTAL",
                 .field = "check9", .title = "Pick", .required = "yes", .defaultValue = "Red",
                 .choices = {"Red", "Green", "Blue"}, .caption = "1. Pick"},
    QuestionCase{.golden = "survey/checkbox_one_italic.htm", .type = "CHECKBOX VERTICAL", .field = "check9",
                 .title = "Pick", .italics = "on", .choices = {"Only"}, .caption = "1. Pick"},
    QuestionCase{.golden = "survey/dropdown_default.htm", .type = "DROPDOWN REQUIRED", .field = "dropd9",
                 .title = "Size", .required = "yes", .defaultValue = "M", .choices = {"S", "M", "L"},
                 .caption = "1. Size"},
    QuestionCase{.golden = "survey/dropdown_no_choices_bold.htm", .type = "DROPDOWN NOT REQUIRED", .field = "dropd9",
                 .title = "Size", .bold = "on", .caption = "1. Size"},
    QuestionCase{.golden = "survey/followup_dropdown_numbered.htm", .type = "FOLLOWUP WITH DROPDOWN",
                 .field = "follo11", .title = "Which", .numbered = true, .numberBefore = 2, .choices = {"A", "B"},
                 .caption = "2b. Which"}));
// clang-format on

TEST(Checkboxes, AnEmptyFirstChoiceStopsTheBuildInBothModes)
{
    for (const char* mode : {"form/", "survey/"}) {
        const QuestionCase c{.golden = mode,
                             .type = "CHECKBOX VERTICAL",
                             .field = "check9",
                             .title = "Pick one",
                             .required = "no",
                             .choices = {"", "Two"}};
        tq::test::HtmlFixture f(c.Mode());
        EXPECT_EQ(tq::test::WriteQuestion(f, c), "");
        EXPECT_EQ(f.s.build.buildError, 1);
        ASSERT_EQ(f.port.shown.size(), 1u);
        EXPECT_TRUE(Said(f.port.shown[0], "No entry for Pick one\rThere must be a value in the first entry", "NO VALUE",
                         tq::Icon::Critical));
    }
}
