// SPDX-License-Identifier: GPL-3.0-or-later
#include "compose/build_driver.h"

#include "compose/dispatch.h"
#include "compose/php_pass.h"
#include "compose/setup_checks.h"
#include "compose/validation.h"
#include "html/headings.h"
#include "html/page_shell.h"
#include "model/attribute_text.h"
#include "model/reorder.h"
#include "model/text_ops.h"
#include "port/platform.h"
#include "store/text_file.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace tq::compose {

namespace {

bool EndsInSeparator(std::string_view folder)
{
    return !folder.empty() && (folder.back() == '/' || folder.back() == '\\');
}

// "Leave": every file closed, the pointer restored, the in-progress flags
// cleared, on every way out of a build.
struct LeaveGuard
{
    Session& s;
    UiPort& ui;
    ~LeaveGuard()
    {
        s.build.channels.closeAll();
        s.build.inProgress = false;
        s.store.state.SwitchInProgress = false;
        ui.setBusy(false);
    }
};

// ---------------------------------------------------------------------------
// Steps that belong to other parts of the build. Each is a small named call so
// that the order of the driver stays readable.

// The silent reorder of the Pages by their reference numbers (SwitchInProgress
// keeps its closing messages quiet); an order number of 0 sets buildError.
// The flat list is gathered again afterwards.
void ReorderForBuild(Session& s, UiPort& ui)
{
    s.store.state.OrderPrompt = false;
    if (!model::ReorderEntries(s.store, ui))
        s.build.buildError = 1;
}

// The publishing instructions of a finished build.
void ShowInstructions(Session&, UiPort& ui)
{
    ui.showView(View::FinalPage);
}

// ---------------------------------------------------------------------------

void ResetBuildCounters(write::BuildState& b)
{
    b.questionNumber = 0;
    b.messageNumber = 0;
    b.phpQuestionNumber = 0;
    b.messageLineCount = 0;
    b.downloadTextCount = 0;
    b.downloadFileCount = 0;
    b.FrameOpened = false;
    b.values.ButtonName.clear();
}

void ShowPathError(UiPort& ui, const std::string& folder)
{
    ui.message(
        "The path to the current web folder does not exist\r\rPath: " + folder +
            "   does not exist\r\rThe invalid path will now be highlighted. Please correct the error and try again",
        "PATH ERROR", Icon::Critical);
    ui.openEditPage(1, 0, "DRIVE FOLDER PATH");
}

// Opening an existing file for input proves it is there; a missing file is
// created empty. Returns false after the fatal box when neither works.
bool TouchHtmlFile(write::BuildState& b, UiPort& ui)
{
    std::error_code ec;
    if (std::filesystem::exists(b.htmlPath, ec)) {
        std::ifstream in(b.htmlPath, std::ios::binary);
        if (in.is_open())
            return true;
    } else {
        std::ofstream out(b.htmlPath, std::ios::binary);
        if (out.is_open())
            return true;
    }
    ReportFileFault(ui, FileStep::Opening, errno, b.htmlPath);
    b.endProgram = true;
    return false;
}

// A channel whose writing failed (no space, no permission, a folder gone):
// its file was left as it was. The box of a failed open tells it, with
// "writing"; the build stops with buildError 1.
bool WriteFailed(write::BuildState& b, UiPort& ui, int channel)
{
    const write::LineWriter& out = b.channels[channel];
    if (out.good())
        return false;
    ReportFileFault(ui, FileStep::Writing, out.error(), out.path());
    b.buildError = 1;
    return true;
}

// Copies every line of `from` onto channel 1 as it stands.
void CopyLines(write::BuildState& b, const std::string& from)
{
    std::ifstream in(from, std::ios::binary);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        b.channels[1].line(line);
    }
}

void DispatchList(Session& s, UiPort& ui, int pass)
{
    auto& b = s.build;
    for (int i = 1; i + 1 <= b.flatList.EntryLineCount; i += 2) {
        const std::string& inputType = b.flatList.at(i);
        const std::string& text = b.flatList.at(i + 1);
        if (pass == 2)
            b.lastPhpSlot = i;
        DispatchEntry(s, ui, pass, html::FieldName(inputType, i), inputType, text);
        if (b.buildError == 1) {
            ReportBuildFault(s, ui, i);
            return;
        }
        if (b.buildError == 5) {
            b.buildError = 1;
            b.channels.closeAll();
            ReportUnknownType(s, ui, i, inputType);
            return;
        }
    }
}

} // namespace

std::string ComposeHtmlPath(std::string_view webFolder, std::string_view outputName)
{
    std::string path(webFolder);
    if (!EndsInSeparator(webFolder))
        path += platform::kSeparator;
    path += outputName;
    return path;
}

