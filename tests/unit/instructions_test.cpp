// SPDX-License-Identifier: GPL-3.0-or-later
#include "build/build_driver.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "shell/instructions.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;
using namespace tq::shell;
using tq::test::ReadFileBytes;
using tq::test::ScriptedPort;
using tq::test::TempDir;
using tq::test::WriteFileBytes;

namespace {

/// A port that fills the final page the moment the driver brings it up, as
/// the desktop program does.
struct FinalPagePort : ScriptedPort
{
    Session* s = nullptr;
    FinalPageText page;
    int finalShown = 0;
    void showView(View v) override
    {
        ScriptedPort::showView(v);
        if (v == View::FinalPage) {
            page = ShowInstructions(*s, *this);
            ++finalShown;
        }
    }
};

struct Fixture
{
    TempDir data;
    TempDir web;
    std::unique_ptr<Session> s = std::make_unique<Session>();
    FinalPagePort port;

    explicit Fixture(const std::string& mode = "FORM")
    {
        port.s = s.get();
        s->DataFolder = data.path();
        s->store.state.ProjectMode = mode;
        s->store.pages[0][0] = {"Setup", test::SetupEntryText(web.path(), {.image = ";x.gif"}), "1", true};
    }
    std::vector<std::string> lines() const
    {
        std::vector<std::string> out;
        std::string all = ReadFileBytes(data.file("Instruct.txt"));
        size_t start = 0;
        for (size_t end; (end = all.find("\r\n", start)) != std::string::npos; start = end + 2)
            out.push_back(all.substr(start, end - start));
        return out;
    }
};

} // namespace

TEST(Instructions, AWholePageFormNamesBothFilesAndTheServerPath)
{
    Fixture f;
    f.s->setup.rows[2].MenuName = "Site";
    f.s->setup.rows[2].WebFolderPath = f.web.path() + "/";
    f.s->setup.rows[2].WebServerPath = ";https://site.example/forms";
    build::CreateFormHTMLCode(*f.s, f.port);
    ASSERT_EQ(f.port.finalShown, 1);
    const FinalPageText& p = f.port.page;
    EXPECT_EQ(p.title, "INSTRUCTIONS ON GETTING YOUR FORM ON THE INTERNET ");
    EXPECT_EQ(p.buttonCaption, "Copy FORM data to the clipboard");
    EXPECT_EQ(p.uploadLabel, "UPLOAD THE FOLLOWING FILES TO YOUR WEB SERVER");
    EXPECT_EQ(p.uploads, (std::vector<std::string>{"formtql.htm", "formtql.php"}));
    EXPECT_EQ(p.code, ReadFileBytes(f.web.file("formtql.htm")));
    EXPECT_EQ(p.code.rfind("<html>", 0), 0u);
    const std::vector<std::string> expected = {
        "Web Server File Path: https://site.example/forms",
        "   Files to upload to your Web Server: formtql.htm, formtql.php",
        "Note: On your Web Server, formtql.htm and file formtql.php must be placed in the directory",
        "          where all of your links associated with your Tarnquill FORM were created on your " + f.web.path(),
        "1. FTP the formtql.htm file and the formtql.php file to your Web Server.",
        "2. Open your Internet Browser at the formtql.htm page of your Web Site",
        "   to test your FORM.",
        f.web.path()};
    EXPECT_EQ(f.lines(), expected);
    EXPECT_EQ(p.instructions, ReadFileBytes(f.data.file("Instruct.txt")));
}

