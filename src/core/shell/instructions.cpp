// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/instructions.h"

#include "compose/validation.h"
#include "model/attribute_text.h"
#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"
#include "store/text_file.h"

#include <algorithm>
#include <array>

namespace tq::shell {

namespace {

std::string CutSeparator(std::string path)
{
    while (!path.empty() && (path.back() == '/' || path.back() == '\\'))
        path.pop_back();
    return path;
}

std::string CutSemicolon(std::string path)
{
    if (!path.empty() && path.front() == ';')
        path.erase(0, 1);
    return path;
}

/// The value of "[KEY=" in a text without its outer blanks.
std::string PeekValue(std::string_view text, std::string_view key)
{
    return std::string(model::Trim(model::PeekAttribute(text, key)));
}

std::string Join(const std::vector<std::string>& items, std::string_view sep)
{
    std::string out;
    for (const auto& item : items)
        out += (out.empty() ? "" : std::string(sep)) + item;
    return out;
}

/// The web server address of the Setup row whose web folder is the output folder.
std::string ServerPathOf(const Session& s, const std::string& folder)
{
    for (const auto& row : s.setup.rows)
        if (!row.WebFolderPath.empty() && model::EqualsNoCase(CutSeparator(row.WebFolderPath), CutSeparator(folder)))
            return CutSemicolon(row.WebServerPath);
    return {};
}

} // namespace

std::vector<std::string> UploadFiles(const Session& s)
{
    std::vector<std::string> files;
    if (s.build.wholePage)
        files.push_back(s.build.setupValues.OutputName);
    files.push_back(s.build.formAction);
    return files;
}

bool HasDownloads(const model::EntryStore& store)
{
    for (const auto& page : store.pages)
        for (const auto& e : page)
            if (model::StartsWithNoCase(model::Trim(e.InputTypeName), "DOWNLOAD"))
                return true;
    return false;
}

std::vector<std::string> ListExtraPaths(const model::EntryStore& store)
{
    std::vector<std::string> lines;
    for (const auto& extra : ExtraUploads(store))
        lines.push_back(extra.label + extra.path);
    return lines;
}

std::vector<ExtraUpload> ExtraUploads(const model::EntryStore& store)
{
    // one for each kind of upload the project holds, with the first path of
    // that kind; a commented-out path is listed without its ";"
    std::array<ExtraUpload, 4> kinds{{{"Web Server Download Path: ", {}},
                                      {"Web Server Background Path: ", {}},
                                      {"Web Server Picture Path: ", {}},
                                      {"Web Server Video Path: ", {}}}};
    auto note = [](ExtraUpload& kind, std::string path) {
        path = CutSeparator(CutSemicolon(std::move(path)));
        if (kind.path.empty())
            kind.path = std::move(path);
    };
    for (const auto& page : store.pages)
        for (const auto& e : page) {
            const std::string_view type = model::Trim(e.InputTypeName);
            if (model::StartsWithNoCase(type, "DOWNLOAD"))
                note(kinds[0], PeekValue(e.AttributeText, "SERVER DOWNLOAD"));
            if (model::EqualsNoCase(type, "SETUP"))
                note(kinds[1], PeekValue(e.AttributeText, "BACKGROUND IMAGE PATH"));
            if (model::FindNoCase(e.AttributeText, "[SERVER PICTURE PATH=") != std::string::npos)
                note(kinds[2], PeekValue(e.AttributeText, "SERVER PICTURE PATH"));
            if (model::FindNoCase(e.AttributeText, "[SERVER VIDEO PATH=") != std::string::npos)
                note(kinds[3], PeekValue(e.AttributeText, "SERVER VIDEO PATH"));
        }
    std::vector<ExtraUpload> uploads;
    for (ExtraUpload& kind : kinds)
        if (!kind.path.empty())
            uploads.push_back(std::move(kind));
    return uploads;
}

std::vector<std::string> InstructionLines(const Session& s)
{
    const auto& b = s.build;
    const std::string mode(model::ModeText(s.store.state.ProjectMode));
    const std::string folder = CutSeparator(b.setupValues.WebFolder);
    const std::string html = b.setupValues.OutputName;
    const std::string php = b.formAction;
    const bool phpExists = !b.phpPath.empty() && store::FileReadable(b.phpPath);
    std::vector<std::string> lines;

    if (model::EqualsNoCase(mode, "FORM")) {
        const std::string server = ServerPathOf(s, b.setupValues.WebFolder);
        if (!server.empty()) {
            lines.push_back("Web Server File Path: " + server);
            lines.push_back("   Files to upload to your Web Server: " + Join(UploadFiles(s), ", "));
        }
    }
    lines.push_back("Note: On your Web Server, " + html + (phpExists ? " and file " + php : std::string()) +
                    " must be placed in the directory");
    lines.push_back("          where all of your links associated with your Tarnquill " + mode +
                    " were created on your " + folder);

    std::vector<std::string> extra = ListExtraPaths(s.store);
    if (HasDownloads(s.store))
        extra.push_back("   A download page needs output_buffering set to Off in the PHP settings of your Web Server.");
    if (b.wholePage) {
        lines.push_back("1. FTP the " + html + " file and the " + php + " file to your Web Server.");
        lines.push_back("2. Open your Internet Browser at the " + html + " page of your Web Site");
        lines.push_back("   to test your " + mode + ".");
    } else {
        lines.push_back(html);
        lines.push_back("1. Using your Web Editor, open the HTML file that you want to insert the new html code");
        lines.push_back("2. On the bottom left screen select Copy " + mode + " data to the clipboard");
        lines.push_back("3. In your Web Editor, position the cursor where you want to insert the new code");
        lines.push_back("     generated by Tarnquill and press CNTRL V and save it to your HTML file");
        lines.push_back("4. FTP the " + php + " file to your web server.");
    }
    lines.insert(lines.end(), extra.begin(), extra.end());
    lines.push_back(folder);
    return lines;
}

FinalPageText ShowInstructions(Session& s, UiPort&)
{
    const std::string mode(model::ModeText(s.store.state.ProjectMode));
    const std::string path = platform::JoinPath(s.DataFolder, "\\Instruct.txt");
    std::string text;
    for (const auto& line : InstructionLines(s))
        text += line + "\r\n";
    auto& out = s.build.channels[1];
    out.close();
    if (out.open(path)) {
        out.piece(text);
        out.close();
    }
    FinalPageText page;
    page.buttonCaption = "Copy " + mode + " data to the clipboard";
    page.title = "INSTRUCTIONS ON GETTING YOUR " + mode + " ON THE INTERNET ";
    page.instructions = std::move(text);
    page.code = store::ReadWholeFile(s.build.htmlPath).value_or(std::string());
    page.uploads = UploadFiles(s);
    page.uploadLabel =
        std::string("UPLOAD THE FOLLOWING ") + (page.uploads.size() == 1 ? "FILE" : "FILES") + " TO YOUR WEB SERVER";
    return page;
}

int SetupReminder(Session& s, UiPort& ui, int askFirst)
{
    int& counter = s.build.reminderCounter;
    if (askFirst == 1)
        ++counter;
    if (counter < 1)
        return 0;
    const Answer a = ui.ask("\rDid you update the following items on the setup input type?\r\r"
                            "1. The name of the DRIVE FOLDER PATH. (Example: c:\\name)\r"
                            "2. The html file that the user sees when the user clicks on submit form\r"
                            "3. Email where to send responses",
                            "CHANGES", Buttons::YesNo, Icon::Question, 1);
    if (a != Answer::No)
        return 0;
    ui.showView(View::Page1);
    ui.message("Click on the Edit Button for the SETUP INPUT TYPE to edit the SETUP PAGE", "EDIT SETUP",
               Icon::Information);
    return 1;
}

void CopyCodeToClipboard(UiPort& ui, std::string_view code)
{
    ui.setClipboard(code);
    ui.message("The output HTML file code has been saved to the clipboard.\r\rUsing your HTML editor, Open up your "
               "HTML file that you want to insert the output Tarnquill HTML code and then press CNTRL V to paste the "
               "HTML Tarnquill code into your HTML file",
               "HTML CODE COPIED TO THE CLIPBOARD", Icon::Information);
}

} // namespace tq::shell
