// SPDX-License-Identifier: GPL-3.0-or-later
#include "about_dialog.h"

#include "port/ui_port.h"
#include "shell/version_check.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tq::gui {

namespace {
constexpr const char* kProgramTitle = "Tarnquill";
}

AboutDialog::AboutDialog(UiPort& ui, QWidget* parent) : QDialog(parent)
{
    setObjectName("frmAbout");
    setWindowTitle("About " + QString(kProgramTitle));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 16);
    layout->setSpacing(8);
    auto* title = new QLabel(kProgramTitle);
    title->setObjectName("lblTitle");
    title->setStyleSheet("font-size: 22px; font-weight: 600;");
    auto* version = new QLabel(QString::fromStdString(shell::VersionLine()));
    version->setObjectName("lblVersion");
    auto* description = new QLabel("Composes web forms and surveys, and writes the HTML page and the PHP script "
                                   "that handles them.");
    description->setWordWrap(true);
    layout->addWidget(title);
    layout->addWidget(version);
    layout->addSpacing(6);
    layout->addWidget(description);
    layout->addStretch();

    auto* buttons = new QHBoxLayout;
    auto* sysInfo = new QPushButton("&System Info...");
    sysInfo->setObjectName("cmdSysInfo");
    auto* ok = new QPushButton("OK");
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    buttons->addStretch();
    buttons->addWidget(sysInfo);
    buttons->addWidget(ok);
    layout->addLayout(buttons);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    // no system information tool on this platform
    connect(sysInfo, &QPushButton::clicked, this,
            [&ui] { ui.message("System Information Is Unavailable At This Time", kProgramTitle, Icon::Information); });
    setMinimumWidth(420);
}

} // namespace tq::gui
