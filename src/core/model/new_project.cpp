// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/new_project.h"

#include "model/attribute_text.h"
#include "model/text_ops.h"

#include <array>

namespace tq::model {

namespace {

struct DefaultRow
{
    int row;
    std::string_view form;   // empty: the row is emptied
    std::string_view survey; // empty: the row is emptied
};

constexpr std::array<DefaultRow, 7> kDefaultRows = {{
    {1, "Title 1 Single Line", "Title Header"},
    {2, "Subject", "Survey Intro"},
    {3, "Name", "Title 1 Single Line"},
    {4, "Email", "Table Choices Required"},
    {5, "", "Table Text Required"},
    {15, "Comments Not Required", "Comments Not Required"},
    {16, "Security Code", "Security Code"},
}};

} // namespace

void InitSetupRow(EditContext& c)
{
    TemplateSettings& s = c.settings;
    s.BackgroundImagePath.clear();
    s.ServerFolderPath.clear();
    s.ThankYouUrl.clear();
    s.PicturePath.clear();
    s.VideoPath.clear();
    s.HomePagePath.clear();
    ResetDefaults(s, c.store.state.ProjectMode);
    BuildCatalogue(c.catalogue, s, c.store.state);
    SetInputTypeName(c.store, 1, 0, "Setup");
    SetAttributeText(c.store, c.ui, 1, 0, c.catalogue.SetupTemplate);
}

void InitNewProject(EditContext& c)
{
    InitSetupRow(c);
    const bool survey = c.store.state.ProjectMode == Mode::Survey;
    for (const DefaultRow& d : kDefaultRows) {
        const std::string_view name = survey ? d.survey : d.form;
        if (name.empty()) {
            SetInputTypeName(c.store, 1, d.row, "");
            GetEntry(c.store, 1, d.row).AttributeText.clear();
            continue;
        }
        const int index = FindCatalogueIndex(c.catalogue, name);
        SetInputTypeName(c.store, 1, d.row, CatalogueName(c.catalogue, index));
        SetAttributeText(c.store, c.ui, 1, d.row, CatalogueTemplate(c.catalogue, index));
    }
    RefreshEditMarkers(c.store);
    c.store.state.CurrentFileName.clear();
    c.ui.entriesChanged();
}

int SwitchMode(EditContext& c, const ModeHooks& hooks, Mode mode, int targetPage, int keepEntries, bool frameSwitch)
{
    StateRecord& st = c.store.state;
    TemplateSettings& s = c.settings;
    st.AbortFlag = 0;

    // 1
    c.ui.hidePreviews();
    s.BackgroundImagePath = SampleImagePath();
    s.PicturePath = SampleImagePath();
    s.VideoPath = SampleVideoPath();
    st.SwitchInProgress = true;

    // 2
    st.ProjectMode = mode;
    const bool survey = mode == Mode::Survey;
    if (!survey) {
        s.FrameOff = 0;
        if (st.NewProjectPending) {
            s.ShowToolTips = 1;
            s.NumberEachQuestion = 1;
        }
    } else if (survey)
        s.FrameOff = 1;
    if (s.NumberEachQuestion != 1)
        s.NumberEachQuestion = 1;

    // 3: the mode stays changed when the user keeps the entries
    if (keepEntries == 0 && !ClearAllRows(c, 1)) {
        const std::string text = frameSwitch ? std::string(kFrameSwitchWarning)
                                             : "All entries must be cleared before you can switch to the " +
                                                   std::string(ModeText(mode)) + " page";
        c.ui.message(text, "ABORTED", Icon::Information);
        st.SwitchInProgress = false;
        return st.AbortFlag;
    }

    // 4: a save or a load keeps the file's own submit values
    if (survey)
        s.FrameOff = 1;
    const int busy = hooks.busyMark ? hooks.busyMark() : 0;
    if (busy == 0) {
        if (survey) {
            s.SubmitAlignDefault = "center";
            s.SubmitNameDefault = "Submit Survey";
            if (hooks.reloadHistoryMenus)
                hooks.reloadHistoryMenus("SURVEY");
        } else {
            s.SubmitAlignDefault = "LEFT";
            s.SubmitNameDefault = "Submit Form";
            if (hooks.reloadHistoryMenus)
                hooks.reloadHistoryMenus("FORM");
        }
    }

    // 5
    FillPickLists(c.catalogue, s, st);
    const bool loading = hooks.loadInProgress && hooks.loadInProgress();
    if (!loading) {
        c.ui.hidePreviews();
        c.ui.showView(ViewOfPageNumber(targetPage, View::SetupPage));
    }
    if (hooks.refreshStatus)
        hooks.refreshStatus();
    c.ui.entriesChanged();

    // 6
    st.SwitchInProgress = false;
    return 0;
}

bool CreateNewProject(EditContext& c, const ModeHooks& hooks, Mode mode, int targetPage)
{
    StateRecord& st = c.store.state;
    st.NewProjectPending = true;
    const bool keep = SwitchMode(c, hooks, mode, targetPage, 0) == 0;
    if (keep) {
        InitNewProject(c);
        // a store that never held a SetupEntry keeps the fresh one
        if (!st.SavedSetupName.empty()) {
            SetInputTypeName(c.store, 1, 0, st.SavedSetupName);
            GetEntry(c.store, 1, 0).AttributeText = st.SavedSetupText;
        }
        c.ui.entriesChanged();
    }
    st.NewProjectPending = false;
    return keep;
}

bool SwitchProjectList(EditContext& c, const ModeHooks& hooks, Mode mode)
{
    StateRecord& st = c.store.state;
    st.KeepSetupRow = true;
    const bool switched = SwitchMode(c, hooks, mode, 2, 0) == 0;
    if (switched)
        InitNewProject(c);
    st.KeepSetupRow = false;
    return switched;
}

} // namespace tq::model
