// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "session.h"
#include "show/show_build.h"
#include "show/show_commands.h"
#include "show/show_file.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace tq;
using namespace tq::show;
using test::ReadFileBytes;
using test::ScriptedPort;
using test::TempDir;
using test::WriteFileBytes;

namespace {

/// A scripted port that also keeps the specs of the file dialogs.
class DialogPort : public ScriptedPort
{
  public:
    std::optional<std::string> openFileDialog(const FileDialogOptions& options) override
    {
        specs.push_back(options);
        return ScriptedPort::openFileDialog(options);
    }
    std::optional<std::string> saveFileDialog(const FileDialogOptions& options) override
    {
        specs.push_back(options);
        return ScriptedPort::saveFileDialog(options);
    }
    std::vector<FileDialogOptions> specs;
};

ShowSettings Edited(const std::string& folder)
{
    ShowSettings s;
    s.HomeFile = "home/";
    s.HomeLinkText = "BACK TO THE CLUB";
    s.ImageFolder = folder;
    s.WebImageFolder = "https://club.example/photos/";
    s.ShowFileName = "club.shw";
    s.UseFading = "NO";
    s.ImagesPerLine = "10";
    s.ColumnsPerLine = "3 - default";
    s.AllowZip = "NO";
    s.BrowserTitle = "Club photos";
    s.FadeMode = "square";
    s.FadeSteps = "6 - default";
    s.FadeDelay = "100";
    s.BackgroundColor = 0x563412; // red 12, green 34, blue 56
    return s;
}

std::string Lines(const std::vector<std::string>& lines)
{
    std::string out;
    for (const auto& l : lines)
        out += l + "\r\n";
    return out;
}

} // namespace

// ---------------------------------------------------------------- show file

TEST(ShowFile, FourteenLinesRoundTripWithTheListMarksKept)
{
    ShowSettings defaults;
    EXPECT_EQ(ShowFileText(defaults), "index.htm\r\nRETURN TO MAIN MENU\r\n/home/user/Pictures/slideshow/images\r\n"
                                      "https://www.tarnquill.example/test/slideshow/images\r\ntest.shw\r\nYES\r\n"
                                      "5 - default\r\n3 - default\r\nYES\r\nImage Browser\r\nclassic - default\r\n"
                                      "6 - default\r\n70 - default\r\n16777215\r\n");
    ShowSettings read;
    read.ImagesPerLine = "7";
    EXPECT_EQ(ReadShowText(ShowFileText(defaults), read), 14);
    EXPECT_EQ(read, defaults);
    EXPECT_EQ(read.ImagesPerLine, "5 - default");
    ShowSettings edited = Edited("/tmp/x"), back;
    ReadShowText(ShowFileText(edited), back);
    EXPECT_EQ(back, edited);
}

TEST(ShowFile, ShortFileLeavesTheRestAndABadColourEndsTheRead)
{
    ShowSettings s = Edited("/tmp/x");
    EXPECT_EQ(ReadShowText("a.htm\nLEAVE\n", s), 2); // lone LF read too
    EXPECT_EQ(s.HomeFile, "a.htm");
    EXPECT_EQ(s.HomeLinkText, "LEAVE");
    EXPECT_EQ(s.ImageFolder, "/tmp/x");
    EXPECT_EQ(s.FadeDelay, "100");
    std::string text = ShowFileText(ShowSettings{});
    text.replace(text.rfind("16777215"), 8, "blue");
    s = Edited("/tmp/x");
    EXPECT_EQ(ReadShowText(text, s), 13);
    EXPECT_EQ(s.FadeDelay, "70 - default");
    EXPECT_EQ(s.BackgroundColor, 0x563412);
    EXPECT_EQ(ReadShowText("", s), 0);
    EXPECT_EQ(ShowPathFromCaption("3. /home/me/shows/a.shw"), "/home/me/shows/a.shw");
    EXPECT_EQ(ShowPathFromCaption("12. junk /x.shw"), "/x.shw");
    EXPECT_EQ(ShowPathFromCaption("no mark"), "no mark");
}

