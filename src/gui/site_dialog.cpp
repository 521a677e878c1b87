// SPDX-License-Identifier: GPL-3.0-or-later
#include "site_dialog.h"

#include "port/curl_transfer.h"
#include "publish/site_login.h"
#include "qt_text.h"
#include "session.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>

namespace tq::gui {

namespace {

std::string Trimmed(const QLineEdit* edit)
{
    return edit->text().trimmed().toStdString();
}

const Protocol kProtocols[] = {Protocol::Ftp, Protocol::Ftps, Protocol::Sftp};

} // namespace

QStringList WebFolderCaptions(const Session& s, const store::SiteStore& sites)
{
    QStringList captions;
    for (int i = 0; i < store::kSiteCount; ++i) {
        const store::SetupRow& row = s.setup.rows[static_cast<size_t>(i)];
        QString caption = QString::number(i + 1);
        if (!row.MenuName.empty())
            caption += "  " + ToQ(row.MenuName);
        if (!row.WebFolderPath.empty())
            caption += "  " + ToQ(row.WebFolderPath);
        const store::SiteTarget& site = sites.sites[static_cast<size_t>(i)];
        caption += site.set ? "  \u2192 " + ToQ(site.user + "@" + site.host) : QString("  (no upload target)");
        captions << caption;
    }
    return captions;
}

SiteDialog::SiteDialog(Session& s, KeyringPort& keyring, int number, QWidget* parent)
    : QDialog(parent), m_session(s), m_keyring(keyring), m_port(this), m_threadPort(this, m_port)
{
    setObjectName("SiteDialog");
    setWindowTitle("Upload Targets of the Web Folders");
    std::string error;
    if (!store::ReadSites(s.DataFolder, m_sites, error)) {
        m_readable = false;
        m_port.message(error + "\r\rThe sites file is left as it is; nothing can be saved until it is mended.",
                       "SITES FILE", Icon::Exclamation);
    }

    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    m_folder = new QComboBox;
    m_folder->setObjectName("cboWebFolder");
    m_folder->addItems(WebFolderCaptions(s, m_sites));
    form->addRow("Web folder:", m_folder);
    m_protocol = new QComboBox;
    m_protocol->setObjectName("cboProtocol");
    m_protocol->addItems({"FTP (plain: the password goes as clear text)", "FTP with explicit TLS", "SFTP"});
    form->addRow("Protocol:", m_protocol);
    m_host = new QLineEdit;
    m_host->setObjectName("txtHost");
    m_host->setPlaceholderText("ftp.example.com");
    m_portBox = new QSpinBox;
    m_portBox->setObjectName("spnPort");
    m_portBox->setRange(0, 65535);
    m_portBox->setSpecialValueText("the protocol's own");
    auto* hostRow = new QHBoxLayout;
    hostRow->addWidget(m_host, 1);
    hostRow->addWidget(new QLabel("Port:"));
    hostRow->addWidget(m_portBox);
    form->addRow("Host:", hostRow);
    m_user = new QLineEdit;
    m_user->setObjectName("txtUser");
    form->addRow("User name:", m_user);
    m_password = new QLineEdit;
    m_password->setObjectName("txtPassword");
    m_password->setEchoMode(QLineEdit::Password);
    m_password->setPlaceholderText("kept in the desktop's keyring; empty: asked for when needed");
    form->addRow("Password:", m_password);
    m_key = new QLineEdit;
    m_key->setObjectName("txtKey");
    m_key->setPlaceholderText("SFTP: your private key instead of a password");
    m_keyButton = new QPushButton("Browse...");
    m_keyButton->setObjectName("btnKey");
    auto* keyRow = new QHBoxLayout;
    keyRow->addWidget(m_key, 1);
    keyRow->addWidget(m_keyButton);
    form->addRow("Key file:", keyRow);
    m_remoteDir = new QLineEdit;
    m_remoteDir->setObjectName("txtRemoteDir");
    m_remoteDir->setPlaceholderText("/var/www/forms");
    form->addRow("Remote folder:", m_remoteDir);
    m_url = new QLineEdit;
    m_url->setObjectName("txtUrl");
    m_url->setPlaceholderText("https://www.example.com/forms/");
    form->addRow("Web address of the folder:", m_url);
    layout->addLayout(form);
    layout->addStretch(1);

    m_status = new QLabel;
    m_status->setObjectName("lblStatus");
    m_status->setWordWrap(true);
    m_status->setTextFormat(Qt::PlainText);
    layout->addWidget(m_status);

    auto* buttons = new QDialogButtonBox;
    m_test = buttons->addButton("Test Connection", QDialogButtonBox::ActionRole);
    m_test->setObjectName("btnTest");
    m_save = buttons->addButton("Save", QDialogButtonBox::AcceptRole);
    m_save->setObjectName("btnSave");
    m_save->setEnabled(m_readable);
    QPushButton* close = buttons->addButton("Close", QDialogButtonBox::RejectRole);
    close->setObjectName("btnClose");
    layout->addWidget(buttons);

    connect(m_folder, &QComboBox::currentIndexChanged, this, [this](int i) { showSite(i + 1); });
    connect(m_protocol, &QComboBox::currentIndexChanged, this, [this] { protocolChanged(); });
    connect(m_keyButton, &QPushButton::clicked, this, [this] {
        if (auto path = m_port.openFileDialog({"SFTP Key File", "", Trimmed(m_key), "All files (*) | *"}))
            m_key->setText(ToQ(*path));
    });
    connect(m_test, &QPushButton::clicked, this, [this] { testConnection(); });
    connect(m_save, &QPushButton::clicked, this, [this] {
        if (save())
            m_status->setText("Saved.");
    });
    connect(close, &QPushButton::clicked, this, &SiteDialog::reject);

    m_folder->setCurrentIndex(std::clamp(number, 1, store::kSiteCount) - 1);
    showSite(siteNumber());
    resize(640, sizeHint().height());
}

int SiteDialog::siteNumber() const
{
    return m_folder->currentIndex() + 1;
}

void SiteDialog::showSite(int number)
{
    const store::SiteTarget& site = *store::SiteOfNumber(m_sites, number);
    const store::SiteTarget blank;
    const store::SiteTarget& shown = site.set ? site : blank;
    m_protocol->setCurrentIndex(static_cast<int>(
        std::find(std::begin(kProtocols), std::end(kProtocols), shown.protocol) - std::begin(kProtocols)));
    m_host->setText(ToQ(shown.host));
    m_portBox->setValue(shown.port);
    m_user->setText(ToQ(shown.user));
    m_password->clear();
    m_key->setText(ToQ(shown.keyPath));
    m_remoteDir->setText(ToQ(shown.remoteDir));
    m_url->setText(ToQ(shown.url));
    m_status->setText(site.set ? QString() : "This web folder has no upload target yet.");
    protocolChanged();
}

void SiteDialog::protocolChanged()
{
    const bool sftp = kProtocols[std::max(0, m_protocol->currentIndex())] == Protocol::Sftp;
    m_key->setEnabled(sftp);
    m_keyButton->setEnabled(sftp);
}

store::SiteTarget SiteDialog::fieldsTarget(std::string& error) const
{
    const store::SiteTarget& old = m_sites.sites[static_cast<size_t>(siteNumber() - 1)];
    store::SiteTarget t;
    t.set = true;
    t.protocol = kProtocols[std::max(0, m_protocol->currentIndex())];
    t.host = Trimmed(m_host);
    t.port = m_portBox->value();
    t.user = Trimmed(m_user);
    t.keyPath = t.protocol == Protocol::Sftp ? Trimmed(m_key) : std::string();
    t.remoteDir = Trimmed(m_remoteDir);
    t.url = Trimmed(m_url);
    // what was sent, and a trusted certificate, belong to the same server and folder
    if (old.set && old.host == t.host && old.remoteDir == t.remoteDir)
        t.sent = old.sent;
    if (old.set && old.host == t.host)
        t.pinnedKey = old.pinnedKey;
    if (!m_trustedPin.empty() && m_trustedHost == t.host)
        t.pinnedKey = m_trustedPin;
    if (t.host.empty())
        error = "Give the host name of your server.";
    else if (t.user.empty())
        error = "Give your user name on the server.";
    else if (t.remoteDir.empty())
        error = "Give the folder on the server that the files go to.";
    else if (t.url.empty())
        error = "Give the web address of that folder, so that the published form can be checked.";
    return t;
}

bool SiteDialog::save()
{
    if (!m_readable)
        return false;
    std::string error;
    store::SiteTarget t = fieldsTarget(error);
    if (!error.empty()) {
        m_port.message(error, "UPLOAD TARGET", Icon::Exclamation);
        return false;
    }
    store::SiteTarget& site = *store::SiteOfNumber(m_sites, siteNumber());
    site = std::move(t);
    if (!store::WriteSites(m_session.DataFolder, m_sites)) {
        m_port.message("The site settings could not be written to the data folder " + m_session.DataFolder + ".",
                       "UPLOAD TARGET", Icon::Exclamation);
        return false;
    }
    if (!m_password->text().isEmpty()) {
        RemoteLogin login;
        login.password = m_password->text().toStdString();
        publish::KeepPassword(site, login, m_keyring, m_port);
    }
    const int current = m_folder->currentIndex();
    const QSignalBlocker quiet(m_folder);
    m_folder->clear();
    m_folder->addItems(WebFolderCaptions(m_session, m_sites));
    m_folder->setCurrentIndex(current);
    return true;
}

void SiteDialog::setTesting(bool on)
{
    m_testing = on;
    for (QWidget* w : {static_cast<QWidget*>(m_test), static_cast<QWidget*>(m_save), static_cast<QWidget*>(m_folder)})
        w->setEnabled(!on && (w != m_save || m_readable));
    if (on)
        m_status->setText("Connecting...");
}

void SiteDialog::testConnection(std::function<void(bool)> done)
{
    std::string error;
    auto target = std::make_shared<store::SiteTarget>(fieldsTarget(error));
    if (!error.empty()) {
        m_port.message(error, "UPLOAD TARGET", Icon::Exclamation);
        if (done)
            done(false);
        return;
    }
    setTesting(true);
    const std::optional<std::string> typed =
        m_password->text().isEmpty() ? std::nullopt : std::optional<std::string>(m_password->text().toStdString());
    auto result = std::make_shared<TransferResult>();
    auto login = std::make_shared<std::optional<RemoteLogin>>();
    const std::string dataFolder = m_session.DataFolder;
    RunOffThread(
        this,
        [this, target, typed, result, login, dataFolder] {
            *login = publish::LoginOf(dataFolder, *target, typed, m_keyring, m_threadPort);
            if (!*login) {
                result->status = TransferStatus::Cancelled;
                return;
            }
            CurlTransfer transfer;
            *result = publish::Connect(**login, *target, transfer, m_threadPort, false);
        },
        [this, target, result, login, typed, done] {
            setTesting(false);
            const bool ok = result->status == TransferStatus::Ok;
            if (!target->pinnedKey.empty()) {
                m_trustedHost = target->host;
                m_trustedPin = target->pinnedKey;
            }
            if (ok) {
                m_status->setText(ToQ("Connected to " + target->host + ": the login works and the folder " +
                                      target->remoteDir + " is there."));
                if (!typed && *login)
                    publish::KeepPassword(*target, **login, m_keyring, m_port);
            } else if (result->status == TransferStatus::Cancelled) {
                m_status->setText("Not tested: no password was given.");
            } else {
                m_status->setText(
                    ToQ("The connection failed: " + (result->answer.empty() ? result->fingerprint : result->answer)));
            }
            if (done)
                done(ok);
        });
}

void SiteDialog::reject()
{
    // the login under way answers into this dialog
    if (m_testing)
        return;
    QDialog::reject();
}

} // namespace tq::gui
