// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "session.h"

#include <QHash>
#include <QMainWindow>
#include <functional>
#include <memory>

class QStackedWidget;

namespace tq::gui {

class QtPort;
class StartPage;
class CreatePage;

/// The one window of the program: a stack of pages, one visible at a time,
/// each with its own menu bar. It owns the session and runs the commands.
class MainWindow : public QMainWindow
{
    Q_OBJECT
  public:
    /// `documentsFolder` is where the folder pointer lives (tests pass a
    /// temporary folder); empty means the user's documents folder.
    explicit MainWindow(const QString& documentsFolder = {}, QWidget* parent = nullptr);
    ~MainWindow() override;

    Session& session() { return m_session; }
    QtPort& port() { return *m_port; }
    /// Runs a command by its name, as the menus do.
    void runCommand(const QString& name);
    /// Shows one view and hides the others.
    void showView(View v);
    View currentView() const { return m_view; }
    CreatePage* createPage(int page) const;
    StartPage* startPage() const { return m_start; }
    /// Re-reads every view from the core's records.
    void refreshAll();

    /// When set, ConfirmExit ends through this instead of quitting the application.
    std::function<void()> onExit;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void registerCommands();
    void confirmExit();
    void refreshStatus();

    Session m_session;
    std::unique_ptr<QtPort> m_port;
    QStackedWidget* m_stack = nullptr;
    StartPage* m_start = nullptr;
    QList<CreatePage*> m_pages;
    QHash<QString, std::function<void()>> m_commands;
    View m_view = View::StartPage;
    int m_currentPage = 1; // the way back from the Setup page
    QString m_documentsFolder;
};

} // namespace tq::gui
