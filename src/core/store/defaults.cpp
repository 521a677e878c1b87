// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/defaults.h"

#include "port/platform.h"
#include "session.h"
#include "store/project_file.h"
#include "store/setup_store.h"
#include "store/text_file.h"

namespace tq::store {

namespace {

constexpr std::string_view kDefaultName = "\\default.txt";
constexpr std::string_view kDefaultFilter = "Default Files (*.txt) | *.txt";

} // namespace

bool SaveDefaults(Session& s, UiPort& ui, bool askFirst, const DefaultsHooks& hooks)
{
    if (s.build.buildError != 0)
        return false;
    s.run.busyMark = kSaving;
    auto leave = [&] {
        s.run.busyMark = kIdle;
        return false;
    };
    if (askFirst && hooks.setupReminder && hooks.setupReminder(s, ui) == 1)
        return leave();

    FileDialogOptions options;
    options.title = "Enter the Filename";
    options.initialFolder = s.DataFolder;
    options.initialName = platform::JoinPath(s.DataFolder, kDefaultName);
    options.filter = kDefaultFilter;
    auto chosen = ui.saveFileDialog(options);
    if (!chosen || chosen->empty())
        return leave();
    if (FileReadable(*chosen)) {
        const std::string q = "File " + *chosen + "  already exists. Do you want to replace it?";
        if (ui.ask(q, "FILE EXIST", Buttons::YesNo, Icon::Question, 1) != Answer::Yes)
            return leave();
    }
    // the raw first pass only: a defaults file has no asterisk lines
    if (!WriteFileReplacing(*chosen, WriteEntries(s.store)))
        return leave();
    RefreshStatus(s);
    ui.message("Defaults have been saved", "DEFAULTS SAVED", Icon::Information);
    s.run.busyMark = kIdle;
    return true;
}

bool RestoreDefaults(Session& s, UiPort& ui, const DefaultsHooks& hooks)
{
    ui.hidePreviews();
    FileDialogOptions options;
    options.initialFolder = s.DataFolder;
    options.initialName = platform::JoinPath(s.DataFolder, kDefaultName);
    options.filter = kDefaultFilter;
    auto chosen = ui.openFileDialog(options);
    if (!chosen || chosen->empty())
        return false;
    auto bytes = ReadWholeFile(*chosen);
    if (!bytes)
        return false;

    // the restore shares the project dialog, so its name becomes the current
    // one: the next status refresh reads "NOTHING IS CURRENTLY LOADED"
    s.run.CurrentProjectName = *chosen;
    s.run.GlobalFont = "arial";
    s.run.FontSize = "3";
    s.run.Italics = "off";
    s.run.Bold = "off";
    if (hooks.fillPickLists)
        hooks.fillPickLists(s);

    LineReader in = ReaderOf(*bytes);
    ReadEntries(s.store, in);
    ApplySetupMenus(s.setup);
    model::RefreshEditMarkers(s.store);
    ui.entriesChanged();
    ui.message("Defaults have been restored", "RESTORED", Icon::Information);
    return true;
}

} // namespace tq::store
