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
    QuestionCase{.golden = "form/name_required_default_width.htm", .type = "NAME", .field = "name3",
                 .title = "Your name", .required = "yes", .defaultValue = "John", .width = "30",
                 .caption = "1. Your name"},
    QuestionCase{.golden = "form/name_default_no_width.htm", .type = "Name", .field = "name3", .title = "Your name",
                 .defaultValue = "John", .caption = "1. Your name"},
    QuestionCase{.golden = "form/email_no_width_no_default.htm", .type = "EMAIL", .field = "email5",
                 .title = "E-mail", .caption = "1. E-mail"},
    QuestionCase{.golden = "form/email_width_numbered_styled.htm", .type = "EMAIL", .field = "email5",
                 .title = "E-mail", .required = "YES", .width = "25", .numbered = true, .italics = "ON", .bold = "ON",
                 .align = "center", .caption = "1. E-mail"},
    QuestionCase{.golden = "form/password_default.htm", .type = "PASSWORD", .field = "passw7", .title = "Password",
                 .defaultValue = "secret", .caption = "1. Password"},
    QuestionCase{.golden = "form/security_code_width.htm", .type = "SECURITY CODE", .field = "secur9",
                 .title = "Code", .width = "10", .caption = "1. Code"},
    QuestionCase{.golden = "form/followup_files_password.htm", .type = "FOLLOWUP FILES WITH PASSWORD",
                 .field = "follo11", .title = "Password", .width = "12", .numbered = true, .numberBefore = 2,
                 .caption = "2b. Password"},
    QuestionCase{.golden = "form/title_header.htm", .type = "TITLE HEADER", .field = "title3",
                 .title = "Welcome\\nto the form", .bold = "on", .align = "center", .size = "5"},
    QuestionCase{.golden = "form/comments_default.htm", .type = "COMMENTS WITH TEXT", .field = "comme7",
                 .title = "Comments", .width = "40", .height = "5", .defaultLines = {"Line one", "Line two"},
                 .caption = "1. Comments"},
    QuestionCase{.golden = "form/comments_required_none.htm", .type = "COMMENTS REQUIRED", .field = "comme7",
                 .title = "Comments", .required = "yes", .width = "40", .height = "5", .caption = "1. Comments"}));

INSTANTIATE_TEST_SUITE_P(Survey, QuestionGolden, ::testing::Values(
    QuestionCase{.golden = "survey/name_no_default.htm", .type = "NAME", .field = "name3", .title = "Your name",
                 .required = "Yes", .width = "30", .caption = "1. Your name"},
    QuestionCase{.golden = "survey/phone_default_bold.htm", .type = "PHONE NUMBER", .field = "phone5",
                 .title = "Phone", .defaultValue = "555-1234", .bold = "on", .caption = "1. Phone"},
    QuestionCase{.golden = "survey/email_width_default.htm", .type = "EMAIL", .field = "email5", .title = "E-mail",
                 .required = "yes", .defaultValue = "me@example.com", .width = "30", .caption = "1. E-mail"},
    QuestionCase{.golden = "survey/email_default_no_width.htm", .type = "EMAIL", .field = "email5", .title = "E-mail",
                 .defaultValue = "me@example.com", .caption = "1. E-mail"},
    QuestionCase{.golden = "survey/email_no_width_no_default_numbered.htm", .type = "EMAIL", .field = "email5",
                 .title = "E-mail", .numbered = true, .caption = "1. E-mail"},
    QuestionCase{.golden = "survey/email_width_no_default.htm", .type = "EMAIL", .field = "email5", .title = "E-mail",
                 .width = "30", .caption = "1. E-mail"},
    QuestionCase{.golden = "survey/user_name_styled.htm", .type = "USER NAME", .field = "user 13", .title = "User",
                 .width = "20", .italics = "on", .bold = "on", .align = "right", .caption = "1. User"},
    QuestionCase{.golden = "survey/password_default.htm", .type = "PASSWORD", .field = "passw7", .title = "Password",
                 .required = "yes", .defaultValue = "secret", .caption = "1. Password"},
    QuestionCase{.golden = "survey/followup_files_password.htm", .type = "FOLLOWUP FILES WITH PASSWORD",
                 .field = "follo11", .title = "Password", .numbered = true, .numberBefore = 2,
                 .caption = "2b. Password"},
    QuestionCase{.golden = "survey/title_header.htm", .type = "TITLE HEADER", .field = "title3",
                 .title = "Welcome\\nto the survey", .required = "yes", .align = "center", .size = "5"},
    QuestionCase{.golden = "survey/survey_intro.htm", .type = "SURVEY INTRO", .field = "surve3",
                 .title = "Hello\\nWorld", .required = "", .introLines = {"Hello", "World"}},
    QuestionCase{.golden = "survey/comments_followup_numbered.htm", .type = "FOLLOWUP WITH COMMENT",
                 .field = "follo9", .title = "Why?", .required = "", .width = "30", .height = "4", .numbered = true,
                 .numberBefore = 3, .caption = "3b. Why?"},
    QuestionCase{.golden = "survey/comments_default_italic.htm", .type = "COMMENTS NOT REQUIRED", .field = "comme7",
                 .title = "Comments", .width = "40", .height = "5", .italics = "on", .defaultLines = {"Line one"},
                 .caption = "1. Comments"}));
// clang-format on
