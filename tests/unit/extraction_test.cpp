// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/extraction.h"
#include "model/attribute_text.h"
#include "scripted_port.h"
#include "session.h"

#include <gtest/gtest.h>

using tq::Icon;
using tq::Session;
using tq::build::ExtractEntry;
using tq::test::ScriptedPort;

namespace {

struct Sample
{
    const char* mode;
    const char* type;
    const char* text;
};

// Default texts of a few Input Types, in the shape of the templates, with the
// four whose help item behind one key is of the other kind.
const Sample kSamples[] =
    {
        {"FORM", "Name",
         R"([Title=Enter your full name] [Info: A description on what the user should enter for this question] [Error Message=Nothing has been entered for the name] [Info: Error message if nothing was entered for the name] [Title Size=3] [Info: Enter Font Size - larger the number, the larger the size] [Default Name=none] [Info: none means that nothing has been entered for the name] [Align=left] [Choices=left,right,center] [Width=40] [Info: The width of the text window] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=16777215] [Choices=Change the current color.] [Required=yes] [Info: Choices are YES or NO. YES requires an entry from the user])"},
        {"SURVEY", "Name",
         R"([Title=Enter your full name] [Info: A description on what the user should enter for this question] [Error Message=Nothing has been entered for the name] [Info: Error message if nothing was entered for the name] [Title Size=3] [Info: Enter Font Size - larger the number, the larger the size] [Default Name=none] [Info: none means that nothing has been entered for the name] [Align=center] [Choices=left,right,center] [Width=40] [Info: The width of the text window] [Shade Width=40%] [Choices=1% to 100%] [Shade Color=12632256] [Choices=Change the current color.] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=0] [Choices=Change the current color.] [Required=yes] [Info: Choices are YES or NO. YES requires an entry from the user])"},
        {"FORM", "Condition With Comment",
         R"([Title=Do you want to schedule a Karaoke Show?] [Info: A description on what the user should enter for this question] [Error Message=Please tell us if you want to schedule a Karaoke Show] [Info: Error message to the user when the user does not answer the question correctly] [Title Size=3] [Info: Enter Font Size] [Default Condition=none] [Choices=Enter User choice - must be one of the choices for CONDITION CHOICES below.   Or you can enter NONE.  None means that an entry was not pre-selected and the user must make an entry.] [Condition Choices=yes,no] [Info: Can be yes, no or any entry that you would like.  Example: yes,no,maybe,sometime.]  [Align=left] [Choices=left,right,center] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=16777215] [Choices=Change the current color.] [Required=yes] [Info: Choices are YES or NO. YES requires an entry from the user])"},
        {"SURVEY", "Followup With Comment",
         R"([Title=If yes, then provide the date and time of the Show] [Info: A description on what the user should enter for this question] [Error Message=Please let us know the date and time of the Karaoke Show] [Info: Error message to the user when the user does not answer the question correctly] [Title Size=3] [Info: Enter Font Size]  [Align=center] [Choices=left,right,center] [Followup Width=45] [Info: Enter the size. The larger the number, the larger the size] [Followup Height=5] [Info: Height of text box - greater  the number, the larger the size] [Shade Width=40%] [Choices=1% to 100%] [Shade Color=12632256] [Choices=Change the current color.]  [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=0] [Choices=Change the current color.])"},
        {"FORM", "Download Files With Password",
         R"([Title=Enter the assigned password below to download the following files  \n\n                   Enter NONE if you don't have a password and then\n                   in the Comments Section below, request the password] [Info: A description on what the user should enter for this question] [Title Size=3] [Info: Enter Font Size - larger the number, the larger the size] [Align=left] [Choices=left,right,center] [Server Download=;https://www.tarnquill.example/test] [Info: Example: Server Download=https://www.tarnquill.example/myfiles] [Files=test.ppt,test1.gif,test2.gif] [Info: Enter the files that you want to user to download]  [Show File Labels=YES] [Info: Select if you want to show the labels.  Example File 1: text.zip] [Visible Download=yes] [Choices=yes,no. Change Visible to no to hide the filenames from the user] [Thank You File=;https://www.tarnquill.example/thankyou.htm] [Info: Name of the file that the user is directed to after completing the form] [Instructions=PASSWORD IS CORRECT\nRight mouse click on each file\n and select Save Target As or Save Link As] [Info: Message that the user sees when user enters the correct password]  [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=16777215] [Choices=Change the current color.])"},
        {"SURVEY", "Title Shade",
         R"([Title=OVERALL EXPERIENCE] [Info: A description on what the user should enter for this question] [Title Size=3] [Info: Enter Font Size] [Title Shade Width=45%] [Info: Enter the % in size. The larger the number, the larger the size] [Height=1] [Info: Height of text box - greater  the number, the larger the size] [Align=center] [Choices=left,right,center] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=0] [Choices=Change the current color.])"},
        {"SURVEY", "Table Text Required",
         R"([ColChoice=Customer Satisfaction] [Info: A description on what the user should enter for this question] [Error Message=Please tell us about our Customer Satisfaction] [Info: Error message to the user when the user does not answer the question correctly] [Title Size=3] [Info: Enter Font Size] [Row Choices=Excellent, Above Average, Average, Below Average, Poor] [Info: Choices for the user] [Align=center] [Choices=left,right,center] [Choices Back Color=12632256] [Choices=Change the current color.] [Text Color=0] [Choices=Change the current color.] [Answer Back Color=12632256] [Choices=Change the current color.] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Required Table=yes]  [Info: Choices are YES or NO. YES requires an entry from the user])"},
        {"FORM", "Checkbox Horizontal",
         R"([Title=Select your level of play] [Info: A description on what the user should enter for this question] [Error Message=You have not selected a level of play] [Info: Error message to the user when the user does not answer the question correctly] [Title Size=3] [Info: Enter Font Size] [Default Check Box=none] [Info: DEFAULT CHECK BOX will default to that selection or enter NONE] [Check Box=Beginner,Intermediate,Advanced] [Choices=User selections] [Align=left] [Choices=left,right,center] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=16777215] [Choices=Change the current color.] [Required=yes] [Info: Choices are YES or NO. YES requires an entry from the user])"},
        {"FORM", "Comments With Text",
         R"([Title=Please enter up to 3 songs, including the artist name] [Info: A description on what the user should enter for this question] [Error Message=You have not selected any comments] [Info: Error message to the user when the user does not answer the question correctly] [Title Size=3] [Info: Enter Font Size] [Default Comments=(1) Artist Name 1:\n(1) Song Name   1:\n\n(2) Artist Name 2:\n(2) Song Name   2:\n\n(3) Artist Name 3:\n(3) Song Name   3:] [Info: You can add information  inside the Comment Box with this selection] [Align=left] [Choices=left,right,center] [Comments Width=70] [Info: Enter the size. The larger the number, the larger the size] [Comments Height=11] [Info: Height of text box - greater  the number, the larger the size] [Italics=off] [Info: Select on or off] [Bold=off] [Info: Select on or off] [Text Color=16777215] [Choices=Change the current color.] [Required=no] [Info: Choose YES or NO. YES requires an entry])"},
        {"FORM", "Video",
         R"([Server Video Path=;https://www.tarnquill.example/test/videos/birds.mp4] [Info: Example: https://www.tarnquill.example/test/videos/birds.mp4] [Align=left] [Choices=left,right,center] [Video Width=600] [Info: Width size] [Video Height=300] [Info: Height size] [AutoStart=on] [Choices=on,off, mouseover] [loop=1] [Choices=1,2,3,4,5,6,7,8,9,infinite])"},
        {"FORM", "Cancel Button",
         R"([Button Name=Cancel Form] [Info:  Enter your default name for the Cancel Button] [Default Color=0] [Choices=Change the current color.] [Align=left] [Choices=left,right,center] [Link To=;index.htm] [Info: This is where the user is taken if the user cancels the FORM  Link location - Example: index.htm  Remove the semi colon(;) to make it active])"},
        {"SURVEY", "Question Multiple Choices",
         R"([Title=Please rate your level of satisfaction] [Info: A description on what the user should enter for this question] [Error Message=Please rate your level of satisfaction] [Info: Error message to the user when the user does not answer the question correctly] [Title Size=3] [Info: Enter Font Size] [Default Question=none] [Info: Entry must be either one of the QUESTION CHOICES or NONE - none means that no default has been selected] [Question Choices=5,4,3,2,1, N/A] [Info: Choices for the user] [Align=center] [Choices=left,right,center] [Shade Width=40%] [Choices=1% to 100%] [Shade Color=12632256] [Choices=Change the current color.] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=0] [Choices=Change the current color.] [Required=yes] [Info: Choices are YES or NO. YES requires an entry from the user])"},
        {"SURVEY", "Condition With Dropdown",
         R"([Title=Are you attending the Event?] [Info: A description on what the user should enter for this question] [Error Message=Please tell us if you are attending the event] [Info: Error message to the user when the user does not answer the question correctly] [Title Size=3] [Info: Enter Font Size - larger the number, the larger the size] [Default Condition=none] [Choices=Enter User choice - must be one of the choices for CONDITION CHOICES below.   Or you can enter NONE.  None means that an entry was not pre-selected and the user must make an entry.] [Condition Choices=yes,no] [Info: Can be yes, no or any entry that you would like.  Example: yes,no,maybe,sometime.]  [Align=center] [Choices=left,right,center] [Shade Width=40%] [Choices=1% to 100%] [Shade Color=12632256] [Choices=Change the current color.] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=0] [Choices=Change the current color.] [Required=yes] [Info: Choices are YES or NO. YES requires an entry from the user])"},
        {"FORM", "Followup With Dropdown",
         R"([Title=What Day of the week would you like to attend?] [Info: A description on what the user should enter for this question] [Error Message=You must enter a day of the week] [Info: Error message to the user when the user does not answer the question correctly] [Title Size=3] [Info: Enter Font Size - larger the number, the larger the size] [Default Followup=Monday,Tuesday,Wednesday,Thursday,Friday] [Choices=Enter your choices] [Align=left] [Choices=left,right,center] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=16777215] [Choices=Change the current color.])"},
        {"FORM", "Picture",
         R"([Server Picture Path=;https://www.tarnquill.example/test/cloudark.gif] [Info: With this option, you can add a picture as one of your questions in your FORM  Example: https://www.tarnquill.example/test/cloudark.gif] [Align=left] [Choices=left,right,center] [Picture Width=600] [Info: Width size] [Picture Height=60] [Info: Height size])"},
        {"SURVEY", "Survey Intro",
         R"([Title=Thank you for taking the time to complete this Survey.\nYour opinion is very important to us.\nIt will help us focus on the issues at hand and improve our services\n\nThis survey should take you less then 5 minutes to complete\n\nThank you for your valuable inputs] [Info: A description on what the user should enter for this question] [Title Size=3] [Info: Enter Font Size] [Align=center] [Choices=left,right,center] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=0] [Choices=Change the current color.])"},
        {"FORM", "Horizontal Line",
         R"([Line Width=85%] [Info: Width of the line] [Line Size=2] [Info: size of the line] [Align=left] [choices=left,center,right] [Line Color=16777215] [Choices=Change the current color.])"},
        {"FORM", "User Name",
         R"([Title=Enter the User Name\n                 (case sensitive)] [Info: A description on what the user should enter for this question] [Blank Error=User Name cannot be left blank] [Info: blank ] [Error Message=Incorrect User Name. The User Name is case sensitive] [Info: Error message to the user when the user does not answer the question correctly] [Title Size=3] [Info: Enter Font Size. Larger the number, the larger the font size - none means that nothing has been entered for the User Name] [Default User Name=none] [Info: User Name] [Align=left] [Choices=left,right,center] [Username=memo] [Info: User Name message to the user] [Width=25] [Info: The width of the text window] [Italics=off] [Info: Choices are on or off] [Bold=off] [Info: Choices are on or off] [Text Color=16777215] [Choices=Change the current color.] [Required=yes] [Info: Choices are YES or NO. YES requires an entry from the user])"},
};

/// The stored form of a one-line text: one item per line, CR LF after each,
/// a blank line here and there.
std::string Stored(std::string text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        out += text[i];
        if (text[i] == ']' && i + 2 < text.size() && text[i + 1] == ' ')
            out += (i % 3 == 0) ? "\r\n\r\n" : "\r\n";
    }
    return out + "\r\n";
}

