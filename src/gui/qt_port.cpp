// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt_port.h"

#include "qt_text.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QProcess>
#include <QTimer>
#include <QUrl>

namespace tq::gui {

/// The desktop's opener of documents, folders and web addresses.
static constexpr const char* kOpener = "xdg-open";

static QString ToQText(std::string_view s)
{
    return ToQ(ConvertLineBreaks(s, "\n"));
}

static QMessageBox::Icon ToQIcon(Icon icon)
{
    switch (icon) {
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

// "Form Files (*.fms) | *.fms" -> "Form Files (*.fms)"
// "Description (*.x) | pattern" pairs as Qt's filters: each description keeps
// its words and lists the pattern that follows it, so that a filter naming one
// file ("photodata.php") shows that file alone.
static QString ToQFilter(const std::string& filter)
{
    QStringList out;
    const QStringList parts = ToQ(filter).split('|');
    for (int i = 0; i < parts.size(); i += 2) {
        QString words = parts[i].trimmed();
        if (const qsizetype open = words.indexOf('('); open >= 0)
            words = words.left(open).trimmed();
        const QString pattern = i + 1 < parts.size() ? parts[i + 1].trimmed() : QString();
        out << (pattern.isEmpty() ? parts[i].trimmed() : words + " (" + pattern + ")");
    }
    return out.join(";;");
}

// The path a file dialog proposes: the name as it stands when it is already a
// full path, else the name in the folder.
static QString ProposedPath(const FileDialogOptions& options)
{
    const QString name = ToQ(options.initialName);
    if (name.isEmpty())
        return ToQ(options.initialFolder);
    if (QDir::isAbsolutePath(name) || options.initialFolder.empty())
        return name;
    return QDir(ToQ(options.initialFolder)).filePath(name);
}

void QtPort::message(std::string_view text, std::string_view title, Icon icon)
{
    QMessageBox box(ToQIcon(icon), ToQ(title), ToQText(text), QMessageBox::Ok, m_parent);
    box.exec();
}

Answer QtPort::ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int defaultButton)
{
    QMessageBox::StandardButtons set = QMessageBox::Ok;
    QList<QMessageBox::StandardButton> order{QMessageBox::Ok};
    if (buttons == Buttons::YesNo)
        order = {QMessageBox::Yes, QMessageBox::No};
    else if (buttons == Buttons::YesNoCancel)
        order = {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    set = {};
    for (auto b : order)
        set |= b;
    QMessageBox box(ToQIcon(icon), ToQ(title), ToQText(text), set, m_parent);
    if (defaultButton >= 1 && defaultButton <= order.size())
        box.setDefaultButton(order[defaultButton - 1]);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

std::optional<std::string> QtPort::inputBox(std::string_view prompt, std::string_view title, std::string_view initial)
{
    bool ok = false;
    QString s = QInputDialog::getText(m_parent, ToQ(title), ToQText(prompt), QLineEdit::Normal, ToQ(initial), &ok);
    if (!ok)
        return std::nullopt;
    return s.toStdString();
}

std::optional<std::string> QtPort::passwordBox(std::string_view prompt, std::string_view title)
{
    bool ok = false;
    QString s = QInputDialog::getText(m_parent, ToQ(title), ToQText(prompt), QLineEdit::Password, {}, &ok);
    if (!ok)
        return std::nullopt;
    return s.toStdString();
}

std::optional<std::string> QtPort::openFileDialog(const FileDialogOptions& options)
{
    QString f =
        QFileDialog::getOpenFileName(m_parent, ToQ(options.title), ProposedPath(options), ToQFilter(options.filter));
    if (f.isEmpty())
        return std::nullopt;
    return f.toStdString();
}

std::optional<std::string> QtPort::saveFileDialog(const FileDialogOptions& options)
{
    QString f = QFileDialog::getSaveFileName(m_parent, ToQ(options.title), ProposedPath(options),
                                             ToQFilter(options.filter), nullptr, QFileDialog::DontConfirmOverwrite);
    if (f.isEmpty())
        return std::nullopt;
    return f.toStdString();
}

std::optional<std::string> QtPort::browseForFolder(std::string_view title, std::string_view initial)
{
    QString f = QFileDialog::getExistingDirectory(m_parent, ToQ(title), ToQ(initial));
    if (f.isEmpty())
        return std::nullopt;
    return f.toStdString();
}

std::optional<long> QtPort::chooseColor(long initial, std::string_view title)
{
    QColor start(static_cast<int>(initial & 0xff), static_cast<int>((initial >> 8) & 0xff),
                 static_cast<int>((initial >> 16) & 0xff));
    QColor c = QColorDialog::getColor(start, m_parent, ToQ(title));
    if (!c.isValid())
        return std::nullopt;
    return static_cast<long>(c.red()) | (static_cast<long>(c.green()) << 8) | (static_cast<long>(c.blue()) << 16);
}

// how long the busy pointer stands before a progress line joins it
static constexpr int kLongWaitMs = 500;

QtPort::QtPort(QWidget* parent) : m_parent(parent)
{
    m_longWait = new QTimer;
    m_longWait->setSingleShot(true);
    m_longWait->setInterval(kLongWaitMs);
    QObject::connect(m_longWait, &QTimer::timeout, [this] {
        if (m_busy && onLongWait)
            onLongWait(true);
    });
}

QtPort::~QtPort()
{
    delete m_longWait;
}

void QtPort::setBusy(bool on)
{
    // a mark, not a count: the core may clear it more often than it sets it
    if (on == m_busy)
        return;
    m_busy = on;
    if (on) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        m_longWait->start();
    } else {
        QApplication::restoreOverrideCursor();
        m_longWait->stop();
        if (onLongWait)
            onLongWait(false);
    }
}

// Tells the user that the desktop could not open `target`, naming it.
static void TellNotOpened(QWidget* parent, const QString& target)
{
    QMessageBox box(QMessageBox::Warning, "NOT OPENED",
                    "Tarnquill could not open\n" + target +
                        "\n\nThis desktop has no program for it, or the program failed to start.",
                    QMessageBox::Ok, parent);
    box.setObjectName("NotOpenedBox");
    box.exec();
}

bool QtPort::openTarget(std::string_view target)
{
    const QString t = ToQ(target);
    const QUrl url = t.contains("://") ? QUrl(t) : QUrl::fromLocalFile(t);
    // The desktop's opener runs on its own, so that nothing waits for it; when
    // it is missing or gives up, the user hears of it. The process has no
    // parent: closing the window must not end the program it opened.
    auto* opener = new QProcess;
    QPointer<QWidget> parent = m_parent;
    QObject::connect(opener, &QProcess::finished, opener, [opener, parent, t](int code, QProcess::ExitStatus status) {
        opener->deleteLater();
        if (status != QProcess::NormalExit || code != 0)
            TellNotOpened(parent, t);
    });
    QObject::connect(opener, &QProcess::errorOccurred, opener, [opener, parent, t](QProcess::ProcessError e) {
        if (e != QProcess::FailedToStart)
            return;
        opener->deleteLater();
        TellNotOpened(parent, t);
    });
    opener->start(QString::fromUtf8(kOpener), {url.toString()});
    return true;
}

void QtPort::setClipboard(std::string_view text)
{
    QApplication::clipboard()->setText(ToQ(text));
}

void QtPort::showView(View v)
{
    if (onShowView)
        onShowView(v);
}

void QtPort::openEditPage(int page, int row, std::string_view selectKey)
{
    if (onOpenEditPage)
        onOpenEditPage(page, row, std::string(selectKey));
}

void QtPort::selectRow(int page, int row)
{
    if (onSelectRow)
        onSelectRow(page, row);
}

void QtPort::hidePreviews()
{
    if (onHidePreviews)
        onHidePreviews();
}

void QtPort::entriesChanged()
{
    if (onEntriesChanged)
        onEntriesChanged();
}

std::optional<std::string> QtPort::httpGet(std::string_view url, int timeoutMs)
{
    QNetworkAccessManager manager;
    QNetworkRequest request(QUrl(ToQ(url)));
    request.setTransferTimeout(timeoutMs);
    QNetworkReply* reply = manager.get(request);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(timeoutMs + 1000, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    std::optional<std::string> out;
    if (reply->isFinished() && reply->error() == QNetworkReply::NoError) {
        QByteArray body = reply->readAll();
        out = std::string(body.constData(), static_cast<size_t>(body.size()));
    }
    reply->abort();
    reply->deleteLater();
    return out;
}

bool QtPort::startProgram(std::string_view program,
                          const std::vector<std::string>& args,
                          std::string_view workingFolder)
{
    QStringList list;
    for (const auto& a : args)
        list << ToQ(a);
    return QProcess::startDetached(ToQ(program), list, ToQ(workingFolder));
}

std::optional<ProcessResult>
QtPort::runProcess(std::string_view program, const std::vector<std::string>& args, int timeoutMs)
{
    QStringList list;
    for (const auto& a : args)
        list << ToQ(a);
    QProcess p;
    p.setProcessChannelMode(QProcess::MergedChannels);
    p.start(ToQ(program), list);
    if (!p.waitForStarted(timeoutMs))
        return std::nullopt;
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished(3000);
        return std::nullopt;
    }
    ProcessResult r;
    r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    r.output = p.readAll().toStdString();
    return r;
}

} // namespace tq::gui
