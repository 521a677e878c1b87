// SPDX-License-Identifier: GPL-3.0-or-later
#include "final_page.h"

#include "qt_text.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tq::gui {

namespace {

QMenu* AddMenu(QMenuBar* bar, const QString& name, const QString& caption)
{
    QMenu* m = bar->addMenu(caption);
    m->setObjectName(name);
    m->menuAction()->setObjectName(name + "Menu");
    return m;
}

QAction* AddBarCommand(QMenuBar* bar, const QString& name, const QString& caption, const CommandHandler& h)
{
    QAction* a = bar->addAction(caption);
    a->setObjectName(name);
    QObject::connect(a, &QAction::triggered, bar, [h, name] { h(name); });
    return a;
}

} // namespace

FinalPage::FinalPage(UiPort& ui, const CommandHandler& handler, QWidget* parent) : QWidget(parent), m_ui(ui)
{
    setObjectName("FinalPage");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 8);

    // the page's own commands; the shared ones go to the window
    const CommandHandler h = [this, handler](const QString& name) {
        if (name == "EditMenu")
            handler("ViewFormSurvey");
        else if (name == "MainMenu")
            handler("Main");
        else
            handler(name);
    };
    auto* bar = new QMenuBar(this);
    bar->setObjectName("MenuBar");
    bar->setNativeMenuBar(false);
    QMenu* file = AddMenu(bar, "File", "&File");
    AddCommand(file, "SaveForm", "Save Form", h);
    AddCommand(file, "SaveSurvey", "Save Survey", h);
    QMenu* build = AddMenu(bar, "createhtmphp", "&Build HTM-PHP");
    AddCommand(build, "CreateFormOnly", "Create Form Only", h);
    AddCommand(build, "CreateFormHTMLCode", "Create Form with HTML Code", h);
    build->addSeparator();
    AddCommand(build, "TestLocally", "Test Locally", h);
    AddCommand(build, "Publish", "Publish...", h);
    AddCommand(build, "UploadTargets", "Upload Targets...", h);
    AddBarCommand(bar, "FTP", "FTP", h);
    QMenu* web = AddMenu(bar, "WebEditor", "W&eb-Editor");
    for (int i = 1; i <= 15; ++i)
        AddCommand(web, QString("Web%1").arg(i), "Not Assigned", h);
    AddBarCommand(bar, "EditMenu", "&Edit", h);
    AddBarCommand(bar, "ViewFolder", "View-F&older", h);
    QMenu* live = AddMenu(bar, "PreviewLive", "&View-Website");
    for (int i = 1; i <= 15; ++i)
        AddCommand(live, QString("LivePreview%1").arg(i), "Not Assigned", h);
    AddBarCommand(bar, "SetupPage", "&Setup", h)->setObjectName("Setup");
    AddBarCommand(bar, "MainMenu", "&Main", h);
    AddBarCommand(bar, "Exit", "E&xit", h);
    layout->setMenuBar(bar);

    m_title = new QLabel;
    m_title->setObjectName("lblTitle");
    m_title->setStyleSheet("font-size: 17px; font-weight: 700; color: #1f4e79;");
    layout->addWidget(m_title);

    auto* grid = new QGridLayout;
    auto* heading = new QLabel("OUTPUT HTML CODE CREATED BY TARNQUILL");
    heading->setObjectName("lblCodeHeading");
    heading->setStyleSheet("font-weight: 600;");
    m_code = new QPlainTextEdit;
    m_code->setObjectName("txtCode");
    m_code->setReadOnly(true);
    m_code->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_code->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_copy = new QPushButton("COPY OUTPUT TARNQUILL HTML CODE TO THE CLIPBOARD");
    m_copy->setObjectName("CopyCode");
    auto* preview = new QPushButton("PREVIEW FULL SCREEN");
    preview->setObjectName("PreviewFullScreen");
    auto* codeCol = new QVBoxLayout;
    codeCol->addWidget(heading);
    codeCol->addWidget(m_code, 1);
    auto* testLocally = new QPushButton("TEST LOCALLY");
    testLocally->setObjectName("TestLocallyButton");
    testLocally->setToolTip("Serve the form on this computer, submit it and see the mail it sends");
    auto* publish = new QPushButton("PUBLISH");
    publish->setObjectName("PublishButton");
    publish->setToolTip("Send the files to the upload target of a web folder and check that the form runs there");
    auto* codeButtons = new QHBoxLayout;
    codeButtons->addWidget(m_copy);
    codeButtons->addWidget(preview);
    codeButtons->addWidget(testLocally);
    codeButtons->addWidget(publish);
    codeCol->addLayout(codeButtons);
    grid->addLayout(codeCol, 0, 0, 2, 1);

    auto* ftp = new QLabel(" FTP THE TARNQUILL OUTPUT FILE(S) BELOW TO YOUR WEB SITE");
    ftp->setObjectName("lblFtp");
    ftp->setStyleSheet("font-weight: 600;");
    m_uploadLabel = new QLabel;
    m_uploadLabel->setObjectName("lblUpload");
    m_uploads = new QListWidget;
    m_uploads->setObjectName("lstUploads");
    m_uploads->setMaximumHeight(90);
    m_instructions = new QPlainTextEdit;
    m_instructions->setObjectName("txtInstructions");
    m_instructions->setReadOnly(true);
    m_instructions->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    auto* side = new QVBoxLayout;
    side->addWidget(ftp);
    side->addWidget(m_uploadLabel);
    side->addWidget(m_uploads);
    side->addWidget(m_instructions, 1);
    m_warning = new QLabel;
    m_warning->setObjectName("lblPublishCheck");
    m_warning->setWordWrap(true);
    m_warning->setTextFormat(Qt::PlainText);
    m_warning->setStyleSheet("color: #a4262c; font-weight: 600; padding: 4px 0;");
    m_warning->hide();
    side->addWidget(m_warning);
    grid->addLayout(side, 0, 1, 2, 1);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    layout->addLayout(grid, 1);

    connect(m_copy, &QPushButton::clicked, this, [this] { shell::CopyCodeToClipboard(m_ui, m_codeText); });
    connect(testLocally, &QPushButton::clicked, this, [h] { h("TestLocally"); });
    connect(publish, &QPushButton::clicked, this, [h] { h("Publish"); });
    connect(preview, &QPushButton::clicked, this, [this] {
        if (onPreviewFullScreen)
            onPreviewFullScreen();
    });
}

void FinalPage::fill(const shell::FinalPageText& text)
{
    m_codeText = text.code;
    m_title->setText(ToQ(text.title));
    m_copy->setText(ToQ(text.buttonCaption));
    m_uploadLabel->setText(ToQ(text.uploadLabel));
    m_uploads->clear();
    for (const auto& f : text.uploads)
        m_uploads->addItem(ToQ(f));
    m_instructions->setPlainText(ToQ(text.instructions).replace("\r\n", "\n"));
    m_code->setPlainText(ToQ(text.code).replace("\r\n", "\n"));
    setPublishWarning({});
}

void FinalPage::setPublishWarning(const QString& warning)
{
    m_warning->setText(warning);
    m_warning->setVisible(!warning.isEmpty());
}

} // namespace tq::gui
