// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_window.h"

#include <QMenuBar>
#include <QVBoxLayout>
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
    m_web->setUrl(QUrl::fromLocalFile(file));
}

} // namespace tq::gui
