// SPDX-License-Identifier: GPL-3.0-or-later
#include "edit_window.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWebEngineView>

namespace tq::gui {

EditWindow::EditWindow(QWidget* parent) : QWidget(parent)
{
    setObjectName("EditWindow");
    setWindowTitle("EDIT WINDOW");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* heading = new QLabel("MAKE YOUR CHANGES AND THEN SELECT EXIT");
    heading->setObjectName("lblEditWindowHeading");
    heading->setStyleSheet("font-size: 15px; font-weight: 700; color: #8b0000;");
    layout->addWidget(heading);
    m_label = new QLabel;
    m_label->setObjectName("lblEditWindowKey");
    m_label->setStyleSheet("font-weight: 600;");
    layout->addWidget(m_label);
    m_text = new QPlainTextEdit;
    m_text->setObjectName("txtEditWindow");
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    layout->addWidget(m_text, 2);

    auto* buttons = new QHBoxLayout;
    auto* preview = new QPushButton("Preview");
    preview->setObjectName("PreviewAttribute");
    auto* exit = new QPushButton("Exit");
    exit->setObjectName("ExitEditWindow");
    buttons->addWidget(preview);
    buttons->addStretch();
    buttons->addWidget(exit);
    layout->addLayout(buttons);
    connect(exit, &QPushButton::clicked, this, [this] {
        if (onExit)
            onExit(m_text->toPlainText());
    });
    connect(preview, &QPushButton::clicked, this, [this] {
        if (onPreview)
            onPreview(m_text->toPlainText());
    });
}

void EditWindow::open(int row, const QString& label, const QString& text, bool survey)
{
    m_row = row;
    m_label->setText(label);
    QString plain = text;
    plain.replace("\r\n", "\n");
    m_text->setPlainText(plain);
    // FORM and SURVEY each have their own background
    m_text->setStyleSheet(survey ? "QPlainTextEdit { background-color: #fff8dc; }"
                                 : "QPlainTextEdit { background-color: #ffffff; }");
    if (m_web)
        m_web->hide();
    m_text->setFocus();
}

void EditWindow::showPreview(const QString& file)
{
    if (!m_web) {
        m_web = new QWebEngineView;
        m_web->setObjectName("EditWindowPreview");
        static_cast<QVBoxLayout*>(layout())->insertWidget(3, m_web, 3);
    }
    m_web->setUrl(QUrl::fromLocalFile(file));
    m_web->show();
}

} // namespace tq::gui
