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
INSTANTIATE_TEST_SUITE_P(Conditions, QuestionGolden, ::testing::Values(
    QuestionCase{.golden = "survey/condition_multiple_numbered.htm", .type = "CONDITION WITH MULTIPLE CHOICES",
                 .field = "condi9", .title = "Cond", .defaultValue = "A", .numbered = true, .choices = {"A", "B"},
                 .caption = "1a. Cond"},
    QuestionCase{.golden = "survey/condition_dropdown_default_bold.htm", .type = "CONDITION WITH DROPDOWN",
                 .field = "condi9", .title = "Cond", .defaultValue = "No", .bold = "on",
                 .choices = {"Yes", "No", "Maybe"}, .caption = "1a. Cond"}));

INSTANTIATE_TEST_SUITE_P(Downloads, QuestionGolden, ::testing::Values(
    QuestionCase{.golden = "form/download_labels_left.htm", .type = "DOWNLOAD FILES", .field = "downl3",
                 .title = "Files", .files = {"a.zip", "b.pdf"}, .labels = "Yes", .visible = "yes",
                 .messages = {"1. Files", "downl3", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip  b.pdf"}},
    QuestionCase{.golden = "form/download_no_labels_left.htm", .type = "DOWNLOAD FILES", .field = "downl3",
                 .title = "Files", .files = {"a.zip", "b.pdf"}, .labels = "NO", .visible = "YES",
                 .messages = {"1. Files", "downl3", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip  b.pdf"}},
    QuestionCase{.golden = "form/download_password_hidden.htm", .type = "DOWNLOAD FILES WITH PASSWORD",
                 .field = "downl3", .title = "Get", .files = {"a.zip"}, .labels = "yes", .visible = "no",
                 .messages = {"1a. Get", "", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip"}},
    QuestionCase{.golden = "survey/download_one_file_center.htm", .type = "DOWNLOAD FILES", .field = "downl3",
                 .title = "Files", .align = "center", .files = {"a.zip"}, .labels = "YES", .visible = "YES",
                 .messages = {"1. Files", "downl3", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip"}},
    QuestionCase{.golden = "survey/download_password_labels_center.htm", .type = "DOWNLOAD FILES WITH PASSWORD",
                 .field = "downl3", .title = "Get", .align = "center", .files = {"a.zip", "b.pdf"}, .labels = "YES",
                 .visible = "YES", .messages = {"1a. Get", "", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip  b.pdf"}},
    QuestionCase{.golden = "survey/download_no_labels_right.htm", .type = "DOWNLOAD FILES", .field = "downl3",
                 .title = "Files", .align = "right", .files = {"a.zip", "b.pdf"}, .labels = "no", .visible = "yes",
                 .messages = {"1. Files", "downl3", "FILE(S) THAT WERE DOWNLOADED", "-  a.zip  b.pdf"}}));
// clang-format on
