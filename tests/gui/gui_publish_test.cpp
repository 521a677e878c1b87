// SPDX-License-Identifier: GPL-3.0-or-later
// Publishing from the desktop program against a real FTP server and php -S on
// 127.0.0.1: the site dialog stores a target and tests the login, the
// publish dialog sends the built script off the window's thread with its
// bytes shown, checks that PHP runs it, sends nothing the second time, and a
// cancelled or cut transfer leaves the file on the server as it was.
#include "final_page.h"
#include "gui_test_support.h"
#include "main_window.h"
#include "publish_dialog.h"
#include "qt_keyring.h"
#include "session.h"
#include "shell/instructions.h"
#include "site_dialog.h"
#include "store/site_store.h"
#include "store/text_file.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

using namespace tq::gui;

namespace {

constexpr const char* kUser = "gui";
constexpr const char* kSecret = "gui-secret-7";

/// The system's python, which has pyftpdlib from the distribution.
QString Python()
{
    return QFile::exists("/usr/bin/python3") ? QString("/usr/bin/python3") : QString("python3");
}

quint16 FreePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost, 0);
    return probe.serverPort();
}

bool Listening(quint16 port)
{
    for (int i = 0; i < 100; ++i) {
        QTcpSocket s;
        s.connectToHost(QHostAddress::LocalHost, port);
        if (s.waitForConnected(100))
            return true;
        QTest::qWait(50);
    }
    return false;
}

/// A plain FTP server (the publishing tests' own, which can cut an upload
/// half way) serving `root`, and php -S serving the same folder.
struct Servers
{
    QTemporaryDir dir;
    QString root = dir.filePath("www");
    QString cutFlag = dir.filePath("cut-next");
    quint16 ftpPort = FreePort();
    quint16 webPort = FreePort();
    QProcess ftp, web;

    bool start()
    {
        QDir().mkpath(root);
        ftp.start(Python(), {TQ_DATA_DIR "/../tests/publish/ftp_server.py", QString::number(ftpPort), root, kUser,
                             kSecret, cutFlag});
        web.start("php", {"-S", "127.0.0.1:" + QString::number(webPort), "-t", root});
        return Listening(ftpPort) && Listening(webPort);
    }
    ~Servers()
    {
        for (QProcess* p : {&ftp, &web}) {
            p->kill();
            p->waitForFinished(3000);
        }
    }
    QString url() const { return "http://127.0.0.1:" + QString::number(webPort) + "/"; }
};

template <class T> T* Child(QWidget* w, const char* name)
{
    return w->findChild<T*>(name);
}

/// Fills the site dialog with a plain FTP target on `servers`.
void FillFtpTarget(SiteDialog& d, const Servers& servers, const QString& password)
{
    Child<QComboBox>(&d, "cboProtocol")->setCurrentIndex(0);
    Child<QLineEdit>(&d, "txtHost")->setText("127.0.0.1");
    Child<QSpinBox>(&d, "spnPort")->setValue(servers.ftpPort);
    Child<QLineEdit>(&d, "txtUser")->setText(kUser);
    Child<QLineEdit>(&d, "txtPassword")->setText(password);
    Child<QLineEdit>(&d, "txtRemoteDir")->setText("/");
    Child<QLineEdit>(&d, "txtUrl")->setText(servers.url());
}

