// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "off_thread.h"
#include "port/keyring_port.h"
#include "qt_port.h"
#include "store/site_store.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace tq {
struct Session;
}

namespace tq::gui {

/// The upload targets of the 15 web folders of the Setup page: protocol,
/// host, port, user, password (kept in the keyring) or SFTP key, remote
/// folder and the page's web address, with a Test connection button that
/// logs in off the window's thread. The sites file is written on Save only.
class SiteDialog : public QDialog
{
    Q_OBJECT
  public:
    SiteDialog(Session& s, KeyringPort& keyring, int siteNumber, QWidget* parent = nullptr);

    /// The web folder on show, 1 to 15.
    int siteNumber() const;
    /// The target as the fields stand; `error` says what is missing.
    store::SiteTarget fieldsTarget(std::string& error) const;
    /// Writes the target of the fields; false (told) when a field is missing or the file cannot be written.
    bool save();
    /// Logs in with the fields off the window's thread; `done` is told whether it worked.
    void testConnection(std::function<void(bool)> done = {});
    bool testing() const { return m_testing; }

  protected:
    void reject() override;

  private:
    void showSite(int number);
    void protocolChanged();
    void setTesting(bool on);

    Session& m_session;
    KeyringPort& m_keyring;
    QtPort m_port;
    WindowThreadPort m_threadPort;
    store::SiteStore m_sites;
    bool m_readable = true;
    bool m_testing = false;
    std::string m_trustedHost; // the host whose certificate a test trusted
    std::string m_trustedPin;

    QComboBox* m_folder = nullptr;
    QComboBox* m_protocol = nullptr;
    QLineEdit* m_host = nullptr;
    QSpinBox* m_portBox = nullptr;
    QLineEdit* m_user = nullptr;
    QLineEdit* m_password = nullptr;
    QLineEdit* m_key = nullptr;
    QPushButton* m_keyButton = nullptr;
    QLineEdit* m_remoteDir = nullptr;
    QLineEdit* m_url = nullptr;
    QLabel* m_status = nullptr;
    QPushButton* m_test = nullptr;
    QPushButton* m_save = nullptr;
};

/// "N  <menu name>  <web folder>" for each of the 15 rows of the Setup page.
QStringList WebFolderCaptions(const Session& s, const store::SiteStore& sites);

} // namespace tq::gui