TEST(ShowFile, SaveProposesTheNameInTheFolderAndAppendsHistoryEachTime)
{
    TempDir dir;
    Session session;
    session.DataFolder = dir.path();
    session.photoShow.settings = Edited(dir.path() + "/");
    DialogPort port;
    const std::string name = dir.file("club.shw");
    port.file(name);
    ASSERT_TRUE(SaveShow(session, port));
    ASSERT_EQ(port.specs.size(), 1u);
    EXPECT_EQ(port.specs[0].title, "Enter the Filename");
    EXPECT_EQ(port.specs[0].initialName, dir.path() + "/club.shw"); // the folder's "/" not doubled
    EXPECT_EQ(port.specs[0].filter, "Default Files (*.shw) | *.shw");
    EXPECT_EQ(ReadFileBytes(name), ShowFileText(session.photoShow.settings));
    EXPECT_EQ(session.run.LastFormFile, name);
    // the same name again: the question, Yes, and a second history line
    port.file(name);
    port.answer(Answer::Yes);
    ASSERT_TRUE(SaveShow(session, port));
    EXPECT_TRUE(Said(port.last(), "File " + name + "  already exists. Do you want to replace it?", "FILE EXIST"));
    EXPECT_EQ(ReadFileBytes(dir.file("history.txt")), name + "\r\n" + name + "\r\n");
    // No keeps the file; Cancel writes nothing
    session.photoShow.settings.BrowserTitle = "changed";
    port.file(name);
    port.answer(Answer::No);
    EXPECT_FALSE(SaveShow(session, port));
    port.file(std::nullopt);
    EXPECT_FALSE(SaveShow(session, port));
    EXPECT_EQ(ReadFileBytes(name).find("changed"), std::string::npos);
    EXPECT_TRUE(port.messages().empty());
    // the extension is added only to a name without one
    session.run.LastFormFile = "/old.fms";
    port.file(dir.file("plain"));
    ASSERT_TRUE(SaveShow(session, port));
    EXPECT_TRUE(std::filesystem::exists(dir.file("plain.shw")));
    EXPECT_EQ(session.run.LastFormFile, dir.file("plain.shw"));
    port.file(dir.file("other.txt"));
    ASSERT_TRUE(SaveShow(session, port));
    EXPECT_TRUE(std::filesystem::exists(dir.file("other.txt")));
    EXPECT_EQ(session.run.LastFormFile, dir.file("plain.shw"));
}

TEST(ShowFile, OpenReadsRunsTheFadeSwitchAndFillsTheOutputLine)
{
    TempDir dir;
    const std::string name = dir.file("club.shw");
    WriteFileBytes(name, ShowFileText(Edited(dir.path())));
    Session session;
    session.run.GlobalFont = "courier";
    session.run.Bold = "on";
    DialogPort port;
    port.file(name);
    ASSERT_TRUE(OpenShow(session, "", port));
    EXPECT_EQ(port.specs.at(0).title, "Where is photoshow file located?");
    EXPECT_EQ(session.photoShow.settings, Edited(dir.path()));
    EXPECT_FALSE(session.photoShow.fadeFieldsEnabled);
    EXPECT_EQ(session.photoShow.OutputLine, "https://club.example/photos/photoshow.php");
    EXPECT_EQ(session.run.GlobalFont, "arial");
    EXPECT_EQ(session.run.Bold, "off");
    session.photoShow.settings.UseFading = "yes";
    ApplyFadeSwitch(session.photoShow);
    EXPECT_TRUE(session.photoShow.fadeFieldsEnabled);
}

TEST(ShowFile, OpenCancelledSaysAbortedAndAMissingFileSaysNothing)
{
    Session session;
    ScriptedPort port;
    port.file(std::nullopt);
    EXPECT_FALSE(OpenShow(session, "", port));
    EXPECT_TRUE(Said(port.last(), "ABORTED...", "ABORTED"));
    port.clear();
    EXPECT_FALSE(OpenShow(session, "/nonexistent/dir/x.shw", port));
    EXPECT_TRUE(port.shown.empty());
    EXPECT_EQ(session.photoShow.settings, ShowSettings{});
}

// ---------------------------------------------------------------- validation

