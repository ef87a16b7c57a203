#include "app/working_folder.h"
#include "mainwindow/main_window.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("frostel32"));
    QApplication::setApplicationDisplayName(QStringLiteral("Frostel32"));
    QApplication::setApplicationVersion(QStringLiteral("2.31"));
    QApplication::setDesktopFileName(QStringLiteral("net.frostel32.frostel32"));
    // Word files and sounds are found by bare name in the working folder.
    app::enterWorkingFolder();
    mainwindow::MainWindow window;
    window.Form_Load();
    return app.exec();
}
