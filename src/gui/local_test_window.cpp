// SPDX-License-Identifier: GPL-3.0-or-later
#include "local_test_window.h"

#include "compose/build_driver.h"
#include "shell/local_test.h"
#include "wait_timings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHostAddress>
#include <QLabel>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QQuickWidget>
#include <QSplitter>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineView>

#ifdef __linux__
#include <csignal>
#include <sys/prctl.h>
#endif

namespace tq::gui {

namespace {

// The build of a local test: messages and questions reach the user, but the
// shell's navigation stays where it is, and the questions about files that
// exist (in a folder that was just made) are answered so that nothing stops.
class LocalBuildPort : public UiPort
{
  public:
    explicit LocalBuildPort(UiPort& ui) : m_ui(ui) {}
    void message(std::string_view text, std::string_view title, Icon icon) override { m_ui.message(text, title, icon); }
    Answer ask(std::string_view text, std::string_view title, Buttons buttons, Icon icon, int def) override
    {
        if (title == "EDIT SETUP")
            return Answer::No;
        if (title == "Duplicate File")
            return Answer::Yes;
        return m_ui.ask(text, title, buttons, icon, def);
    }
    std::optional<std::string> inputBox(std::string_view p, std::string_view t, std::string_view i) override
    {
        return m_ui.inputBox(p, t, i);
    }
    std::optional<std::string> openFileDialog(const FileDialogOptions& s) override { return m_ui.openFileDialog(s); }
    std::optional<std::string> saveFileDialog(const FileDialogOptions& s) override { return m_ui.saveFileDialog(s); }
    std::optional<std::string> browseForFolder(std::string_view t, std::string_view i) override
    {
        return m_ui.browseForFolder(t, i);
    }
    std::optional<long> chooseColor(long c, std::string_view title) override { return m_ui.chooseColor(c, title); }
    void setBusy(bool on) override { m_ui.setBusy(on); }

  private:
    UiPort& m_ui;
};

int FreePort()
{
    QTcpServer probe;
    if (!probe.listen(QHostAddress::LocalHost, 0))
        return 0;
    return probe.serverPort();
}

// How long PHP may take to listen, and the pause between two looks.
constexpr int kServerWaitMs = 5000;
constexpr int kProbeIntervalMs = 10;
// How long PHP has to end once told to, before it is killed.
constexpr int kServerEndMs = 3000;

// Text for the panel: the mail's CR LF become plain line ends, so that the
// body reads as the recipient's mail program shows it.
QString Escaped(const std::string& s)
{
    return QString::fromStdString(s).replace("\r\n", "\n").replace('\r', '\n').toHtmlEscaped();
}

// The page the script sends the visitor to when it is one of the user's own
// files: it is not part of the build, so a stand-in says where the visitor is.
void WriteCompletedStandIn(const QString& site, const std::string& completed)
{
    const QString name = QString::fromStdString(completed).trimmed();
    if (name.isEmpty() || name.contains("://") || name.contains('/') || name.contains('\\') || name.startsWith('.'))
        return;
    QFile page(site + "/" + name);
    if (page.exists() || !page.open(QIODevice::WriteOnly))
        return;
    page.write(QString("<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>%1</title></head>"
                       "<body style=\"font-family: sans-serif; margin: 40px; color: #333\">"
                       "<h2>The form was sent</h2><p>On your web site the visitor now sees your page "
                       "<b>%1</b>. It is not part of this local test.</p>"
                       "<p>The mail the script sent is shown on the right.</p></body></html>")
                   .arg(name.toHtmlEscaped())
                   .toUtf8());
}

QString MailHtml(const shell::CapturedMail& m)
{
    QString html = "<h3 style='margin:0 0 6px 0'>" + Escaped(m.subject.empty() ? "(no subject)" : m.subject) + "</h3>";
    html += "<p style='margin:0 0 8px 0'><b>To:</b> " + Escaped(m.to) + "</p>";
    html += "<p style='margin:8px 0 2px 0; color:#555'><b>Headers</b></p><pre>";
    for (const auto& h : m.headers)
        html += Escaped(h) + "\n";
    html += "</pre><p style='margin:8px 0 2px 0; color:#555'><b>Body</b></p><pre>" + Escaped(m.body) + "</pre>";
    return html;
}

} // namespace

LocalTestWindow::LocalTestWindow(QWidget* parent) : QWidget(parent, Qt::Window)
{
    setObjectName("LocalTestWindow");
    setWindowTitle("Tarnquill - Test Locally");
    resize(1280, 820);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);

    auto* top = new QHBoxLayout;
    m_address = new QLabel("Not serving");
    m_address->setObjectName("LocalTestAddress");
    m_address->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* reload = new QPushButton("Back to the Form");
    reload->setObjectName("LocalTestReload");
    auto* close = new QPushButton("Stop and Close");
    close->setObjectName("LocalTestClose");
    top->addWidget(m_address, 1);
    top->addWidget(reload);
    top->addWidget(close);
    layout->addLayout(top);

