// SPDX-License-Identifier: GPL-3.0-or-later
// The build commands and the commands of the Help menu that stay in the program.
#include "about_dialog.h"
#include "async_process.h"
#include "busy_cursor.h"
#include "compose/build_driver.h"
#include "final_page.h"
#include "main_window.h"
#include "publish_dialog.h"
#include "qt_keyring.h"
#include "qt_port.h"
#include "shell/instructions.h"
#include "shell/publish_check.h"
#include "site_dialog.h"
#include "wait_timings.h"

#include <QScopeGuard>
#include <QStackedWidget>
#include <memory>

namespace tq::gui {

void MainWindow::registerBuildCommands()
{
    registerCommand("CreateFormOnly", [this] { runBuild(false); });
    registerCommand("CreateFormHTMLCode", [this] { runBuild(true); });
    registerCommand("Publish", [this] {
        // before the first build there is nothing to list, and the core says so
        std::vector<std::string> uploads;
        if (!m_session.build.formAction.empty())
            uploads = shell::UploadFiles(m_session);
        PublishDialog publish(m_session, *m_keyring, std::move(uploads), this);
        publish.exec();
    });
    registerCommand("UploadTargets", [this] {
        SiteDialog sites(m_session, *m_keyring, 1, this);
        sites.exec();
    });
    registerCommand("About", [this] {
        AboutDialog about(*m_port, this);
        about.exec();
    });
}

void MainWindow::runBuild(bool wholePage)
{
    Session& s = m_session;
    // the preview's Exit goes back to the final page only when the build was started there
    const bool fromFinalPage = m_view == View::FinalPage;
    const View started = m_view;
    m_buildFinished = false;
    StartWait(wholePage ? "build and preview" : "build");
    {
        BusyCursor busy;
        if (wholePage) {
            // The build ends on the final page; for a preview the page it
            // started on stays in sight instead until the preview has painted.
            m_holdFinalPage = true;
            const auto release = qScopeGuard([this] { m_holdFinalPage = false; });
            compose::CreateFormHTMLCode(s, *m_port);
        } else {
            compose::CreateFormOnly(s, *m_port);
        }
    }
    NoteWait("built");
    if (s.build.endProgram) {
        endProgram();
        return;
    }
    if (!m_buildFinished)
        return;
    // A script that PHP cannot parse would fail on the server: the warning
    // stands on a line of its own once php has read it. The window does not
    // wait for php; a later build's check replaces this one's.
    finalPage()->setPublishWarning({});
    const int check = ++m_scriptChecks;
    auto startCheck = [this, check] {
        auto warning = std::make_shared<std::string>();
        RunStepWithoutWaiting(
            this,
            [this, warning](UiPort& port) { *warning = shell::CheckPublishedScript(m_session.build, port).warning; },
            [this, warning, check] {
                if (check == m_scriptChecks)
                    finalPage()->setPublishWarning(QString::fromStdString(*warning));
            });
    };
    if (!wholePage) {
        startCheck();
        return;
    }
    // php starting beside the browser would slow the preview down: it waits
    // until the preview has painted
    m_afterPreview = startCheck;
    showView(started);
    showWholePagePreview(fromFinalPage);
}

} // namespace tq::gui
