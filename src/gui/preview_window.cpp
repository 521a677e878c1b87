// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_window.h"

#include "wait_timings.h"

#include <QEvent>
#include <QMenuBar>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineView>

namespace tq::gui {

namespace {

// The longest a new page may take to say that it painted before it is shown
// as it stands.
constexpr int kPaintLimitMs = 1500;

} // namespace

PreviewWindow::PreviewWindow(QWidget* area, QWidget* parent) : QWidget(parent), m_area(area)
{
    setObjectName("PreviewWindow");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_bar = new QMenuBar(this);
    m_bar->setObjectName("MenuBar");
    m_bar->setNativeMenuBar(false);
    QAction* exit = m_bar->addAction("E&xit");
    exit->setObjectName("Exit");
    connect(exit, &QAction::triggered, this, [this] {
        // the content is set aside before the way back
        m_web->setUrl(QUrl("about:blank"));
        if (onExit)
            onExit();
    });
    layout->setMenuBar(m_bar);
    layout->addStretch(1);

    // the pages paint their background, so the browser beneath them is out of sight
    m_area->setAutoFillBackground(true);
    m_area->installEventFilter(this);
    m_web = new QWebEngineView(m_area->parentWidget());
    m_web->setObjectName("WebBrowser1");
    m_web->setEnabled(false);
    placeBrowser();
    m_web->lower();
    m_web->show();
    connect(m_web, &QWebEngineView::loadFinished, this, [this](bool ok) {
        if (!m_web->url().isLocalFile())
            return;
        NoteWait("preview loaded");
        if (m_painting) {
            if (ok)
                paintedOnNextFrame();
            else
                painted();
        }
        if (onLoaded)
            onLoaded(ok);
    });

    m_paintLimit = new QTimer(this);
    m_paintLimit->setSingleShot(true);
    m_paintLimit->setInterval(kPaintLimitMs);
    connect(m_paintLimit, &QTimer::timeout, this, &PreviewWindow::painted);

    // starting the engine here makes the first preview quick
    m_web->setUrl(QUrl("about:blank"));
}

void PreviewWindow::showFile(const QString& file)
{
    // The one view and its page are kept: a page made afresh costs more than
    // the load itself.
    m_painting = true;
    m_paintLimit->start();
    m_web->setUrl(QUrl::fromLocalFile(file));
}

void PreviewWindow::paintedOnNextFrame()
{
    // the browser paints through a scene of its own; the first frame of that
    // scene after the load shows the new page
    auto* scene = m_web->findChild<QQuickWidget*>();
    if (!scene || !scene->quickWindow()) {
        painted();
        return;
    }
    disconnect(m_nextFrame);
    m_nextFrame = connect(scene->quickWindow(), &QQuickWindow::afterRendering, this, &PreviewWindow::painted,
                          Qt::QueuedConnection);
}

void PreviewWindow::painted()
{
    disconnect(m_nextFrame);
    m_paintLimit->stop();
    if (!m_painting)
        return;
    m_painting = false;
    NoteWait("preview painted");
    if (onPainted)
        onPainted();
}

void PreviewWindow::placeBrowser()
{
    // the room of the window below its menu bar, wherever the window is
    QRect room = m_area->geometry();
    room.setTop(room.top() + m_bar->sizeHint().height());
    m_web->setGeometry(room);
}

bool PreviewWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_area && (event->type() == QEvent::Resize || event->type() == QEvent::Move))
        placeBrowser();
    return QWidget::eventFilter(watched, event);
}

void PreviewWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    placeBrowser();
    m_web->setEnabled(true);
    m_web->raise();
    m_web->setFocus();
}

void PreviewWindow::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    // out of sight and out of reach of keys and the mouse
    m_web->lower();
    m_web->setEnabled(false);
}

} // namespace tq::gui
