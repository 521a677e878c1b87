// SPDX-License-Identifier: GPL-3.0-or-later
#include "preview_window.h"

#include "wait_timings.h"

#include <QLabel>
#include <QMenuBar>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineView>

namespace tq::gui {

namespace {

// The longest the picture of the page before may stand, should the browser
// never say that it painted.
constexpr int kCoverLimitMs = 1500;

} // namespace

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
        if (!m_web->url().isLocalFile())
            return;
        NoteWait("preview loaded");
        if (covered()) {
            if (ok)
                uncoverOnNextFrame();
            else
                uncover();
        }
        if (onLoaded)
            onLoaded(ok);
    });

    m_cover = new QLabel(this);
    m_cover->setObjectName("PreviewCover");
    m_cover->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_cover->hide();
    m_coverLimit = new QTimer(this);
    m_coverLimit->setSingleShot(true);
    m_coverLimit->setInterval(kCoverLimitMs);
    connect(m_coverLimit, &QTimer::timeout, this, &PreviewWindow::uncover);

    // starting the engine here, while the window is still hidden, makes the
    // first preview quick
    m_web->setUrl(QUrl("about:blank"));
}

bool PreviewWindow::covered() const
{
    return !m_cover->isHidden();
}

void PreviewWindow::showFile(const QString& file, const QPixmap& shownNow)
{
    // The one view and its page are kept: a page made afresh costs more than
    // the load itself. A hidden view has not painted what it loaded since it
    // was hidden, so the page in sight now covers it until the new page has.
    if (!isVisible() && !shownNow.isNull())
        cover(shownNow);
    m_web->setUrl(QUrl::fromLocalFile(file));
}

void PreviewWindow::cover(const QPixmap& shownNow)
{
    m_cover->setPixmap(shownNow);
    m_cover->setGeometry(rect());
    m_cover->raise();
    m_cover->show();
    m_coverLimit->start();
}

void PreviewWindow::uncoverOnNextFrame()
{
    // the browser paints through a scene of its own; the first frame of that
    // scene after the load shows the new page
    auto* scene = m_web->findChild<QQuickWidget*>();
    if (!scene || !scene->quickWindow()) {
        uncover();
        return;
    }
    disconnect(m_nextFrame);
    m_nextFrame = connect(scene->quickWindow(), &QQuickWindow::afterRendering, this, &PreviewWindow::uncover,
                          Qt::QueuedConnection);
}

void PreviewWindow::uncover()
{
    disconnect(m_nextFrame);
    m_coverLimit->stop();
    if (m_cover->isHidden())
        return;
    m_cover->hide();
    m_cover->setPixmap({});
    NoteWait("preview uncovered");
    if (onPainted)
        onPainted();
}

void PreviewWindow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_cover->setGeometry(rect());
}

void PreviewWindow::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    // left before the page painted: the next showing covers afresh
    if (event->spontaneous())
        return;
    disconnect(m_nextFrame);
    m_coverLimit->stop();
    m_cover->hide();
}

} // namespace tq::gui
