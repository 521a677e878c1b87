// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui_test_support.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>

namespace tq::gui::test {

QString SaveScreenshot(QWidget* w, const QString& name)
{
    QDir().mkpath(TQ_ARTIFACT_DIR);
    QString path = QString(TQ_ARTIFACT_DIR) + "/" + name + ".png";
    w->grab().save(path);
    return path;
}

void AnswerNextDialog(std::function<void(QWidget*)> answer)
{
    auto* timer = new QTimer;
    timer->setInterval(20);
    QObject::connect(timer, &QTimer::timeout, [timer, answer] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal)
            return;
        timer->stop();
        timer->deleteLater();
        answer(modal);
    });
    timer->start();
}

bool Trigger(QWidget* root, const QString& name)
{
    for (QAction* a : root->findChildren<QAction*>(name)) {
        // only the page that is visible: its menu bar is shown
        QObject* p = a->parent();
        bool visible = true;
        while (p) {
            if (auto* w = qobject_cast<QWidget*>(p)) {
                if (w->isWindow())
                    break;
                if (!w->isVisible() && !qobject_cast<QMenu*>(w)) {
                    visible = false;
                    break;
                }
            }
            p = p->parent();
        }
        if (visible) {
            a->trigger();
            return true;
        }
    }
    return false;
}

QString DescribeBox(QWidget* box)
{
    if (auto* mb = qobject_cast<QMessageBox*>(box))
        return mb->windowTitle() + ": " + mb->text();
    return box->windowTitle();
}

} // namespace tq::gui::test