    auto* split = new QSplitter(Qt::Horizontal);
    // The browser paints through a texture, which the window's surface must
    // be made for before it first shows: else the window is taken down and
    // made again when the first page loads.
    auto* textureSurface = new QQuickWidget(this);
    textureSurface->hide();
    m_view = new QWebEngineView;
    m_view->setObjectName("LocalTestView");
    split->addWidget(m_view);

    auto* panel = new QWidget;
    panel->setObjectName("MailPanel");
    auto* pl = new QVBoxLayout(panel);
    pl->setContentsMargins(6, 0, 0, 0);
    auto* head = new QLabel("Mails sent by the script");
    head->setStyleSheet("font-weight: 700; font-size: 14px;");
    auto* hint = new QLabel("Nothing leaves this computer: each mail the script sends is caught and listed here.");
    hint->setWordWrap(true);
    hint->setStyleSheet("color: #555;");
    m_mails = new QListWidget;
    m_mails->setObjectName("MailList");
    m_details = new QTextBrowser;
    m_details->setObjectName("MailDetails");
    pl->addWidget(head);
    pl->addWidget(hint);
    pl->addWidget(m_mails, 1);
    pl->addWidget(m_details, 3);
    split->addWidget(panel);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 2);
    split->setSizes({760, 500});
    m_mails->setWordWrap(true);
    layout->addWidget(split, 1);

    m_poll = new QTimer(this);
    m_poll->setInterval(250);
    connect(m_poll, &QTimer::timeout, this, &LocalTestWindow::pollMails);
    connect(m_mails, &QListWidget::currentRowChanged, this, &LocalTestWindow::showMail);
    connect(m_view, &QWebEngineView::loadFinished, this, [] { NoteWait("form loaded"); });
    connect(reload, &QPushButton::clicked, this, [this] {
        if (!m_url.isEmpty())
            m_view->load(QUrl(m_url));
    });
    connect(close, &QPushButton::clicked, this, [this] {
        stop();
        hide();
    });
}

LocalTestWindow::~LocalTestWindow()
{
    stop();
}

bool LocalTestWindow::start(const Session& session, UiPort& ui)
{
    StartWait("test locally");
    const QFileInfo given(phpProgram);
    const QString php = given.isAbsolute() ? (given.isExecutable() ? phpProgram : QString())
                                           : QStandardPaths::findExecutable(phpProgram);
    if (php.isEmpty()) {
        stop();
        ui.message(shell::kNoPhpText, "PHP IS NOT INSTALLED", Icon::Information);
        return false;
    }

    // A server still running from the last test serves this one too: its
    // folder is emptied and built into again, and PHP need not start anew.
    const bool warm =
        m_server && m_server->state() == QProcess::Running && m_root && m_serverProgram == php && m_poll->isActive();
    if (warm) {
        clearLastTest();
    } else {
        stop();
        m_root = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/tarnquill-test-XXXXXX");
        if (!m_root->isValid()) {
            ui.message("A temporary folder for the local test could not be made: " +
                           m_root->errorString().toStdString(),
                       "TEST LOCALLY", Icon::Exclamation);
            m_root.reset();
            return false;
        }
    }
    const QString site = m_root->filePath("site");
    const QString mail = m_root->filePath("mail");
    QDir().mkpath(site);
    QDir().mkpath(mail);

    // the project is built as it stands into the temporary site; the user's own output stays untouched
    auto copy = std::make_unique<Session>();
    copy->store = session.store;
    copy->settings = session.settings;
    copy->catalogue = session.catalogue;
    copy->setup = session.setup;
    copy->run = session.run;
    copy->DataFolder = session.DataFolder;
    bool found = false;
    auto& setupText = copy->store.pages[0][0].AttributeText;
    setupText = shell::PointProjectAt(setupText, site.toStdString(), found);
    if (!found) {
        ui.message("The SetupEntry holds no [DRIVE FOLDER PATH= to build into.", "TEST LOCALLY", Icon::Exclamation);
        stop();
        return false;
    }
    LocalBuildPort buildPort(ui);
    compose::CreateFormHTMLCode(*copy, buildPort);
    const auto& b = copy->build;
    if (b.buildError != 0 || b.setupHold || b.cancelled || b.endProgram || b.htmlPath.empty()) {
        stop();
        return false;
    }
    NoteWait("built");

    WriteCompletedStandIn(site, b.setupValues.COMPLETED);
    const QString page = QFileInfo(QString::fromStdString(b.htmlPath)).fileName();
    m_ui = &ui;
    if (warm) {
        m_url = "http://127.0.0.1:" + QString::number(m_port) + "/" + page;
        serverReady();
        return true;
    }

    const QString capture = m_root->filePath("mail-capture.sh");
    QFile script(capture);
    if (script.open(QIODevice::WriteOnly)) {
        script.write(QByteArray::fromStdString(shell::MailCaptureScript(mail.toStdString())));
        script.close();
    }
    script.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);

    const int port = FreePort();
    const QString address = QString("127.0.0.1:%1").arg(port);
    QStringList args;
    for (const auto& a : shell::LocalServerArgs(address.toStdString(), site.toStdString(), capture.toStdString()))
        args << QString::fromStdString(a);
    m_server = new QProcess(this);
    m_server->setProcessChannelMode(QProcess::MergedChannels);
    m_server->setStandardOutputFile(QProcess::nullDevice());
