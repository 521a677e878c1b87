// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/extraction.h"
#include "build/setup_checks.h"
#include "model/text_ops.h"
#include "port/platform.h"
#include "scripted_port.h"
#include "session.h"

#include <gtest/gtest.h>

using tq::Icon;
using tq::Session;
using tq::build::CheckAttribute;
using tq::build::ExtractSetupEntry;
using tq::test::ScriptedPort;

namespace {

/// A SetupEntry in the shape of the template, with short help items.
std::string SetupText(bool survey, const std::string& from = "My Club", const std::string& completed = "thanks.htm")
{
    return std::string(survey ? "[Background Color=9022343] [Info: Background color] " : "") +
           "[Drive Folder Path=/srv/www] [Info: folder] [TQL Output File=formtql.htm] [Info: name] "
           "[FROM=" +
           from + "] [Info: from] [Completed=" + completed +
           "] [Info: done] [GLOBAL ALIGN=NONE] [Info: align] "
           "[GLOBAL TEXT COLOR=NONE] [Choices=NONE  global colour] [Submit Name=Submit Form] [Info: name] "
           "[SUBMIT ALIGN=LEFT] [Choices=none,left,right,center] [Submit Button Color=255] [Choices=colour] "
           "[Background image path=;https://www.tarnquill.example/test/cloudark.gif] [Info: image] "
           "[Email #1=me@club.example] [Info: mail] [Email #2=none] [Info: mail] [Email #3=you@club.example] "
           "[Info: mail] [Number Each Question=YES] [Info: n] [Show Tool Tips=YES] [Info: t] "
           "[Include Frame With Form=" +
           (survey ? "NO" : "YES") +
           "] [Info: frame] [Frame Border Color=52736] [Info: b] [Frame Color=16384] [Info: c] "
           "[Total Frames=3] [Info: Total Frames chosen]";
}

class SetupRead : public ::testing::Test
{
  protected:
    Session s;
    ScriptedPort ui;

    void Read(std::string text, std::string_view mode = "FORM")
    {
        s.store.state.ProjectMode = std::string(mode);
        ExtractSetupEntry(s, ui, text);
    }
};

TEST_F(SetupRead, FormValuesInOrder)
{
    Read(SetupText(false));
    const auto& v = s.build.setupValues;
    EXPECT_EQ(s.build.buildError, 0);
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(v.BackgroundColor, "");
    EXPECT_EQ(v.WebFolder, "/srv/www");
    EXPECT_EQ(v.OutputName, "formtql.htm");
    EXPECT_EQ(v.FROM, "My Club");
    EXPECT_EQ(v.COMPLETED, "thanks.htm");
    EXPECT_EQ(v.GlobalAlign, "NONE");
    EXPECT_EQ(v.SubmitAlign, "LEFT"); // no global override after the SetupEntry
    EXPECT_EQ(v.SubmitButtonColorHex, "FF0000");
    EXPECT_EQ(v.EMAIL1, "me@club.example");
    EXPECT_EQ(v.EMAIL2, ""); // "none" is cleared
    EXPECT_EQ(v.EMAIL3, "you@club.example");
    EXPECT_EQ(v.TotalFrames, 3);
    EXPECT_EQ(v.FrameOff, 0);
    EXPECT_EQ(v.FrameBorderColorHex, "00CE00");
}

TEST_F(SetupRead, SurveyReadsItsBackgroundColourAndHasNoFrame)
{
    Read(SetupText(true), "SURVEY");
    EXPECT_EQ(s.build.buildError, 0);
    EXPECT_EQ(s.build.setupValues.BackgroundColor, "9022343");
    EXPECT_EQ(s.build.setupValues.BackgroundColorHex, "87AB89");
    EXPECT_EQ(s.build.setupValues.FrameOff, 1);
}

TEST_F(SetupRead, GlobalsSetInTheSetupReachTheNextEntryOnly)
{
    std::string text = SetupText(false);
    text.replace(text.find("[GLOBAL ALIGN=NONE"), 18, "[GLOBAL ALIGN=center");
    Read(text);
    EXPECT_EQ(s.build.setupValues.SubmitAlign, "LEFT");
    std::string title = "[Title=T] [Info: x] [Title Size=3] [Info: x] [Align=left] [Choices=l] [Italics=off] "
                        "[Info: x] [Bold=off] [Info: x] [Text Color=16777215] [Choices=c]";
    tq::build::ExtractEntry(s, ui, "TITLE HEADER", title);
    EXPECT_EQ(s.build.setupValues.SubmitAlign, "center");
    EXPECT_EQ(s.build.values.ALIGN, "center");
    EXPECT_EQ(s.build.values.TextColorHex, "FFFFFF"); // FORM with its frame keeps the colour
}

TEST_F(SetupRead, SampleFromHoldsTheBuildOnTheEditPage)
{
    Read(SetupText(false, ";My Web Page"));
    EXPECT_TRUE(s.build.setupHold);
    ASSERT_EQ(ui.editCalls.size(), 1u);
    EXPECT_EQ(ui.editCalls[0].page, 1);
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
}

TEST_F(SetupRead, SampleCompletedStopsTheBuild)
{
    Read(SetupText(true, "Club", ";thankyou.htm"), "SURVEY");
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_FALSE(s.build.setupHold);
    EXPECT_TRUE(
        Said(ui.last(),
             "INPUT TYPE ---> SETUP ---> COMPLETED <---\r\rCANNOT HAVE A SEMI COLON. (;thankyou.htm)\r\r"
             "CLICK ON THE EDIT BUTTON NEXT TO THE SETUP INPUT TYPE AND REPLACE IT WITH YOUR OWN THANK YOU PAGE\r\r"
             "NOTE: THIS IS THE FILE THAT COMES UP ON THE USER'S WEB PAGE AFTER THE USER COMPLETES THE SURVEY",
             "NAME INVALID"));
}

TEST_F(SetupRead, AnEntryPreviewSkipsTheSampleChecks)
{
    s.build.entryPreview = true;
    Read(SetupText(false, ";My Web Page", ";thankyou.htm"));
    EXPECT_EQ(s.build.buildError, 0);
    EXPECT_FALSE(s.build.setupHold);
    EXPECT_TRUE(ui.shown.empty());
}

TEST_F(SetupRead, AMissingHelpItemStops)
{
    Read("[Drive Folder Path=/srv/www] [TQL Output File=formtql.htm] [Info: x]");
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_EQ(ui.last().text, "Cannot find left [ bracket in [INFO:\r\r[TQL Output File=formtql.htm]");
}

class LineChecks : public ::testing::Test
{
  protected:
    Session s;
    ScriptedPort ui;
    tq::test::TempDir dir;

