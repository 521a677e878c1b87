// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window.h"

#include "qt_port.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tq::gui {

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent), m_port(std::make_unique<QtPort>(this))
{
    setObjectName("MainWindow");
    setWindowTitle("Tarnquill");
    m_stack = new QStackedWidget(this);
    setCentralWidget(m_stack);
    buildStartPage();
    resize(1280, 800);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildStartPage()
{
    auto* page = new QWidget;
    page->setObjectName("StartPage");
    auto* layout = new QVBoxLayout(page);
    auto* title = new QLabel("Tarnquill");
    title->setObjectName("StartTitle");
    QFont f = title->font();
    f.setPointSize(28);
    f.setBold(true);
    title->setFont(f);
    title->setAlignment(Qt::AlignCenter);
    layout->addStretch();
    layout->addWidget(title);
    layout->addStretch();
    m_stack->addWidget(page);

    QMenu* file = menuBar()->addMenu("&File");
    file->setObjectName("File");
    QAction* exitAction = file->addAction("Exit");
    exitAction->setObjectName("Exit");
    connect(exitAction, &QAction::triggered, this, &QWidget::close);
}

} // namespace tq::gui
