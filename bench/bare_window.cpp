// The reference for start-up figures: a plain Qt main window with what a game window shows, a
// menu bar, a few labels and a button, all with text, so that it loads the fonts as the game
// does; nothing of the game.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QMainWindow w;
    w.setWindowTitle(QStringLiteral("Reference"));
    for (const char* menu : {"&Game", "&Options", "&Help"})
        w.menuBar()->addMenu(QString::fromLatin1(menu));
    auto* body = new QWidget;
    auto* column = new QVBoxLayout(body);
    for (const char* text : {"Player 1", "Player 2", "0 points"})
        column->addWidget(new QLabel(QString::fromLatin1(text)));
    column->addWidget(new QPushButton(QStringLiteral("Start")));
    w.setCentralWidget(body);
    w.resize(640, 465);
    w.show();
    return app.exec();
}
