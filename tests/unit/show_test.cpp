// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "session.h"
#include "show/show_build.h"
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

/// A scripted port that also keeps the options of each file dialog it was asked for.
class DialogPort : public ScriptedPort
{
  public:
    std::optional<std::string> saveFileDialog(const FileDialogOptions& options) override
    {
        dialogs.push_back(options);
        return ScriptedPort::saveFileDialog(options);
    }
    std::vector<FileDialogOptions> dialogs;
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
    s.AllowZip = "NO";
    s.BrowserTitle = "Club photos";
    s.FadeMode = "square";
    s.FadeDelay = "100";
    s.BackgroundColor = 0x563412; // red 12, green 34, blue 56
    return s;
}

} // namespace

TEST(ShowFile, RoundTripAndDamagedFiles)
{
    EXPECT_EQ(ShowFileText(ShowSettings{}),
              "index.htm\r\nRETURN TO MAIN MENU\r\n/home/user/Pictures/slideshow/images\r\n"
              "https://www.tarnquill.example/test/slideshow/images\r\ntest.shw\r\nYES\r\n5 - default\r\n3 - default\r\n"
              "YES\r\nImage Browser\r\nclassic - default\r\n6 - default\r\n70 - default\r\n16777215\r\n");
    ShowSettings back;
    EXPECT_EQ(ReadShowText(ShowFileText(Edited("/tmp/x")), back), 14);
    EXPECT_EQ(back, Edited("/tmp/x"));
    // a short file leaves the rest; a bad colour ends the read there
    EXPECT_EQ(ReadShowText(ReadFileBytes(TQ_TEST_DATA_DIR "/broken/truncated_lf_lines.shw"), back), 3);
    EXPECT_EQ(back.HomeLinkText, "LEAVE");
    EXPECT_EQ(back.ImageFolder, "/tmp/p");
    EXPECT_EQ(back.FadeDelay, "100");
    EXPECT_EQ(ReadShowText(ReadFileBytes(TQ_TEST_DATA_DIR "/broken/colour_overflow.shw"), back), 13);
    EXPECT_EQ(back.HomeFile, "1");
    EXPECT_EQ(back.BackgroundColor, Edited("/tmp/x").BackgroundColor);
    std::string text = ShowFileText(ShowSettings{});
    text.replace(text.rfind("16777215"), 8, "blue");
    EXPECT_EQ(ReadShowText(text, back), 13);
    EXPECT_EQ(back.BackgroundColor, 0x563412);
}

TEST(ShowFile, SaveAsksBeforeReplacingAndAppendsTheHistory)
{
    TempDir dir;
    Session session;
    session.DataFolder = dir.path();
    session.photoShow.settings = Edited(dir.path() + "/");
    DialogPort port;
    const std::string name = dir.file("club.shw");
    port.file(name);
    ASSERT_TRUE(SaveShow(session, port));
    ASSERT_EQ(port.dialogs.size(), 1u);
    EXPECT_EQ(port.dialogs[0].title, "Enter the Filename");
    EXPECT_EQ(port.dialogs[0].initialName, dir.path() + "/club.shw"); // the folder's "/" not doubled
    EXPECT_EQ(port.dialogs[0].filter, "Default Files (*.shw) | *.shw");
    EXPECT_EQ(ReadFileBytes(name), ShowFileText(session.photoShow.settings));
    port.file(name);
    port.answer(Answer::Yes);
    ASSERT_TRUE(SaveShow(session, port));
    EXPECT_TRUE(Said(port.last(), "File " + name + "  already exists. Do you want to replace it?", "FILE EXIST"));
    EXPECT_EQ(ReadFileBytes(dir.file("history.txt")), name + "\r\n" + name + "\r\n");
    session.photoShow.settings.BrowserTitle = "changed";
    port.file(name);
    port.answer(Answer::No);
    EXPECT_FALSE(SaveShow(session, port));
    EXPECT_EQ(ReadFileBytes(name).find("changed"), std::string::npos);
}

TEST(ShowValidate, EachCheckHasItsMessage)
{
    TempDir dir;
    using S = ShowSettings;
    const std::tuple<std::string S::*, std::string, std::string> cases[] = {
        {&S::UseFading, "maybe", "Blend between images? MUST BE EITHER YES OR NO"},
        {&S::AllowZip, "Y", "Allow downloading all Images? MUST BE EITHER YES OR NO"},
        {&S::FadeMode, "spiral", "spiral IS NOT A VALID ENTRY"},
        {&S::FadeSteps, "11", "11 IS NOT A VALID ENTRY"},
        {&S::FadeDelay, "70", "70 IS NOT A VALID ENTRY"},
        {&S::ImagesPerLine, "5", "5 IS NOT A VALID ENTRY"},
        {&S::ColumnsPerLine, "9", "9 IS NOT A VALID ENTRY"},
        {&S::ImageFolder, dir.file("gone"),
         dir.file("gone") + " DOES NOT EXIST\r\rCHECK THE FOLDER PATH AND TRY AGAIN"},
    };
    for (const auto& [field, value, text] : cases) {
        SCOPED_TRACE(text);
        ShowSettings s;
        s.ImageFolder = dir.path();
        s.*field = value;
        ScriptedPort port;
        bool failed = false;
        ValidateShow(s, failed, port);
        EXPECT_TRUE(failed);
        ASSERT_EQ(port.shown.size(), 1u);
        EXPECT_TRUE(Said(port.last(), text, "ERROR"));
    }
}

