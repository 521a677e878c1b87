// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/extraction.h"
#include "model/attribute_text.h"
#include "model/text_ops.h"
#include "scripted_port.h"
#include "session.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

using tq::Icon;
using tq::Session;
using tq::build::ExtractEntry;
using tq::test::ScriptedPort;

namespace {

/// The default text of an Input Type in its stored form, as the golden template files keep it.
std::string Template(const std::string& mode, std::string type)
{
    for (char& c : type)
        c = c == ' ' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return tq::test::ReadFileBytes(std::string(TQ_GOLDEN_DIR) + "/templates/" + mode + "/" + type + ".txt");
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
    int read = 0;
    for (const char* mode : {"form", "survey"}) {
        for (const auto& file :
             std::filesystem::directory_iterator(std::string(TQ_GOLDEN_DIR) + "/templates/" + mode)) {
            std::string type = file.path().stem().string();
            if (type == "setup")
                continue;
            std::replace(type.begin(), type.end(), '_', ' ');
            const std::string stored = tq::test::ReadFileBytes(file.path().string());
            std::string oneLine = stored;
            tq::model::ReplaceAll(oneLine, "\r\n", " ");
            for (const bool inStoredForm : {false, true}) {
                SCOPED_TRACE(std::string(mode) + " " + type + (inStoredForm ? " stored" : ""));
                s.build.buildError = 0;
                ui.clear();
                Extract(type, inStoredForm ? stored : oneLine, tq::model::ToUpper(mode));
                EXPECT_EQ(s.build.buildError, 0);
                for (const auto& m : ui.shown)
                    ADD_FAILURE() << m.title << ": " << m.text;
                ++read;
            }
        }
    }
    EXPECT_GT(read, 100);
}

TEST_F(Extraction, ValuesOfATextRow)
{
    Extract("Name", Template("form", "Name"));
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
    Extract("NAME", Template("survey", "Name"), "SURVEY");
    EXPECT_EQ(s.build.values.ShadeWidth, "40%");
    EXPECT_EQ(s.build.values.ShadeColorHex, "C0C0C0");
    Extract("Checkbox Horizontal", Template("form", "Checkbox Horizontal"));
    ASSERT_EQ(s.build.values.CheckBoxes.count(), 3);
    EXPECT_EQ(s.build.values.CheckBoxes.at(3), "Advanced");
    Extract("Table Text Required", Template("survey", "Table Text Required"), "SURVEY");
    const auto& v = s.build.values;
    EXPECT_EQ(v.ColChoice, "Customer Satisfaction");
    ASSERT_EQ(v.RowChoices.count(), 5);
    EXPECT_EQ(v.RowChoices.at(2), "Above Average");
    EXPECT_EQ(v.ChoicesBackColorHex, "C0C0C0");
    EXPECT_EQ(v.TableTextColorHex, "000000");
    EXPECT_EQ(v.REQ, "yes");
    Extract("CONDITION WITH DROPDOWN", Template("survey", "Condition With Dropdown"), "SURVEY");
    ASSERT_EQ(s.build.values.Choices.count(), 2);
    EXPECT_EQ(s.build.values.Choices.at(1), "yes");
}

TEST_F(Extraction, DefaultLinesAndIntroLinesAreSplitCopies)
{
    Extract("Comments With Text", Template("form", "Comments With Text"));
    const auto& v = s.build.values;
    EXPECT_EQ(v.DefaultValue.rfind("(1) Artist Name 1:\\n", 0), 0u);
    ASSERT_EQ(v.DefaultLines.count(), 8);
    EXPECT_EQ(v.DefaultLines.at(2), "(1) Song Name   1:");
    EXPECT_EQ(v.DefaultLines.at(3), "");
    EXPECT_EQ(v.Width, "70");
    EXPECT_EQ(v.Height, "11");
    Extract("SURVEY INTRO", Template("survey", "Survey Intro"), "SURVEY");
    ASSERT_EQ(s.build.values.IntroLines.count(), 7); // the empty lines between paragraphs stay
    EXPECT_EQ(s.build.values.IntroLines.at(2), "Your opinion is very important to us.");
    EXPECT_EQ(s.build.values.IntroLines.at(4), "");
}

TEST_F(Extraction, DownloadFillsTheBuildTablesUpToFiftyFiles)
{
    s.build.entryPreview = true;
    Extract("Download Files With Password", Template("form", "Download Files With Password"));
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
    Extract("Video", Template("form", "Video"));
    EXPECT_EQ(s.build.buildError, 1);
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_TRUE(Said(ui.last(),
                     ";https://www.tarnquill.example/test/videos/birds.mp4\r\rCANNOT CONTAIN A SEMI-COLON (;)", "ERROR",
                     Icon::Exclamation));
    ui.clear();
    s.build.buildError = 0;
    Extract("DOWNLOAD FILES WITH PASSWORD", Template("form", "Download Files With Password"));
    EXPECT_EQ(s.build.buildError, 1);
    EXPECT_EQ(ui.last().text, ";https://www.tarnquill.example/test\r\rCANNOT CONTAIN A SEMI-COLON (;)");
    ui.clear();
    s.build.buildError = 0;
    s.build.entryPreview = true;
    Extract("VIDEO", Template("form", "Video"));
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
    Extract("NAME", Template("form", "Name")); // FORM with its frame on
    EXPECT_EQ(s.build.values.ALIGN, "right");
    EXPECT_EQ(setup.SubmitAlign, "right");
    EXPECT_EQ(s.build.values.TextColorHex, "FFFFFF");
    Extract("NAME", Template("survey", "Name"), "SURVEY");
    EXPECT_EQ(s.build.values.TextColorHex, "0");
    setup.GlobalTextColor = "255";
    Extract("Video", Template("form", "Video"));
    EXPECT_EQ(s.build.values.VideoAlign, "right");
    s.build.buildError = 0;
    Extract("Title Shade", Template("survey", "Title Shade"), "SURVEY");
    EXPECT_EQ(s.build.values.TextColorHex, "FF0000"); // the colour beats the "0" of the alignment
    EXPECT_EQ(s.build.values.TitleShadeWidth, "45%");
    Extract("HORIZONTAL LINE", Template("form", "Horizontal Line"));
    EXPECT_EQ(s.build.values.LineAlign, "right");
    EXPECT_EQ(s.build.values.LineWidth, "85%");
    EXPECT_EQ(s.build.values.LineColorHex, "FFFFFF");
}

} // namespace
