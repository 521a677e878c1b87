// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/project_file.h"

#include "model/text_ops.h"
#include "port/platform.h"
#include "session.h"
#include "store/recent_history.h"
#include "store/setup_store.h"

namespace tq::store {

namespace {

constexpr std::string_view kCrLf = "\r\n";

/// A name typed without an extension gets the mode's, so that Open finds it;
/// any other name is kept as typed.
std::string WithProjectExtension(const std::string& name, std::string_view extension)
{
    const size_t slash = name.find_last_of("/\\");
    const size_t dot = name.find_last_of('.');
    if (dot != std::string::npos && (slash == std::string::npos || dot > slash))
        return dot + 1 == name.size() ? name + model::ToLower(extension) : name;
    return name + "." + model::ToLower(extension);
}

std::string ExistQuestion(std::string_view name)
{
    // two blanks ahead of "already", as the program always asked
    return "File " + std::string(name) + "  already exists. Do you want to replace it?";
}

} // namespace

std::string WriteEntries(const model::EntryStore& store)
{
    std::string raw;
    for (int page = 1; page <= model::kPageCount; ++page) {
        for (const model::Entry& e : store.pages[static_cast<size_t>(page - 1)]) {
            if (e.InputTypeName.empty())
                continue;
            if (e.InputTypeName.front() != '[') {
                raw += ">>";
                raw += e.InputTypeName;
                raw += kCrLf;
            }
            // Page 2 rows carry a "-" in front; the reader keeps it, so it
            // grows by one at every save of such a row
            if (page == 2)
                raw += '-';
            raw += e.AttributeText; // no line end of its own
        }
    }
    return raw;
}

std::string FormatProjectFile(std::string_view raw)
{
    std::string out;
    std::string lastPlain;
    for (const std::string& line : SplitFileLines(raw)) {
        if (line.compare(0, 2, ">>") == 0) {
            if (!lastPlain.empty())
                out += kCrLf;
            out += kMarkerLine;
            out += kCrLf;
            out += line.substr(2);
            out += kCrLf;
            out += kMarkerLine;
            out += kCrLf;
            out += kCrLf;
        } else {
            out += line;
            out += kCrLf;
            lastPlain = line;
        }
    }
    return out;
}

std::string ReadAttributeBlock(LineReader& in)
{
    std::string result;
    int counter = 0;
    std::string line;
    while (in.next(line)) {
        if (line.empty())
            continue;
        if (line.compare(0, 5, "*****") == 0)
            break;
        result += line;
        result += kCrLf;
        if (++counter == 2) {
            // empty lines of the file come back only after every second line
            result += kCrLf;
            counter = 0;
        }
    }
    return result;
}

void ReadEntries(model::EntryStore& store, LineReader& in)
{
    auto& page1 = store.pages[0];
    std::string line;
    std::string typeLine;
    std::string dropped;
    for (int row = 0; row < model::kRowsPerPage; ++row) {
        if (!in.next(line))
            break;
        if (line.compare(0, 5, "*****") != 0) {
            typeLine = line;
            if (!in.next(dropped))
                break;
        } else {
            if (!in.next(typeLine) || !in.next(dropped))
                break;
        }
        if (typeLine.empty())
            continue;
        page1[static_cast<size_t>(row)].InputTypeName = typeLine;
        page1[static_cast<size_t>(row)].AttributeText = ReadAttributeBlock(in);
    }
    // The later Pages keep the old reader: one type line, one block, with no
    // test for markers or empty lines. A 26th row therefore lands out of step.
    for (int page = 2; page <= model::kPageCount; ++page) {
        auto& rows = store.pages[static_cast<size_t>(page - 1)];
        for (int row = 0; row < model::kRowsPerPage; ++row) {
            if (!in.next(line))
                break;
            rows[static_cast<size_t>(row)].InputTypeName = line;
            rows[static_cast<size_t>(row)].AttributeText = ReadAttributeBlock(in);
        }
    }
}

bool SaveProject(Session& s, UiPort& ui, std::string_view extension)
{
    s.run.busyMark = kIdle;
    if (s.build.buildError != 0)
        return false;
    s.run.busyMark = kSaving;

    FileDialogOptions options;
    options.title = "Enter the Filename";
    options.initialFolder = s.DataFolder;
    options.filter =
        model::EqualsNoCase(extension, "FMS") ? "Form Files (*.fms) | *.fms" : "Survey Files (*.srv) | *.srv";
    options.initialName = s.run.LastFormFile; // also when a survey is saved
    auto chosen = ui.saveFileDialog(options);
    if (!chosen || chosen->empty()) {
        s.run.busyMark = kIdle;
        return false;
    }
    const std::string name = WithProjectExtension(*chosen, extension);
    // the dialog's name is the current project name from here on
    s.run.CurrentProjectName = name;
    if (model::ToUpper(name).find(".FMS") != std::string::npos)
        s.run.LastFormFile = name;

    if (FileReadable(name)) {
        if (ui.ask(ExistQuestion(name), "FILE EXIST", Buttons::YesNo, Icon::Question, 1) != Answer::Yes) {
            s.run.busyMark = kIdle;
            return false;
        }
    }

    const std::string rows = WriteEntries(s.store);
    if (!WriteFileReplacing(name, FormatProjectFile(rows))) {
        // no message, as ever; the old file stays as it was
        s.run.busyMark = kIdle;
        return false;
    }
    s.store.state.CurrentFileName = name;
    s.run.savedRows = rows;
    ++s.run.projectSaves;
    UpdateRecentList(s, ui);
    RefreshStatus(s);
    s.run.busyMark = kIdle;
    return true;
}

int OpenProject(
    Session& s, UiPort& ui, int sourcePage, std::string_view extension, bool fromRecentList, const ProjectHooks& hooks)
{
    auto& state = s.store.state;
    ui.hidePreviews();
    state.LoadPending = true;
    // the clear prompt may empty the rows before the file is chosen: a
    // cancelled or failed open puts them back
    const model::PageRows before = s.store.pages;

    auto clearPromptKept = [&] {
        state.AbortFlag = 0;
        int kept = hooks.clearPrompt ? hooks.clearPrompt(s, ui) : 0;
        return kept == 1;
    };

    if (fromRecentList) {
        const std::string n = s.run.CurrentProjectName;
        const std::string e = n.size() >= 4 ? model::ToUpper(n.substr(n.size() - 4)) : model::ToUpper(n);
        const model::Mode mode = state.ProjectMode;
        if ((e == ".SRV" && mode == model::Mode::Form) || (e == ".FMS" && mode == model::Mode::Survey)) {
            // "SURVEY" in both cases: a .fms picked in SURVEY mode stays there
            if (hooks.switchMode)
                hooks.switchMode(s, ui, model::Mode::Survey, sourcePage);
            ui.hidePreviews();
            ui.showView(ViewOfPageNumber(sourcePage, View::Page1));
        } else if (clearPromptKept()) {
            state.LoadPending = false;
            return 1;
        }
        s.run.CurrentProjectName = n;
    } else if (clearPromptKept()) {
        state.LoadPending = false;
        return 1;
    }

    state.LoadPending = false;
    s.run.LoadInProgress = true;
    s.run.busyMark = kLoading;

    auto fail = [&] {
        s.run.busyMark = kIdle;
        s.run.LoadInProgress = false;
        s.store.pages = before;
        model::RefreshEditMarkers(s.store);
        ui.entriesChanged();
        ui.showView(ViewOfPageNumber(sourcePage, View::Page1));
        return 1;
    };

    std::string path;
    if (fromRecentList) {
        // cut the "n. " of the caption: the path starts at the drive mark
        size_t at = platform::FindDriveMark(s.run.CurrentProjectName);
        if (at == std::string::npos)
            return fail();
        s.run.CurrentProjectName = s.run.CurrentProjectName.substr(at);
        path = s.run.CurrentProjectName;
    } else {
        const bool form = model::EqualsNoCase(extension, "FMS");
        FileDialogOptions options;
        options.initialName = s.run.LastProjectPath;
        options.initialFolder = s.DataFolder;
        options.filter = form ? "Form Files (*.fms) | *.fms" : "Survey Files (*.srv) | *.srv";
        options.title = form ? "SELECT THE FORM FILE TO OPEN" : "SELECT THE SURVEY FILE TO OPEN";
        auto chosen = ui.openFileDialog(options);
        if (!chosen || chosen->empty())
            return fail();
        s.run.LastProjectPath = *chosen;
        s.run.CurrentProjectName = *chosen;
        path = *chosen;
    }
    if (model::ToUpper(path).find(".FMS") != std::string::npos)
        s.run.LastFormFile = path;

    auto bytes = ReadWholeFile(path);
    if (!bytes)
        return fail();
    LineReader in = ReaderOf(*bytes);
    ReadEntries(s.store, in);
    ApplySetupMenus(s.setup);
    s.run.busyMark = kIdle;
    model::RefreshEditMarkers(s.store);
    s.run.LoadInProgress = false;
    state.CurrentFileName = path;
    MarkSaved(s);
    ++s.run.projectSaves;
    ui.entriesChanged();
    RefreshStatus(s);
    if (hooks.remember)
        hooks.remember(s, ui);
    else
        KeepInRecentList(s, ui);
    return 0;
}

void OpenFormCommand(Session& s, UiPort& ui, const ProjectHooks& hooks)
{
    OpenProject(s, ui, 1, "fms", false, hooks);
    ui.showView(View::Page1);
}

void OpenSurveyCommand(Session& s, UiPort& ui, const ProjectHooks& hooks)
{
    if (OpenProject(s, ui, 1, "srv", false, hooks) == 1)
        return;
    if (ui.ask("Do you want to switch to the edit screen?", "EDIT", Buttons::YesNo, Icon::Question, 1) == Answer::Yes)
        ui.showView(View::Page1);
}

void MarkSaved(Session& s)
{
    s.run.savedRows = WriteEntries(s.store);
}

bool HasUnsavedChanges(const Session& s)
{
    return WriteEntries(s.store) != s.run.savedRows;
}

void RefreshStatus(Session& s)
{
    const std::string name = model::ToUpper(s.run.CurrentProjectName);
    const std::string mode(model::ModeText(s.store.state.ProjectMode));
    StatusTexts& st = s.run.status;
    if (name.find(".FMS") != std::string::npos || name.find(".SRV") != std::string::npos)
        st.fileLabel = "FILE LOADED: " + name;
    else
        st.fileLabel = "NOTHING IS CURRENTLY LOADED";
    st.modeLabel = mode + " IS ACTIVE";
    for (int i = 0; i < 4; ++i)
        st.pageCaptions[static_cast<size_t>(i)] =
            "Page " + std::to_string(i + 1) + " of 4     Create: " + model::ToProperCase(mode);
    if (model::EqualsNoCase(mode, "SURVEY")) {
        st.buildMenu = "&Build-Survey";
        st.buildOnly = "Build Survey Only";
        st.buildWithHtml = "Build Survey With HTML";
    } else {
        st.buildMenu = "&Build-Form";
        st.buildOnly = "Build Form Only";
        st.buildWithHtml = "Build Form With HTML";
    }
}

} // namespace tq::store
