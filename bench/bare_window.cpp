// The reference for start-up figures: a bare Qt main window and nothing else.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QMainWindow w;
    w.setWindowTitle(QStringLiteral("Bare reference"));
    w.resize(640, 465);
    w.show();
    return app.exec();
}
