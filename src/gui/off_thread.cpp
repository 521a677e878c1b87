// SPDX-License-Identifier: GPL-3.0-or-later
#include "off_thread.h"

#include <QPointer>
#include <QThread>
#include <string>

namespace tq::gui {

void RunOffThread(QObject* context, std::function<void()> work, std::function<void()> done)
{
    QThread* thread = QThread::create(std::move(work));
    QPointer<QObject> alive = context;
    QObject::connect(thread, &QThread::finished, context, [alive, done = std::move(done)] {
        if (alive && done)
            done();
    });
    // a thread whose window went first still ends and deletes itself
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}

void WindowThreadPort::onWindowThread(const std::function<void()>& call)
{
    if (QThread::currentThread() == m_window->thread()) {
        call();
        return;
    }
    QMetaObject::invokeMethod(m_window, call, Qt::BlockingQueuedConnection);
}

void WindowThreadPort::message(std::string_view text, std::string_view title, Icon icon)
{
    onWindowThread([&] { m_target.message(text, title, icon); });
}

Answer
WindowThreadPort::ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int defaultButton)
{
    Answer a = Answer::Cancel;
    onWindowThread([&] { a = m_target.ask(text, title, buttons, icon, defaultButton); });
    return a;
}

std::optional<std::string>
WindowThreadPort::inputBox(std::string_view prompt, std::string_view title, std::string_view initial)
{
    std::optional<std::string> r;
    onWindowThread([&] { r = m_target.inputBox(prompt, title, initial); });
    return r;
}

std::optional<std::string> WindowThreadPort::passwordBox(std::string_view prompt, std::string_view title)
{
    std::optional<std::string> r;
    onWindowThread([&] { r = m_target.passwordBox(prompt, title); });
    return r;
}

std::optional<std::string> WindowThreadPort::openFileDialog(const FileDialogOptions& options)
{
    std::optional<std::string> r;
    onWindowThread([&] { r = m_target.openFileDialog(options); });
    return r;
}

std::optional<std::string> WindowThreadPort::saveFileDialog(const FileDialogOptions& options)
{
    std::optional<std::string> r;
    onWindowThread([&] { r = m_target.saveFileDialog(options); });
    return r;
}

std::optional<std::string> WindowThreadPort::browseForFolder(std::string_view title, std::string_view initial)
{
    std::optional<std::string> r;
    onWindowThread([&] { r = m_target.browseForFolder(title, initial); });
    return r;
}

std::optional<long> WindowThreadPort::chooseColor(long initial, std::string_view title)
{
    std::optional<long> r;
    onWindowThread([&] { r = m_target.chooseColor(initial, title); });
    return r;
}

} // namespace tq::gui
