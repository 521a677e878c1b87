// SPDX-License-Identifier: GPL-3.0-or-later
// The actions of the four Pages: moving between them and the row commands.
#include "create_page.h"
#include "main_window.h"
#include "model/attribute_text.h"
#include "model/catalogue.h"
#include "model/new_project.h"
#include "pick_list.h"
#include "qt_port.h"
#include "qt_text.h"
#include "store/project_file.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace tq::gui {

void MainWindow::registerPageActions()
{
    auto step = [this](int delta) {
        const int index = static_cast<int>(m_view) - static_cast<int>(View::Page1) + delta;
        if (index < 0 || index >= model::kPageCount)
            return;
        showView(static_cast<View>(static_cast<int>(View::Page1) + index));
        if (!m_session.store.state.PreviewFromEdit)
            createPage(index + 1)->focusPickList();
    };
    registerCommand("NextPage", [step] { step(1); });
    registerCommand("PreviousPage", [step] { step(-1); });

    m_port->onOpenEditPage = [this](int page, int row, const std::string& selectKey) {
        openEntryEditPage(page, row, selectKey);
    };
}

void MainWindow::wirePage(CreatePage* p)
{
    p->onEdit = [this](int page, int row) {
        auto& store = m_session.store;
        auto& e = store.pages[static_cast<size_t>(page - 1)][static_cast<size_t>(row)];
        if (!e.EditEnabled)
            return;
        if (e.AttributeText.empty()) {
            m_port->message("Nothing has been added to this input type", "EDIT", Icon::Exclamation);
            return;
        }
        store.state.EditRow = row;
        store.state.EditPage = page;
        e.highlight = model::Highlight::Red;
        refreshAll();
        m_port->openEditPage(page, row, "");
        refreshAll();
    };
    wireRowActions(p);
    setPickList(p);
}

void MainWindow::setPickList(CreatePage* p)
{
    QStringList names;
    for (const std::string& name : m_session.catalogue.PickLists[static_cast<size_t>(p->page() - 1)])
        names << ToQ(name);
    p->setPickList(names);
}

void MainWindow::fillPickLists()
{
    Session& s = m_session;
    model::FillPickLists(s.catalogue, s.settings, s.store.state);
    for (CreatePage* p : madePages())
        setPickList(p);
}

void MainWindow::applyToolTips()
{
    for (CreatePage* p : madePages())
        p->setToolTipsShown(m_session.settings.ShowToolTips == 1);
}

void MainWindow::resetEntryList()
{
    // every row empty but the SetupEntry, which takes the SETUP text of the mode
    model::ResetEntries(m_session.store);
    model::ClearHighlights(m_session.store);
    auto c = editContext();
    model::InitSetupRow(c);
    model::RefreshEditMarkers(m_session.store);
}

} // namespace tq::gui