class Extraction : public ::testing::Test
{
  protected:
    Session s;
    ScriptedPort ui;

    void SetUp() override
    {
        s.build.setupValues.GlobalAlign = "NONE";
        s.build.setupValues.GlobalTextColor = "NONE";
        s.build.setupValues.FrameOff = 0;
    }

    void Extract(std::string_view type, std::string text, std::string_view mode = "FORM")
    {
        s.store.state.ProjectMode = std::string(mode);
        ExtractEntry(s, ui, type, text);
        rest = text;
    }

    std::string rest;
};

TEST_F(Extraction, DefaultTextsReadWithoutAWordInOneLineAndStoredForm)
{
    s.build.entryPreview = true; // the sample paths start with ";"
    for (const Sample& sample : kSamples) {
        for (bool stored : {false, true}) {
            SCOPED_TRACE(std::string(sample.mode) + " " + sample.type + (stored ? " stored" : ""));
            s.build.buildError = 0;
            ui.clear();
            Extract(sample.type, stored ? Stored(sample.text) : sample.text, sample.mode);
            EXPECT_EQ(s.build.buildError, 0);
            for (const auto& m : ui.shown)
                ADD_FAILURE() << m.title << ": " << m.text;
        }
    }
}

TEST_F(Extraction, ValuesOfATextRow)
{
    Extract("Name", kSamples[0].text);
    const auto& v = s.build.values;
    EXPECT_EQ(v.Title, "Enter your full name");
    EXPECT_EQ(v.MSG, "Nothing has been entered for the name");
    EXPECT_EQ(v.TitleSize, "3");
    EXPECT_EQ(v.DefaultValue, ""); // "none" reads as empty
    EXPECT_EQ(v.ALIGN, "left");
    EXPECT_EQ(v.Width, "40");
    EXPECT_EQ(v.TextColorHex, "FFFFFF");
    EXPECT_EQ(v.REQ, "yes");
    EXPECT_TRUE(rest.empty());
}