TEST(ShowValidate, EachCheckHasItsMessageAndTheFirstFailureWins)
{
    TempDir dir;
    struct Case
    {
        void (*edit)(ShowSettings&);
        std::string text;
    };
    const std::string missing = dir.path() + "/gone";
    const std::vector<Case> cases = {
        {[](ShowSettings& s) { s.UseFading = "maybe"; }, "Blend between images? MUST BE EITHER YES OR NO"},
        {[](ShowSettings& s) { s.AllowZip = "Y"; }, "Allow downloading all Images? MUST BE EITHER YES OR NO"},
        {[](ShowSettings& s) { s.FadeMode = "spiral"; }, "spiral IS NOT A VALID ENTRY"},
        {[](ShowSettings& s) { s.FadeSteps = "11"; }, "11 IS NOT A VALID ENTRY"},
        {[](ShowSettings& s) { s.FadeDelay = "70"; }, "70 IS NOT A VALID ENTRY"},
        {[](ShowSettings& s) { s.ImagesPerLine = "5"; }, "5 IS NOT A VALID ENTRY"},
        {[](ShowSettings& s) { s.ColumnsPerLine = "9"; }, "9 IS NOT A VALID ENTRY"},
    };
    for (const Case& c : cases) {
        ShowSettings s;
        s.ImageFolder = dir.path();
        c.edit(s);
        ScriptedPort port;
        bool failed = false;
        ValidateShow(s, failed, port);
        EXPECT_TRUE(failed) << c.text;
        ASSERT_EQ(port.shown.size(), 1u) << c.text;
        EXPECT_TRUE(Said(port.last(), c.text, "ERROR"));
    }
    ShowSettings s;
    s.ImageFolder = missing;
    s.AllowZip = "bad"; // comes after the folder
    ScriptedPort port;
    bool failed = false;
    ValidateShow(s, failed, port);
    EXPECT_TRUE(failed);
    EXPECT_EQ(port.last().text, missing + " DOES NOT EXIST\r\rCHECK THE FOLDER PATH AND TRY AGAIN");
    // upper-cased comparisons: list texts in any case pass
    s = ShowSettings{};
    s.ImageFolder = dir.path();
    s.UseFading = "no";
    s.FadeMode = "CLASSIC - DEFAULT";
    s.FadeDelay = "70 - DEFAULT";
    port.clear();
    ValidateShow(s, failed, port);
    EXPECT_FALSE(failed);
    EXPECT_TRUE(port.shown.empty());
}

// ---------------------------------------------------------------- line rules

TEST(ShowLines, SwitchesTitleColourAndHomeLink)
{
    ShowSettings s = Edited("/tmp/x");
    using V = std::vector<std::string>;
    EXPECT_EQ(RewriteTemplateLine("  $allowZip=true;", s), V{"  $allowZip=false;"});
    s.AllowZip = "yes";
    EXPECT_EQ(RewriteTemplateLine("  $allowZip=true;", s), V{"  $allowZip=true;"});
    EXPECT_EQ(RewriteTemplateLine("$useFading =true; // do you want to blend between images?", s),
              V{"$useFading =false;"});
    EXPECT_EQ(RewriteTemplateLine("$browsertitle=\"Image browser\";", s), V{"$browsertitle=\"Club photos\";"});
    EXPECT_EQ(RewriteTemplateLine("<?PHP", s), (V{"<?PHP", "$bgcolor=\"#123456\";"}));
    s.BackgroundColor = 255;
    EXPECT_EQ(RewriteTemplateLine("<?PHP // x", s), (V{"<?PHP // x", "$bgcolor=\"#FF0000\";"}));
    EXPECT_EQ(RewriteTemplateLine("<?php", s), V{"<?php"}); // exact case only
    EXPECT_EQ(RewriteTemplateLine("   <b>RETURN TO HOME PAGE</b></a>", s), V{"<b>BACK TO THE CLUB</b>"});
    EXPECT_EQ(RewriteTemplateLine("  <a href=\"https://www.tarnquill.example\">", s),
              V{"             <i><a target=\\\"_blank\\\"href=\\\"home\\\">"});
    EXPECT_EQ(RewriteTemplateLine("echo 'plain';", s), V{"echo 'plain';"});
    EXPECT_EQ(RewriteTemplateLine("", s), V{""});
}

