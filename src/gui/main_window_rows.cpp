// SPDX-License-Identifier: GPL-3.0-or-later
// The row commands of the four Pages, the quick preview and the mode commands:
// thin calls into the model's editing, reordering and new-project operations.
#include "busy_cursor.h"
#include "compose/build_driver.h"
#include "create_page.h"
#include "main_window.h"
#include "model/editing.h"
#include "model/new_project.h"
#include "model/reorder.h"
#include "model/text_ops.h"
#include "pick_list.h"
#include "qt_port.h"
#include "qt_text.h"
#include "shell/preview.h"
#include "store/recent_history.h"

namespace tq::gui {

model::EditContext MainWindow::editContext()
{
    return model::EditContext{m_session.store, m_session.settings, m_session.catalogue, *m_port};
}

model::ModeHooks MainWindow::modeHooks()
{
    model::ModeHooks hooks;
    hooks.busyMark = [this] { return m_session.run.busyMark; };
    hooks.loadInProgress = [this] { return m_session.run.LoadInProgress; };
    hooks.reloadHistoryMenus = [this](std::string_view mode) {
        if (model::EqualsNoCase(mode, "SURVEY"))
            store::RefreshSurveyList(m_session, *m_port);
        else
            store::RefreshFormList(m_session, *m_port);
    };
    hooks.refreshStatus = [this] { store::RefreshStatus(m_session); };
    return hooks;
}

store::ProjectHooks MainWindow::projectHooks()
{
    store::ProjectHooks hooks;
    // the clear prompt of an open answers the AbortFlag: 1 when the user kept the rows
    hooks.clearPrompt = [this](Session&, UiPort&) {
        auto c = editContext();
        return model::ClearAllRows(c, 1) ? 0 : 1;
    };
    hooks.switchMode = [this](Session&, UiPort&, model::Mode mode, int targetPage) {
        auto c = editContext();
        model::SwitchMode(c, modeHooks(), mode, targetPage, 1);
    };
    return hooks;
}

void MainWindow::registerModeCommands()
{
    // From the start page a new project opens Page 1; from a Page the view
    // named by the mode switch of the Pages, the start page, is shown.
    auto create = [this](model::Mode mode) {
        auto c = editContext();
        model::CreateNewProject(c, modeHooks(), mode, m_view == View::StartPage ? 2 : 1);
        for (CreatePage* p : madePages())
            p->hidePreview();
    };
    registerCommand("CreateNewForm", [create] { create(model::Mode::Form); });
    registerCommand("CreateSurvey", [create] { create(model::Mode::Survey); });

    auto list = [this](model::Mode mode) {
        const View from = m_view;
        auto c = editContext();
        if (!model::SwitchProjectList(c, modeHooks(), mode))
            return;
        for (CreatePage* p : madePages())
            p->hidePreview();
        if (from != View::StartPage)
            return;
        // the start page asks before it moves on
        showView(View::StartPage);
        if (m_port->ask("Do you want to switch to the edit screen?", "EDIT", Buttons::YesNo, Icon::Question, 1) ==
            Answer::Yes)
            showView(View::Page1);
    };
    registerCommand("FormList", [list] { list(model::Mode::Form); });
    registerCommand("SurveyList", [list] { list(model::Mode::Survey); });
}

void MainWindow::wireRowActions(CreatePage* p)
{
    p->onAdd = [this](int page, int pickIndex) {
        auto c = editContext();
        m_session.catalogue.PickListIndex = pickIndex;
        model::AddToFirstFreeRow(c, page, pickIndex);
        followPickSelection(pickIndex);
    };
    p->onDrop = [this](int page, int target, int source, int pickIndex) {
        auto& state = m_session.store.state;
        state.DragSource = source >= 0 ? 100 + source : 0;
        auto c = editContext();
        model::InsertAtRow(c, page, target, pickIndex);
        state.DragSource = 0;
        refreshAll();
    };
    p->onClear = [this](int page, int row) {
        auto c = editContext();
        model::ClearRow(c, page, row);
        refreshAll();
        createPage(page)->focusPickList();
    };
    // both leave Page 1 with the first item of its pick list selected
    p->onClearAll = [this](int) {
        auto c = editContext();
        model::ClearAllCommand(c);
        refreshAll();
        selectPickItem(1, m_session.catalogue.PickListIndex);
    };
    p->onOrder = [this](int) {
        // the question comes first: No leaves the rows and the pick list as they were
        if (!model::AskToReorder(*m_port))
            return;
        m_session.store.state.OrderPrompt = false; // asked already
        model::ReorderEntries(m_session.store, *m_port);
        refreshAll();
        if (m_view == View::Page1)
            selectPickItem(1, 0);
    };
    p->onNumberChanged = [this](int page, int row) {
        model::FollowPartnerNumber(m_session.store, page, row);
        refreshAll();
    };
    p->onQuickPreview = [this](int page, int pickIndex) { quickPreview(page, pickIndex); };
    p->onEscape = [this](int page) {
        m_session.store.state.QuickPreviewActive = false;
        createPage(page)->hidePreview();
    };
}

void MainWindow::followPickSelection(int pickIndex)
{
    refreshAll();
    // the selection stays on the same index of the Page that was reached,
    // so that Enter again adds the same Input Type
    const int index = static_cast<int>(m_view) - static_cast<int>(View::Page1);
    if (index < 0 || index >= model::kPageCount || pickIndex < 0)
        return;
    selectPickItem(index + 1, pickIndex);
}

void MainWindow::selectPickItem(int page, int pickIndex)
{
    PickList* pick = createPage(page)->pickList();
    if (pickIndex >= 0 && pickIndex < pick->count())
        pick->setCurrentRow(pickIndex);
    pick->setFocus();
}

void MainWindow::quickPreview(int page, int pickIndex)
{
    shell::QuickPreviewResult preview;
    {
        BusyCursor busy;
        preview = shell::QuickPreview(m_session, *m_port, page, pickIndex);
    }
    CreatePage* p = createPage(page);
    if (preview.pane == shell::PreviewPane::Hidden)
        p->hidePreview();
    else if (preview.pane == shell::PreviewPane::Shown)
        p->showPreview(ToQ(preview.page));
}

} // namespace tq::gui
