// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window.h"

#include "create_page.h"
#include "qt_port.h"
#include "start_page.h"

#include <QApplication>
#include <QCloseEvent>
#include <QStackedWidget>

namespace tq::gui {

MainWindow::MainWindow(const QString& documentsFolder, QWidget* parent)
    : QMainWindow(parent), m_port(std::make_unique<QtPort>(this)), m_documentsFolder(documentsFolder)
{
    setObjectName("MainWindow");
    setWindowTitle("Tarnquill");
    m_stack = new QStackedWidget(this);
    setCentralWidget(m_stack);

    auto handler = [this](const QString& name) { runCommand(name); };
    m_start = new StartPage(handler);
    m_stack->addWidget(m_start);
    for (int page = 1; page <= model::kPageCount; ++page) {
        auto* p = new CreatePage(m_session.store, page, handler);
        m_pages << p;
        m_stack->addWidget(p);
    }
    m_port->onShowView = [this](View v) { showView(v); };
    m_port->onEntriesChanged = [this] { refreshAll(); };
    registerCommands();
    refreshAll();
    showView(View::StartPage);
    resize(1280, 800);
}

MainWindow::~MainWindow() = default;

CreatePage* MainWindow::createPage(int page) const
{
    return m_pages.value(page - 1);
}

void MainWindow::showView(View v)
{
    m_view = v;
    switch (v) {
    case View::StartPage:
        m_stack->setCurrentWidget(m_start);
        break;
    case View::Page1:
    case View::Page2:
    case View::Page3:
    case View::Page4:
        m_stack->setCurrentWidget(m_pages[static_cast<int>(v) - static_cast<int>(View::Page1)]);
        break;
    default:
        break;
    }
}

void MainWindow::runCommand(const QString& name)
{
    auto it = m_commands.find(name);
    if (it != m_commands.end())
        it.value()();
}

void MainWindow::registerCommands()
{
    m_commands["Exit"] = [this] { confirmExit(); };
    m_commands["Exit1"] = [this] { confirmExit(); };
    m_commands["ViewFormSurvey"] = [this] { showView(View::Page1); };
    m_commands["Main"] = [this] { showView(View::StartPage); };
    m_commands["NextPage"] = [this] {
        int idx = static_cast<int>(m_view) - static_cast<int>(View::Page1);
        if (idx >= 0 && idx < 3)
            showView(static_cast<View>(static_cast<int>(View::Page1) + idx + 1));
    };
    m_commands["PreviousPage"] = [this] {
        int idx = static_cast<int>(m_view) - static_cast<int>(View::Page1);
        if (idx >= 1 && idx <= 3)
            showView(static_cast<View>(static_cast<int>(View::Page1) + idx - 1));
    };
}

void MainWindow::confirmExit()
{
    // ends at once: there is no prompt for unsaved work
    if (m_port->ask("Are you sure you want to exit?", "EXIT", Buttons::YesNo, Icon::Question, 1) == Answer::No)
        return;
    if (onExit) {
        onExit();
        return;
    }
    QApplication::exit(0);
}

void MainWindow::refreshStatus()
{
    const auto& st = m_session.store.state;
    QString mode = QString::fromStdString(st.ProjectMode);
    QString modeText = mode + " IS ACTIVE";
    QString fileText = "NOTHING IS CURRENTLY LOADED";
    if (!st.LoadedMarker.empty())
        fileText =
            "FILE LOADED: " + QString(st.LoadedMarker == "Sample Survey Loaded" ? "SAMPLE SURVEY" : "SAMPLE FORM");
    else if (!st.CurrentFileName.empty())
        fileText = "FILE LOADED: " + QString::fromStdString(st.CurrentFileName).toUpper();
    m_start->setStatus(modeText, fileText);
    QString word = mode.left(1).toUpper() + mode.mid(1).toLower();
    for (auto* p : m_pages)
        p->setCaptions(QString("Page %1 of 4     Create: %2").arg(p->page()).arg(word), modeText, fileText);
}

void MainWindow::refreshAll()
{
    refreshStatus();
    for (auto* p : m_pages)
        p->refresh();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    QApplication::exit(0);
}

} // namespace tq::gui
