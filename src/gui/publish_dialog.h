// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "off_thread.h"
#include "port/keyring_port.h"
#include "publish/publish.h"
#include "qt_port.h"

#include <QDialog>
#include <QElapsedTimer>
#include <atomic>
#include <functional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

namespace tq {
struct Session;
}

namespace tq::gui {

/// Publishes the last build to the upload target of a web folder: the files
/// go up off the window's thread with their names and bytes on a progress
/// bar; Cancel stops between two pieces of a file (the file on the server
/// stays as it was); the result and the web check are shown at the end.
class PublishDialog : public QDialog
{
    Q_OBJECT
  public:
    /// `uploads`: the files of the final page's list (empty before a build).
    PublishDialog(Session& s, KeyringPort& keyring, std::vector<std::string> uploads, QWidget* parent = nullptr);

    /// The web folder chosen, 1 to 15.
    int siteNumber() const;
    void setSiteNumber(int number);
    /// Starts the publish; `done` is called on the window's thread with its report.
    void publish(std::function<void(const publish::PublishReport&)> done = {});
    bool running() const { return m_running; }
    /// Asks the publish under way to stop.
    void cancel();
    /// Seconds from the start of the last publish to its report.
    double lastSeconds() const { return m_seconds; }

  protected:
    void reject() override;

  private:
    void reloadSites();
    void setRunning(bool on);
    void showProgress(const QString& name, quint64 sent, quint64 total);
    void showReport(const publish::PublishReport& report);

    Session& m_session;
    KeyringPort& m_keyring;
    std::vector<std::string> m_uploads;
    QtPort m_port;
    WindowThreadPort m_threadPort;
    std::atomic<bool> m_cancel{false};
    bool m_running = false;
    QElapsedTimer m_clock;
    double m_seconds = 0;

    QComboBox* m_site = nullptr;
    QCheckBox* m_all = nullptr;
    QPushButton* m_sites = nullptr;
    QPushButton* m_publish = nullptr;
    QPushButton* m_close = nullptr;
    QLabel* m_file = nullptr;
    QProgressBar* m_bar = nullptr;
    QLabel* m_bytes = nullptr;
    QPlainTextEdit* m_log = nullptr;
    QLabel* m_result = nullptr;
};

} // namespace tq::gui