TEST_F(Extraction, ShadeListsAndTableValues)
{
    Extract("NAME", kSamples[1].text, "SURVEY");
    EXPECT_EQ(s.build.values.ShadeWidth, "40%");
    EXPECT_EQ(s.build.values.ShadeColorHex, "C0C0C0");
    Extract("Checkbox Horizontal", kSamples[7].text);
    ASSERT_EQ(s.build.values.CheckBoxes.count(), 3);
    EXPECT_EQ(s.build.values.CheckBoxes.at(3), "Advanced");
    Extract("Table Text Required", kSamples[6].text, "SURVEY");
    const auto& v = s.build.values;
    EXPECT_EQ(v.ColChoice, "Customer Satisfaction");
    ASSERT_EQ(v.RowChoices.count(), 5);
    EXPECT_EQ(v.RowChoices.at(2), "Above Average");
    EXPECT_EQ(v.ChoicesBackColorHex, "C0C0C0");
    EXPECT_EQ(v.TableTextColorHex, "000000");
    EXPECT_EQ(v.REQ, "yes");
    Extract("CONDITION WITH DROPDOWN", kSamples[12].text, "SURVEY");
    ASSERT_EQ(s.build.values.Choices.count(), 2);
    EXPECT_EQ(s.build.values.Choices.at(1), "yes");
}

