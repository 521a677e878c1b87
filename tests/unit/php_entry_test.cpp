// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/entry_php.h"
#include "scripted_port.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;

namespace {

// A PHP pass in miniature: channels 1 and 2 open on files of a temp folder.
struct Pass
{
    test::TempDir dir;
    test::ScriptedPort ui;
    std::unique_ptr<build::BuildState> state = std::make_unique<build::BuildState>();

    Pass()
    {
        state->channels[1].open(dir.file("out.php"));
        state->channels[2].open(dir.file("downtemp.txt"));
    }
    build::WorkingValues& v() { return state->values; }
    // Runs one Entry with fresh values; returns what channel 1 got for it.
    std::string entry(const std::string& type,
                      const std::string& key,
                      const std::string& req = "no",
                      const std::string& msg = "M",
                      const std::string& msg2 = "B")
    {
        std::string before = ch1();
        state->values.REQ = req;
        state->values.MSG = msg;
        state->values.MSG2 = msg2;
        if (state->values.Title.empty())
            state->values.Title = "T";
        php::WriteEntryPhp(ui, *state, type, key);
        state->values = build::WorkingValues{};
        return ch1().substr(before.size());
    }
    std::string ch1()
    {
        state->channels[1].close();
        std::string s = test::ReadFileBytes(dir.file("out.php"));
        state->channels[1].open(dir.file("out.php"), true);
        return s;
    }
    std::string ch2()
    {
        state->channels[2].close();
        return test::ReadFileBytes(dir.file("downtemp.txt"));
    }
};

} // namespace

TEST(PhpEntry, CheckEntryTypesRequiredAndNot)
{
    for (const char* type : {"NAME", "Subject", "PHONE NUMBER", "COMMENTS REQUIRED", "COMMENTS NOT REQUIRED",
                             "COMMENTS WITH TEXT", "QUESTION MULTIPLE CHOICES COMMENTS", "QUESTION MULTIPLE CHOICES",
                             "CONDITION WITH DROPDOWN", "TABLE CHOICES REQUIRED", "TABLE TEXT REQUIRED"}) {
        Pass p;
        p.state->lastConditionField = "old5";
        EXPECT_EQ(p.entry(type, "abcde3", "No", "Msg"), "$abcde3 = $_POST[\"abcde3\"];\r\n") << type;
        EXPECT_EQ(p.state->lastConditionField, "old5") << type;
        EXPECT_EQ(p.entry(type, "abcde5", "yEs", "Msg"), "$abcde5 = check_entry($_POST[\"abcde5\"],\"Msg\");\r\n")
            << type;
        EXPECT_EQ(p.state->lastConditionField, "abcde5") << type;
    }
}

TEST(PhpEntry, EmailUsesBothMessagesAndKeepsTheCondition)
{
    Pass p;
    p.state->lastConditionField = "condi3";
    EXPECT_EQ(p.entry("EMAIL", "email5", "YES", "Bad", "Empty"),
              "$email5 = check_entry($_POST[\"email5\"],\"Empty\");\r\n"
              "$email = validate_email($_POST[\"email5\"], \"Bad\");\r\n");
    EXPECT_EQ(p.entry("EMAIL", "email7", "no"), "$email7 = $_POST[\"email7\"];\r\n");
    EXPECT_EQ(p.state->lastConditionField, "condi3");
}

