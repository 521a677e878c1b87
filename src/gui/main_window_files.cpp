// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu: projects, recent lists, the mode commands.
#include "create_page.h"
#include "main_window.h"
#include "qt_port.h"
#include "qt_text.h"
#include "shell/instructions.h"
#include "shell/open_project.h"
#include "store/defaults.h"
#include "store/project_file.h"
#include "store/recent_history.h"

namespace tq::gui {

void MainWindow::registerFileCommands()
{
    Session& s = m_session;
    QtPort& ui = *m_port;

    registerCommand("SaveForm", [&] { store::SaveProject(s, ui, "fms"); });
    registerCommand("SaveSurvey", [&] { store::SaveProject(s, ui, "srv"); });
    // On the start page the open commands move on to Page 1; on the Pages they stay.
    registerCommand("openform", [this] {
        if (m_view == View::StartPage)
            store::OpenFormCommand(m_session, *m_port, projectHooks());
        else
            store::OpenProject(m_session, *m_port, PageNumberOf(m_view), "fms", false, projectHooks());
    });
    registerCommand("OpenSurvey", [this] {
        if (m_view == View::StartPage)
            store::OpenSurveyCommand(m_session, *m_port, projectHooks());
        else
            store::OpenProject(m_session, *m_port, PageNumberOf(m_view), "srv", false, projectHooks());
    });
    for (int slot = 1; slot <= store::kMenuSlots; ++slot) {
        registerCommand(QString("File%1").arg(slot), [this, slot] {
            store::ChooseRecentEntry(m_session, *m_port, store::RecentList::Forms, slot, PageNumberOf(m_view),
                                     projectHooks());
        });
        registerCommand(QString("FileHistory%1").arg(slot), [this, slot] {
            store::ChooseRecentEntry(m_session, *m_port, store::RecentList::Surveys, slot, PageNumberOf(m_view),
                                     projectHooks());
        });
    }
    registerCommand("SaveDefaults", [&] {
        store::DefaultsHooks hooks;
        hooks.setupReminder = [](Session& session, UiPort& port) { return shell::SetupReminder(session, port, 1); };
        store::SaveDefaults(s, ui, true, hooks);
    });
    registerCommand("RestoreDefaults", [this] {
        store::DefaultsHooks hooks;
        hooks.fillPickLists = [this](Session&) { fillPickLists(); };
        store::RestoreDefaults(m_session, *m_port, hooks); // the views refresh after every command
    });
    registerCommand("EditFormHistory", [&] { store::EditHistory(s, ui, store::RecentList::Forms); });
    registerCommand("EditSurveyHistory", [&] { store::EditHistory(s, ui, store::RecentList::Surveys); });
    registerCommand("RefreshFormHistory", [&] { store::RefreshFormList(s, ui); });
    registerCommand("RefreshSurveyHistory", [&] { store::RefreshSurveyList(s, ui); });
}

void MainWindow::openFile(const QString& path)
{
    const store::ProjectHooks project = projectHooks();
    shell::OpenHooks hooks{project.clearPrompt, project.switchMode, store::KeepInRecentList};
    switch (shell::OpenProjectFile(m_session, *m_port, FromQ(path), hooks)) {
    case shell::OpenResult::Unreadable:
        m_port->message("The project file\r" + FromQ(path) + "\rcannot be opened.", "NOT OPENED", Icon::Exclamation);
        return;
    case shell::OpenResult::Opened:
        showView(View::Page1);
        break;
    case shell::OpenResult::Kept:
        break;
    }
    refreshAll();
}

} // namespace tq::gui