TEST_F(Extraction, DefaultLinesAndIntroLinesAreSplitCopies)
{
    Extract("Comments With Text", kSamples[8].text);
    const auto& v = s.build.values;
    EXPECT_EQ(v.DefaultValue.rfind("(1) Artist Name 1:\\n", 0), 0u);
    ASSERT_EQ(v.DefaultLines.count(), 8);
    EXPECT_EQ(v.DefaultLines.at(2), "(1) Song Name   1:");
    EXPECT_EQ(v.DefaultLines.at(3), "");
    EXPECT_EQ(v.Width, "70");
    EXPECT_EQ(v.Height, "11");
    Extract("SURVEY INTRO", kSamples[15].text, "SURVEY");
    ASSERT_EQ(s.build.values.IntroLines.count(), 7); // the empty lines between paragraphs stay
    EXPECT_EQ(s.build.values.IntroLines.at(2), "Your opinion is very important to us.");
    EXPECT_EQ(s.build.values.IntroLines.at(4), "");
}

TEST_F(Extraction, DownloadFillsTheBuildTablesUpToFiftyFiles)
{
    s.build.entryPreview = true;
    Extract("Download Files With Password", kSamples[4].text);
    EXPECT_EQ(s.build.buildError, 0);
    EXPECT_EQ(s.build.downloadFileCount, 3);
    EXPECT_EQ(s.build.downloadFiles[2], "test1.gif");
    EXPECT_EQ(s.build.downloadTextCount, 3);
    EXPECT_EQ(s.build.downloadTexts[1], "PASSWORD IS CORRECT");
    EXPECT_EQ(s.build.homePage, ";https://www.tarnquill.example/thankyou.htm");
    EXPECT_EQ(s.build.values.VisibleDownloadPassword, "yes");
    EXPECT_EQ(s.build.values.ServerFolderPath, ";https://www.tarnquill.example/test/");
    std::string files;
    for (int i = 1; i <= 51; ++i)
        files += (i > 1 ? "," : "") + std::string("f") + std::to_string(i);
    const std::string text = "[Title=T] [Info: x] [Title Size=3] [Info: x] [Align=left] [Choices=l] "
                             "[Server Download=https://a.example/d] [Info: x] [Files=" +
                             files +
                             "] [Info: x] [Show File Labels=YES] [Info: x] [Visible Download=yes] [Choices=y] "
                             "[Thank You File=https://a.example/t.htm] [Info: x] [Instructions=go] [Info: x] "
                             "[Italics=off] [Info: x] [Bold=off] [Info: x] [Text Color=0] [Choices=c]";
    EXPECT_THROW(Extract("DOWNLOAD FILES", text), tq::model::InternalError);
}

