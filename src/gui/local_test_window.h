// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/ui_port.h"
#include "session.h"

#include <QElapsedTimer>
#include <QSet>
#include <QString>
#include <QWidget>
#include <memory>

class QLabel;
class QListWidget;
class QProcess;
class QTemporaryDir;
class QTextBrowser;
class QTimer;
class QWebEngineView;

namespace tq::gui {

/// "Test locally": the current project built into a temporary folder and
/// served by PHP's built-in server on 127.0.0.1, the form in a browser view
/// and every mail the script sends in a side panel (recipients, subject,
/// headers, body). The error and download pages show as a visitor sees them.
class LocalTestWindow : public QWidget
{
    Q_OBJECT
  public:
    explicit LocalTestWindow(QWidget* parent = nullptr);
    ~LocalTestWindow() override;

    /// Builds the project of `session` (its entries, not the user's output
    /// files) and serves it: the server of the last start, when it still
    /// runs, serves the new build at once. Without php it explains how to get
    /// it. The build's messages go to `ui`. False when nothing is served.
    bool start(const Session& session, UiPort& ui);
    /// Stops the server (without waiting for it to end) and removes the
    /// temporary folder.
    void stop();

    /// The program started as PHP; "php" on the PATH unless a test sets another.
    QString phpProgram = "php";

    QString url() const { return m_url; }
    /// The folder the caught mails land in; empty while nothing is served.
    QString mailFolder() const;
    QWebEngineView* view() const { return m_view; }
    QListWidget* mailList() const { return m_mails; }
    QTextBrowser* mailDetails() const { return m_details; }
    /// Looks for mails that arrived since the last look (a timer does it too).
    void pollMails();

  private:
    void showMail(int row);
    void probeServer();
    void serverReady();
    void clearLastTest();

    std::unique_ptr<QTemporaryDir> m_root;
    QProcess* m_server = nullptr;
    QTimer* m_poll = nullptr;
    QWebEngineView* m_view = nullptr;
    QLabel* m_address = nullptr;
    QListWidget* m_mails = nullptr;
    QTextBrowser* m_details = nullptr;
    QStringList m_mailTexts;
    QSet<QString> m_seen;
    QString m_url;
    QString m_serverProgram; // the php that serves
    UiPort* m_ui = nullptr;  // the port of the last start, for the wait's end
    int m_port = 0;
    QElapsedTimer m_waited;
};

} // namespace tq::gui
