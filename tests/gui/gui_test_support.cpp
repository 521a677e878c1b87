// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui_test_support.h"

#include "main_window.h"
#include "model/attribute_text.h"
#include "model/catalogue.h"
#include "shell/quiet_port.h"
#include "store/project_file.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWidget>

namespace tq::gui::test {

QString PointAtDataFolder(const QTemporaryDir& docs)
{
    const QString data = docs.filePath("data");
    QDir().mkpath(docs.filePath("tarnquill/forms"));
    QDir().mkpath(data);
    QFile stt(docs.filePath("tarnquill/forms/Tarnquill.stt"));
    if (stt.open(QIODevice::WriteOnly))
        stt.write(data.toUtf8() + "\r\n");
    return data;
}

StartedWindow::StartedWindow() : data(PointAtDataFolder(docs))
{
    w = std::make_unique<MainWindow>(docs.path());
    w->onExit = [] {};
    started = w->start();
    w->show();
    started = QTest::qWaitForWindowExposed(w.get()) && started;
}

StartedWindow::~StartedWindow() = default;

const model::Entry& StartedWindow::at(int page, int row) const
{
    return w->session().store.pages[static_cast<size_t>(page - 1)][static_cast<size_t>(row)];
}

QString StartedWindow::name(int page, int row) const
{
    return QString::fromStdString(at(page, row).InputTypeName);
}

QStringList StartedWindow::names(int page, int first, int last) const
{
    QStringList out;
    for (int row = first; row <= last; ++row)
        out << name(page, row);
    return out;
}

void StartedWindow::put(int page, int row, const std::string& type)
{
    auto& s = w->session();
    auto& e = s.store.pages[static_cast<size_t>(page - 1)][static_cast<size_t>(row)];
    tq::shell::QuietPort quiet;
    e.InputTypeName = type;
    e.AttributeText = tq::model::NormalizeAttributeText(
        quiet, tq::model::DefaultTemplateFor(s.catalogue, type, s.store.state.ProjectMode));
    tq::model::RefreshEditMarkers(s.store);
    w->refreshAll();
}

QString StartedWindow::useWebFolder()
{
    const QString web = docs.filePath("web");
    QDir().mkpath(web);
    auto& setup = w->session().store.pages[0][0].AttributeText;
    const std::string site = w->session().settings.DefaultDriveFolder;
    const auto at = setup.find(site);
    if (at == std::string::npos)
        return {};
    setup.replace(at, site.size(), web.toStdString());
    for (auto mark = setup.find("=;"); mark != std::string::npos; mark = setup.find("=;"))
        setup.erase(mark + 1, 1);
    return web;
}

QString SaveScreenshot(QWidget* w, const QString& name)
{
    QDir().mkpath(TQ_ARTIFACT_DIR);
    QString path = QString(TQ_ARTIFACT_DIR) + "/" + name + ".png";
    w->grab().save(path);
    return path;
}

DialogScript::DialogScript() : m_timer(std::make_unique<QTimer>())
{
    m_timer->setInterval(15);
    QObject::connect(m_timer.get(), &QTimer::timeout, [this] {
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || !modal->isVisible())
            return;
        if (m_answers.isEmpty()) {
            seen << "UNEXPECTED " + DescribeBox(modal);
            if (auto* d = qobject_cast<QDialog*>(modal))
                d->reject();
            else
                modal->close();
            return;
        }
        seen << DescribeBox(modal);
        m_answers.takeFirst()(modal);
    });
    m_timer->start();
}

DialogScript::~DialogScript() = default;

DialogScript& DialogScript::then(std::function<void(QWidget*)> answer)
{
    m_answers << std::move(answer);
    return *this;
}

DialogScript& DialogScript::press(QMessageBox::StandardButton button)
{
    return then([button](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        if (box && box->button(button))
            box->button(button)->click();
        else if (auto* d = qobject_cast<QDialog*>(w))
            d->reject();
    });
}

DialogScript& DialogScript::type(const QString& text)
{
    return then([text](QWidget* w) {
        if (auto* input = qobject_cast<QInputDialog*>(w)) {
            input->setTextValue(text);
            input->accept();
        } else if (auto* d = qobject_cast<QDialog*>(w)) {
            d->reject();
        }
    });
}

DialogScript& DialogScript::choose(const QString& path)
{
    return then([path](QWidget* w) {
        auto* dialog = qobject_cast<QFileDialog*>(w);
        if (!dialog) {
            if (auto* d = qobject_cast<QDialog*>(w))
                d->reject();
            return;
        }
        dialog->selectFile(path);
        if (auto* name = dialog->findChild<QLineEdit*>("fileNameEdit"))
            name->setText(path);
        static_cast<QDialog*>(dialog)->accept(); // QFileDialog::accept is protected
        // the directory may still be loading: take the name as it stands
        if (dialog->isVisible())
            static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
    });
}

QString AnswerBox(const std::function<void()>& run, QMessageBox::StandardButton button)
{
    DialogScript script;
    script.press(button);
    run();
    return script.seen.value(0);
}

bool Trigger(QWidget* root, const QString& name)
{
    for (QAction* a : root->findChildren<QAction*>(name)) {
        // only the page that is visible: its menu bar is shown
        QObject* p = a->parent();
        bool visible = true;
        while (p) {
            // a menu is a window of its own, and hidden until it pops up
            if (auto* w = qobject_cast<QWidget*>(p); w && !qobject_cast<QMenu*>(w)) {
                if (w->isWindow())
                    break;
                if (!w->isVisible()) {
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
    if (auto* input = qobject_cast<QInputDialog*>(box))
        return input->windowTitle() + ": " + input->labelText();
    return box->windowTitle();
}

} // namespace tq::gui::test
