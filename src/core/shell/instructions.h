// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"

#include <string>
#include <string_view>
#include <vector>

namespace tq {
struct Session;
}
namespace tq::model {
struct EntryStore;
}

namespace tq::shell {

/// What the final page shows after a build.
struct FinalPageText
{
    std::string heading = "OUTPUT HTML CODE CREATED BY TARNQUILL";
    std::string ftpLabel = " FTP THE TARNQUILL OUTPUT FILE(S) BELOW TO YOUR WEB SITE";
    std::string title;                // "INSTRUCTIONS ON GETTING YOUR FORM ON THE INTERNET "
    std::string buttonCaption;        // "Copy FORM data to the clipboard"
    std::string uploadLabel;          // "UPLOAD THE FOLLOWING FILE(S) TO YOUR WEB SERVER"
    std::vector<std::string> uploads; // the file names to upload
    std::string instructions;         // "\Instruct.txt" as read back
    std::string code;                 // the output HTML file, empty when unreadable
};

/// The lines for the extra uploads of the project: "Web Server Download
/// Path: ", "Web Server Background Path: ", "Web Server Picture Path: " and
/// "Web Server Video Path: ", one line for each kind the project holds, with
/// the first path of that kind, without a leading ";" and a trailing "/" or "\".
std::vector<std::string> ListExtraPaths(const model::EntryStore& store);

/// One extra upload: its instruction label ("Web Server Download Path: ")
/// and its path without a leading ";" and a trailing "/" or "\".
struct ExtraUpload
{
    std::string label;
    std::string path;
};

/// The extra uploads of the project, one per distinct line, in the order
/// ListExtraPaths writes them.
std::vector<ExtraUpload> ExtraUploads(const model::EntryStore& store);

/// The files of the build under way to upload, by name in the output folder:
/// the HTML file (a whole page only) and the PHP script. The final page lists
/// them (FinalPageText::uploads) and publishing sends that list.
std::vector<std::string> UploadFiles(const Session& s);

/// True when the project holds a download Entry.
bool HasDownloads(const model::EntryStore& store);

/// The instruction lines of the last build, in the order they are written.
std::vector<std::string> InstructionLines(const Session& s);

/// Writes "\Instruct.txt" in the DataFolder line by line, reads it back and
/// the output HTML file, and returns what the final page shows. The caller
/// brings the page to the front.
FinalPageText ShowInstructions(Session& s, UiPort& ui);

/// The reminder of the defaults: returns `answer`, 1 when the user answered
/// No (Page 1 is shown and the EDIT SETUP note comes), else 0.
int SetupReminder(Session& s, UiPort& ui, int askFirst);

/// The button COPY OUTPUT TARNQUILL HTML CODE TO THE CLIPBOARD.
void CopyCodeToClipboard(UiPort& ui, std::string_view code);

} // namespace tq::shell