TEST(ShowLines, FadeModeByExactTextTheFirstMarkDecidesAndListValuesAreCut)
{
    ShowSettings s;
    using V = std::vector<std::string>;
    const std::string line = "$fadeMode  =rand(0,4);";
    const std::pair<const char*, V> modes[] = {
        {"classic - default", V{"$fadeMode=0;"}}, {"right to left", V{"$fadeMode=1;"}},
        {"left to right", V{"$fadeMode=2;"}},     {"square", V{"$fadeMode=3;"}},
        {"random", V{"$fadeMode  =rand(0,4);"}},  {"CLASSIC - DEFAULT", V{}},
    };
    for (const auto& [mode, want] : modes) {
        s.FadeMode = mode;
        EXPECT_EQ(RewriteTemplateLine(line, s), want) << mode;
    }
    // a line with two marks takes the rule of the earlier row
    EXPECT_EQ(RewriteTemplateLine("$imgsperline=5; <b>RETURN TO HOME PAGE</b>", s), V{"<b>RETURN TO MAIN MENU</b>"});
    EXPECT_EQ(RewriteTemplateLine("<?PHP $fadeTime  =70;", s), V{"$fadeTime  =70;"});
    // list values are cut from the list texts
    s.ImagesPerLine = "10";
    EXPECT_EQ(RewriteTemplateLine("$imgsperline=5;", s), V{"$imgsperline=10;"});
    s.ImagesPerLine = "5 - default";
    EXPECT_EQ(RewriteTemplateLine("x $imgsperline=5 y", s), V{"$imgsperline=5;"});
    EXPECT_EQ(RewriteTemplateLine("  $imgspercolumn=3;", s), V{"$imgspercolumn=3;"});
    EXPECT_EQ(RewriteTemplateLine("$fadeTime  =70;", s), V{"$fadeTime  =70;"});
    s.FadeDelay = "100";
    EXPECT_EQ(RewriteTemplateLine("$fadeTime  =70;", s), V{"$fadeTime  =100;"});
    s.FadeSteps = "10";
    EXPECT_EQ(RewriteTemplateLine("$fadeSteps =6;", s), V{"$fadeSteps =10;"});
    s.FadeSteps = "6 - default";
    EXPECT_EQ(RewriteTemplateLine("$fadeSteps =6;", s), V{"$fadeSteps =6;"});
}

// ---------------------------------------------------------------- build

namespace {

struct ShowBuild : ::testing::Test
{
    TempDir dir;
    TempDir data;
    Session session;
    ScriptedPort port;
    std::string templatePath = std::string(TQ_DATA_DIR) + "/photodata.php";

    void SetUp() override
    {
        session.DataFolder = data.path();
        session.photoShow.settings = Edited(dir.path() + "/");
        // the history line names the saved show: the photo list keeps only files that exist
        WriteFileBytes(dir.file("club.shw"), ShowFileText(session.photoShow.settings));
    }
};

} // namespace

TEST_F(ShowBuild, ShowFromTheInstalledTemplateWithItsReadmeDoneOutputLineAndHistory)
{
    port.file(templatePath);
    ASSERT_TRUE(BuildShow(session, TQ_DATA_DIR, port));
    const std::string f = dir.path();
    EXPECT_EQ(
        ReadFileBytes(dir.file("readmeshow.txt")),
        "1. FTP all of your images to your web server to https://club.example/photos\r\n"
        "\r\n"
        "Be sure to set the size of your images to 640x480 or it will take too long to view them on your web site by "
        "others with a slow internet connection\r\n"
        "\r\n"
        "    Note: To keep your images in your preferred order, name them with a UPPER CASE LETTER instead of a "
        "number. "
        "(Image1A.jpg instead of Image1.jpg). When you get to Z then use ZA, ZB\r\n"
        "\r\n"
        "2. FTP file " +
            f + "/slideshow.php to Your web server to https://club.example/photos\r\n" +
            "\r\n"
            "3. Copy and paste the link on this page below VIEW PHOTOSHOW LIVE ON YOUR WEB SITE and put it in your "
            "html "
            "file and FTP it to your Web Server\r\n"
            "It's not necessary to include the full web server path. Just the relative path.\r\n"
            "\r\n"
            "Example: if the full path to your images on your web server is "
            "https://www.tarnquill.example/pictures/photoshow.php then your link would be, pictures/photoshow.php\r\n"
            "\r\n"
            "4. After you complete the above steps, click VIEW PHOTOSHOW LIVE ON YOUR WEB SITE to see your photos live "
            "on the internet\r\n");
    ASSERT_EQ(port.messages().size(), 1u);
    EXPECT_TRUE(Said(port.last(), ShowDoneMessage(session.photoShow.settings, dir.path()), "DONE"));
    EXPECT_EQ(port.last().text.substr(0, 68), "1. FTP all of your images to your web server to https://club.example");
    EXPECT_TRUE(session.photoShow.outputEnabled);
    EXPECT_EQ(session.photoShow.OutputLine, "https://club.example/photos/photoshow.php");
    EXPECT_EQ(ReadFileBytes(data.file("history.txt")), dir.path() + "/club.shw\r\n");
    // every template line accounted for: the rewritten lines, the rest copied
    const std::string tpl = ReadFileBytes(templatePath);
    const std::string out = ReadFileBytes(dir.file("photoshow.php"));
    const std::vector<std::string> marks = {"<b>RETURN TO HOME PAGE</b>",
                                            "do you want to blend between images?",
                                            "$imgsperline=5",
                                            "  $imgspercolumn",
                                            "  $allowZip=true;",
                                            "Image browser",
                                            "$fadeMode  =rand(0,4)",
                                            "$fadeSteps =6;",
                                            "$fadeTime  =70;",
                                            "<?PHP",
                                            std::string(kHomeLinkMark)};
    std::vector<int> hits(marks.size(), 0);
    std::string expected;
    for (size_t at = 0; at < tpl.size();) {
        size_t nl = tpl.find('\n', at);
        std::string line = tpl.substr(at, nl - at);
        at = nl == std::string::npos ? tpl.size() : nl + 1;
        for (size_t m = 0; m < marks.size(); ++m)
            if (line.find(marks[m]) != std::string::npos) {
                ++hits[m];
                break;
            }
        expected += Lines(RewriteTemplateLine(line, session.photoShow.settings));
    }
    EXPECT_EQ(out, expected);
    for (size_t m = 0; m < marks.size(); ++m)
        EXPECT_EQ(hits[m], 1) << "the template carries each mark on one line: " << marks[m];
    EXPECT_EQ(out.find("tarnquill.example"), std::string::npos);
}