std::string ComposeFormAction(std::string_view outputName)
{
    const size_t pos = model::FindNoCase(outputName, ".HTM");
    const size_t cut = pos == std::string::npos ? 0 : pos + 1;
    return std::string(outputName.substr(0, cut)) + "php";
}

std::string ComposePhpPath(std::string_view webFolder, std::string_view outputName)
{
    return std::string(webFolder) + platform::kSeparator + ComposeFormAction(outputName);
}

std::string PeekDriveFolderPath(std::string_view setupText)
{
    return model::PeekAttribute(setupText, "DRIVE FOLDER PATH");
}

bool FolderTest(std::string_view webFolder)
{
    const std::string path = platform::JoinPath(webFolder, "\\temp.ttt");
    {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        if (!out.is_open())
            return false;
        out.close();
        if (out.fail())
            return false;
    }
    std::error_code ec;
    return std::filesystem::remove(path, ec) && !ec;
}

void CreateHTMHeader(Session& s, UiPort& ui, int& abort)
{
    auto& b = s.build;
    const auto& setupRow = s.store.pages[0][0];
    // the first row is taken as the SetupEntry, whatever its type
    std::string setupText = setupRow.AttributeText;
    FixLineBreaks(setupText);
    ExtractSetupEntry(s, ui, setupText);
    if (b.buildError == 1 || b.setupHold)
        return;

    if (b.entryPreview || b.editPreview) {
        b.htmlPath = platform::JoinPath(s.DataFolder, "\\Preview.htm");
        b.phpPath = platform::JoinPath(s.DataFolder, "\\Preview.php");
        b.formAction.clear();
    } else {
        const auto& setup = b.setupValues;
        b.htmlPath = ComposeHtmlPath(setup.WebFolder, setup.OutputName);
        b.channels.closeAll();
        if (!TouchHtmlFile(b, ui)) {
            abort = 1;
            return;
        }
        if (b.reminderCounter <= 1)
            abort = 0;
        b.phpPath = ComposePhpPath(setup.WebFolder, setup.OutputName);
        b.formAction = ComposeFormAction(setup.OutputName);
        b.channels.closeAll();
        // A missing script means there is nothing to replace: no questions.
        // The retries of this check are counted per header; the first one
        // already goes on, so the fatal branch behind five never comes.
        int retries = 0;
        if (!store::FileReadable(b.phpPath))
            ++retries;
        if (retries > 5) {
            ui.message("Unable to recover in sub CreateHTMHeader", "ERROR", Icon::Critical);
            b.endProgram = true;
            abort = 1;
            return;
        }
        if (retries == 0 && b.reminderCounter <= 1) {
            const Answer folder =
                ui.ask(setup.WebFolder + "\r is the current folder where all the files that Tarnquill "
                                         "creates will be stored\r\rDo you want to change the folder path?",
                       "EDIT SETUP", Buttons::YesNoCancel, Icon::Question, 2);
            b.cancelled = false;
            if (folder == Answer::Yes) {
                b.folderJump = 2;
                abort = 1;
                return;
            }
            if (folder == Answer::Cancel) {
                b.cancelled = true;
                ui.setBusy(false);
                b.channels.closeAll();
                return;
            }
            const Answer replace = ui.ask(b.phpPath + "\r and \r" + b.htmlPath +
                                              "\r exist\r\rThese are output files that Tarnquill previously "
                                              "created.\r\rDo you want to replace them with the new created "
                                              "Tarnquill output files?",
                                          "Duplicate File", Buttons::YesNo, Icon::Question, 1);
            abort = 0;
            if (replace != Answer::Yes) {
                ui.message("Change " + b.phpPath + " in setup and try again", "CHANGE FILE", Icon::Exclamation);
                abort = 1;
                return;
            }
        }
    }

    b.channels.closeAll();
    if (!b.channels[1].open(b.htmlPath)) {
        ReportFileFault(ui, FileStep::Opening, errno, b.htmlPath);
        b.endProgram = true;
        abort = 1;
        return;
    }
    html::WritePageHead(b, s.store.state.ProjectMode);
}

void HtmlPass(Session& s, UiPort& ui)
{
    auto& b = s.build;
    int abort = 0;
    CreateHTMHeader(s, ui, abort);
    if (b.setupHold || b.cancelled)
        return;
    if (abort == 1 || b.buildError == 1) {
        b.buildError = 1;
        return;
    }
    if (b.entryPreview) {
        // the Entry under preview, and the Followup generated behind it
        for (const auto& slot : s.store.state.PreviewSlots) {
            if (slot.InputTypeName.empty())
                continue;
            DispatchEntry(s, ui, 1, html::PreviewFieldName(slot.InputTypeName), slot.InputTypeName, slot.AttributeText);
            if (b.buildError == 5)
                b.buildError = 1;
            if (b.buildError == 1)
                return;
        }
        return;
    }
    DispatchList(s, ui, 1);
}

