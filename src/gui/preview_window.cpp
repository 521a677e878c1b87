// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_window.h"

#include <QMenuBar>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace tq::gui {

PreviewWindow::PreviewWindow(QWidget* parent) : QWidget(parent)
{
    setObjectName("PreviewWindow");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* bar = new QMenuBar(this);
    bar->setObjectName("MenuBar");
    bar->setNativeMenuBar(false);
    QAction* exit = bar->addAction("E&xit");
    exit->setObjectName("Exit");
    connect(exit, &QAction::triggered, this, [this] {
        // the content is set aside before the way back
        m_web->setUrl(QUrl("about:blank"));
        if (onExit)
            onExit();
    });
    layout->setMenuBar(bar);
    m_web = new QWebEngineView;
    m_web->setObjectName("WebBrowser1");
    layout->addWidget(m_web, 1);
    connect(m_web, &QWebEngineView::loadFinished, this, [this](bool ok) {
        if (onLoaded && m_web->url().isLocalFile())
            onLoaded(ok);
    });
    // starting the engine here, while the window is still hidden, makes the
    // first preview quick
    m_web->setUrl(QUrl("about:blank"));
}

void PreviewWindow::showFile(const QString& file)
{
    // A view that comes back shows its last picture until the new page paints:
    // a fresh page has none, so the page before never flashes up again.
    if (m_shownBefore && !isVisible()) {
        // the view deletes the page it made itself; the ones made here go after it
        QWebEnginePage* old = m_web->page();
        const bool madeHere = old->parent() == m_web && old->objectName() == "PreviewPage";
        auto* fresh = new QWebEnginePage(old->profile(), m_web);
        fresh->setObjectName("PreviewPage");
        m_web->setPage(fresh);
        if (madeHere)
            old->deleteLater();
    }
    m_shownBefore = true;
    m_web->setUrl(QUrl::fromLocalFile(file));
}

} // namespace tq::gui
