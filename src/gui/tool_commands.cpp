// SPDX-License-Identifier: GPL-3.0-or-later
#include "tool_commands.h"

#include "help_window.h"
#include "local_test_window.h"
#include "main_window.h"
#include "photo_show_page.h"
#include "port/platform.h"
#include "qt_keyring.h"
#include "qt_port.h"
#include "results_window.h"
#include "shell/external_tools.h"
#include "shell/version_check.h"

#include <QFile>
#include <memory>

namespace tq::gui {

namespace {

// The folder that holds photodata.php: the installed data folder, or the
// source tree's data folder when the program runs from its build folder.
QString ProgramFolder()
{
    const QString installed = TQ_INSTALL_DATA_DIR;
    if (QFile::exists(installed + "/photodata.php"))
        return installed;
    return TQ_DATA_DIR;
}

} // namespace

void RegisterToolCommands(QHash<QString, std::function<void()>>& commands, Session& session, UiPort& ui)
{
    Session* s = &session;
    UiPort* port = &ui;
    commands["FTP"] = [s, port] { shell::LaunchFTP(s->setup, *port); };
    for (int n = 1; n <= store::kSetupRows; ++n) {
        commands[QString("LivePreview%1").arg(n)] = [s, port, n] { shell::OpenLiveRow(s->setup, n, *port); };
        commands[QString("Web%1").arg(n)] = [s, port, n] { shell::OpenEditorRow(s->setup, n, *port); };
    }
    for (const char* page : {"contact", "download", "features", "HomePage", "Demo", "rev", "CreatingFormSurvey",
                             "Tutorial", "SampleForms"})
        commands[page] = [port, name = std::string(page)] { shell::OpenHelpPage(name, *port); };
    commands["ViewTarnquillFolder"] = [s, port] { shell::ViewTarnquillFolder(s->DataFolder, *port); };
    commands["ViewFolder"] = [s, port] { shell::ViewFolder(s->build, *port); };
    commands["ShowOutputInEditor"] = [s, port] { shell::ShowOutputInEditor(s->build, *port); };
    commands["CheckForUpdate"] = [port] {
        // the check sets the busy pointer itself and restores it before any box
        shell::CheckForUpdate(*port, platform::kVersionUrl, shell::HelpPageUrl("download"), kVersionCheckTimeoutMs);
    };
}

void InstallToolCommands(MainWindow& window)
{
    MainWindow* w = &window;
    QHash<QString, std::function<void()>> commands;
    RegisterToolCommands(commands, w->session(), w->port());
    for (auto it = commands.begin(); it != commands.end(); ++it)
        w->registerCommand(it.key(), it.value());

    // The help pages that ship with the program open in the embedded browser;
    // where a page is missing the web address stands in.
    for (const QString& name : LocalHelpCommands())
        w->registerCommand(name, [w, name] {
            const QString file = LocalHelpPage(HelpFolder(), name);
            if (file.isEmpty()) {
                if (!shell::OpenHelpPage(name.toStdString(), w->port()))
                    shell::OpenHelpPage("HomePage", w->port());
                return;
            }
            auto* help = w->findChild<HelpWindow*>("HelpWindow");
            if (!help)
                help = new HelpWindow(w);
            help->showPage(file);
        });

    auto caller = std::make_shared<View>(View::StartPage);
    w->registerCommand("PhotoShow", [w, caller] {
        auto* page = w->findChild<PhotoShowPage*>("PhotoShowPage");
        if (!page) {
            page = new PhotoShowPage(w->session(), w->port());
            page->programFolder = ProgramFolder();
            page->onExit = [w, caller] { w->showView(*caller); };
            w->registerPage(View::PhotoShowPage, page);
        }
        *caller = w->currentView();
        page->refresh();
        w->showView(View::PhotoShowPage);
    });
    w->registerCommand("TestLocally", [w] {
        auto* test = w->findChild<LocalTestWindow*>("LocalTestWindow");
        if (!test)
            test = new LocalTestWindow(w);
        // the build sets the busy pointer itself, and so does the wait for the server
        if (test->start(w->session(), w->port())) {
            test->show();
            test->raise();
        }
    });
    w->registerCommand("Results", [w] {
        auto* results = w->findChild<ResultsWindow*>("ResultsWindow");
        if (!results)
            results = new ResultsWindow(w->port(), w);
        results->keyring = &w->keyring();
        // the questions of the project open now; a new look starts over
        results->useProject(w->session());
        if (auto* test = w->findChild<LocalTestWindow*>("LocalTestWindow"))
            results->localTestMailFolder = test->mailFolder();
        results->show();
        results->raise();
    });
}

} // namespace tq::gui