void PhpPass(Session& s, UiPort& ui)
{
    auto& b = s.build;
    b.optionPending = false;
    b.pass = 2;
    b.channels.closeAll();
    const std::string downTemp = platform::JoinPath(s.DataFolder, "\\downtemp.txt");
    if (!b.channels[1].open(b.phpPath)) {
        ReportFileFault(ui, FileStep::Opening, errno, b.phpPath);
        b.buildError = 1;
        return;
    }
    WriteScriptHead(s, ui);
    if (!b.channels[2].open(downTemp)) {
        ReportFileFault(ui, FileStep::Opening, errno, downTemp);
        b.buildError = 1;
        return;
    }
    WriteValidationBanner(s, ui);
    DispatchList(s, ui, 2);
    b.channels[2].close();
    if (b.buildError == 1)
        return;
    if (WriteFailed(b, ui, 2)) {
        b.channels.closeAll();
        return;
    }
    if (b.optionPending)
        WriteOptionLines(s, ui);
    CopyLines(b, downTemp);
    WriteScriptTail(s, ui);
}

namespace {

// The run of the driver proper, with the flags of the request set.
void RunBuild(Session& s, UiPort& ui)
{
    auto& b = s.build;
    const LeaveGuard leave{s, ui};
    try {
        // 1
        b.buildError = 0;
        ui.setBusy(true);
        b.inProgress = true;
        s.store.state.SwitchInProgress = true;

        // 2: the folder as it stands in the SetupEntry, before that is read
        if (!b.entryPreview) {
            b.channels[1].close();
            const std::string folder = PeekDriveFolderPath(s.store.pages[0][0].AttributeText);
            if (!FolderTest(folder)) {
                b.channels.closeAll();
                ShowPathError(ui, folder);
                b.buildError = 1;
                return;
            }
        }

        // 3
        model::ClearHighlights(s.store);
        ResetBuildCounters(b);

        // 4
        if (!b.entryPreview)
            model::FillFlatList(s.store, b.flatList);

        // 5
        b.passActive = true;
        b.pass = 1;
        b.lastConditionField.clear();
        b.buildError = 0;
        for (auto& t : b.downloadTexts)
            t.clear();
        if (!b.entryPreview) {
            ReorderForBuild(s, ui);
            model::FillFlatList(s.store, b.flatList);
        }

        // 6 to 8
        if (b.buildError == 0)
            HtmlPass(s, ui);

        // 9
        if (b.setupHold || b.cancelled) {
            b.passActive = false;
            return;
        }
        if (b.buildError == 1) {
            b.channels.closeAll();
            b.passActive = false;
            if (b.folderJump > 0)
                ui.openEditPage(1, 0, "DRIVE FOLDER PATH");
            b.folderJump = 0;
            return;
        }

        // 10
        html::WritePageClose(b, s.store.state.ProjectMode, b.setupValues.SubmitName);
        b.channels.closeAll();
        if (WriteFailed(b, ui, 1)) {
            b.passActive = false;
            return;
        }
        if (b.entryPreview) {
            b.passActive = false;
            return;
        }

        // 11 to 13
        PhpPass(s, ui);
        if (b.buildError == 1) {
            b.passActive = false;
            return;
        }

        // 14
        b.channels.closeAll();
        b.passActive = false;
        if (WriteFailed(b, ui, 1))
            return;
        if (!b.editPreview)
            ShowInstructions(s, ui);
    } catch (const model::InternalError& e) {
        b.channels.closeAll();
        b.buildError = 1;
        b.passActive = false;
        ui.message(e.what(), "INTERNAL ERROR", Icon::Critical);
    }
}

} // namespace

void BuildOutput(Session& s, UiPort& ui, BuildRequest request)
{
    auto& b = s.build;
    if (request.kind == BuildKind::Files) {
        b.entryPreview = false;
        b.editPreview = false;
        RunBuild(s, ui);
        return;
    }
    b.wholePage = true;
    b.entryPreview = true;
    if (request.kind == BuildKind::EditPreview)
        b.editPreview = true;
    RunBuild(s, ui);
    b.entryPreview = false;
    b.wholePage = false;
}

void BuildWholePage(Session& s, UiPort& ui)
{
    auto& b = s.build;
    b.buildError = 0;
    ui.setBusy(true);
    b.entryPreview = false;
    b.editPreview = false;
    model::ClearHighlights(s.store);
    b.wholePage = true;
    BuildOutput(s, ui, {});
    if (!b.setupHold && !b.cancelled) {
        b.wholePage = false;
        ui.setBusy(false);
    }
}

void CreateFormOnly(Session& s, UiPort& ui)
{
    s.build.setupHold = false;
    BuildOutput(s, ui, {});
}

void CreateFormHTMLCode(Session& s, UiPort& ui)
{
    s.build.setupHold = false;
    BuildWholePage(s, ui);
}

} // namespace tq::compose
