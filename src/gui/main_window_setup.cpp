// SPDX-License-Identifier: GPL-3.0-or-later
// The Setup page's commands and the DataFolder commands of the other pages.
#include "main_window.h"
#include "qt_port.h"
#include "store/setup_store.h"

namespace tq::gui {

void MainWindow::registerSetupCommands()
{
    Session& s = m_session;
    QtPort& ui = *m_port;
    auto& setup = s.setup;

    registerCommand("SetupPageOnlyOpen", [&] { store::SetupPageOnlyOpenCommand(setup, ui, s.DataFolder); });
    registerCommand("SetupPageOnly", [&] { store::SetupPageOnlyCommand(setup, ui, s.DataFolder); });
    registerCommand("BackupSetupPage", [&] { store::BackupSetupPage(ui, s.DataFolder); });
    registerCommand("RestoreBackup", [&] { store::RestoreBackup(ui, s.DataFolder); });
    registerCommand("AZ", [&] { store::SortSetupByName(setup, ui, false); });
    registerCommand("cmdSortAZ", [&] { store::SortSetupByName(setup, ui, false); });
    registerCommand("ZA", [&] { store::SortSetupByName(setup, ui, true); });
    registerCommand("cmdSortNumber", [&] { store::SortSetupByNumber(setup, ui, s.store.state.ProjectMode); });
    registerCommand("cmdFindWebEditor", [&] { store::FindToolPath(setup, ui, store::ToolKind::WebEditor); });
    registerCommand("cmdFindFtp", [&] { store::FindToolPath(setup, ui, store::ToolKind::FtpProgram); });
    registerCommand("cmdFindBrowser", [&] { store::FindToolPath(setup, ui, store::ToolKind::Browser); });
    for (const char* help : {"Clipboard1", "MenuName", "WebServerPath", "WebFolderPath", "EmailAdrress",
                             "WebEditorPath", "FTPProgramPath", "DefaultPathBrowser"})
        registerCommand(help, [&ui, help] { store::ShowSetupHelp(ui, help); });

    registerCommand("SelectTQL", [this] { store::ChangeDataFolder(*m_port, m_fixedFolder.toStdString()); });
    registerCommand("ViewTarnquillFolder", [this] { m_port->openTarget(m_session.DataFolder); });
}

} // namespace tq::gui