TEST_F(Extraction, SemicolonPathsStopUnlessAnEntryPreviewABackslashAlways)
{
    Extract("Video", kSamples[9].text);
    EXPECT_EQ(s.build.buildError, 1);
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_TRUE(Said(ui.last(),
                     ";https://www.tarnquill.example/test/videos/birds.mp4\r\rCANNOT CONTAIN A SEMI-COLON (;)", "ERROR",
                     Icon::Exclamation));
    ui.clear();
    s.build.buildError = 0;
    Extract("DOWNLOAD FILES WITH PASSWORD", kSamples[4].text);
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_EQ(ui.last().text, ";https://www.tarnquill.example/test\r\rCANNOT CONTAIN A SEMI-COLON (;)");
    ui.clear();
    s.build.buildError = 0;
    s.build.entryPreview = true;
    Extract("VIDEO", kSamples[9].text);
    EXPECT_EQ(s.build.buildError, 0);
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(s.build.values.VideoAlign, "left");
    EXPECT_EQ(s.build.values.Loop, "1");
    Extract("PICTURE", "[Server Picture Path=c:\\pics\\a.gif] [Info: x] [Align=left] [Choices=l] "
                       "[Picture Width=600] [Info: w] [Picture Height=60] [Info: h]");
    EXPECT_EQ(s.build.buildError, 1);
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_TRUE(Said(
        ui.last(), "The path cannot contain a back slash (\\).\r\rPlease change the back slash to a forward slash (/)",
        "ERROR", Icon::Critical));
}