#ifdef __linux__
    // PHP ends with the program, even when the program itself is killed
    m_server->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
#endif
    m_server->start(php, args);
    m_serverProgram = php;

    m_url = "http://" + address + "/" + page;
    m_address->setText("Starting PHP for <b>" + page.toHtmlEscaped() + "</b> at " + m_url);
    // The form is loaded once PHP takes connections; the wait runs on the
    // event loop, so the windows stay live and paint meanwhile.
    m_port = port;
    ui.setBusy(true);
    m_waited.start();
    probeServer();
    return true;
}

void LocalTestWindow::clearLastTest()
{
    // what the last build and its visitors left: the site's files and the caught mails
    m_poll->stop();
    QDir(m_root->filePath("site")).removeRecursively();
    QDir mails(m_root->filePath("mail"));
    for (const QString& name : mails.entryList(QDir::Files))
        mails.remove(name);
    m_seen.clear();
    m_mailTexts.clear();
    m_mails->clear();
    m_details->clear();
}

void LocalTestWindow::probeServer()
{
    if (!m_server)
        return;
    if (m_server->state() == QProcess::NotRunning || m_waited.elapsed() > kServerWaitMs) {
        m_ui->setBusy(false);
        const std::string address = "127.0.0.1:" + std::to_string(m_port);
        m_ui->message("PHP could not serve the form on " + address + ".", "TEST LOCALLY", Icon::Exclamation);
        stop();
        hide();
        return;
    }
    auto* socket = new QTcpSocket(this);
    QProcess* server = m_server;
    connect(socket, &QTcpSocket::connected, this, [this, socket, server] {
        socket->deleteLater();
        if (server == m_server) {
            NoteWait("server listens");
            m_ui->setBusy(false);
            serverReady();
        }
    });
    connect(socket, &QTcpSocket::errorOccurred, this, [this, socket, server] {
        socket->deleteLater();
        if (server == m_server)
            QTimer::singleShot(kProbeIntervalMs, this, &LocalTestWindow::probeServer);
    });
    socket->connectToHost(QHostAddress::LocalHost, static_cast<quint16>(m_port));
}

void LocalTestWindow::serverReady()
{
    const QString page = QUrl(m_url).fileName();
    m_address->setText("Serving <b>" + page.toHtmlEscaped() + "</b> at <a href='" + m_url + "'>" + m_url +
                       "</a> &nbsp; (PHP on this computer, mails are caught)");
    m_view->load(QUrl(m_url));
    m_poll->start();
}

QString LocalTestWindow::mailFolder() const
{
    return m_root ? m_root->filePath("mail") : QString();
}

void LocalTestWindow::stop()
{
    if (m_poll)
        m_poll->stop();
    if (m_server) {
        if (m_ui && m_poll && !m_poll->isActive())
            m_ui->setBusy(false); // stopped while it waited for PHP
        // the window does not wait for PHP to end: it goes away on its own
        QProcess* server = m_server;
        m_server = nullptr;
        connect(server, &QProcess::finished, server, &QObject::deleteLater);
        QTimer::singleShot(kServerEndMs, server, [server] { server->kill(); });
        server->terminate();
    }
    m_serverProgram.clear();
    m_root.reset();
    m_url.clear();
    m_seen.clear();
    m_mailTexts.clear();
    if (m_mails)
        m_mails->clear();
    if (m_details)
        m_details->clear();
    if (m_address)
        m_address->setText("Not serving");
}

void LocalTestWindow::pollMails()
{
    if (!m_root)
        return;
    QDir dir(m_root->filePath("mail"));
    const QStringList names = dir.entryList({"mail-*"}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        if (m_seen.contains(name))
            continue;
        QFile f(dir.filePath(name));
        if (!f.open(QIODevice::ReadOnly))
            continue;
        m_seen.insert(name);
        const QByteArray bytes = f.readAll();
        const shell::CapturedMail m = shell::ParseCapturedMail(bytes.toStdString());
        m_mailTexts << MailHtml(m);
        auto* item =
            new QListWidgetItem(QString("%1. %2\n    to %3")
                                    .arg(m_mailTexts.size())
                                    .arg(QString::fromStdString(m.subject.empty() ? "(no subject)" : m.subject))
                                    .arg(QString::fromStdString(m.to)));
        m_mails->addItem(item);
        m_mails->setCurrentRow(m_mails->count() - 1);
    }
}

void LocalTestWindow::showMail(int row)
{
    if (row >= 0 && row < m_mailTexts.size())
        m_details->setHtml(m_mailTexts[row]);
}

} // namespace tq::gui
