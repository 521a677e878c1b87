// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window.h"
#include "wait_timings.h"

#include <QApplication>
#include <QQuickWindow>
#include <QSettings>
#include <QStyleFactory>
#include <unistd.h>

namespace {

QtMessageHandler g_nextHandler = nullptr;

// without GL on purpose, the word of the window system and of the browser
// engine that there is none is no news
void PassOverMissingGl(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtWarningMsg && (message.contains("Cannot create platform OpenGL context") ||
                                 message.contains("No suitable graphics backend found")))
        return;
    g_nextHandler(type, context, message);
}

// The browser views draw their pages on the processor. The pages are small
// forms, and taking each frame through a GL scene and reading it back held the
// window up to 130 ms per page shown where GL itself runs on the processor;
// drawn directly a page is in sight in a few milliseconds. Nothing else draws
// through GL, so the GL driver is not loaded either, which took a third of
// the start. A backend named in the environment still decides.
void DrawOnProcessor()
{
    if (!qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") || !qEnvironmentVariableIsEmpty("QSG_RHI_BACKEND"))
        return;
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    if (qEnvironmentVariableIsEmpty("QT_XCB_GL_INTEGRATION")) {
        qputenv("QT_XCB_GL_INTEGRATION", "none");
        g_nextHandler = qInstallMessageHandler(PassOverMissingGl);
    }
}

} // namespace

int main(int argc, char** argv)
{
    tq::gui::StartWait("start");
    // The browser engine refuses to start as root with its sandbox on.
    if (geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    // the browser views share one GL context, where they draw through GL
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    DrawOnProcessor();
    QApplication app(argc, argv);
    tq::gui::NoteWait("application made");
    QApplication::setApplicationName("Tarnquill");
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    tq::gui::MainWindow window;
    // the program cannot start without its folder
    if (!window.start())
        return 1;
    // the window comes back where and as large as it was left
    QSettings place("Tarnquill", "Tarnquill");
    window.restoreGeometry(place.value("window/geometry").toByteArray());
    window.show();
    tq::gui::NoteWait("window shown");
    // a project named on the command line (a double click in the file manager)
    const QStringList args = QApplication::arguments();
    if (args.size() > 1)
        window.openFile(args.at(1));
    const int code = QApplication::exec();
    place.setValue("window/geometry", window.saveGeometry());
    return code;
}
