// SPDX-License-Identifier: GPL-3.0-or-later
#include "php/entry_php.h"
#include "php/script_skeleton.h"
#include "scripted_port.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;

// Plays the driver's part: the script on channel 1, the download checks on
// channel 2, copied in behind the option lines.
TEST(PhpSkeleton, WholeScriptMatchesGolden)
{
    test::TempDir dir;
    auto state = std::make_unique<write::BuildState>();
    write::BuildState& st = *state;
    st.setupValues.EMAIL1 = "a@example.com";
    st.setupValues.EMAIL2 = "none";
    st.setupValues.EMAIL3 = "c@example.com";
    st.setupValues.FROM = "forms";
    st.setupValues.COMPLETED = "https://www.tarnquill.example/thanks.htm";
    st.setupValues.NumberEachQuestion = "yes";
    st.mailSubject = "General Question";
    st.optionPending = true;
    for (const char* slot : {"1. Name&nbsp;&nbsp;", "name3", "2. Your e-mail\\nplease", "email5", "\\nTable B. Colour",
                             "-Thanks", "4. Comments", "   ", "5. Last", ""})
        st.messageLines[static_cast<size_t>(++st.messageLineCount)] = slot;
    st.downloadTextCount = 2;
    st.downloadTexts[1] = "PASSWORD IS CORRECT";
    st.downloadTexts[2] = "Right mouse click on each file";
    st.downloadFileCount = 2;
    st.downloadFiles[1] = "a.zip";
    st.downloadFiles[2] = "b.pdf";
    st.homePage = "https://www.tarnquill.example/index.htm";
    ASSERT_TRUE(st.channels[1].open(dir.file("formtql.php")));
    php::WriteScriptOpening(st.channels[1]);
    ASSERT_TRUE(st.channels[2].open(dir.file("downtemp.txt")));
    php::WriteValidationBanner(st.channels[1], st.setupValues);
    test::ScriptedPort ui;
    const struct
    {
        const char *type, *key, *req, *msg, *msg2, *password, *title;
    } entries[] = {
        {"Name", "name3", "yes", "Please enter your name", "", "", "T"},
        {"EMAIL", "email5", "YES", "Invalid e-mail", "No e-mail", "", "T"},
        {"Condition With Comment", "condi7", "yes", "Answer yes or no", "", "", "T"},
        {"FOLLOWUP WITH COMMENT", "follo9", "no", "Tell us more", "", "", "T"},
        {"CANCEL BUTTON", "cance11", "", "", "", "", "T"},
        {"CHECKBOX HORIZONTAL", "check13", "no", "Tick one", "", "", "T"},
        {"DOWNLOAD FILES WITH PASSWORD", "downl15", "no", "x", "y", "", "Files"},
        {"FOLLOWUP FILES WITH PASSWORD", "follo17", "", "Wrong password", "Enter the password", "Secret", "T"},
        {"TITLE 1 SINGLE LINE", "title19", "", "", "", "", "T"},
        {"PASSWORD", "passw21", "yes", "Wrong", "Empty", "Pw1", "T"},
    };
    for (const auto& e : entries) {
        st.values = write::WorkingValues{};
        st.values.REQ = e.req;
        st.values.MSG = e.msg;
        st.values.MSG2 = e.msg2;
        st.values.PASSWORD = e.password;
        st.values.Title = e.title;
        php::WriteEntryPhp(ui, st, e.type, e.key);
    }
    ASSERT_EQ(st.buildError, 0);
    st.channels[2].close();
    php::WriteOptionLines(st.channels[1]);
    st.channels[1].piece(test::ReadFileBytes(dir.file("downtemp.txt")));
    php::WriteScriptTail(st.channels[1], st, "https://www.tarnquill.example/files/");
    st.channels.closeAll();
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(test::ReadFileBytes(dir.file("formtql.php")),
              test::ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/php/full_script/expected.php"));
}
