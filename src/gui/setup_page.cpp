// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup_page.h"

#include "qt_text.h"
#include "store/setup_store.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tq::gui {

namespace {

QMenuBar* BuildSetupMenuBar(QWidget* parent, const CommandHandler& h)
{
    auto* bar = new QMenuBar(parent);
    bar->setObjectName("MenuBar");
    bar->setNativeMenuBar(false);
    auto addMenu = [](auto* owner, const QString& name, const QString& caption) {
        QMenu* m = owner->addMenu(caption);
        m->setObjectName(name);
        m->menuAction()->setObjectName(name + "Menu");
        return m;
    };
    QMenu* config = addMenu(bar, "Config", "&File");
    QMenu* open = addMenu(config, "Open", "Open");
    AddCommand(open, "SetupPageOnlyOpen", "Setup Page (setup.imp)", h);
    QMenu* save = addMenu(config, "SaveSetup", "Save Setup");
    AddCommand(save, "SetupPageOnly", "Setup Page (setup.imp)", h);
    config->addSeparator();
    AddCommand(config, "BackupSetupPage", "Backup Setup Page", h);
    AddCommand(config, "RestoreBackup", "Restore Setup Page From Backup", h);

    QMenu* sort = addMenu(bar, "Sort1", "&Sort");
    AddCommand(sort, "AZ", "A-Z", h);
    AddCommand(sort, "ZA", "Z-A", h);

    QAction* exit = bar->addAction("E&xit");
    exit->setObjectName("Exit");
    QObject::connect(exit, &QAction::triggered, bar, [h] { h("Exit"); });

    QMenu* help = addMenu(bar, "Help", "&Help");
    AddCommand(help, "Clipboard1", "Copy a Path to the Clipboard", h);
    help->addSeparator();
    AddCommand(help, "MenuName", "Menu Name", h);
    AddCommand(help, "WebServerPath", "Web Server Path", h);
    AddCommand(help, "WebFolderPath", "Web Folder Path", h);
    AddCommand(help, "EmailAdrress", "Email Address", h);
    AddCommand(help, "WebEditorPath", "Web Editor Path", h);
    AddCommand(help, "FTPProgramPath", "FTP Program Path", h);
    AddCommand(help, "DefaultPathBrowser", "Default Path for the Browser", h);
    return bar;
}

QLabel* Heading(const QString& text)
{
    auto* l = new QLabel(text);
    l->setWordWrap(true);
    l->setStyleSheet("font-weight: 600;");
    return l;
}

} // namespace

QLineEdit* SetupPage::makeField(const QString& name, std::string* target, bool copies)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(name);
    m_bindings << qMakePair(edit, target);
    connect(edit, &QLineEdit::textEdited, this, [target](const QString& text) { *target = text.toStdString(); });
    if (copies) {
        // a right press copies the whole field, with the page's message
        edit->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(edit, &QWidget::customContextMenuRequested, this, [this, edit] {
            if (onCopyField)
                onCopyField(edit->text());
        });
    }
    return edit;
}

