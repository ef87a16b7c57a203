#include "app/session_end.h"
#include "app/working_folder.h"
#include "mainwindow/main_window.h"
#include "platform/lean_style.h"
#include "platform/translations.h"

#include <QApplication>
#include <QTimer>
#ifdef __GLIBC__
#include <malloc.h>
#endif

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setStyle(new platform::LeanStyle);
    // No display name: Qt would append it to every title the window manager shows.
    QApplication::setApplicationName(QStringLiteral("frostel32"));
    QApplication::setApplicationVersion(QStringLiteral("2.31"));
    QApplication::setDesktopFileName(QStringLiteral("net.frostel32.frostel32"));
    platform::installTranslators();
    // Word files are found by bare name in the working folder, sounds there or where installed.
    app::catchTheSessionsEnd();
    const QString sounds = app::enterWorkingFolder();
    mainwindow::MainWindow window;
    window.toolkit().soundFolder = sounds;
    window.Form_Load();
    app::endWithTheSession([&window] { window.close(); });
#ifdef __GLIBC__
    // The splash and the start-up leave freed heap behind; give it back once the window stands.
    QTimer::singleShot(0, [] { malloc_trim(0); });
#endif
    return app.exec();
}
