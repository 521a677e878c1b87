// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/build_driver.h"
#include "project_text.h"
#include "scripted_port.h"
#include "session.h"
#include "shell/instructions.h"

#include <gtest/gtest.h>
#include <memory>

using namespace tq;
using namespace tq::shell;

namespace {

/// A port that fills the final page the moment the driver brings it up, as
/// the desktop program does.
struct FinalPagePort : test::ScriptedPort
{
    Session* s = nullptr;
    FinalPageText page;
    void showView(View v) override
    {
        ScriptedPort::showView(v);
        if (v == View::FinalPage)
            page = ShowInstructions(*s, *this);
    }
};

struct Instructions : ::testing::Test
{
    test::TempDir data, web;
    std::unique_ptr<Session> s = std::make_unique<Session>();
    FinalPagePort port;
    void SetUp() override
    {
        port.s = s.get();
        s->DataFolder = data.path();
        s->store.pages[0][0] = {"Setup", test::SetupEntryText(web.path(), {.image = ";x.gif"}), "1", true};
    }
};

} // namespace

TEST_F(Instructions, AWholePageFormNamesBothFilesAndTheServerPath)
{
    s->store.state.ProjectMode = tq::model::Mode::Form;
    s->setup.rows[2].WebFolderPath = web.path() + "/";
    s->setup.rows[2].WebServerPath = ";https://site.example/forms";
    // two pictures make one line, with the first path
    for (int row : {1, 2})
        s->store.pages[0][static_cast<size_t>(row)] = {
            "Picture",
            "[Server Picture Path=https://site.example/img" + std::to_string(row) +
                "/] [Info: p]\r\n[Align=center] [Choices=l]\r\n[Picture Width=200] [Info: w]\r\n"
                "[Picture Height=100] [Info: h]\r\n",
            std::to_string(row + 1), true};
    compose::CreateFormHTMLCode(*s, port);
    EXPECT_EQ(port.page.instructions,
              "Web Server File Path: https://site.example/forms\r\n"
              "   Files to upload to your Web Server: formtql.htm, formtql.php\r\n"
              "Note: On your Web Server, formtql.htm and file formtql.php must be placed in the directory\r\n"
              "          where all of your links associated with your Tarnquill FORM were created on your " +
                  web.path() +
                  "\r\n1. FTP the formtql.htm file and the formtql.php file to your Web Server.\r\n"
                  "2. Open your Internet Browser at the formtql.htm page of your Web Site\r\n"
                  "   to test your FORM.\r\n"
                  "Web Server Background Path: x.gif\r\n" // commented out, and listed all the same
                  "Web Server Picture Path: https://site.example/img1\r\n" +
                  web.path() + "\r\n");
    EXPECT_EQ(port.page.instructions, test::ReadFileBytes(data.file("Instruct.txt")));
}

TEST_F(Instructions, AFragmentSurveyTakesTheSingularAndThePasteSteps)
{
    s->store.state.ProjectMode = tq::model::Mode::Survey;
    s->setup.rows[0].WebFolderPath = web.path();
    compose::CreateFormOnly(*s, port);
    EXPECT_EQ(port.page.title, "INSTRUCTIONS ON GETTING YOUR SURVEY ON THE INTERNET ");
    EXPECT_EQ(port.page.buttonCaption, "Copy SURVEY data to the clipboard");
    EXPECT_EQ(port.page.uploadLabel, "UPLOAD THE FOLLOWING FILE TO YOUR WEB SERVER");
    const std::string& text = port.page.instructions;
    EXPECT_NE(text.find("\r\n2. On the bottom left screen select Copy SURVEY data to the clipboard\r\n"),
              std::string::npos)
        << text;
    EXPECT_NE(text.find("\r\n4. FTP the formtql.php file to your web server.\r\n"), std::string::npos);
    EXPECT_EQ(text.find("Web Server File Path"), std::string::npos); // FORM only
}
