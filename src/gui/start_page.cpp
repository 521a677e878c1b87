// SPDX-License-Identifier: GPL-3.0-or-later
#include "start_page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace tq::gui {

StartPage::StartPage(const CommandHandler& handler, QWidget* parent) : QWidget(parent)
{
    setObjectName("StartPage");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(BuildMenuBar(MenuKind::StartPage, this, handler));

    auto* banner = new QWidget;
    banner->setObjectName("StartBanner");
    banner->setStyleSheet("#StartBanner { background: qlineargradient(x1:0, y1:0, x2:1, y2:1,"
                          " stop:0 #1f4e79, stop:1 #2e86ab); }");
    // the content keeps a readable width and stands in the middle of a large window
    auto* outer = new QHBoxLayout(banner);
    outer->setContentsMargins(48, 48, 48, 48);
    auto* content = new QWidget;
    content->setObjectName("StartContent");
    content->setMaximumWidth(980);
    outer->addWidget(content, 1, Qt::AlignHCenter);
    auto* bl = new QVBoxLayout(content);
    bl->setContentsMargins(0, 0, 0, 0);
    bl->addStretch(2);
    auto* title = new QLabel("Tarnquill");
    title->setObjectName("StartTitle");
    title->setStyleSheet("color: white; font-size: 54px; font-weight: 600;");
    auto* tagline = new QLabel("Web forms and surveys, with the script that handles them.");
    tagline->setStyleSheet("color: #e6f1f8; font-size: 20px;");
    auto* hint = new QLabel("Start with File \u203a Form \u203a Create Form, or open a saved project.");
    hint->setStyleSheet("color: #cfe3ef; font-size: 14px;");
    bl->addWidget(title);
    bl->addWidget(tagline);
    bl->addSpacing(12);
    bl->addWidget(hint);
    bl->addSpacing(28);
    // The most used commands of the menus, one click away.
    auto* quick = new QHBoxLayout;
    quick->setSpacing(12);
    const struct
    {
        const char* command;
        const char* caption;
    } shortcuts[] = {{"CreateNewForm", "Create Form"},
                     {"CreateSurvey", "Create Survey"},
                     {"openform", "Open Form"},
                     {"OpenSurvey", "Open Survey"},
                     {"SetupPage", "Setup Page"}};
    for (const auto& sc : shortcuts) {
        auto* b = new QPushButton(sc.caption);
        b->setObjectName(QString("btn") + sc.command);
        b->setCursor(Qt::PointingHandCursor);
        b->setMinimumSize(150, 44);
        b->setStyleSheet("QPushButton { color: #1f4e79; background: #f4f9fc; border: none; border-radius: 6px;"
                         " font-size: 15px; font-weight: 600; padding: 8px 18px; }"
                         "QPushButton:hover { background: white; }"
                         "QPushButton:pressed { background: #dcebf5; }");
        const QString command = sc.command;
        connect(b, &QPushButton::clicked, this, [handler, command] { handler(command); });
        quick->addWidget(b);
    }
    quick->addStretch();
    bl->addLayout(quick);
    bl->addStretch(3);
    layout->addWidget(banner, 1);

    auto* status = new QWidget;
    status->setObjectName("StartStatus");
    auto* sl = new QVBoxLayout(status);
    sl->setContentsMargins(24, 12, 24, 12);
    m_mode = new QLabel;
    m_mode->setObjectName("lblActive");
    m_mode->setStyleSheet("font-weight: 600;");
    m_file = new QLabel;
    m_file->setObjectName("lblFile");
    sl->addWidget(m_mode);
    sl->addWidget(m_file);
    layout->addWidget(status);
}

void StartPage::setStatus(const QString& modeText, const QString& fileText)
{
    m_mode->setText(modeText);
    m_file->setText(fileText);
}

} // namespace tq::gui
