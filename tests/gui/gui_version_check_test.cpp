// SPDX-License-Identifier: GPL-3.0-or-later
// The version check through the Qt port against a loopback HTTP server.
#include "gui_test_support.h"
#include "qt_port.h"
#include "shell/version_check.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

namespace {

/// Answers every request with `body` as a plain text document.
class TinyHttpServer : public QTcpServer
{
  public:
    QByteArray body;

  protected:
    void incomingConnection(qintptr handle) override
    {
        auto* sock = new QTcpSocket(this);
        sock->setSocketDescriptor(handle);
        connect(sock, &QTcpSocket::readyRead, sock, [this, sock] {
            if (!sock->readAll().contains("\r\n\r\n"))
                return;
            sock->write("HTTP/1.0 200 OK\r\nContent-Type: text/plain\r\nContent-Length: " +
                        QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
            sock->disconnectFromHost();
        });
    }
};

QString RunCheck(const QString& url, QMessageBox::StandardButton press = QMessageBox::Ok)
{
    tq::gui::QtPort port(nullptr);
    return tq::gui::test::AnswerBox(
        [&] { tq::shell::CheckForUpdate(port, url.toStdString(), "http://127.0.0.1:9/none", 3000); }, press);
}

} // namespace

class VersionCheckGuiTest : public QObject
{
    Q_OBJECT
  private slots:
    void answersEachOutcomeOfTheServer()
    {
        TinyHttpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        QString url = QString("http://127.0.0.1:%1/tarnquill/download/revision.txt").arg(server.serverPort());
        const QString report = "Current version : 2.00.0002\nLatest Version    : ";
        const QString offer = "\n\nA new version is available. Would you like to download the new version?\n\n"
                              "Note: Exit Tarnquill before installing the new version of Tarnquill";
        server.body = "2.00.0002";
        QCOMPARE(RunCheck(url), "VERSION UP TO DATE: " + report + "2.00.0002\n\nYou have the latest version");
        server.body = "2.00.0003";
        QCOMPARE(RunCheck(url, QMessageBox::No), "DOWNLOAD NEW VERSION: " + report + "2.00.0003" + offer);
        // the comparison is exact: a line end after the number is a different text
        server.body = "2.00.0002\r\n";
        QCOMPARE(RunCheck(url, QMessageBox::No), "DOWNLOAD NEW VERSION: " + report + "2.00.0002\n" + offer);
        server.body = "";
        QCOMPARE(RunCheck(url), QString("ERROR: Cannot retrieve the revision from the website"));
        quint16 port = server.serverPort();
        server.close();
        QCOMPARE(RunCheck(QString("http://127.0.0.1:%1/x").arg(port)),
                 QString("Tarnquill: Cannot retrieve revision. Web Server may be down"));
    }
};

QTEST_MAIN(VersionCheckGuiTest)
#include "gui_version_check_test.moc"