TEST(Instructions, AFragmentSurveyTakesTheSingularAndThePasteSteps)
{
    Fixture f("SURVEY");
    f.s->setup.rows[0].WebFolderPath = f.web.path();
    build::CreateFormOnly(*f.s, f.port);
    ASSERT_EQ(f.port.finalShown, 1);
    const FinalPageText& p = f.port.page;
    EXPECT_EQ(p.title, "INSTRUCTIONS ON GETTING YOUR SURVEY ON THE INTERNET ");
    EXPECT_EQ(p.buttonCaption, "Copy SURVEY data to the clipboard");
    EXPECT_EQ(p.uploadLabel, "UPLOAD THE FOLLOWING FILE TO YOUR WEB SERVER");
    const auto lines = f.lines();
    ASSERT_EQ(lines.size(), 9u);
    // the server path line belongs to FORM only
    EXPECT_EQ(lines[0].rfind("Note: On your Web Server, formtql.htm and file formtql.php", 0), 0u);
    EXPECT_EQ(lines[2], "formtql.htm");
    EXPECT_EQ(lines[4], "2. On the bottom left screen select Copy SURVEY data to the clipboard");
    EXPECT_EQ(lines[7], "4. FTP the formtql.php file to your web server.");
}

TEST(Instructions, ExtraPathsAndTheDownloadNote)
{
    Fixture f;
    f.s->store.pages[0][0].AttributeText =
        test::SetupEntryText(f.web.path(), {.image = "https://site.example/img/back.gif"});
    f.s->store.pages[0][1] = {
        "Download Files", "[Title=t]\r\n[Info: x]\r\n\r\n[Server Download=;https://site.example/files/]\r\n", "", true};
    f.s->store.pages[1][3] = {"Picture", "[Server Picture Path=https://site.example/pics\\]\r\n", "", true};
    f.s->store.pages[2][0] = {"Picture", "[Server Picture Path=https://site.example/pics]\r\n", "", true};
    f.s->store.pages[3][0] = {"Video", "[Server Video Path=https://site.example/v.mp4]\r\n", "", true};
    const std::vector<std::string> expected = {"Web Server Background Path: https://site.example/img/back.gif",
                                               "Web Server Download Path: https://site.example/files",
                                               "Web Server Picture Path: https://site.example/pics",
                                               "Web Server Video Path: https://site.example/v.mp4"};
    EXPECT_EQ(ListExtraPaths(f.s->store), expected);
    f.s->build.setupValues.WebFolder = f.web.path();
    f.s->build.setupValues.OutputName = "formtql.htm";
    f.s->build.formAction = "formtql.php";
    const auto lines = InstructionLines(*f.s);
    EXPECT_EQ(lines[lines.size() - 2],
              "   A download page needs output_buffering set to Off in the PHP settings of your Web Server.");
    // a commented-out sample image is no upload
    f.s->store.pages[0][0].AttributeText = test::SetupEntryText(f.web.path(), {.image = ";x.gif"});
    EXPECT_EQ(ListExtraPaths(f.s->store).size(), 3u);
}

TEST(SetupReminder, AsksOnceCountedAndSendsTheUserToTheSetupOnNo)
{
    Fixture f;
    EXPECT_EQ(SetupReminder(*f.s, f.port, 0), 0);
    EXPECT_TRUE(f.port.shown.empty());
    f.port.answer(Answer::Yes);
    EXPECT_EQ(SetupReminder(*f.s, f.port, 1), 0);
    EXPECT_EQ(f.port.last().title, "CHANGES");
    EXPECT_EQ(f.port.last().text.rfind("\rDid you update the following items on the setup input type?\r\r1. The "
                                       "name of the DRIVE FOLDER PATH. (Example: c:\\name)\r",
                                       0),
              0u);
    f.port.answer(Answer::No);
    EXPECT_EQ(SetupReminder(*f.s, f.port, 1), 1);
    EXPECT_EQ(f.s->build.reminderCounter, 2);
    EXPECT_EQ(f.port.views.back(), View::Page1);
    EXPECT_EQ(f.port.last().title, "EDIT SETUP");
}

TEST(FinalPage, CopyPutsTheCodeOnTheClipboardAndSaysSo)
{
    ScriptedPort port;
    CopyCodeToClipboard(port, "<form>\r\n</form>\r\n");
    EXPECT_EQ(port.clipboard, "<form>\r\n</form>\r\n");
    EXPECT_EQ(port.last().title, "HTML CODE COPIED TO THE CLIPBOARD");
    EXPECT_EQ(port.last().text.rfind("The output HTML file code has been saved to the clipboard.\r\rUsing your", 0),
              0u);
}
