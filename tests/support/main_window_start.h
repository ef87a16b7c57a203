#pragma once
// The real main window started as the program starts it, splash and all, in a working folder
// with two word files and a settings file of the test's own.
#include "mainwindow/main_window.h"
#include "support/files.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

namespace support {

// There the compositor places windows and a program never learns where.
inline bool onWayland() { return QGuiApplication::platformName().startsWith("wayland"); }

// The window's outer place, once a window manager has framed it.
inline QRect framed(QWidget* w)
{
    static_cast<void>(QTest::qWaitFor([w] { return w->frameGeometry() != w->geometry(); }));
    return w->frameGeometry();
}

// The game's options in one line: players, tips, motif, repeat all, sound, show solution, word
// file, names.
inline QString optionsLine(const core::Game& game)
{
    const core::Options& e = game.einst;
    return QString::asprintf("%d %d %d %d%d%d ", game.g.AnzSpieler, game.g.AnzTips, game.g.MotivNr,
                             int(e.wiederh[0]), e.Sound, e.Anzeige) +
           game.g.WortDatei + ' ' +
           QStringList(e.Spieler_Name.begin(), e.Spieler_Name.end()).join(',');
}

class MainWindowStart {
protected:
    // frostel.dat holds "apple", zoo.dat "gnu"; no settings file.
    bool enter()
    {
        oldCwd_ = QDir::currentPath();
        if (!QDir::setCurrent(dir_.path())) return false;
        for (const QString& f : QDir().entryList(QDir::Files)) QFile::remove(f);
        QDir(dir_.filePath("config")).removeRecursively();
        exits_ = 0, splashMs_ = 1;
        return !vocabulary::writeWordFile("frostel.dat", {"apple"}) &&
               !vocabulary::writeWordFile("zoo.dat", {"gnu"});
    }
    void leave() { QDir::setCurrent(oldCwd_); }

    std::unique_ptr<mainwindow::MainWindow> startWindow(const QByteArray& ini = {})
    {
        if (!ini.isNull()) {
            QDir().mkpath(dir_.filePath("config"));
            support::writeBytes(ini_, ini);
        }
        mainwindow::MainWindow::Setup setup;
        setup.profilePath = ini_;
        setup.splashMs = splashMs_; // a splash all the same: the main window's first owned window
        setup.exitProgram = [this](int) { ++exits_; };
        auto w = std::make_unique<mainwindow::MainWindow>(setup);
        w->toolkit().waitScale = 0.01;
        w->Form_Load();
        framed(w.get()); // a window manager has framed it by then
        return w;
    }

    QTemporaryDir dir_;
    QString oldCwd_, ini_ = dir_.filePath("config/frostel.ini");
    int exits_ = 0, splashMs_ = 1;
};

} // namespace support
