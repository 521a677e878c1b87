// SPDX-License-Identifier: GPL-3.0-or-later
#include "async_process.h"

#include "shell/quiet_port.h"

#include <QPointer>
#include <QProcess>
#include <memory>

namespace tq::gui {

namespace {

// The port of the two runs: the first only notes the program asked for, the
// second hands back its result.
struct ProcessReplayPort : shell::QuietPort
{
    bool asked = false;
    QString program;
    QStringList args;
    std::optional<ProcessResult> result;

    std::optional<ProcessResult>
    runProcess(std::string_view p, const std::vector<std::string>& a, int /*timeoutMs*/) override
    {
        if (asked)
            return result;
        asked = true;
        program = QString::fromUtf8(p.data(), static_cast<qsizetype>(p.size()));
        for (const auto& arg : a)
            args << QString::fromStdString(arg);
        return std::nullopt;
    }
};

} // namespace

void RunStepWithoutWaiting(QObject* context, std::function<void(UiPort&)> step, std::function<void()> done)
{
    auto port = std::make_shared<ProcessReplayPort>();
    step(*port);
    if (!port->asked) {
        done();
        return;
    }
    auto* process = new QProcess; // no parent: it deletes itself when it ends
    process->setProcessChannelMode(QProcess::MergedChannels);
    QPointer<QObject> alive = context;
    auto finish = [=](std::optional<ProcessResult> result) {
        process->deleteLater();
        if (!alive)
            return;
        port->result = std::move(result);
        step(*port);
        done();
    };
    QObject::connect(process, &QProcess::finished, process, [=](int code, QProcess::ExitStatus status) {
        ProcessResult r;
        r.exitCode = status == QProcess::NormalExit ? code : -1;
        r.output = process->readAll().toStdString();
        finish(r);
    });
    QObject::connect(process, &QProcess::errorOccurred, process, [=](QProcess::ProcessError e) {
        if (e == QProcess::FailedToStart)
            finish(std::nullopt);
    });
    process->start(port->program, port->args);
}

} // namespace tq::gui
