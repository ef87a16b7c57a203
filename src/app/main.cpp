#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QMainWindow w;
    w.setWindowTitle("Frostel32 v2.31");
    w.resize(632, 412);
    w.show();
    return app.exec();
}
