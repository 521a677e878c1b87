// SPDX-License-Identifier: GPL-3.0-or-later
// The edit page, the final page and the preview window in the window's stack.
#include "create_page.h"
#include "edit_page.h"
#include "final_page.h"
#include "main_window.h"
#include "preview_window.h"
#include "qt_port.h"
#include "qt_text.h"
#include "shell/batch_commands.h"
#include "shell/instructions.h"
#include "shell/preview.h"
#include "when_idle.h"

#include <QStackedWidget>
#include <utility>

namespace tq::gui {

EditPage* MainWindow::editPage()
{
    if (!m_edit) {
        m_edit = new EditPage(m_session, *m_port);
        m_edit->onLeft = [this] { refreshAll(); };
        m_edit->onCaptionChanged = [this] { refreshWindowTitle(); };
        registerPage(View::EditPage, m_edit);
    }
    return m_edit;
}

FinalPage* MainWindow::finalPage()
{
    if (!m_final) {
        m_final = new FinalPage(*m_port, [this](const QString& name) { runCommand(name); });
        m_final->onPreviewFullScreen = [this] { showWholePagePreview(true); };
        registerPage(View::FinalPage, m_final);
    }
    return m_final;
}

PreviewWindow* MainWindow::previewWindow()
{
    if (!m_preview) {
        m_preview = new PreviewWindow(m_stack);
        m_preview->onPainted = [this] {
            if (m_previewAwaited)
                showView(View::Preview);
            if (auto after = std::exchange(m_afterPreview, nullptr))
                after();
        };
        m_preview->onExit = [this] {
            auto& caller = m_session.run.previewCaller;
            if (caller != 9) {
                showView(View::Page1);
                selectPickItem(1, 0);
            } else {
                showView(View::FinalPage);
            }
            caller = 0;
        };
        registerPage(View::Preview, m_preview);
    }
    return m_preview;
}

void MainWindow::registerEditCommands()
{
    // The browser engine starts once the window is up and the user pauses,
    // so that the first preview does not wait for it, and neither do the
    // start page and the first clicks (it holds the window some 250 ms).
    RunWhenIdle(this, 150, [this] { previewWindow(); });
    // the batch command of the Pages: one shade width for every question
    registerCommand("ShadeWidthAll", [this] { shell::SetShadeWidthAll(m_session, *m_port); });
    registerCommand("SetAlignmentOnAll", [this] { shell::SetAlignmentOnAll(m_session, *m_port, "[ALIGN"); });
    registerCommand("SetTableAlignmentOnAll", [this] { shell::SetAlignmentOnAll(m_session, *m_port, "[TABLE ALIGN"); });
    registerCommand("TableForeColor", [this] { shell::SetTableColor(m_session, *m_port, true); });
    registerCommand("TableBackColor", [this] { shell::SetTableColor(m_session, *m_port, false); });
    registerCommand("DragDropHelp", [this] { shell::ShowDragDropHelp(*m_port); });
    // the page's command for the background picture: the SETUP entry's row for it
    registerCommand("BackgroundPicture", [this] { openEntryEditPage(1, 0, ""); });
}

void MainWindow::openEntryEditPage(int page, int row, const std::string& selectKey)
{
    if (page < 1 || page > model::kPageCount || row < 0 || row >= model::kRowsPerPage)
        return;
    m_session.store.state.EditPage = page;
    m_session.store.state.EditRow = row;
    editPage()->open(page, row, ToQ(selectKey));
    refreshAll();
}

void MainWindow::fillFinalPage()
{
    finalPage()->fill(shell::ShowInstructions(m_session, *m_port));
}

void MainWindow::showWholePagePreview(bool fromFinalPage)
{
    m_session.run.previewCaller = fromFinalPage ? 9 : 0;
    m_previewAwaited = true;
    previewWindow()->showFile(ToQ(m_session.build.htmlPath));
}

} // namespace tq::gui
