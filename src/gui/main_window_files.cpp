// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu: projects, recent lists, the mode commands.
#include "create_page.h"
#include "main_window.h"
#include "qt_port.h"
#include "shell/instructions.h"
#include "store/defaults.h"
#include "store/project_file.h"
#include "store/recent_history.h"

#include <QFileInfo>

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
    if (!QFileInfo(path).isFile() || !QFileInfo(path).isReadable()) {
        m_port->message("The project file\r" + path.toStdString() + "\rcannot be opened.", "NOT OPENED",
                        Icon::Exclamation);
        return;
    }
    // as a pick from a recent list: a survey file switches to SURVEY
    m_session.run.CurrentProjectName = QFileInfo(path).absoluteFilePath().toStdString();
    const bool survey = path.endsWith(".srv", Qt::CaseInsensitive);
    if (store::OpenProject(m_session, *m_port, 1, survey ? "srv" : "fms", true, projectHooks()) == 0)
        showView(View::Page1);
    refreshAll();
}

} // namespace tq::gui
