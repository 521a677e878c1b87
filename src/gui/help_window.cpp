// SPDX-License-Identifier: GPL-3.0-or-later
#include "help_window.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>
#include <QWebEngineHistory>
#include <QWebEngineView>

namespace tq::gui {

namespace {

struct HelpFile
{
    const char* command;
    const char* file;
};

// The Help menu entries that have a page of their own; the others (the home
// page, contact, download, revisions) stay on the web site.
constexpr HelpFile kHelpFiles[] = {
    {"CreatingFormSurvey", "creating_a_form.html"},
    {"Tutorial", "index.html"},
    {"features", "input_types.html"},
    {"Demo", "building_and_uploading.html"},
    {"SetupHelp", "setup_page.html"},
    {"PhotoShowHelp", "photo_show.html"},
};

} // namespace

QString HelpFolder()
{
    const QString installed = QString(TQ_INSTALL_DATA_DIR) + "/help";
    if (QFile::exists(installed + "/index.html"))
        return installed;
    return QString(TQ_DATA_DIR) + "/help";
}

QString LocalHelpPage(const QString& folder, const QString& command)
{
    for (const HelpFile& h : kHelpFiles) {
        if (command != QLatin1String(h.command))
            continue;
        const QString path = QDir(folder).filePath(h.file);
        return QFile::exists(path) ? path : QString();
    }
    return {};
}

QStringList LocalHelpCommands()
{
    QStringList names;
    for (const HelpFile& h : kHelpFiles)
        names << h.command;
    return names;
}

HelpWindow::HelpWindow(QWidget* parent) : QWidget(parent, Qt::Window)
{
    setObjectName("HelpWindow");
    setWindowTitle("Tarnquill Help");
    resize(900, 700);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* bar = new QToolBar;
    m_web = new QWebEngineView;
    m_web->setObjectName("HelpBrowser");
    bar->addAction("Back", m_web, &QWebEngineView::back);
    bar->addAction("Contents", this, [this] { showPage(QDir(HelpFolder()).filePath("index.html")); });
    layout->addWidget(bar);
    layout->addWidget(m_web, 1);
    connect(m_web, &QWebEngineView::titleChanged, this,
            [this](const QString& title) { setWindowTitle(title.isEmpty() ? "Tarnquill Help" : title); });
}

void HelpWindow::showPage(const QString& file)
{
    m_web->load(QUrl::fromLocalFile(file));
    show();
    raise();
    activateWindow();
}

} // namespace tq::gui