TEST_F(ShowBuild, StopsOnAFailedCheckOnCancelAndOnAnUnreadableTemplate)
{
    session.photoShow.OutputLine = "old";
    session.photoShow.settings.FadeSteps = "1";
    EXPECT_FALSE(BuildShow(session, TQ_DATA_DIR, port));
    EXPECT_EQ(port.last().text, "1 IS NOT A VALID ENTRY");
    EXPECT_EQ(session.photoShow.OutputLine, "");
    EXPECT_FALSE(session.photoShow.outputEnabled);
    session.photoShow.settings.FadeSteps = "2";
    port.file(std::nullopt);
    EXPECT_FALSE(BuildShow(session, TQ_DATA_DIR, port));
    EXPECT_TRUE(Said(port.last(), "ABORTED...", "ABORTED"));
    EXPECT_TRUE(session.photoShow.outputEnabled); // enabled before the template is asked for
    port.clear();
    port.file("   ");
    EXPECT_FALSE(BuildShow(session, TQ_DATA_DIR, port));
    EXPECT_TRUE(port.messages().empty());
    const std::string gone = dir.file("nowhere/photodata.php");
    port.file(gone);
    EXPECT_FALSE(BuildShow(session, TQ_DATA_DIR, port));
    EXPECT_TRUE(Said(port.last(), "No such file or directory when reading " + gone, "ERROR"));
    EXPECT_FALSE(std::filesystem::exists(dir.file("photoshow.php")));
    EXPECT_FALSE(std::filesystem::exists(data.file("history.txt")));
}

TEST_F(ShowBuild, TemplateLinesWithoutMarksAreCopiedAndLoneLineFeedsBecomeCrLf)
{
    const std::string tpl = dir.file("t/photodata.php");
    WriteFileBytes(tpl, "<?PHP\nkeep me\r\n$fadeMode  =rand(0,4);\nlast");
    session.photoShow.settings.FadeMode = "Square"; // valid when upper-cased, no exact row: dropped
    session.photoShow.settings.BackgroundColor = 0;
    port.file(tpl);
    ASSERT_TRUE(BuildShow(session, "", port));
    EXPECT_EQ(ReadFileBytes(dir.file("photoshow.php")), "<?PHP\r\n$bgcolor=\"#000000\";\r\nkeep me\r\nlast\r\n");
}

// ---------------------------------------------------------------- page commands

TEST(ShowCommands, HelpInstructionsAndTheLiveShow)
{
    ScriptedPort port;
    ShowHelp(port);
    EXPECT_EQ(port.last().title, "HELP");
    const std::string tail =
        " You can then select File and Recent and open up any of the files that you've saved in your history";
    EXPECT_EQ(port.last().text.substr(port.last().text.size() - tail.size()), tail);
    ShowPage page;
    page.settings.ImageFolder = "/srv/pics/";
    page.OutputLine = "https://club.example/photos/photoshow.php";
    EXPECT_TRUE(ViewInstructions(page.settings, port));
    EXPECT_TRUE(OpenLocalShow(page.settings, port));
    EXPECT_EQ(port.opened, (std::vector<std::string>{"/srv/pics/readmeshow.txt", "/srv/pics/photoshow.php"}));
    EXPECT_TRUE(ViewShowLive("/usr/bin/xdg-open", page, port));
    ASSERT_EQ(port.started.size(), 1u);
    EXPECT_EQ(port.started[0].program, "/usr/bin/xdg-open");
    EXPECT_EQ(port.started[0].args, std::vector<std::string>{page.OutputLine});
}
