// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/editing.h"
#include "model/mode_hooks.h"
#include "port/ui_port.h"
#include "session.h"
#include "store/project_file.h"
#include "store/recovery.h"

#include <QHash>
#include <QMainWindow>
#include <QMap>
#include <array>
#include <functional>
#include <memory>

class QStackedWidget;
class QAction;
class QShortcut;
class QLabel;
class QKeySequence;
class QTimer;

namespace tq::gui {

class QtPort;
class QtKeyring;
class StartPage;
class CreatePage;
class SetupPage;
class EditPage;
class FinalPage;
class PreviewWindow;

/// The one window of the program: a stack of pages, one visible at a time,
/// each with its own menu bar. It owns the session and runs the commands.
class MainWindow : public QMainWindow
{
    Q_OBJECT
  public:
    /// `documentsFolder` holds the fixed folder "tarnquill/forms" with the
    /// folder pointer (tests pass a temporary folder); empty means the user's
    /// documents folder.
    explicit MainWindow(const QString& documentsFolder = {}, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// The start sequence: reads the DataFolder (asking until one is given),
    /// the catalogue, the setup file and the recent lists, then shows the
    /// start page.
    bool start();

    /// Opens the project file `path` as a recent-list pick does and shows
    /// Page 1; a file that cannot be read is told.
    void openFile(const QString& path);

    Session& session() { return m_session; }
    QtPort& port() { return *m_port; }
    /// The desktop's keyring, shared by every password the program keeps.
    QtKeyring& keyring() { return *m_keyring; }
    /// The fixed folder that holds "\Tarnquill.stt".
    QString fixedFolder() const { return m_fixedFolder; }
    /// The folder made at the start for the site, the default DRIVE FOLDER PATH.
    QString siteFolder() const { return m_siteFolder; }

    /// Runs a command by its name, as the menus do, then refreshes the views.
    void runCommand(const QString& name);
    /// Adds or replaces the command `name`.
    void registerCommand(const QString& name, std::function<void()> run);
    bool hasCommand(const QString& name) const { return m_commands.contains(name); }

    /// Adds a page to the stack under `view` (the later pages register here).
    void registerPage(View view, QWidget* page);
    /// Shows one view and hides the others.
    void showView(View v);
    View currentView() const { return m_view; }
    /// The view of Page `page` (1 to 4), made on first use.
    CreatePage* createPage(int page);
    StartPage* startPage() const { return m_start; }
    /// The Setup page, made on first use.
    SetupPage* setupPage();
    /// The edit page, the final page and the preview window, made on first use.
    EditPage* editPage();
    FinalPage* finalPage();
    PreviewWindow* previewWindow();
    /// The page number of a view as the way back counts it: 1 the start page,
    /// 2 to 5 the four Pages, 9 the final page, 10 the edit page, 11 the edit window.
    static int PageNumberOf(View v);

    /// Re-reads every view (rows, captions, menus) from the core's records.
    void refreshAll();
    /// Writes the window title: the caption of the edit page or edit window
    /// while one is shown, the project's file name, the program's name.
    void refreshWindowTitle();
    /// Runs the command that `key` stands for on the page on show, as its menu would.
    void pressKey(const QKeySequence& key);

    /// When set, ConfirmExit and closing the window end through this instead
    /// of quitting the application.
    std::function<void()> onExit;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void registerCommands();
    void registerFileCommands();
    void registerPageActions();
    void registerBuildCommands();
    void registerSetupCommands();
    void registerEditCommands();
    void openEntryEditPage(int page, int row, const std::string& selectKey);
    void fillFinalPage();
    /// The preview window on the output file; `fromFinalPage` sets the
    /// previewCaller that takes its Exit back to the final page. The page in
    /// sight stays until the preview has painted, unless the user has gone to
    /// another page meanwhile.
    void showWholePagePreview(bool fromFinalPage);
    void confirmExit();
    void runBuild(bool wholePage);
    void endProgram();
    void refreshMenus();
    void collectActions();
    void removeScratchFiles();
    void fillPickLists();
    void wirePage(CreatePage* p);
    void setPickList(CreatePage* p);
    /// The Pages made so far.
    QList<CreatePage*> madePages() const;
    void resetEntryList();
    store::ProjectHooks projectHooks();
    model::EditContext editContext();
    model::ModeHooks modeHooks();
    void registerModeCommands();
    void wireRowActions(CreatePage* p);
    void followPickSelection(int pickIndex);
    /// Selects item `pickIndex` of the pick list of `page` and gives it the focus.
    void selectPickItem(int page, int pickIndex);
    void quickPreview(int page, int pickIndex);
    void applyToolTips();
    void applyMenuKeys();
    void makeShortcuts();

    Session m_session;
    std::unique_ptr<QtPort> m_port;
    std::unique_ptr<QtKeyring> m_keyring;
    QStackedWidget* m_stack = nullptr;
    StartPage* m_start = nullptr;
    SetupPage* m_setup = nullptr;
    EditPage* m_edit = nullptr;
    FinalPage* m_final = nullptr;
    PreviewWindow* m_preview = nullptr;
    // a preview asked for that comes into sight once painted
    bool m_previewAwaited = false;
    // work that waits until the preview has painted
    std::function<void()> m_afterPreview;
    std::array<CreatePage*, 4> m_pages{};
    QMap<View, QWidget*> m_views;
    QHash<QString, std::function<void()>> m_commands;
    QHash<QString, QList<QAction*>> m_actions;
    QList<QShortcut*> m_shortcuts;
    QLabel* m_busyLine = nullptr; // the progress line of a long wait
    View m_view = View::StartPage;
    int m_currentPage = 1; // CurrentPage: the way back from the Setup page
    QString m_fixedFolder;
    QString m_siteFolder;
    bool m_inCommand = false;
    bool m_buildFinished = false; // the build asked for the final page
    // the final page a preview's build asks for is filled but not brought into sight
    bool m_holdFinalPage = false;
    int m_scriptChecks = 0; // the php check of the newest build
    store::RecoveryKeeper m_recovery;
    QTimer* m_recoveryTimer = nullptr;
};

} // namespace tq::gui
