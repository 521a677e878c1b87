// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window.h"

#include <QApplication>
#include <QStyleFactory>
#include <unistd.h>

int main(int argc, char** argv)
{
    // The browser engine refuses to start as root with its sandbox on.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QApplication app(argc, argv);
    QApplication::setApplicationName("Tarnquill");
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    tq::gui::MainWindow window;
    window.show();
    return QApplication::exec();
}