    void SetUp() override { s.DataFolder = dir.path(); }

    /// The text of the fault, or "" when the row passes.
    std::string Check(std::string_view key, std::string value, int commitMode = 0)
    {
        s.store.state.commitMode = commitMode;
        ui.clear();
        int err = -1;
        CheckAttribute(s, ui, key, value, err);
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
    s.store.state.ProjectMode = "FORM";
    const struct
    {
        const char* key;
        std::string value;
        int commitMode;
        std::string fault; // "" when the row passes
    } rows[] = {
        {"Align", "\r\n", 0, "ALIGN\rCANNOT BE LEFT BLANK"},
        {"Title", "ab", 0, "Title\rcannot be left blank"},
        {"Error Message", "", 0, "ERROR MESSAGE\rCANNOT BE LEFT BLANK"},
        {"Error Message", "????", 0, "ERROR MESSAGE\rCANNOT HAVE A ????"},
        {"GLOBAL TEXT COLOR", "", 0, ""},
        {"loop", "infinite", 0, ""},
        {"loop", "10", 0, "LOOP\rMUST BE SET TO 1,2,3,4,5,6,7,8,9 or Infinite"},
        {"AutoStart", "sometimes", 0, "AUTOSTART\rMUST BE SET TO EITHER ON, OFF OR MOUSEOVER"},
        {"Required", "yes", 0, ""},
        {"Visible Download", "maybe", 0, "VISIBLE DOWNLOAD\rMUST BE SET TO EITHER YES OR NO"},
        {"Bold", "of", 0, "BOLD\rMUST BE SET TO EITHER ON OR OFF"},
        {"Picture Align", "middle", 0, "PICTURE ALIGN\rMUST BE SET TO LEFT, RIGHT OR CENTER"},
        {"Title Shade Width", "40", 0,
         "TITLE SHADE WIDTH\rMUST HAVE A % AFTER THE TITLE SHADE WIDTH\r"
         "EXAMPLE: 40%"},
        {"Title Shade Width", "40%", 0, ""},
        {"Line Width", "wide%", 0, "LINE WIDTH\rMUST HAVE A NUMBER"},
        {"Title Size", "3", 0, ""},
        {"Video Height", "tall", 0, "VIDEO HEIGHT\rMUST HAVE A NUMBER"},
        {"Link To", ";index.htm", 0,
         "LINK TO\rMUST NOT HAVE A SEMI COLON(;) AND MUST HAVE A VALID WEB PAGE LINK.\r\r"
         "NOTE: THIS IS THE WEB PAGE THAT THE USER IS TAKEN TO WHEN THE USER CLICKS ON THE CANCEL BUTTON\r\r"
         "Example: index.htm"},
        {"Link To", "index", 0,
         "LINK TO\rDOES NOT HAVE A VALID URL WEB LINK. MISSING THE PERIOD\r\rExample: index.htm"},
        {"Link To", "&nbsp;a.htm", 0, "LINK TO\rCANNOT START WITH A SPACE\r\rPLEASE REMOVE THE SPACE"},
        {"Thank You File", ";x.htm", 0,
         "THANK YOU FILE\rMUST NOT HAVE A SEMI COLON(;) AND MUST HAVE A VALID WEB SERVER PATH\r\r"
         "NOTE: THIS IS THE FILE THAT THE USER IS TAKEN TO AFTER THE USER DOWNLOADS THE FILES\r\r"
         "Example: https://www.tarnquill.example/thankyou.htm\r\r"
         "PLEASE REMOVE THE SEMI-COLON(;) AND ENTER YOUR OWN WEB SERVER PATH"},
        {"Server Download", "myfiles", 0,
         "SERVER DOWNLOAD\rDOES NOT HAVE A VALID URL WEB LINK. MISSING\r"
         "www.\r\rExample: https://www.tarnquill.example/test"},
        {"Server Video Path", ";v.mp4", 0,
         "--- Server Video Path --- \rMUST NOT START WITH A SEMI COLON (;)\r\r"
         "PLEASE REMOVE THE SEMI COLON AND ENTER YOUR OWN VIDEO.\r\r"
         "THIS IS THE ABSOLUTE PATH THAT'S LOCATED ON YOUR WEB SERVER\r\rREMOVE THE SEMI COLON (;) WHEN DONE"},
        {"FROM", ";My Web Page", 0, ""},
        {"FROM", ";My Web Page", 10,
         "--- FROM --- \rPLEASE CHANGE THE FROM TITLE TO YOUR OWN PERSONAL TITLE.\r\r"
         "THE FROM TITLE IS THE EMAIL FROM TITLE THAT YOU RECEIVE WHEN THE USER COMPLETES THE FORM\r\r"
         "REMOVE THE SEMI COLON (;) WHEN DONE"},
        {"FROM", "a@b", 0, "FROM\rCANNOT HAVE A @ SYMBOL\r\rREMOVE THE a@b\r SYMBOL"},
        {"Completed", "thankyou.htm", 10, ""},
        {"Completed", "thanks.html", 0, ""},
        {"Completed", "thanks.txt", 0, "COMPLETED\rMUST CONTAIN AN EXTENSION OF .HTM"},
        {"TQL Output File", "c:formtql.htm", 0, "TQL OUTPUT FILE\rCANNOT CONTAIN A : IN THE FILENAME"},
        {"Drive Folder Path", dir.path(), 0, ""},
        {"Email #1", ";me@club.example", 0,
         "EMAIL #1\rMUST NOT HAVE A SEMI COLON(;)\r\rNOTE: PLEASE CHANGE THE EMAIL ADDRESS AND REPLACE IT WITH "
         "YOUR OWN PERSONAL EMAIL ADDRESS AND LEAVE OUT THE SEMI-COLON (;)\r\rExample: webmaster@tarnquill.example"},
        {"Email #1", "none", 0, "NONE\rIS NOT A VALID EMAIL ADDRESS\r\rREPLACE NONE\r WITH A VALID EMAIL ADDRESS"},
        {"Email #1", "me.club", 0, "ME.CLUB\rIS NOT A VALID EMAIL ADDRESS\rREQUIRES A @ SYMBOL"},
        {"Email #1", "me@club", 0, "ME@CLUB\rIS NOT A VALID EMAIL ADDRESS\rREQUIRES A @ PERIOD"},
        {"Email #1", "me@club.example", 0, ""},
        {"Email #2", "NONE", 0, ""},
        {"Drive Folder Path", dir.path() + "/gone", 0,
         tq::model::ToUpper(dir.path() + "/gone") +
             "\rFOLDER DOES NOT EXIST\r\rCHANGE THE FOLDER PATH TO A VALID FOLDER\r\r"
             "USE THE EDIT BUTTON TO BROWSE FOR YOUR FOLDER PATH"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(Check(r.key, r.value, r.commitMode), r.fault) << r.key << " = " << r.value;
    EXPECT_EQ(Check("Completed", ";thankyou.htm", 10).substr(0, 20), "--- COMPLETED --- \rP");
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
    EXPECT_EQ(Check("Title", "", 11), "");
    EXPECT_FALSE(s.store.state.CommitFailed);
    tq::test::WriteFileBytes(dir.file("tempStore.txt"), "[Title=Before]\r\n");
    tq::test::WriteFileBytes(dir.file("temp11.txt"), "[Title=ab]\r\n");
    EXPECT_NE(Check("Title", "ab"), "");
    EXPECT_EQ(tq::test::ReadFileBytes(dir.file("temp11.txt")), "[Title=Before]\r\n");
    EXPECT_TRUE(s.store.state.CommitFailed);
}

} // namespace
