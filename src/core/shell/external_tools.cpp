// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/external_tools.h"

#include "port/platform.h"
#include "show/show_settings.h"

#include <array>
#include <filesystem>
#include <utility>

namespace tq::shell {

namespace {

constexpr std::string_view kEditorHint = "Go to setup and enter the full path of the Web Editor that you will be using";
constexpr std::string_view kEditorTitle = "Error launching Web Editor";

bool IsSeparator(char c)
{
    return c == '/' || c == '\\';
}

const store::SetupRow* RowOf(const store::SetupStore& setup, int n)
{
    if (n < 1 || n > store::kSetupRows)
        return nullptr;
    return &setup.rows[static_cast<size_t>(n - 1)];
}

bool FolderExists(const std::string& path)
{
    std::error_code ec;
    return std::filesystem::is_directory(path, ec);
}

// One step of OpenTarget; false when the user gave no path and the run ends.
bool OpenOne(const std::string& target, std::string_view prompt, UiPort& ui)
{
    std::string path = target;
    if (path.find('.') == std::string::npos && !FolderExists(path)) {
        ui.message(path + " folder needs to be created.", "NO PATH", Icon::Exclamation);
        auto answer = ui.inputBox(prompt, "NO PATH", "");
        if (!answer || answer->empty())
            return false;
        path = *answer;
    }
    ui.openTarget(path);
    return true;
}

struct HelpPage
{
    std::string_view command;
    std::string_view path; // under the program's pages
};

constexpr std::array<HelpPage, 9> kHelpPages = {{
    {"contact", "contact.htm"},
    {"download", "download/download.htm"},
    {"features", "features.htm"},
    {"HomePage", "index.htm"},
    {"Demo", "demo.htm"},
    {"rev", "download/download.htm"},
    {"CreatingFormSurvey", "tutorial.htm"},
    {"Tutorial", "tutorial.htm"},
    {"SampleForms", "download/download.htm#samples"},
}};

} // namespace

std::string ProgramFolder(std::string_view programPath)
{
    // walks back to the third character only: "C:\" keeps its mark, "/x" has no folder
    for (size_t i = programPath.size(); i >= 3; --i)
        if (IsSeparator(programPath[i - 1]))
            return std::string(programPath.substr(0, i - 1));
    return {};
}

bool LaunchFTP(const store::SetupStore& setup, UiPort& ui)
{
    const std::string& program = setup.FTPProgramPath;
    if (program.empty()) {
        ui.message("No FTP program was selected in SETUP. Go to setup and enter the full path of the FTP program that "
                   "you will be using",
                   "Error launching FTP CLIENT", Icon::Exclamation);
        return false;
    }
    if (ui.startProgram(program, {}, ProgramFolder(program)))
        return true;
    ui.message(platform::StartErrorText(program) +
                   "\rThe FTP path in SETUP does not exist.\r\rGo to setup and enter the full path of the FTP program "
                   "that you will be using",
               "Error launching FTP CLIENT ", Icon::Critical);
    return false;
}

bool OpenLiveRow(const store::SetupStore& setup, int n, UiPort& ui)
{
    const store::SetupRow* row = RowOf(setup, n);
    if (row == nullptr || row->WebServerPath.empty()) {
        ui.message("To add a menu item to the list, go to setup and add the new web folder to the list",
                   "NO ENTRY FOUND", Icon::Exclamation);
        return false;
    }
    if (ui.startProgram(setup.BrowserPath, {row->WebServerPath}, ""))
        return true;
    ui.message(platform::StartErrorText(setup.BrowserPath) +
                   " when launching your default Internet Browser\r\rGo to setup and enter a valid path of your "
                   "Internet Browser that you will be using",
               "Error launching Internet Browser", Icon::Critical);
    return false;
}

bool OpenEditorRow(const store::SetupStore& setup, int n, UiPort& ui)
{
    const store::SetupRow* row = RowOf(setup, n);
    if (row == nullptr || row->WebFolderPath.empty()) {
        ui.message("No Web Editor has been selected for this entry. Please go to the Setup Page and choose a path for "
                   "your Web Editor",
                   "NO ENTRY HAS BEEN MADE IN SETUP", Icon::Exclamation);
        return false;
    }
    if (setup.WebEditorPath.empty()) {
        ui.message("No Web Editor was selected in SETUP. " + std::string(kEditorHint), kEditorTitle, Icon::Exclamation);
        return false;
    }
    // the folder goes as one argument, blanks and all, never quoted
    if (ui.startProgram(setup.WebEditorPath, {row->WebFolderPath}, "")) {
        ui.hidePreviews(); // the editor takes the screen
        return true;
    }
    ui.message("The Path does not exist. " + platform::StartErrorText(setup.WebEditorPath) + "\r\r" +
                   std::string(kEditorHint),
               kEditorTitle, Icon::Critical);
    return false;
}

void OpenTarget(std::string first, std::string second, std::string third, UiPort& ui)
{
    if (first.empty())
        return;
    const std::array<std::pair<std::string, std::string_view>, 3> targets = {{
        {std::move(first), "Enter the desired path"},
        {std::move(second), "Enter the desired path that is already created"},
        {std::move(third), "Enter the desired path that is already created"},
    }};
    for (const auto& [target, prompt] : targets) {
        if (target.empty())
            continue;
        if (!OpenOne(target, prompt, ui))
            return;
    }
}

std::string BrowseForFolder(std::string_view title, std::string_view initial, UiPort& ui)
{
    auto folder = ui.browseForFolder(title, initial);
    return folder ? *folder : std::string();
}

std::string HelpPageUrl(std::string_view command)
{
    for (const auto& page : kHelpPages)
        if (page.command == command)
            return std::string(platform::kHelpBase) + std::string(page.path);
    return {};
}

bool OpenHelpPage(std::string_view command, UiPort& ui)
{
    const std::string url = HelpPageUrl(command);
    if (url.empty())
        return false;
    if (command == "SampleForms")
        ui.openTarget(url);
    else
        OpenTarget(url, "", "", ui);
    return true;
}

void ViewTarnquillFolder(std::string_view dataFolder, UiPort& ui)
{
    OpenTarget(std::string(dataFolder), "", "", ui);
}

void ViewFolder(const write::BuildState& build, UiPort& ui)
{
    OpenTarget(show::RemoveTrailingSeparator(build.setupValues.WebFolder), "", "", ui);
}

bool ShowOutputInEditor(const write::BuildState& build, UiPort& ui)
{
    if (build.htmlPath.empty())
        return false;
    const std::filesystem::path file(build.htmlPath);
    const std::string folder = show::RemoveTrailingSeparator(file.parent_path().string());
    return ui.openTarget(folder + platform::kSeparator + file.filename().string());
}

} // namespace tq::shell