TEST(PhpEntry, ConditionsAndTheirFollowups)
{
    Pass p;
    EXPECT_EQ(p.entry("CONDITION WITH COMMENT", "condi3", "yes", "Yes or no"),
              "$condi3 = validate_yesno($_POST[\"condi3\"], \"Yes or no\");\r\n");
    // a second Condition overwrites the field; no fault arises
    p.entry("QUESTION YESNO VERTICAL REQUIRED", "quest5", "yes");
    EXPECT_EQ(p.state->lastConditionField, "quest5");
    EXPECT_EQ(p.entry("FOLLOWUP WITH COMMENT", "follo7", "yes", "More"),
              "$follo7 = $_POST[\"follo7\"];\r\nvalidate_radio($quest5,$follo7,\"More\");\r\n\r\n");
    EXPECT_EQ(p.state->lastConditionField, "");
    // a not-required Condition keeps the older field, here a required NAME
    p.entry("NAME", "name9", "yes");
    EXPECT_EQ(p.entry("CONDITION WITH MULTIPLE CHOICES", "condi11", "no"), "$condi11 = $_POST[\"condi11\"];\r\n");
    EXPECT_EQ(p.entry("FOLLOWUP WITH DROPDOWN", "follo13", "no", "Pick"),
              "$follo13 = $_POST[\"follo13\"];\r\nvalidate_radio_notselected($name9,$follo13,\"Pick\");\r\n\r\n");
    // with nothing before it the Followup writes the broken "$,"
    EXPECT_EQ(p.entry("FOLLOWUP WITH MULTIPLE CHOICES", "follo15", "no", "X"),
              "$follo15 = $_POST[\"follo15\"];\r\nvalidate_radio($,$follo15,\"X\");\r\n\r\n");
}

TEST(PhpEntry, DropdownsCheckboxesAndPasswords)
{
    Pass p;
    p.state->lastConditionField = "condi3";
    EXPECT_EQ(p.entry("DROPDOWN NOT REQUIRED", "dropd5", "no", "Choose"),
              "$dropd5 = $_POST[\"dropd5\"];\r\nvalidate_radio_dropdown_notselected($dropd5,\"Choose\");\r\n\r\n");
    EXPECT_EQ(p.state->lastConditionField, "");
    p.state->lastConditionField = "condi3";
    EXPECT_EQ(p.entry("CHECKBOX VERTICAL", "check7", "yes", "Tick"),
              "$check7 = validate_check($_POST[\"check7\"], \"Tick\");\r\n$check7 = getresults_check($check7);\r\n");
    EXPECT_EQ(p.entry("CHECKBOX HORIZONTAL", "check9", "no"),
              "$check9 = $_POST[\"check9\"];\r\n$check9 = getresults_check($check9);\r\n");
    EXPECT_EQ(p.state->lastConditionField, "condi3");
    p.v().PASSWORD = "S3cret";
    p.v().USERNAME = "not used";
    EXPECT_EQ(p.entry("SECURITY CODE", "secur11", "yes", "Wrong", "Empty"),
              "$secur11 = check_entry($_POST[\"secur11\"],\"Empty\");\r\n"
              "$secur11 = validate_userpass($_POST[\"secur11\"],\"S3cret\",\"Wrong\");\r\n\r\n");
    EXPECT_EQ(p.state->lastConditionField, "secur11");
    EXPECT_EQ(p.entry("PASSWORD", "passw13", "no"), "$passw13 = $_POST[\"passw13\"];\r\n");
    EXPECT_EQ(p.state->lastConditionField, "secur11");
}

TEST(PhpEntry, TypesWithoutChecksWriteNothing)
{
    Pass p;
    p.state->setupValues.NumberEachQuestion = "YES";
    for (const char* type : {"TITLE 1 SINGLE LINE", "TITLE HEADER", "SURVEY INTRO", "VIDEO", "PICTURE",
                             "HORIZONTAL LINE", "BLANK LINE", "TITLE SHADE", "SETUP", "NOT A TYPE"})
        EXPECT_EQ(p.entry(type, "xxxxx3", "yes"), "") << type;
    EXPECT_EQ(p.entry("NAME", "", "yes"), "");
    EXPECT_EQ(p.state->phpQuestionNumber, 0);
    // a CANCEL BUTTON writes nothing but takes a number
    EXPECT_EQ(p.entry("CANCEL BUTTON", "cance3"), "");
    EXPECT_EQ(p.state->phpQuestionNumber, 1);
    Pass off;
    off.state->setupValues.NumberEachQuestion = "NO";
    EXPECT_EQ(off.entry("NAME", "name3", "yes", "Name?"), "$name3 = check_entry($_POST[\"name3\"],\"Name?\");\r\n");
    EXPECT_EQ(off.state->phpQuestionNumber, 0);
}

