// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window.h"

#include "create_page.h"
#include "edit_page.h"
#include "port/platform.h"
#include "qt_keyring.h"
#include "qt_port.h"
#include "qt_text.h"
#include "setup_page.h"
#include "shortcuts.h"
#include "start_page.h"
#include "store/project_file.h"
#include "store/recent_history.h"
#include "store/setup_store.h"
#include "tool_commands.h"
#include "wait_timings.h"
#include "window_title.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QQuickWidget>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <algorithm>

namespace tq::gui {

MainWindow::MainWindow(const QString& documentsFolder, QWidget* parent)
    : QMainWindow(parent), m_port(std::make_unique<QtPort>(this)), m_keyring(std::make_unique<QtKeyring>(this))
{
    setObjectName("MainWindow");
    setWindowTitle("Tarnquill");
    m_fixedFolder =
        documentsFolder.isEmpty() ? ToQ(platform::FixedFolder()) : QDir(documentsFolder).filePath("tarnquill/forms");
    // the site folder stands beside the forms folder
    if (!m_fixedFolder.isEmpty())
        m_siteFolder = QDir::cleanPath(m_fixedFolder + "/../site");

    m_stack = new QStackedWidget(this);
    setCentralWidget(m_stack);
    // The browser views paint through a texture, which the window's surface
    // must be made for. Saying so before the window first shows keeps it from
    // being taken down and made again when the first view joins it.
    auto* textureSurface = new QQuickWidget(this);
    textureSurface->setObjectName("TextureSurface");
    textureSurface->hide();

    // The start page alone is made now; the other pages are made when first
    // shown, so that the program is quick to start.
    m_start = new StartPage([this](const QString& name) { runCommand(name); });
    registerPage(View::StartPage, m_start);

    m_port->onShowView = [this](View v) { showView(v); };
    m_busyLine = new QLabel("Working\u2026 please wait", this);
    m_busyLine->setObjectName("BusyLine");
    m_busyLine->setStyleSheet("background: #1f4e79; color: white; padding: 4px 12px;");
    m_busyLine->hide();
    m_port->onLongWait = [this](bool on) {
        // over the bottom edge, so that nothing moves when it comes and goes
        m_busyLine->adjustSize();
        m_busyLine->move(0, height() - m_busyLine->height());
        m_busyLine->raise();
        m_busyLine->setVisible(on);
    };
    m_port->onEntriesChanged = [this] { refreshAll(); };
    m_port->onHidePreviews = [this] {
        for (auto* p : madePages())
            p->hidePreview();
    };
    m_port->onSelectRow = [this](int page, int row) {
        if (page >= 1 && page <= model::kPageCount)
            createPage(page)->selectRow(row);
    };
    registerCommands();
    collectActions();
    makeShortcuts();
    m_stack->setCurrentWidget(m_start);
    // the recovery copy follows the rows; never in the middle of a command,
    // when the rows may be half-way through a change
    m_recoveryTimer = new QTimer(this);
    m_recoveryTimer->setInterval(500);
    connect(m_recoveryTimer, &QTimer::timeout, this, [this] {
        if (!m_inCommand)
            store::KeepRecovery(m_recovery, m_session);
    });
    resize(1280, 800);
    setMinimumSize(960, 600);
}

MainWindow::~MainWindow() = default;

bool MainWindow::start()
{
    Session& s = m_session;
    // The fixed tool tips of the Setup page and the Pages come with their widgets.
    store::ClearSetupRows(s.setup);
    model::InitRowBookkeeping(s.store);
    for (auto* p : madePages())
        p->hidePreview();
    s.run.GlobalFont = "arial";
    s.run.FontSize = "3";
    s.run.Italics = "off";
    s.run.Bold = "off";

    // No file of the program is touched before the DataFolder is known.
    s.DataFolder = store::LoadDataFolder(*m_port, m_fixedFolder.toStdString());

    // A first build needs a folder that exists: the site folder beside the
    // forms is made now and is what a new SetupEntry names.
    if (QDir().mkpath(m_siteFolder)) {
        s.settings.DefaultDriveFolder = m_siteFolder.toStdString();
        s.settings.DriveFolderPath = s.settings.DefaultDriveFolder;
    }
    fillPickLists();
    store::ImportSetup(s.setup, *m_port, s.DataFolder, true);
    resetEntryList();
    store::MarkSaved(s); // nothing to save yet
    store::RefreshPhotoList(s, *m_port);
    store::RefreshFormList(s, *m_port);

    showView(View::StartPage);
    store::RefreshStatus(s);
    refreshAll();
    store::StartRecovery(m_recovery, s, *m_port, projectHooks());
    refreshAll();
    m_recoveryTimer->start();
    return true;
}

void MainWindow::registerPage(View view, QWidget* page)
{
    m_views[view] = page;
    if (m_stack->indexOf(page) < 0)
        m_stack->addWidget(page);
    collectActions();
}

CreatePage* MainWindow::createPage(int page)
{
    const auto index = static_cast<size_t>(std::clamp(page, 1, model::kPageCount) - 1);
    if (!m_pages[index]) {
        auto* p = new CreatePage(m_session.store, static_cast<int>(index) + 1,
                                 [this](const QString& name) { runCommand(name); });
        m_pages[index] = p;
        wirePage(p);
        registerPage(static_cast<View>(static_cast<int>(View::Page1) + static_cast<int>(index)), p);
        refreshAll();
    }
    return m_pages[index];
}

QList<CreatePage*> MainWindow::madePages() const
{
    QList<CreatePage*> made;
    for (CreatePage* p : m_pages)
        if (p)
            made << p;
    return made;
}

SetupPage* MainWindow::setupPage()
{
    if (!m_setup) {
        // The Setup page's own Exit goes back to the page it was called from.
        m_setup = new SetupPage(m_session.setup, [this](const QString& name) {
            runCommand(name == "Exit" ? QStringLiteral("SetupExit") : name);
        });
        m_setup->onCopyField = [this](const QString& text) {
            store::CopyFieldToClipboard(*m_port, text.toStdString());
        };
        registerPage(View::SetupPage, m_setup);
    }
    return m_setup;
}

int MainWindow::PageNumberOf(View v)
{
    switch (v) {
    case View::StartPage:
        return 1;
    case View::Page1:
        return 2;
    case View::Page2:
        return 3;
    case View::Page3:
        return 4;
    case View::Page4:
        return 5;
    case View::FinalPage:
        return 9;
    case View::EditPage:
        return 10;
    case View::Preview:
        return 11;
    default:
        return 2;
    }
}

void MainWindow::showView(View v)
{
    if (v >= View::Page1 && v <= View::Page4)
        createPage(static_cast<int>(v) - static_cast<int>(View::Page1) + 1);
    if (v == View::SetupPage)
        setupPage();
    if (v == View::FinalPage && m_session.build.inProgress)
        fillFinalPage(); // the end of a build: its instructions
    QWidget* page = m_views.value(v);
    if (v == View::FinalPage)
        m_buildFinished = true;
    if (!page && v == View::FinalPage)
        return; // until the final page exists the build reports its paths itself
    if (!page) {
        // a page that is not built yet: Page 1 stands in
        v = View::Page1;
        page = m_views.value(v);
    }
    m_view = v;
    m_previewAwaited = false;
    if (!(v == View::FinalPage && m_holdFinalPage))
        m_stack->setCurrentWidget(page);
    const auto keys = KeysOf(v, m_session.store.state.ProjectMode);
    for (QShortcut* sc : m_shortcuts)
        sc->setEnabled(std::any_of(keys.begin(), keys.end(), [sc](const KeyCommand& k) { return k.key == sc->key(); }));
    refreshWindowTitle();
}

void MainWindow::refreshWindowTitle()
{
    const QString caption = m_view == View::EditPage && m_edit ? m_edit->caption() : QString();
    const Session& s = m_session;
    setWindowTitle(WindowTitle(caption, ToQ(s.store.state.CurrentFileName), store::HasUnsavedChanges(s)));
}

void MainWindow::makeShortcuts()
{
    // one shortcut per key for the whole window; the page on show decides what it runs
    QList<QKeySequence> made;
    for (View v : {View::StartPage, View::Page2, View::EditPage})
        for (const KeyCommand& k : KeysOf(v, model::Mode::Form)) {
            if (made.contains(k.key))
                continue;
            made << k.key;
            auto* sc = new QShortcut(k.key, this);
            sc->setObjectName("Key " + k.key.toString());
            connect(sc, &QShortcut::activated, this, [this, key = k.key] { pressKey(key); });
            m_shortcuts << sc;
        }
}

void MainWindow::pressKey(const QKeySequence& key)
{
    QWidget* page = m_stack->currentWidget();
    for (const KeyCommand& k : KeysOf(m_view, m_session.store.state.ProjectMode)) {
        if (k.key != key)
            continue;
        for (QAction* a : page->findChildren<QAction*>(k.command))
            if (a->isEnabled() && a->isVisible()) {
                a->trigger();
                return;
            }
        // a command that no menu of the page shows
        if (page->findChildren<QAction*>(k.command).isEmpty())
            runCommand(k.command);
        return;
    }
}

void MainWindow::applyMenuKeys()
{
    const model::Mode mode = m_session.store.state.ProjectMode;
    for (auto it = m_views.cbegin(); it != m_views.cend(); ++it) {
        const auto keys = KeysOf(it.key(), mode);
        for (QAction* a : it.value()->findChildren<QAction*>()) {
            QKeySequence shown;
            for (const KeyCommand& k : keys)
                if (k.command == a->objectName())
                    shown = k.key;
            if (a->shortcut() == shown)
                continue;
            // shown in the menu only: the window's own shortcut runs the command
            a->setShortcutContext(Qt::WidgetShortcut);
            a->setShortcut(shown);
        }
    }
}

void MainWindow::registerCommand(const QString& name, std::function<void()> run)
{
    m_commands[name] = std::move(run);
}

void MainWindow::runCommand(const QString& name)
{
    auto it = m_commands.find(name);
    if (it == m_commands.end())
        return;
    // A command may run another one; the views are refreshed once at the end.
    const bool outer = !m_inCommand;
    m_inCommand = true;
    it.value()();
    if (outer) {
        m_inCommand = false;
        refreshAll();
        NoteWait("views refreshed");
    }
}

void MainWindow::registerCommands()
{
    registerCommand("Exit", [this] { confirmExit(); });
    registerCommand("Exit1", [this] { confirmExit(); });
    registerCommand("ViewFormSurvey", [this] {
        showView(View::Page1);
        createPage(1)->focusFirstRow();
    });
    registerCommand("Main", [this] { showView(View::StartPage); });
    registerCommand("SetupPage", [this] {
        m_currentPage = PageNumberOf(m_view);
        setupPage()->refresh();
        showView(View::SetupPage);
    });
    registerCommand("SetupExit", [this] {
        for (auto* p : madePages())
            p->hidePreview();
        showView(tq::ViewOfPageNumber(m_currentPage, View::Page1));
    });
    registerFileCommands();
    registerModeCommands();
    registerPageActions();
    registerBuildCommands();
    registerSetupCommands();
    InstallToolCommands(*this);
    registerEditCommands();
}

void MainWindow::confirmExit()
{
    // ends at once: there is no prompt for unsaved work, and the scratch files stay
    if (m_port->ask("Are you sure you want to exit?", "EXIT", Buttons::YesNo, Icon::Question, 1) == Answer::No)
        return;
    endProgram();
}

void MainWindow::endProgram()
{
    m_recoveryTimer->stop();
    store::KeepRecovery(m_recovery, m_session);
    if (onExit) {
        onExit();
        return;
    }
    QApplication::exit(0);
}

void MainWindow::removeScratchFiles()
{
    if (m_session.DataFolder.empty())
        return;
    for (const char* name : {"\\temp.txt", "\\temp11.txt", "\\downtemp.txt", "\\browsetemp.txt", "\\Preview.htm"})
        QFile::remove(ToQ(platform::JoinPath(m_session.DataFolder, name))); // failures are ignored
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    // Closing the start page's window cleans up; closing any other page just ends.
    if (m_view == View::StartPage)
        removeScratchFiles();
    event->accept();
    endProgram();
}

void MainWindow::collectActions()
{
    m_actions.clear();
    for (QAction* a : m_stack->findChildren<QAction*>()) {
        if (!a->objectName().isEmpty())
            m_actions[a->objectName()] << a;
    }
}

void MainWindow::refreshMenus()
{
    const Session& s = m_session;
    auto apply = [this](const QString& name, const store::MenuSlot& slot) {
        for (QAction* a : m_actions.value(name)) {
            a->setText(ToQ(slot.caption));
            a->setVisible(slot.visible);
            a->setEnabled(slot.enabled);
        }
    };
    for (int i = 0; i < store::kMenuSlots; ++i) {
        const auto n = static_cast<size_t>(i);
        apply(QString("File%1").arg(i + 1), s.run.formMenu[n]);
        apply(QString("FileHistory%1").arg(i + 1), s.run.surveyMenu[n]);
        apply(QString("Web%1").arg(i + 1), s.setup.siteMenus[n]);
        apply(QString("LivePreview%1").arg(i + 1), s.setup.siteMenus[n]);
    }
    // The build menus name the mode, on the start page and on the Pages.
    const auto& st = s.run.status;
    for (QAction* a : m_actions.value("createhtmphpMenu"))
        a->setText(ToQ(st.buildMenu));
    for (QAction* a : m_actions.value("CreateFormOnly"))
        a->setText(ToQ(st.buildOnly));
    for (QAction* a : m_actions.value("CreateFormHTMLCode"))
        a->setText(ToQ(st.buildWithHtml));
}

void MainWindow::refreshAll()
{
    Session& s = m_session;
    store::RefreshStatus(s);
    const auto& st = s.run.status;
    m_start->setStatus(ToQ(st.modeLabel), ToQ(st.fileLabel));
    for (auto* p : madePages()) {
        p->setCaptions(ToQ(st.pageCaptions[static_cast<size_t>(p->page() - 1)]), ToQ(st.modeLabel), ToQ(st.fileLabel),
                       ToQ(std::string(model::ModeText(s.store.state.ProjectMode))));
        setPickList(p);
        p->refresh();
    }
    applyToolTips();
    refreshMenus();
    applyMenuKeys();
    refreshWindowTitle();
    if (m_setup && m_view == View::SetupPage)
        m_setup->refresh();
}

} // namespace tq::gui