QByteArray Contents(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class PublishTest : public QObject
{
    Q_OBJECT
  private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable("php").isEmpty())
            QSKIP("php is not installed");
        QProcess check;
        check.start(Python(), {"-c", "import pyftpdlib"});
        if (!check.waitForFinished(10000) || check.exitCode() != 0)
            QSKIP("pyftpdlib is not installed");
    }

    void theSiteDialogStoresATargetAndTestsItsLogin()
    {
        Servers servers;
        QVERIFY(servers.start());
        test::StartedWindow app;
        QVERIFY(app.started);
        MainWindow& w = *app.w;
        SiteDialog d(w.session(), w.keyring(), 3, &w);
        d.resize(1024, 700);
        d.show();
        QCOMPARE(Child<QComboBox>(&d, "cboWebFolder")->count(), tq::store::kSiteCount);
        QCOMPARE(d.siteNumber(), 3);
        // the key file is for SFTP only
        Child<QComboBox>(&d, "cboProtocol")->setCurrentIndex(2);
        QVERIFY(Child<QLineEdit>(&d, "txtKey")->isEnabled());
        FillFtpTarget(d, servers, "wrong");
        QVERIFY(!Child<QLineEdit>(&d, "txtKey")->isEnabled());

        {
            // a missing field is told and nothing is written
            test::DialogScript script;
            script.press(QMessageBox::Ok);
            Child<QLineEdit>(&d, "txtUser")->clear();
            QVERIFY(!d.save());
            QCOMPARE(script.seen, QStringList{"UPLOAD TARGET: Give your user name on the server."});
            QVERIFY(!QFile::exists(app.data + "/sites.json"));
            Child<QLineEdit>(&d, "txtUser")->setText(kUser);
        }
        {
            // a wrong password: plain FTP is warned of, the refusal shown in the dialog
            test::DialogScript script;
            script.press(QMessageBox::Ok).press(QMessageBox::Ok);
            bool worked = true;
            d.testConnection([&](bool ok) { worked = ok; });
            QVERIFY(d.testing());
            QTRY_VERIFY_WITH_TIMEOUT(!d.testing(), 20000);
            QVERIFY(!worked);
            QVERIFY2(script.done(), qPrintable(script.seen.join(" | ")));
            QVERIFY(script.seen[0].startsWith("PLAIN FTP: "));
            QVERIFY(script.seen[1].startsWith("LOGIN FAILED: "));
            QVERIFY(Child<QLabel>(&d, "lblStatus")->text().startsWith("The connection failed"));
        }
        {
            test::DialogScript script;
            script.press(QMessageBox::Ok);
            Child<QLineEdit>(&d, "txtPassword")->setText(kSecret);
            bool worked = false;
            d.testConnection([&](bool ok) { worked = ok; });
            QTRY_VERIFY_WITH_TIMEOUT(!d.testing(), 20000);
            QVERIFY2(worked, qPrintable(Child<QLabel>(&d, "lblStatus")->text()));
            QCOMPARE(Child<QLabel>(&d, "lblStatus")->text(),
                     QString("Connected to 127.0.0.1: the login works and the folder / is there."));
        }
        test::SaveScreenshot(&d, "site_dialog");
        {
            // the password goes to the keyring; where none answers the user is told once
            test::DialogScript script;
            script.press(QMessageBox::Ok);
            QVERIFY(d.save());
            if (!w.keyring().answers())
                QCOMPARE(script.seen.value(0).section(':', 0, 0), QString("PASSWORD NOT KEPT"));
        }
        tq::store::SiteStore sites;
        std::string error;
        QVERIFY(tq::store::ReadSites(app.data.toStdString(), sites, error));
        const tq::store::SiteTarget& site = sites.sites[2];
        QVERIFY(site.set);
        QCOMPARE(site.protocol, tq::Protocol::Ftp);
        QCOMPARE(site.port, servers.ftpPort);
        QCOMPARE(site.user, std::string(kUser));
        QCOMPARE(site.remoteDir, std::string("/"));
        QCOMPARE(site.url, servers.url().toStdString());
        QVERIFY(!sites.sites[0].set && !sites.sites[3].set);
        QVERIFY(!Contents(app.data + "/sites.json").contains(kSecret));

        // the stored target comes back in a new dialog, the password field empty
        SiteDialog again(w.session(), w.keyring(), 3, &w);
        QCOMPARE(Child<QLineEdit>(&again, "txtHost")->text(), QString("127.0.0.1"));
        QCOMPARE(Child<QSpinBox>(&again, "spnPort")->value(), int(servers.ftpPort));
        QCOMPARE(Child<QLineEdit>(&again, "txtUrl")->text(), servers.url());
        QVERIFY(Child<QLineEdit>(&again, "txtPassword")->text().isEmpty());
        QVERIFY(Child<QComboBox>(&again, "cboWebFolder")->itemText(2).contains("gui@127.0.0.1"));
        Child<QComboBox>(&again, "cboWebFolder")->setCurrentIndex(0);
        QVERIFY(Child<QLineEdit>(&again, "txtHost")->text().isEmpty());
    }

    void publishSendsWhatChangedChecksItAndKeepsTheServerFileWhole()
    {
        Servers servers;
        QVERIFY(servers.start());
        test::StartedWindow app;
        QVERIFY(app.started);
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        app.put(1, 2, "Email");
        QVERIFY(!app.useWebFolder().isEmpty());
        tq::store::SiteStore sites;
        auto& site = sites.sites[1];
        site.set = true;
        site.protocol = tq::Protocol::Ftp;
        site.host = "127.0.0.1";
        site.port = servers.ftpPort;
        site.user = kUser;
        site.remoteDir = "/";
        site.url = servers.url().toStdString();
        QVERIFY(tq::store::WriteSites(app.data.toStdString(), sites));
        {
            test::DialogScript script;
            QVERIFY(test::Trigger(&w, "CreateFormOnly"));
            QVERIFY2(script.seen.isEmpty(), qPrintable(script.seen.join(" | ")));
        }
        const QString local = QString::fromStdString(w.session().build.phpPath);
        const QString name = QFileInfo(local).fileName();
        const QString remote = servers.root + "/" + name;

        PublishDialog d(w.session(), w.keyring(), tq::shell::UploadFiles(w.session()), &w);
        QCOMPARE(d.siteNumber(), 2); // the first web folder with a target
        d.resize(1024, 700);
        d.show();
        auto run = [&](QStringList answers) {
            test::DialogScript script;
            for (const QString& a : answers)
                a.isEmpty() ? script.press(QMessageBox::Ok) : script.type(a);
            std::optional<tq::publish::PublishReport> report;
            d.publish([&](const tq::publish::PublishReport& r) { report = r; });
            tq::publish::PublishReport none;
            none.failure = d.running() ? "no report within 30 s" : "the publish did not start";
            (void)QTest::qWaitFor([&] { return report.has_value(); }, 30000);
            return std::make_pair(report.value_or(none), script.seen);
        };
        // each publish asks for the password (no keyring answers under test) and warns of plain FTP
        const bool keyring = w.keyring().answers();
        auto [first, seen] = run({kSecret, {}, {}});
        QVERIFY2(first.ok, first.failure.c_str());
        QVERIFY(first.checked);
        QCOMPARE(first.sent, 1);
        QCOMPARE(seen.value(0).section(':', 0, 0), QString("PASSWORD"));
        QVERIFY(seen.value(1).startsWith("PLAIN FTP"));
        if (!keyring)
            QVERIFY(seen.value(2).startsWith("PASSWORD NOT KEPT"));
        QCOMPARE(Contents(remote), Contents(local));
        const QString size = QLocale::c().toString(QFileInfo(local).size());
        QCOMPARE(Child<QLabel>(&d, "lblBytes")->text(), size + " of " + size + " bytes");
        QCOMPARE(Child<QProgressBar>(&d, "prgFile")->value(), Child<QProgressBar>(&d, "prgFile")->maximum());
        QVERIFY(Child<QLabel>(&d, "lblResult")->text().startsWith("Published and checked: 1 file sent, in "));
        QVERIFY(Child<QPlainTextEdit>(&d, "txtLog")->toPlainText().contains("runs " + servers.url() + name));
        test::SaveScreenshot(&d, "publish_dialog");

        // nothing changed: nothing is sent, the check runs again, and "not kept" is not said twice
        auto [second, seen2] = run({kSecret, {}});
        QVERIFY(second.ok && second.checked);
        QCOMPARE(second.sent, 0);
        QVERIFY(Child<QPlainTextEdit>(&d, "txtLog")->toPlainText().contains("unchanged " + name));
        QVERIFY2(!seen2.join("|").contains("NOT KEPT"), qPrintable(seen2.join(" | ")));

        // the server cuts the upload half way: the failure names the file and the old one stays whole
        const QByteArray old = Contents(remote);
        {
            // a script longer than the server lets through, with a digest of its own
            QFile append(local);
            QVERIFY(append.open(QIODevice::Append));
            append.write(QByteArray(8192, '\n'));
        }
        QFile(servers.cutFlag).open(QIODevice::WriteOnly);
        auto [cut, seen3] = run({kSecret, {}, {}});
        QVERIFY(!cut.ok);
        QVERIFY(seen3.value(2).startsWith("PUBLISH FAILED: " + name + " was not published"));
        QVERIFY(Child<QLabel>(&d, "lblResult")->text().startsWith("Not published: " + name + " was not published"));
        QVERIFY(!QFile::exists(servers.cutFlag));
        QCOMPARE(Contents(remote), old);

        {
            // Cancel before the first piece goes: the file on the server stays as it was too
            test::DialogScript script;
            script.type(kSecret).press(QMessageBox::Ok);
            std::optional<tq::publish::PublishReport> cancelled;
            d.publish([&](const tq::publish::PublishReport& r) { cancelled = r; });
            QCOMPARE(Child<QPushButton>(&d, "btnClose")->text(), QString("Cancel"));
            Child<QPushButton>(&d, "btnClose")->click(); // Cancel does not close the dialog under way
            QVERIFY(d.isVisible());
            QTRY_VERIFY_WITH_TIMEOUT(cancelled.has_value(), 30000);
            QVERIFY(!cancelled->ok);
            QVERIFY(cancelled->failure.starts_with("Cancelled while sending " + name.toStdString()));
            QCOMPARE(Child<QLabel>(&d, "lblFile")->text(), QString("Cancelled"));
            QCOMPARE(Contents(remote), old);
            QVERIFY(QDir(servers.root).entryList(QDir::Files | QDir::Hidden).filter(".part").isEmpty());
        }

        // and the next publish sends it
        auto [last, seen4] = run({kSecret, {}});
        QVERIFY2(last.ok, last.failure.c_str());
        QCOMPARE(Contents(remote), Contents(local));
    }

    /// The time from the Publish button to "published and checked" on an SFTP
    /// server that tests/publish/run.sh starts and names in TQ_SFTP_TARGET
    /// ("port|user|key file|remote folder|web address|known_hosts"); skipped without it.
    void timedPublishToSftp()
    {
        const QStringList target = qEnvironmentVariable("TQ_SFTP_TARGET").split('|');
        if (target.size() != 6)
            QSKIP("TQ_SFTP_TARGET names no SFTP server");
        test::StartedWindow app;
        QVERIFY(app.started);
        MainWindow& w = *app.w;
        app.put(1, 1, "Name");
        app.put(1, 2, "Email");
        QVERIFY(!app.useWebFolder().isEmpty());
        {
            // the target set up in the dialog; the unknown host key is shown and trusted only on Yes
            SiteDialog sites(w.session(), w.keyring(), 1, &w);
            sites.show();
            Child<QComboBox>(&sites, "cboProtocol")->setCurrentIndex(2);
            Child<QLineEdit>(&sites, "txtHost")->setText("127.0.0.1");
            Child<QSpinBox>(&sites, "spnPort")->setValue(target[0].toInt());
            Child<QLineEdit>(&sites, "txtUser")->setText(target[1]);
            Child<QLineEdit>(&sites, "txtKey")->setText(target[2]);
            Child<QLineEdit>(&sites, "txtRemoteDir")->setText(target[3]);
            Child<QLineEdit>(&sites, "txtUrl")->setText(target[4]);
            for (auto answer : {QMessageBox::No, QMessageBox::Yes}) {
                test::DialogScript script;
                script.press(answer);
                if (answer == QMessageBox::No)
                    script.press(QMessageBox::Ok);
                bool worked = false;
                sites.testConnection([&](bool ok) { worked = ok; });
                QTRY_VERIFY_WITH_TIMEOUT(!sites.testing(), 20000);
                QVERIFY2(script.done(), qPrintable(script.seen.join(" | ")));
                QVERIFY(script.seen[0].startsWith("UNKNOWN HOST KEY: "));
                QVERIFY(script.seen[0].contains("SHA256:"));
                QCOMPARE(worked, answer == QMessageBox::Yes);
                if (!worked)
                    QVERIFY(script.seen[1].startsWith("NOT TRUSTED: "));
            }
            // the key kept is the server's own
            const QByteArray key = Contents(target[5]).split('\n').value(0).split(' ').value(2);
            QVERIFY(!key.isEmpty());
            QVERIFY(Contents(app.data + "/known_hosts").contains(key));
            test::DialogScript quiet;
            QVERIFY(sites.save());
            QVERIFY2(quiet.seen.isEmpty(), qPrintable(quiet.seen.join(" | ")));
        }
        {
            test::DialogScript script;
            QVERIFY(test::Trigger(&w, "CreateFormOnly"));
            QVERIFY2(script.seen.isEmpty(), qPrintable(script.seen.join(" | ")));
        }
        PublishDialog d(w.session(), w.keyring(), tq::shell::UploadFiles(w.session()), &w);
        d.show();
        auto* result = Child<QLabel>(&d, "lblResult");
        for (const char* round : {"first", "second", "every file again"}) {
            Child<QCheckBox>(&d, "chkAll")->setChecked(QString(round) == "every file again");
            test::DialogScript script; // a key and a known host: no question at all
            QElapsedTimer clock;
            clock.start();
            QTest::mouseClick(Child<QPushButton>(&d, "btnPublish"), Qt::LeftButton);
            QTRY_VERIFY_WITH_TIMEOUT(!d.running() && !result->text().isEmpty(), 30000);
            const qint64 ms = clock.elapsed();
            QVERIFY2(result->text().startsWith("Published and checked"), qPrintable(result->text()));
            QVERIFY2(script.seen.isEmpty(), qPrintable(script.seen.join(" | ")));
            const QString log = Child<QPlainTextEdit>(&d, "txtLog")->toPlainText();
            qInfo("%s publish, button to published and checked: %lld ms (%s)", round, ms,
                  qPrintable(log.split('\n').join("; ")));
            if (QString(round) == "second")
                QVERIFY2(!log.contains("sent "), qPrintable(log));
        }
    }

    void thePublishCommandsOpenTheirDialogs()
    {
        test::StartedWindow app;
        QVERIFY(app.started);
        MainWindow& w = *app.w;
        QStringList opened;
        auto note = [&opened](QWidget* dialog) {
            opened << dialog->objectName();
            static_cast<QDialog*>(dialog)->reject();
        };
        {
            test::DialogScript script;
            script.then(note).then(note).then(note);
            QVERIFY(test::Trigger(&w, "UploadTargets"));
            w.finalPage();
            w.showView(tq::View::FinalPage);
            QVERIFY(test::Trigger(w.finalPage(), "Publish"));
            w.finalPage()->findChild<QPushButton*>("PublishButton")->click();
            QCOMPARE(opened, (QStringList{"SiteDialog", "PublishDialog", "PublishDialog"}));
        }

        // before a build there is nothing to send, and the dialog says so
        tq::store::SiteStore sites;
        sites.sites[0] = {true, tq::Protocol::Sftp, "127.0.0.1", 1, "u", "/key", "/", "http://127.0.0.1:1/", {}, {}};
        QVERIFY(tq::store::WriteSites(app.data.toStdString(), sites));
        PublishDialog d(w.session(), w.keyring(), {}, &w);
        test::DialogScript none;
        none.press(QMessageBox::Ok);
        std::optional<tq::publish::PublishReport> report;
        d.publish([&](const tq::publish::PublishReport& r) { report = r; });
        QTRY_VERIFY_WITH_TIMEOUT(report.has_value(), 10000);
        QVERIFY(!report->ok);
        QCOMPARE(report->failure, std::string("There is nothing to publish yet: build the form first."));
        QCOMPARE(none.seen, QStringList{"PUBLISH FAILED: There is nothing to publish yet: build the form first."});
    }
};

QTEST_MAIN(PublishTest)
#include "gui_publish_test.moc"
