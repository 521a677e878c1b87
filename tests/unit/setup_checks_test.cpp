// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/extraction.h"
#include "compose/setup_checks.h"
#include "compose/validation.h"
#include "model/text_ops.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"

#include <gtest/gtest.h>

using tq::Icon;
using tq::Session;
using tq::model::CommitMode;
using tq::test::ScriptedPort;

namespace {

TEST(SetupRead, SampleValuesHoldOrStopTheBuildWithTheirMessages)
{
    Session s;
    ScriptedPort ui;
    s.store.state.ProjectMode = tq::model::Mode::Form;
    std::string text = tq::test::SetupEntryText("/srv/www", {.from = ";My Web Page"});
    tq::compose::FixLineBreaks(text); // as the build reads it
    tq::compose::ExtractSetupEntry(s, ui, text);
    EXPECT_TRUE(s.build.setupHold);
    EXPECT_EQ(s.build.buildError, 0);
    ASSERT_EQ(ui.editCalls.size(), 1u);
    EXPECT_EQ(ui.editCalls[0].row, 0);
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_TRUE(
        Said(ui.last(),
             "THERE ARE ERRORS THAT NEED TO BE CORRECTED BEFORE YOU CAN BUILD YOUR FORM IN SETUP\r\r"
             "A SEMI-COLON(;) WAS PLACED IN THE FIRST COLUMN AS A FLAG FOR YOU TO MAKE CHANGES\r\r"
             "YOU CAN CLICK ON HELP IN THE EDIT WINDOW TO HELP YOU WITH THE DESCRIPTION OF EACH ENTRY\r\r"
             "THE FOLLOWING NEED CORRECTIONS\r\rFROM\r;My Web Page\r\rCompleted\r;thankyou.htm\r\r"
             "EMAIL #1\r;webmaster@tarnquill.example\r\r"
             "CLICK OK AND WE WILL TAKE YOU TO THE EDIT SCREEN. THEN REMOVE THE SEMI-COLON AND CORRECT THE ERRORS "
             "ON ALL ENTRIES THAT ARE HIGHLIGHTED IN RED\r\r",
             "INVALID ENTRIES", Icon::Exclamation));
    Session survey;
    ScriptedPort ui2;
    survey.store.state.ProjectMode = tq::model::Mode::Survey;
    text = tq::test::SetupEntryText("/srv/www", {.from = "Club", .lead = "[Background Color=1] [Info: x]"});
    text.replace(text.find("[Completed="), 11, "[Completed=;");
    tq::compose::FixLineBreaks(text);
    tq::compose::ExtractSetupEntry(survey, ui2, text);
    EXPECT_EQ(survey.build.buildError, 1);
    EXPECT_FALSE(survey.build.setupHold);
    EXPECT_TRUE(
        Said(ui2.last(),
             "INPUT TYPE ---> SETUP ---> COMPLETED <---\r\rCANNOT HAVE A SEMI COLON. (;thankyou.htm)\r\r"
             "CLICK ON THE EDIT BUTTON NEXT TO THE SETUP INPUT TYPE AND REPLACE IT WITH YOUR OWN THANK YOU PAGE\r\r"
             "NOTE: THIS IS THE FILE THAT COMES UP ON THE USER'S WEB PAGE AFTER THE USER COMPLETES THE SURVEY",
             "NAME INVALID"));
}

class LineChecks : public ::testing::Test
{
  protected:
    Session s;
    ScriptedPort ui;
    tq::test::TempDir dir;

    void SetUp() override { s.DataFolder = dir.path(); }