SetupPage::SetupPage(store::SetupStore& setup, const CommandHandler& handler, QWidget* parent)
    : QWidget(parent), m_setup(setup)
{
    setObjectName("SetupPageView");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 10, 16, 12);
    layout->setSpacing(10);
    layout->setMenuBar(BuildSetupMenuBar(this, handler));

    auto* title = new QLabel("Setup");
    title->setObjectName("lblSetupHeading");
    title->setStyleSheet("font-size: 18px; font-weight: 600;");
    auto* intro = new QLabel("Your web sites and the programs Tarnquill starts. Right-click a field to copy it to "
                             "the clipboard.");
    intro->setStyleSheet("color: #555;");
    layout->addWidget(title);
    layout->addWidget(intro);

    auto* sites = new QGroupBox("Web sites");
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(4);
    grid->addWidget(Heading("#"), 0, 0);
    grid->addWidget(Heading("Menu Name"), 0, 1);
    grid->addWidget(Heading("Web Server Path when Previewing your Website"), 0, 2);
    grid->addWidget(Heading("Web Folder Path on your Hard Drive"), 0, 3);
    grid->addWidget(Heading("Email Address"), 0, 4);
    for (int i = 0; i < store::kSetupRows; ++i) {
        auto& row = m_setup.rows[static_cast<size_t>(i)];
        RowEdits& e = m_rows[static_cast<size_t>(i)];
        e.order = makeField(QString("txtOrder%1").arg(i), &row.OrderNumber, false);
        e.order->setMaximumWidth(44);
        e.order->setAlignment(Qt::AlignCenter);
        e.menuName = makeField(QString("txtMenuName%1").arg(i), &row.MenuName, true);
        e.menuName->setToolTip("Menu Name");
        e.serverPath = makeField(QString("txtWebServerPath%1").arg(i), &row.WebServerPath, true);
        e.serverPath->setToolTip("Web Server Path when viewing your Website");
        e.folderPath = makeField(QString("txtWebFolderPath%1").arg(i), &row.WebFolderPath, true);
        e.folderPath->setToolTip("Web Folder On Your Hard Drive");
        e.email = makeField(QString("txtEmailAddress%1").arg(i), &row.EmailAddress, true);
        grid->addWidget(e.order, i + 1, 0);
        grid->addWidget(e.menuName, i + 1, 1);
        grid->addWidget(e.serverPath, i + 1, 2);
        grid->addWidget(e.folderPath, i + 1, 3);
        grid->addWidget(e.email, i + 1, 4);
    }
    grid->setRowStretch(store::kSetupRows + 1, 1); // extra height goes below the rows
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 4);
    grid->setColumnStretch(3, 3);
    grid->setColumnStretch(4, 3);
    auto* gridHost = new QWidget;
    gridHost->setLayout(grid);
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(gridHost);
    auto* sitesLayout = new QVBoxLayout(sites);
    sitesLayout->addWidget(scroll, 1);
    auto* sortRow = new QHBoxLayout;
    auto addButton = [&handler](QBoxLayout* l, const QString& name, const QString& caption) {
        auto* b = new QPushButton(caption);
        b->setObjectName(name);
        QObject::connect(b, &QPushButton::clicked, b, [handler, name] { handler(name); });
        l->addWidget(b);
        return b;
    };
    addButton(sortRow, "cmdSortAZ", "Sort A-Z");
    addButton(sortRow, "cmdSortNumber", "Sort by Number");
    sortRow->addStretch();
    sitesLayout->addLayout(sortRow);
    layout->addWidget(sites, 1);

    auto* tools = new QGroupBox("Programs");
    auto* tl = new QGridLayout(tools);
    tl->setHorizontalSpacing(8);
    struct Tool
    {
        const char* label;
        const char* field;
        std::string* target;
        const char* button;
        const char* caption;
        QLineEdit** edit;
    };
    const Tool list[] = {
        {"FTP Program Path", "txtFTPProgramPath", &m_setup.FTPProgramPath, "cmdFindFtp", "FIND YOUR FTP PROGRAM PATH",
         &m_ftp},
        {"Web Editor Path", "txtWebEditorPath", &m_setup.WebEditorPath, "cmdFindWebEditor", "FIND YOUR WEB EDITOR PATH",
         &m_editor},
        {"Default Path for the Browser", "txtBrowserPath", &m_setup.BrowserPath, "cmdFindBrowser",
         "FIND YOUR BROWSER PATH", &m_browser},
    };
    int r = 0;
    for (const Tool& t : list) {
        *t.edit = makeField(t.field, t.target, true);
        tl->addWidget(new QLabel(t.label), r, 0);
        tl->addWidget(*t.edit, r, 1);
        auto* holder = new QHBoxLayout;
        addButton(holder, t.button, t.caption)->setMinimumWidth(240);
        tl->addLayout(holder, r, 2);
        ++r;
    }
    tl->setColumnStretch(1, 1);
    layout->addWidget(tools);
    refresh();
}

void SetupPage::refresh()
{
    for (const auto& [edit, target] : m_bindings) {
        const QString text = ToQ(*target);
        if (edit->text() != text)
            edit->setText(text);
    }
}

} // namespace tq::gui
