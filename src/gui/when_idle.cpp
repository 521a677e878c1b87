// SPDX-License-Identifier: GPL-3.0-or-later
#include "when_idle.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

namespace tq::gui {

namespace {

class IdleWatch : public QObject
{
  public:
    IdleWatch(QObject* owner, int quietMs, std::function<void()> work) : QObject(owner), m_work(std::move(work))
    {
        m_quiet.setSingleShot(true);
        m_quiet.setInterval(quietMs);
        connect(&m_quiet, &QTimer::timeout, this, [this] {
            QCoreApplication::instance()->removeEventFilter(this);
            auto work = std::move(m_work);
            deleteLater();
            work();
        });
        QCoreApplication::instance()->installEventFilter(this);
        m_quiet.start();
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::MouseButtonPress:
        case QEvent::Wheel:
            m_quiet.start(); // the pause starts again
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    QTimer m_quiet;
    std::function<void()> m_work;
};

} // namespace

void RunWhenIdle(QObject* owner, int quietMs, std::function<void()> work)
{
    new IdleWatch(owner, quietMs, std::move(work));
}

} // namespace tq::gui
