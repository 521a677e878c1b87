// SPDX-License-Identifier: GPL-3.0-or-later
#include "scripted_port.h"
#include "shell/external_tools.h"

#include <functional>
#include <gtest/gtest.h>

using namespace tq;
using namespace tq::shell;
using test::ScriptedPort;

namespace {

store::SetupStore Tools()
{
    store::SetupStore s;
    s.FTPProgramPath = "/opt/ftp tools/bin/ftpclient";
    s.WebEditorPath = "/usr/bin/webedit";
    s.BrowserPath = "/usr/bin/browser";
    s.rows[2].MenuName = "Club";
    s.rows[2].WebServerPath = "https://club.example/index.htm";
    s.rows[2].WebFolderPath = "/home/me/My Web Sites/club";
    return s;
}

} // namespace

TEST(ExternalTools, EachLauncherStartsItsProgramOrSaysWhyNot)
{
    const struct
    {
        std::function<bool(store::SetupStore&, UiPort&)> launch;
        void (*unset)(store::SetupStore&);
        ScriptedPort::Started started;
        const char* missingText;
        const char* missingTitle;
        const char* failedText;
        const char* failedTitle;
    } launchers[] = {
        {[](store::SetupStore& s, UiPort& ui) { return LaunchFTP(s, ui); },
         [](store::SetupStore& s) { s.FTPProgramPath.clear(); },
         {"/opt/ftp tools/bin/ftpclient", {}, "/opt/ftp tools/bin"},
         "No FTP program was selected in SETUP. Go to setup and enter the full path of the FTP program that you will "
         "be using",
         "Error launching FTP CLIENT",
         "No such file or directory\rThe FTP path in SETUP does not exist.\r\rGo to setup and enter the full path of "
         "the FTP "
         "program that you will be using",
         "Error launching FTP CLIENT "},
        {[](store::SetupStore& s, UiPort& ui) { return OpenLiveRow(s, 3, ui); },
         [](store::SetupStore& s) { s.rows[2].WebServerPath.clear(); },
         {"/usr/bin/browser", {"https://club.example/index.htm"}, ""},
         "To add a menu item to the list, go to setup and add the new web folder to the list",
         "NO ENTRY FOUND",
         "No such file or directory when launching your default Internet Browser\r\rGo to setup and enter a valid path "
         "of your "
         "Internet Browser that you will be using",
         "Error launching Internet Browser"},
        {[](store::SetupStore& s, UiPort& ui) { return OpenEditorRow(s, 3, ui); },
         [](store::SetupStore& s) { s.WebEditorPath.clear(); },
         {"/usr/bin/webedit", {"/home/me/My Web Sites/club"}, ""},
         "No Web Editor was selected in SETUP. Go to setup and enter the full path of the Web Editor that you will "
         "be using",
         "Error launching Web Editor",
         "The Path does not exist. No such file or directory\r\rGo to setup and enter the full path of the Web Editor "
         "that you "
         "will be using",
         "Error launching Web Editor"},
    };
    for (const auto& l : launchers) {
        SCOPED_TRACE(l.failedTitle);
        auto setup = Tools();
        ScriptedPort ui;
        EXPECT_TRUE(l.launch(setup, ui));
        ASSERT_EQ(ui.started.size(), 1u);
        EXPECT_EQ(ui.started[0].program, l.started.program);
        EXPECT_EQ(ui.started[0].args, l.started.args);
        EXPECT_EQ(ui.started[0].folder, l.started.folder);
        EXPECT_TRUE(ui.shown.empty());
        l.unset(setup);
        ScriptedPort missing;
        EXPECT_FALSE(l.launch(setup, missing));
        EXPECT_TRUE(missing.started.empty());
        ASSERT_EQ(missing.messages().size(), 1u);
        EXPECT_TRUE(Said(missing.last(), l.missingText, l.missingTitle));
        auto good = Tools();
        ScriptedPort failing;
        failing.startResult = false;
        EXPECT_FALSE(l.launch(good, failing));
        ASSERT_EQ(failing.messages().size(), 1u);
        EXPECT_TRUE(Said(failing.last(), l.failedText, l.failedTitle));
    }
}

TEST(ExternalTools, AFailedStartIsToldInTheSystemsWords)
{
    test::TempDir dir;
    const std::string plain = dir.file("notes.txt");
    test::WriteFileBytes(plain, "not a program");
    auto setup = Tools();
    setup.FTPProgramPath = plain;
    ScriptedPort ui;
    ui.startResult = false;
    EXPECT_FALSE(LaunchFTP(setup, ui));
    EXPECT_EQ(ui.last().text.substr(0, ui.last().text.find('\r')), "Permission denied");
    setup.FTPProgramPath = dir.path();
    EXPECT_FALSE(LaunchFTP(setup, ui));
    EXPECT_EQ(ui.last().text.substr(0, ui.last().text.find('\r')), "Is a directory");
}