TEST(PhpEntry, DownloadFiles)
{
    Pass p;
    p.state->lastConditionField = "condi3";
    EXPECT_EQ(p.entry("DOWNLOAD FILES", "downl5", "no"), "download_file();\r\n");
    EXPECT_EQ(p.state->lastConditionField, "condi3");
    EXPECT_EQ(p.entry("Download Files", "downl7", "YES", "Enter"),
              "$downl7 = check_entry($_POST[\"downl7\"],\"Enter\");\r\n");
    EXPECT_EQ(p.state->lastConditionField, "downl7");
    EXPECT_EQ(p.entry("DOWNLOAD FILES WITH PASSWORD", "downl9", "no"), "");
    EXPECT_EQ(p.state->lastConditionField, "downl9");
    EXPECT_EQ(p.entry("DOWNLOAD FILES WITH PASSWORD", "downl11", "yes", "Pw"),
              "$downl11 = check_entry($_POST[\"downl11\"],\"Pw\");\r\n");
    EXPECT_EQ(p.state->lastConditionField, "downl11");
    // an empty title writes nothing and changes nothing
    p.v().Title = "";
    p.state->values.REQ = "no";
    php::WriteEntryPhp(p.ui, *p.state, "DOWNLOAD FILES", "downl13");
    EXPECT_EQ(p.ch1().find("downl13"), std::string::npos);
    EXPECT_TRUE(p.ui.shown.empty());
}

TEST(PhpEntry, FollowupFilesPairsWithADownloadOrCondition)
{
    for (const char* before : {"downl3", "condi3"}) {
        Pass p;
        p.state->setupValues.NumberEachQuestion = "YES";
        p.state->phpQuestionNumber = 4;
        p.state->lastConditionField = before;
        p.v().PASSWORD = "Open Sesame";
        // REQ is forced to yes; the pair goes to channel 1, the password check to channel 2
        EXPECT_EQ(p.entry("FOLLOWUP FILES WITH PASSWORD", "follo5", "no", "Wrong", "Empty"),
                  "$follo5 = $_POST[\"follo5\"];\r\n$follo5 = check_entry($_POST[\"follo5\"],\" 4b. Empty for question "
                  "4b\");\r\n");
        EXPECT_EQ(p.ch2(), "$follo5 = validate_userpass_download($_POST[\"follo5\"],\"Open Sesame\", \" 4b. Wrong for "
                           "question 4b\");\r\n");
        EXPECT_EQ(p.state->lastConditionField, "");
        EXPECT_EQ(p.state->buildError, 0);
        EXPECT_TRUE(p.ui.shown.empty());
    }
}

TEST(PhpEntry, FollowupFilesOutOfPlaceStopsTheBuild)
{
    for (const char* before : {"", "name3", "  ", "follo3"}) {
        Pass p;
        p.state->lastConditionField = before;
        EXPECT_EQ(p.entry("Followup Files With Password", "follo5", "yes"), "") << before;
        EXPECT_EQ(p.state->buildError, 1);
        EXPECT_EQ(p.ch2(), "");
        ASSERT_EQ(p.ui.shown.size(), 1u);
        EXPECT_TRUE(
            Said(p.ui.shown[0],
                 "A followup-D must follow a condition-D\r\rDelete the input type FOLLOWUP FILES WITH PASSWORD\r"
                 " and the input type conditon-D\r\rand rebuild the form",
                 "ERROR", Icon::Critical));
    }
    // the download form of the box needs a key that is not a Followup's
    Pass p;
    p.state->lastConditionField = "downl3";
    p.v().Title = "T";
    php::WriteEntryPhp(p.ui, *p.state, "FOLLOWUP FILES WITH PASSWORD", "other5");
    EXPECT_EQ(p.state->buildError, 1);
    EXPECT_FALSE(p.state->channels[1].isOpen()); // every channel is closed
    EXPECT_FALSE(p.state->channels[2].isOpen());
    ASSERT_EQ(p.ui.shown.size(), 1u);
    EXPECT_EQ(p.ui.shown[0].text,
              "A followup-D must follow a download-D\r\rDelete the input type FOLLOWUP FILES WITH PASSWORD\r"
              " and the input type conditon-D\r\rand rebuild the form");
}
