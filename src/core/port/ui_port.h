// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tq {

enum class Icon { None, Information, Exclamation, Critical, Question };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

/// What a file dialog shows: its title, the folder it starts in, the name it
/// proposes and its filter ("Form Files (*.fms) | *.fms").
struct FileDialogOptions
{
    std::string title;
    std::string initialFolder;
    std::string initialName;
    std::string filter;
};

/// What a program that ran to its end left: its exit code and everything it
/// wrote to standard output and standard error, in order.
struct ProcessResult
{
    int exitCode = -1;
    std::string output;
};

/// The views the core asks the shell to bring to the front.
enum class View { StartPage, Page1, Page2, Page3, Page4, SetupPage, EditPage, FinalPage, PhotoShowPage, Preview };

/// Everything the core needs from the outside world. The core never talks to
/// a screen: the Qt program, the command-line tool and the tests each give it
/// one of these. Message texts carry CR (character 13) as their line break; an
/// implementation that shows them converts CR at the edge.
struct UiPort
{
    virtual ~UiPort() = default;

    /// A modal message box with an OK button.
    virtual void message(std::string_view text, std::string_view title, Icon icon) = 0;
    /// A modal question; defaultButton counts from 1 as the buttons stand.
    virtual Answer
    ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int defaultButton) = 0;
    /// A one-line input box; nullopt when the user cancelled.
    virtual std::optional<std::string>
    inputBox(std::string_view prompt, std::string_view title, std::string_view initial) = 0;
    /// An input box whose text is hidden as it is typed; by default the plain one.
    virtual std::optional<std::string> passwordBox(std::string_view prompt, std::string_view title)
    {
        return inputBox(prompt, title, "");
    }
    virtual std::optional<std::string> openFileDialog(const FileDialogOptions& options) = 0;
    virtual std::optional<std::string> saveFileDialog(const FileDialogOptions& options) = 0;
    virtual std::optional<std::string> browseForFolder(std::string_view title, std::string_view initial) = 0;
    /// A colour dialog with its title; colours are 24-bit values with red in
    /// the low byte.
    virtual std::optional<long> chooseColor(long initial, std::string_view title) = 0;

    // Shell hooks. The defaults do nothing so that a headless port only
    // implements what it can show.

    /// Brings a view to the front (the others are hidden).
    virtual void showView(View) {}
    /// Opens the edit page on an Entry; selectLine > 0 selects that key line.
    virtual void openEditPage(int /*page*/, int /*row*/, std::string_view /*selectKey*/) {}
    /// Selects a row of a create page so that the user sees it.
    virtual void selectRow(int /*page*/, int /*row*/) {}
    /// The rows of the store changed; views refresh from the core's records.
    virtual void entriesChanged() {}
    /// Hides the preview panes of the pages and the edit page.
    virtual void hidePreviews() {}
    /// Sets or clears the busy pointer.
    virtual void setBusy(bool) {}
    /// Starts a program, detached; false when it could not be started.
    virtual bool startProgram(std::string_view /*program*/,
                              const std::vector<std::string>& /*args*/,
                              std::string_view /*workingFolder*/)
    {
        return false;
    }
    /// Opens a link, file or folder with the desktop's handler.
    virtual bool openTarget(std::string_view /*target*/) { return false; }
    /// Puts text on the clipboard.
    virtual void setClipboard(std::string_view /*text*/) {}
    /// Runs a program to its end and waits for it (a tool check such as
    /// "php -l"); a program without a folder is looked up on the PATH. nullopt
    /// when it could not be started or did not end within `timeoutMs`.
    virtual std::optional<ProcessResult>
    runProcess(std::string_view /*program*/, const std::vector<std::string>& /*args*/, int /*timeoutMs*/)
    {
        return std::nullopt;
    }
    /// A plain HTTP GET; nullopt when the transfer failed.
    virtual std::optional<std::string> httpGet(std::string_view /*url*/, int /*timeoutMs*/) { return std::nullopt; }
};

/// The view that a page number names: 1 the start page, 2 to 5 Page 1 to 4,
/// 6 the Setup page, 9 the final page, 10 the edit page, 11 the preview;
/// any other number gives `otherwise`.
View ViewOfPageNumber(int number, View otherwise);

/// Joins CR-separated message text with the given line break (a port's edge).
std::string ConvertLineBreaks(std::string_view text, std::string_view lineBreak);

/// What a file was being used for when it failed.
enum class FileStep { Opening, Writing };

/// The box of a file that could not be opened or written:
/// "<reason> when opening <path>" (or "when writing") under
/// "UNRECOVERABLE ERROR. CONTACT SUPPORT". `code` is the errno of the fault;
/// 0 stands for EACCES when opening and EIO when writing.
void ReportFileFault(UiPort& ui, FileStep step, int code, std::string_view path);

} // namespace tq