TEST(ShowLines, TemplateLineRules)
{
    using S = ShowSettings;
    using V = std::vector<std::string>;
    const std::tuple<std::string S::*, const char*, const char*, V> rows[] = {
        {&S::AllowZip, "NO", "  $allowZip=true;", V{"  $allowZip=false;"}},
        {&S::ImagesPerLine, "10", "$imgsperline=5;", V{"$imgsperline=10;"}},
        {&S::ImagesPerLine, "5 - default", "x $imgsperline=5 y", V{"$imgsperline=5;"}},
        {&S::FadeDelay, "70 - default", "$fadeTime  =70;", V{"$fadeTime  =70;"}},
        {&S::FadeDelay, "100", "$fadeTime  =70;", V{"$fadeTime  =100;"}},
        {&S::FadeMode, "square", "$fadeMode  =rand(0,4);", V{"$fadeMode=3;"}},
        {&S::FadeMode, "CLASSIC - DEFAULT", "$fadeMode  =rand(0,4);", V{}}, // no exact row: dropped
        {&S::BrowserTitle, "Club's photos", "$browsertitle=\"Image browser\";", V{"$browsertitle=\"Club's photos\";"}},
        {&S::BrowserTitle, R"(X" . f("\$y") . ")", "Image browser", V{R"($browsertitle="X\" . f(\"\\\$y\") . \"";)"}},
        {&S::HomeLinkText, "BACK", "   <b>RETURN TO HOME PAGE</b></a>", V{"<b>BACK</b>"}},
        {&S::HomeFile, "home/", "  <a href=\"https://www.tarnquill.example\">",
         V{"             <i><a target=\\\"_blank\\\"href=\\\"home\\\">"}},
    };
    for (const auto& [field, value, line, want] : rows) {
        SCOPED_TRACE(line);
        ShowSettings s;
        s.*field = value;
        EXPECT_EQ(RewriteTemplateLine(line, s), want);
    }
}

TEST(ShowBuild, StopsOnAFailedCheckOrCancelAndWritesTheShowTheReadmeAndTheHistory)
{
    TempDir dir, data;
    Session session;
    ScriptedPort port;
    session.DataFolder = data.path();
    session.photoShow.settings = Edited(dir.path() + "/");
    WriteFileBytes(dir.file("club.shw"), ShowFileText(session.photoShow.settings));
    session.photoShow.settings.FadeSteps = "1";
    EXPECT_FALSE(BuildShow(session, "", port));
    EXPECT_EQ(port.last().text, "1 IS NOT A VALID ENTRY");
    session.photoShow.settings.FadeSteps = "2";
    port.file(std::nullopt);
    EXPECT_FALSE(BuildShow(session, "", port));
    EXPECT_TRUE(Said(port.last(), "ABORTED...", "ABORTED"));
    port.file(dir.file("nowhere/photodata.php"));
    EXPECT_FALSE(BuildShow(session, "", port));
    EXPECT_TRUE(
        Said(port.last(), "No such file or directory when reading " + dir.file("nowhere/photodata.php"), "ERROR"));
    EXPECT_FALSE(std::filesystem::exists(data.file("history.txt")));
    port.clear();
    const std::string tpl = dir.file("t/photodata.php");
    WriteFileBytes(tpl, "<?PHP\nkeep me\r\n$fadeMode  =rand(0,4);\nlast");
    port.file(tpl);
    ASSERT_TRUE(BuildShow(session, "", port));
    EXPECT_EQ(ReadFileBytes(dir.file("photoshow.php")), // lone LFs become CR LF
              "<?PHP\r\n$bgcolor=\"#123456\";\r\nkeep me\r\n$fadeMode=3;\r\nlast\r\n");
    const std::string f = dir.path();
    EXPECT_EQ(ReadFileBytes(dir.file("readmeshow.txt")),
              "1. FTP all of your images to your web server to https://club.example/photos\r\n\r\n"
              "Be sure to set the size of your images to 640x480 or it will take too long to view them on your web "
              "site by others with a slow internet connection\r\n\r\n"
              "    Note: To keep your images in your preferred order, name them with a UPPER CASE LETTER instead of a "
              "number. (Image1A.jpg instead of Image1.jpg). When you get to Z then use ZA, ZB\r\n\r\n"
              "2. FTP file " +
                  f +
                  "/slideshow.php to Your web server to https://club.example/photos\r\n\r\n"
                  "3. Copy and paste the link on this page below VIEW PHOTOSHOW LIVE ON YOUR WEB SITE and put it in "
                  "your html file and FTP it to your Web Server\r\n"
                  "It's not necessary to include the full web server path. Just the relative path.\r\n\r\n"
                  "Example: if the full path to your images on your web server is "
                  "https://www.tarnquill.example/pictures/photoshow.php then your link would be, "
                  "pictures/photoshow.php\r\n\r\n"
                  "4. After you complete the above steps, click VIEW PHOTOSHOW LIVE ON YOUR WEB SITE to see your "
                  "photos live on the internet\r\n");
    ASSERT_EQ(port.messages().size(), 1u);
    EXPECT_TRUE(Said(port.last(), ShowDoneMessage(session.photoShow.settings, f), "DONE"));
    EXPECT_EQ(session.photoShow.OutputLine, "https://club.example/photos/photoshow.php");
    EXPECT_EQ(ReadFileBytes(data.file("history.txt")), f + "/club.shw\r\n");

    // a show that was never saved is built without a line in the history
    std::filesystem::remove(dir.file("club.shw"));
    port.clear();
    port.file(tpl);
    ASSERT_TRUE(BuildShow(session, "", port));
    EXPECT_EQ(port.messages().size(), 1u);
    EXPECT_EQ(ReadFileBytes(data.file("history.txt")), f + "/club.shw\r\n");
}
