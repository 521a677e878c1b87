// SPDX-License-Identifier: GPL-3.0-or-later
#include "publish_dialog.h"

#include "port/curl_transfer.h"
#include "qt_text.h"
#include "session.h"
#include "site_dialog.h"
#include "store/site_store.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>

namespace tq::gui {

namespace {

/// The web folder chosen last while the program runs.
int g_lastSite = 0;

} // namespace

PublishDialog::PublishDialog(Session& s, KeyringPort& keyring, std::vector<std::string> uploads, QWidget* parent)
    : QDialog(parent), m_session(s), m_keyring(keyring), m_uploads(std::move(uploads)), m_port(this),
      m_threadPort(this, m_port)
{
    setObjectName("PublishDialog");
    setWindowTitle("Publish");
    auto* layout = new QVBoxLayout(this);

    auto* siteRow = new QHBoxLayout;
    siteRow->addWidget(new QLabel("Web folder:"));
    m_site = new QComboBox;
    m_site->setObjectName("cboSite");
    siteRow->addWidget(m_site, 1);
    m_sites = new QPushButton("Upload Targets...");
    m_sites->setObjectName("btnSites");
    siteRow->addWidget(m_sites);
    layout->addLayout(siteRow);
    m_all = new QCheckBox("Send every file, changed or not");
    m_all->setObjectName("chkAll");
    layout->addWidget(m_all);

    m_file = new QLabel;
    m_file->setObjectName("lblFile");
    m_file->setTextFormat(Qt::PlainText);
    layout->addWidget(m_file);
    m_bar = new QProgressBar;
    m_bar->setObjectName("prgFile");
    m_bar->setRange(0, 1);
    m_bar->setValue(0);
    layout->addWidget(m_bar);
    m_bytes = new QLabel;
    m_bytes->setObjectName("lblBytes");
    layout->addWidget(m_bytes);
    m_log = new QPlainTextEdit;
    m_log->setObjectName("txtLog");
    m_log->setReadOnly(true);
    layout->addWidget(m_log, 1);
    m_result = new QLabel;
    m_result->setObjectName("lblResult");
    m_result->setWordWrap(true);
    m_result->setTextFormat(Qt::PlainText);
    layout->addWidget(m_result);

    auto* buttons = new QDialogButtonBox;
    m_publish = buttons->addButton("Publish", QDialogButtonBox::AcceptRole);
    m_publish->setObjectName("btnPublish");
    m_publish->setDefault(true);
    m_close = buttons->addButton("Close", QDialogButtonBox::RejectRole);
    m_close->setObjectName("btnClose");
    layout->addWidget(buttons);

    connect(m_publish, &QPushButton::clicked, this, [this] { publish(); });
    connect(m_close, &QPushButton::clicked, this, &PublishDialog::reject);
    connect(m_sites, &QPushButton::clicked, this, [this] {
        SiteDialog sites(m_session, m_keyring, siteNumber(), this);
        sites.exec();
        const int chosen = sites.siteNumber();
        reloadSites();
        setSiteNumber(chosen);
    });

    reloadSites();
    resize(620, 420);
}

void PublishDialog::reloadSites()
{
    store::SiteStore sites;
    std::string error;
    const bool readable = store::ReadSites(m_session.DataFolder, sites, error);
    const int current = m_site->currentIndex();
    m_site->clear();
    m_site->addItems(WebFolderCaptions(m_session, sites));
    // the web folder on show, else the one chosen last if it still has a target, else the first that has one
    int chosen = current + 1;
    if (chosen == 0 && store::SiteOfNumber(sites, g_lastSite) != nullptr && sites.sites[g_lastSite - 1].set)
        chosen = g_lastSite;
    for (int i = 0; i < store::kSiteCount && chosen == 0; ++i)
        if (sites.sites[static_cast<size_t>(i)].set)
            chosen = i + 1;
    setSiteNumber(chosen == 0 ? 1 : chosen);
    if (!readable)
        m_result->setText(ToQ(error));
}

int PublishDialog::siteNumber() const
{
    return m_site->currentIndex() + 1;
}

void PublishDialog::setSiteNumber(int number)
{
    m_site->setCurrentIndex(std::clamp(number, 1, store::kSiteCount) - 1);
}

void PublishDialog::setRunning(bool on)
{
    m_running = on;
    m_publish->setEnabled(!on);
    m_sites->setEnabled(!on);
    m_site->setEnabled(!on);
    m_all->setEnabled(!on);
    m_close->setText(on ? "Cancel" : "Close");
    m_close->setEnabled(true);
}

void PublishDialog::showProgress(const QString& name, quint64 sent, quint64 total)
{
    m_file->setText("Sending " + name);
    // a bar counts in int: large files are shown in KiB
    const int shift = total > 0x7fffffffULL ? 10 : 0;
    m_bar->setRange(0, static_cast<int>(std::max<quint64>(total >> shift, 1)));
    m_bar->setValue(static_cast<int>(std::min(sent, total) >> shift));
    const QLocale c = QLocale::c();
    m_bytes->setText(c.toString(sent) + " of " + c.toString(total) + " bytes");
}

void PublishDialog::showReport(const publish::PublishReport& report)
{
    for (const auto& line : report.lines)
        m_log->appendPlainText(ToQ(line));
    const QString time = QString::number(m_seconds, 'f', 2) + " s";
    const QString files = QString::number(report.sent) + (report.sent == 1 ? " file" : " files") + " sent";
    if (report.ok && report.checked)
        m_result->setText("Published and checked: " + files + ", in " + time + ".");
    else if (report.ok)
        m_result->setText("Published: " + files + ", in " + time + ". " +
                          "Not checked: give the web address of the folder in the upload target.");
    else
        m_result->setText(ToQ("Not published: " + ConvertLineBreaks(report.failure, "\n")));
    m_file->setText(report.ok ? "Done" : report.failure.rfind("Cancelled", 0) == 0 ? "Cancelled" : "Stopped");
}

void PublishDialog::publish(std::function<void(const publish::PublishReport&)> done)
{
    if (m_running)
        return;
    g_lastSite = siteNumber();
    store::SiteStore sites;
    std::string error;
    if (!store::ReadSites(m_session.DataFolder, sites, error)) {
        m_port.message(error, "PUBLISH FAILED", Icon::Exclamation);
        return;
    }
    m_cancel = false;
    m_log->clear();
    m_result->clear();
    m_bytes->clear();
    m_bar->setRange(0, 1);
    m_bar->setValue(0);
    m_file->setText("Connecting...");
    setRunning(true);

    publish::PublishOptions options;
    options.siteNumber = siteNumber();
    options.uploads = m_uploads;
    options.all = m_all->isChecked();
    auto state = std::make_shared<std::pair<store::SiteStore, publish::PublishReport>>(std::move(sites),
                                                                                       publish::PublishReport{});
    QPointer<PublishDialog> self = this;
    m_clock.start();
    RunOffThread(
        this,
        [this, state, options, self] {
            CurlTransfer transfer;
            state->second =
                publish::Publish(m_session, state->first, options, transfer, m_keyring, m_threadPort,
                                 [this, self](const std::string& name, std::uint64_t sent, std::uint64_t total) {
                                     const QString n = ToQ(name);
                                     QMetaObject::invokeMethod(
                                         this,
                                         [self, n, sent, total] {
                                             if (self)
                                                 self->showProgress(n, sent, total);
                                         },
                                         Qt::QueuedConnection);
                                     return !m_cancel.load();
                                 });
        },
        [this, state, done] {
            m_seconds = static_cast<double>(m_clock.nsecsElapsed()) / 1e9;
            setRunning(false);
            showReport(state->second);
            if (done)
                done(state->second);
        });
}

void PublishDialog::cancel()
{
    if (m_running) {
        m_cancel = true;
        m_file->setText("Cancelling...");
        m_close->setEnabled(false);
    }
}

void PublishDialog::reject()
{
    // the files under way end first: the window waits for the cancel to come back
    if (m_running) {
        cancel();
        return;
    }
    QDialog::reject();
}

} // namespace tq::gui