    /// The text of the fault, or "" when the row passes.
    std::string Check(std::string_view key, std::string value, CommitMode commitMode = CommitMode::Plain)
    {
        s.store.state.commitMode = commitMode;
        ui.clear();
        int err = -1;
        tq::compose::CheckAttribute(s, ui, key, value, err);
        lastValue = value;
        if (err == 0) {
            EXPECT_TRUE(ui.shown.empty());
            return {};
        }
        EXPECT_EQ(err, 1);
        EXPECT_EQ(ui.last().title, "ERROR");
        EXPECT_EQ(ui.last().icon, Icon::Exclamation);
        return ui.last().text;
    }
    std::string lastValue;
};

TEST_F(LineChecks, EachKeyHasItsFaultText)
{
    s.store.state.ProjectMode = tq::model::Mode::Form;
    const struct
    {
        const char* key;
        std::string value;
        CommitMode commitMode;
        std::string fault; // "" when the row passes
    } rows[] = {
        {"Align", "\r\n", CommitMode::Plain, "ALIGN\rCANNOT BE LEFT BLANK"},
        {"Title", "ab", CommitMode::Plain, "Title\rcannot be left blank"},
        {"Error Message", "????", CommitMode::Plain, "ERROR MESSAGE\rCANNOT HAVE A ????"},
        {"loop", "infinite", CommitMode::Plain, ""},
        {"loop", "10", CommitMode::Plain, "LOOP\rMUST BE SET TO 1,2,3,4,5,6,7,8,9 or Infinite"},
        {"AutoStart", "sometimes", CommitMode::Plain, "AUTOSTART\rMUST BE SET TO EITHER ON, OFF OR MOUSEOVER"},
        {"Visible Download", "maybe", CommitMode::Plain, "VISIBLE DOWNLOAD\rMUST BE SET TO EITHER YES OR NO"},
        {"Bold", "of", CommitMode::Plain, "BOLD\rMUST BE SET TO EITHER ON OR OFF"},
        {"Picture Align", "middle", CommitMode::Plain, "PICTURE ALIGN\rMUST BE SET TO LEFT, RIGHT OR CENTER"},
        {"Title Shade Width", "40", CommitMode::Plain,
         "TITLE SHADE WIDTH\rMUST HAVE A % AFTER THE TITLE SHADE WIDTH\r"
         "EXAMPLE: 40%"},
        {"Line Width", "wide%", CommitMode::Plain, "LINE WIDTH\rMUST HAVE A NUMBER"},
        {"Link To", ";index.htm", CommitMode::Plain,
         "LINK TO\rMUST NOT HAVE A SEMI COLON(;) AND MUST HAVE A VALID WEB PAGE LINK.\r\r"
         "NOTE: THIS IS THE WEB PAGE THAT THE USER IS TAKEN TO WHEN THE USER CLICKS ON THE CANCEL BUTTON\r\r"
         "Example: index.htm"},
        {"Link To", "index", CommitMode::Plain,
         "LINK TO\rDOES NOT HAVE A VALID URL WEB LINK. MISSING THE PERIOD\r\rExample: index.htm"},
        {"Link To", "&nbsp;a.htm", CommitMode::Plain, "LINK TO\rCANNOT START WITH A SPACE\r\rPLEASE REMOVE THE SPACE"},
        {"Thank You File", ";x.htm", CommitMode::Plain,
         "THANK YOU FILE\rMUST NOT HAVE A SEMI COLON(;) AND MUST HAVE A VALID WEB SERVER PATH\r\r"
         "NOTE: THIS IS THE FILE THAT THE USER IS TAKEN TO AFTER THE USER DOWNLOADS THE FILES\r\r"
         "Example: https://www.tarnquill.example/thankyou.htm\r\r"
         "PLEASE REMOVE THE SEMI-COLON(;) AND ENTER YOUR OWN WEB SERVER PATH"},
        {"Server Download", "myfiles", CommitMode::Plain,
         "SERVER DOWNLOAD\rDOES NOT HAVE A VALID URL WEB LINK. MISSING\r"
         "www.\r\rExample: https://www.tarnquill.example/test"},
        {"Server Video Path", ";v.mp4", CommitMode::Plain,
         "--- Server Video Path --- \rMUST NOT START WITH A SEMI COLON (;)\r\r"
         "PLEASE REMOVE THE SEMI COLON AND ENTER YOUR OWN VIDEO.\r\r"
         "THIS IS THE ABSOLUTE PATH THAT'S LOCATED ON YOUR WEB SERVER\r\rREMOVE THE SEMI COLON (;) WHEN DONE"},
        {"FROM", ";My Web Page", CommitMode::Plain, ""},
        {"FROM", ";My Web Page", CommitMode::Exit,
         "--- FROM --- \rPLEASE CHANGE THE FROM TITLE TO YOUR OWN PERSONAL TITLE.\r\r"
         "THE FROM TITLE IS THE EMAIL FROM TITLE THAT YOU RECEIVE WHEN THE USER COMPLETES THE FORM\r\r"
         "REMOVE THE SEMI COLON (;) WHEN DONE"},
        {"FROM", "a@b", CommitMode::Plain, "FROM\rCANNOT HAVE A @ SYMBOL\r\rREMOVE THE a@b\r SYMBOL"},
        {"Completed", "thankyou.htm", CommitMode::Exit, ""},
        {"Completed", "thanks.txt", CommitMode::Plain, "COMPLETED\rMUST CONTAIN AN EXTENSION OF .HTM"},
        {"TQL Output File", "c:formtql.htm", CommitMode::Plain, "TQL OUTPUT FILE\rCANNOT CONTAIN A : IN THE FILENAME"},
        {"Drive Folder Path", dir.path(), CommitMode::Plain, ""},
        {"Email #1", ";me@club.example", CommitMode::Plain,
         "EMAIL #1\rMUST NOT HAVE A SEMI COLON(;)\r\rNOTE: PLEASE CHANGE THE EMAIL ADDRESS AND REPLACE IT WITH "
         "YOUR OWN PERSONAL EMAIL ADDRESS AND LEAVE OUT THE SEMI-COLON (;)\r\rExample: webmaster@tarnquill.example"},
        {"Email #1", "none", CommitMode::Plain,
         "NONE\rIS NOT A VALID EMAIL ADDRESS\r\rREPLACE NONE\r WITH A VALID EMAIL ADDRESS"},
        {"Email #1", "me.club", CommitMode::Plain, "ME.CLUB\rIS NOT A VALID EMAIL ADDRESS\rREQUIRES A @ SYMBOL"},
        {"Email #1", "me@club", CommitMode::Plain, "ME@CLUB\rIS NOT A VALID EMAIL ADDRESS\rREQUIRES A @ PERIOD"},
        {"Drive Folder Path", dir.path() + "/gone", CommitMode::Plain,
         tq::model::ToUpper(dir.path() + "/gone") +
             "\rFOLDER DOES NOT EXIST\r\rCHANGE THE FOLDER PATH TO A VALID FOLDER\r\r"
             "USE THE EDIT BUTTON TO BROWSE FOR YOUR FOLDER PATH"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(Check(r.key, r.value, r.commitMode), r.fault) << r.key << " = " << r.value;
    EXPECT_EQ(Check("Completed", ";thankyou.htm", CommitMode::Exit).substr(0, 20), "--- COMPLETED --- \rP");
}

TEST_F(LineChecks, AFaultyDefaultEmailAddressBecomesNone)
{
    EXPECT_EQ(Check("Default Email Address", "me@club"),
              "ME@CLUB\rIS NOT A VALID EMAIL ADDRESS\rREQUIRES A @ PERIOD\r\r"
              "IF YOU DON'T WANT TO ADD ANOTHER EMAIL ADDRESS, THEN NONE MUST BE THE DEFAULT\r\r"
              "WE HAVE CHANGED THE DEFAULT TO NONE");
    EXPECT_EQ(lastValue, "none");
    EXPECT_NE(Check("Email #3", "me.club").find("\rREQUIRES A @ SYMBOL\r\r"), std::string::npos);
    EXPECT_EQ(lastValue, "none");
}

TEST_F(LineChecks, AFaultRestoresTheTextAndAnEntryPreviewTestsNothing)
{
    EXPECT_EQ(Check("Title", "", CommitMode::EntryPreview), "");
    EXPECT_FALSE(s.store.state.CommitFailed);
    tq::test::WriteFileBytes(dir.file("tempStore.txt"), "[Title=Before]\r\n");
    tq::test::WriteFileBytes(dir.file("temp11.txt"), "[Title=ab]\r\n");
    EXPECT_NE(Check("Title", "ab"), "");
    EXPECT_EQ(tq::test::ReadFileBytes(dir.file("temp11.txt")), "[Title=Before]\r\n");
    EXPECT_TRUE(s.store.state.CommitFailed);
}

} // namespace
