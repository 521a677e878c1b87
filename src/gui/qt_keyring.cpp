// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt_keyring.h"

#include "qt_text.h"

#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <functional>
#include <qt6keychain/keychain.h>

namespace tq::gui {

namespace {

/// The service name the passwords are kept under.
constexpr const char* kService = "Tarnquill";
/// A keyring that shows an unlock prompt waits for the user; one that is
/// stuck is given up after this long.
constexpr int kJobTimeoutMs = 120000;

/// Runs `job` to its end on the calling thread; false when it did not end in time.
bool RunJob(QKeychain::Job& job)
{
    job.setAutoDelete(false);
    QEventLoop loop;
    bool ended = false;
    QObject::connect(&job, &QKeychain::Job::finished, &loop, [&] {
        ended = true;
        loop.quit();
    });
    QTimer::singleShot(kJobTimeoutMs, &loop, &QEventLoop::quit);
    job.start();
    if (!ended)
        loop.exec();
    return ended;
}

bool NoKeyringThere(const QKeychain::Job& job)
{
    return job.error() == QKeychain::NoBackendAvailable || job.error() == QKeychain::NotImplemented ||
           job.error() == QKeychain::OtherError;
}

void OnThreadOf(QObject* window, const std::function<void()>& call)
{
    if (QThread::currentThread() == window->thread())
        call();
    else
        QMetaObject::invokeMethod(window, call, Qt::BlockingQueuedConnection);
}

} // namespace

std::optional<std::string> QtKeyring::readSecret(std::string_view key)
{
    std::optional<std::string> secret;
    if (m_absent)
        return secret;
    OnThreadOf(m_window, [&] {
        QKeychain::ReadPasswordJob job(kService);
        job.setKey(ToQ(key));
        if (!RunJob(job) || NoKeyringThere(job))
            m_absent = true;
        else if (job.error() == QKeychain::NoError)
            secret = job.textData().toStdString();
    });
    return secret;
}

bool QtKeyring::writeSecret(std::string_view key, std::string_view secret)
{
    if (m_absent)
        return false;
    bool kept = false;
    OnThreadOf(m_window, [&] {
        QKeychain::WritePasswordJob job(kService);
        job.setKey(ToQ(key));
        job.setTextData(ToQ(secret));
        if (!RunJob(job) || NoKeyringThere(job))
            m_absent = true;
        else
            kept = job.error() == QKeychain::NoError;
    });
    return kept;
}

std::string MailboxPasswordKey(std::string_view address)
{
    return "mailbox " + std::string(address);
}

} // namespace tq::gui