TEST_F(Extraction, CancelButtonLinkChecks)
{
    const std::string head = "[Button Name=Cancel Form] [Info: x] [Default Color=255] [Choices=c] [Align=left] "
                             "[Choices=l] [Link To=";
    Extract("cancel button", head + "none] [Info: x]");
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_TRUE(
        Said(ui.last(),
             "INPUT TYPE -> CANCEL BUTTON\r FOR ->LINK TO\rCANNOT BE SET TO NONE\r YOU MUST HAVE WEB PAGE LINK.\r\r"
             "NOTE: THIS IS THE WEB PAGE THAT THE USER IS TAKEN TO WHEN HE CLICKS ON THE CANCEL BUTTON\r\r"
             "Example: index.htm\r\rCLICK ON EDIT AND ADD A WEB LINK",
             "CANCEL INPUT TYPE HAS AN ERROR", Icon::Exclamation));
    s.build.buildError = 0;
    Extract("CANCEL BUTTON", head + "index] [Info: x]");
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_EQ(ui.last().text, "INPUT TYPE -> CANCEL BUTTON\r FOR ->LINK TO\r"
                              "DOES NOT HAVE A VALID URL WEB LINK. MISSING THE PERIOD\r\rExample: index.htm\r\r"
                              "CLICK ON EDIT AND CORRECT THE PROBLEM");
    ui.clear();
    s.build.buildError = 0;
    Extract("CANCEL BUTTON", head + "index.htm] [Info: x]");
    EXPECT_EQ(s.build.buildError, 0);
    EXPECT_EQ(s.build.values.DefaultColorHex, "FF0000");
    EXPECT_EQ(s.build.values.LinkTo, "index.htm");
}

TEST_F(Extraction, TheReadersFaultsStopAndAnUnknownTypeIsPassedOn)
{
    const std::string cannot = "Cannot find left [ bracket in [";
    const struct
    {
        const char* type;
        const char* text;
        int err;
        std::string said; // the reader's one message, or none
    } rows[] = {          // an absent key, a missing help item, a type the extraction doesn't know
                {"NAME", "[Title=A] [Info: x] [Title Size=3] [Info: x]", 1, cannot + "ERROR MESSAGE\r\r[Title Size=3]"},
                {"TITLE HEADER", "[Title=A] [Title Size=3] [Info: x]", 1, cannot + "INFO:\r\r[Title Size=3]"},
                {"Marquee", "[Title=A] [Info: x]", 5, ""}};
    for (const auto& r : rows) {
        s.build.buildError = 0;
        ui.clear();
        Extract(r.type, r.text);
        EXPECT_EQ(s.build.buildError, r.err) << r.type;
        ASSERT_EQ(ui.shown.size(), r.said.empty() ? 0u : 1u) << r.type;
        if (!r.said.empty()) {
            EXPECT_TRUE(Said(ui.last(), r.said, "error", Icon::Critical));
        }
    }
}

TEST_F(Extraction, GlobalOverridesApplyToEveryEntryButTheSetup)
{
    auto& setup = s.build.setupValues;
    setup.GlobalAlign = "right";
    setup.SubmitAlign = "LEFT";
    Extract("NAME", kSamples[0].text); // FORM with its frame on
    EXPECT_EQ(s.build.values.ALIGN, "right");
    EXPECT_EQ(setup.SubmitAlign, "right");
    EXPECT_EQ(s.build.values.TextColorHex, "FFFFFF");
    Extract("NAME", kSamples[1].text, "SURVEY");
    EXPECT_EQ(s.build.values.TextColorHex, "0");
    setup.GlobalTextColor = "255";
    Extract("Video", kSamples[9].text);
    EXPECT_EQ(s.build.values.VideoAlign, "right");
    s.build.buildError = 0;
    Extract("Title Shade", kSamples[5].text, "SURVEY");
    EXPECT_EQ(s.build.values.TextColorHex, "FF0000"); // the colour beats the "0" of the alignment
    EXPECT_EQ(s.build.values.TitleShadeWidth, "45%");
    Extract("HORIZONTAL LINE", kSamples[16].text);
    EXPECT_EQ(s.build.values.LineAlign, "right");
    EXPECT_EQ(s.build.values.LineWidth, "85%");
    EXPECT_EQ(s.build.values.LineColorHex, "FFFFFF");
}

} // namespace
