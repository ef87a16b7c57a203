// The options window at work on the game's live options: spin steps and their repeat, what a
// change means for a running game, what OK stores, the close box, the vocabulary list, and
// the frames it paints.
#include "assets/options_window.h"
#include "settings/options_dialog.h"
#include "support/scripted_toolkit.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

using W = assets::OptionsWindow;
using Act = std::function<void(W*)>;

// A working folder with word files, the game, and the window over both.
struct Fixture {
    explicit Fixture(const QStringList& files = {"englisch.dat", "tiere.dat"},
                     const QByteArray& ini = {})
        : home(QDir::currentPath())
    {
        for (const QString& f : files) QFile(dir.filePath(f)).open(QIODevice::WriteOnly);
        if (!ini.isEmpty()) {
            QFile f(iniPath);
            if (f.open(QIODevice::WriteOnly)) f.write(ini);
        }
        QDir::setCurrent(dir.path());
    }
    ~Fixture() { QDir::setCurrent(home); }
    W* shown()
    {
        W* w = dialog.window();
        w->show();
        if (!QTest::qWaitForWindowExposed(w)) qFatal("window not exposed");
        game.g.EinstGeaendert = false;
        return w;
    }
    QByteArray ini() const
    {
        QFile f(iniPath);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    QString home;
    QTemporaryDir dir;
    QString iniPath = dir.filePath("frostel.ini");
    support::ScriptedToolkit tk;
    core::Game game{tk};
    settings::Profile profile{iniPath};
    settings::OptionsDialog dialog{game, profile};
};

bool shows(QLabel* label, QLabel* face)
{
    return label->pixmap().toImage() == face->pixmap().toImage();
}

// What the game holds of the options, in one line.
QString options(const core::Game& game)
{
    const core::Options& e = game.einst;
    const QStringList names(e.Spieler_Name.begin(), e.Spieler_Name.end());
    return QStringLiteral("%1 %2 %3 %4%5%6 %7 %8")
        .arg(game.g.AnzSpieler)
        .arg(game.g.AnzTips)
        .arg(game.g.MotivNr)
        .arg(int(e.wiederh[0]))
        .arg(e.Sound)
        .arg(e.Anzeige)
        .arg(game.g.WortDatei, names.join(','));
}

// A click on a spin button at (at, at) pixels: above the diagonal counts up.
void spin(W* w, int index, int at)
{
    QTest::mouseClick(w->plumin()[index], Qt::LeftButton, {}, QPoint(at, at));
}

// As the system delivers it: a click, then the second press as a double click.
void dblClickRow(QListWidget* list, int row)
{
    const QPoint at = list->visualItemRect(list->item(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
}

} // namespace

Q_DECLARE_METATYPE(Act)

class OptionsDialogTest : public QObject {
    Q_OBJECT
private slots:
    void spinStep_data();
    void spinStep();
    void holdingRepeatsDownToOne_data();
    void holdingRepeatsDownToOne();
    void changesThatRestartTheGame_data();
    void changesThatRestartTheGame();
    void confirmingStoresElevenKeysInOrder_data();
    void confirmingStoresElevenKeysInOrder();
    void closeBoxDiscardsTheControls();
    void vocabularyChoice_data();
    void vocabularyChoice();
    void paintDrawsRaisedFrames_data();
    void paintDrawsRaisedFrames();
};

void OptionsDialogTest::spinStep_data()
{
    QTest::addColumn<int>("spin");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("face");
    QTest::addColumn<QString>("after"); // null: the caption stays
    QTest::newRow("150/149 counts up") << 0 << "2" << 150.0 << 149.0 << 1 << "3";
    QTest::newRow("150/150 counts down") << 0 << "2" << 150.0 << 150.0 << 2 << "1";
    QTest::newRow("leading blank") << 0 << " 4" << 250.0 << 250.0 << 2 << "3";
    QTest::newRow("blanks anywhere") << 1 << " 1 " << 0.0 << 0.0 << 1 << "2";
    QTest::newRow("players stop at 4") << 0 << "4" << 0.0 << 0.0 << 1 << QString();
    QTest::newRow("players stop at 1") << 0 << "1" << 299.0 << 299.0 << 2 << QString();
    QTest::newRow("tips down to 0") << 1 << "1" << 200.0 << 200.0 << 2 << "0";
    QTest::newRow("tips stop at 0") << 1 << "0" << 200.0 << 200.0 << 2 << QString();
    QTest::newRow("tips stop at 3") << 1 << "3" << 10.0 << 10.0 << 1 << QString();
    QTest::newRow("hand-edited 7 up") << 1 << " 7" << 10.0 << 10.0 << 1 << QString();
    QTest::newRow("hand-edited 7 down") << 1 << " 7" << 200.0 << 200.0 << 2 << QString();
}

void OptionsDialogTest::spinStep()
{
    QFETCH(int, spin);
    QFETCH(QString, caption);
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(int, face);
    QFETCH(QString, after);
    const settings::SpinStep step = settings::spinStep(settings::Spin(spin), caption, x, y);
    QCOMPARE(step.face, face);
    QCOMPARE(step.caption.has_value(), !after.isNull());
    if (step.caption) QCOMPARE(*step.caption, after);
}

void OptionsDialogTest::holdingRepeatsDownToOne_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
}

void OptionsDialogTest::holdingRepeatsDownToOne()
{
    QFETCH(Qt::MouseButton, button);
    Fixture f;
    W* w = f.shown();
    QLabel* plumin = w->plumin()[0];
    QLabel* zahl = w->Zahl()[0];
    QCOMPARE(zahl->text(), " 4");
    QVERIFY(shows(plumin, w->s()[0]));
    auto enabled = [w] {
        QString e;
        for (QLineEdit* box : w->Spieler_Name()) e += box->isEnabled() ? '1' : '0';
        return e;
    };
    QElapsedTimer clock;
    clock.start();
    QTest::mousePress(plumin, button, {}, QPoint(15, 15)); // the lower right half
    QCOMPARE(zahl->text(), "3");
    QCOMPARE(enabled(), "1110");
    QVERIFY(shows(plumin, w->s()[2]));
    QTRY_COMPARE_WITH_TIMEOUT(zahl->text(), "2", 3000);
    QVERIFY2(clock.elapsed() >= 180, "repeats after 200 ms, not before");
    QCOMPARE(enabled(), "1100");
    QTRY_COMPARE_WITH_TIMEOUT(zahl->text(), "1", 3000);
    QVERIFY(clock.elapsed() >= 360);
    QTest::qWait(450);
    QCOMPARE(zahl->text(), "1");
    QCOMPARE(enabled(), "1000");
    QCOMPARE(int(f.game.g.AnzSpieler), 1);
    w->repaint(); // a repaint leaves the held face
    QVERIFY(shows(plumin, w->s()[2]));
    QTest::mouseRelease(plumin, button, {}, QPoint(2, 2));
    QVERIFY(!w->Timer1()->isActive());
    QVERIFY(shows(plumin, w->s()[0]));
}

void OptionsDialogTest::changesThatRestartTheGame_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("restarts");
    const QString names = " Marta,Helene,Matthis,Svenja";
    QTest::newRow("players") << Act([](W* w) { spin(w, 0, 18); })
                             << "3 3 1 111 englisch.dat" + names << true;
    QTest::newRow("players at the limit")
        << Act([](W* w) { spin(w, 0, 2); }) << "4 3 1 111 englisch.dat" + names << false;
    QTest::newRow("tips") << Act([](W* w) { spin(w, 1, 18); }) << "4 2 1 111 englisch.dat" + names
                          << true;
    QTest::newRow("name") << Act([](W* w) { QTest::keyClicks(w->Spieler_Name()[1], "X"); })
                          << "4 3 1 111 englisch.dat Marta,HeleneX,Matthis,Svenja" << true;
    QTest::newRow("repeat") << Act([](W* w) { QTest::mouseClick(w->wiederh()[1], Qt::LeftButton); })
                            << "4 3 1 011 englisch.dat" + names << true;
    QTest::newRow("vocabulary") << Act([](W* w) { w->wortsch()->setCurrentRow(1); })
                                << "4 3 1 111 tiere.dat" + names << true;
    QTest::newRow("motif") << Act([](W* w) { w->Motiv()->setCurrentRow(0); })
                           << "4 3 0 111 englisch.dat" + names << false;
    QTest::newRow("sound") << Act([](W* w) { QTest::mouseClick(w->Sound(), Qt::LeftButton); })
                           << "4 3 1 101 englisch.dat" + names << false;
    QTest::newRow("show solution")
        << Act([](W* w) { QTest::mouseClick(w->Anzeige(), Qt::LeftButton); })
        << "4 3 1 110 englisch.dat" + names << false;
    QTest::newRow("editor") << Act([](W* w) {
        QTest::mouseClick(w->EditButt(), Qt::LeftButton);
        QCOMPARE(w->focusWidget(), w->OK());
    }) << "4 3 1 111 englisch.dat" + names
                            << false;
    QTest::newRow("name, then a resize") << Act([](W* w) {
        QTest::keyClicks(w->Spieler_Name()[1], "X");
        w->resize(w->size() + QSize(20, 20));
    }) << "4 3 1 111 englisch.dat Marta,HeleneX,Matthis,Svenja"
                                         << false;
}

void OptionsDialogTest::changesThatRestartTheGame()
{
    QFETCH(Act, act);
    QFETCH(QString, after);
    QFETCH(bool, restarts);
    Fixture f;
    int editorRuns = 0;
    f.dialog.openEditor = [&] { ++editorRuns; };
    act(f.shown());
    QCOMPARE(options(f.game), after);
    QCOMPARE(f.game.g.EinstGeaendert, restarts);
    QCOMPARE(editorRuns, QTest::currentDataTag() == QByteArray("editor") ? 1 : 0);
    QVERIFY(f.ini().isEmpty()); // only OK writes
}

void OptionsDialogTest::confirmingStoresElevenKeysInOrder_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QByteArray>("datei");
    QTest::addColumn<QByteArray>("motiv");
    const QByteArray first("englisch.dat"), second("tiere.dat"), apple(" 0"), frostel(" 1");
    QTest::newRow("OK button") << Act([](W* w) { QTest::mouseClick(w->OK(), Qt::LeftButton); })
                               << first << apple;
    QTest::newRow("Enter") << Act([](W* w) {
        QTest::keyClick(w->Spieler_Name()[0], Qt::Key_Return);
    }) << first << apple;
    QTest::newRow("double click, vocabulary")
        << Act([](W* w) { dblClickRow(w->wortsch(), 1); }) << second << apple;
    QTest::newRow("double click, motif")
        << Act([](W* w) { dblClickRow(w->Motiv(), 1); }) << first << frostel;
}

void OptionsDialogTest::confirmingStoresElevenKeysInOrder()
{
    QFETCH(Act, act);
    QFETCH(QByteArray, datei);
    QFETCH(QByteArray, motiv);
    Fixture f;
    f.game.g.AnzSpieler = 2;
    f.game.g.AnzTips = 1;
    f.game.g.MotivNr = 0;
    f.game.einst.Sound = 0;
    f.game.einst.wiederh = {false, true};
    f.game.einst.Spieler_Name[3] = "Disabled but kept";
    W* w = f.dialog.window();
    QVERIFY(!w->Spieler_Name()[3]->isEnabled());
    QTimer::singleShot(0, [&] {
        QVERIFY(QTest::qWaitForWindowExposed(w));
        act(w);
    });
    QTimer::singleShot(5000, w, &QDialog::reject); // a window left open fails, not hangs
    f.dialog.show();
    QCOMPARE(f.dialog.window(), w); // hidden, not unloaded
    QVERIFY(!w->isVisible());
    const QByteArray expected = "[Einstellungen]\r\nAnzahl= 2\r\nSound= 0\r\nAnzeige= 1\r\n"
                                "Wiederholung= 0\r\nTips= 1\r\nSpieler1=Marta\r\n"
                                "Spieler2=Helene\r\nSpieler3=Matthis\r\n"
                                "Spieler4=Disabled but kept\r\nDatei=" +
                                datei + "\r\nMotiv=" + motiv + "\r\n";
    QCOMPARE(f.ini(), expected);
}

void OptionsDialogTest::closeBoxDiscardsTheControls()
{
    Fixture f({"englisch.dat", "tiere.dat"}, "[Einstellungen]\r\nDatei=tiere.dat\r\n");
    f.game.g.AnzSpieler = 2;
    f.game.g.AnzTips = 1;
    f.game.g.MotivNr = 0;
    QTimer::singleShot(0, [&] {
        W* w = f.dialog.window();
        QVERIFY(QTest::qWaitForWindowExposed(w));
        QTest::keyClicks(w->Spieler_Name()[0], "Zed");
        QTest::mouseClick(w->Sound(), Qt::LeftButton);
        QTest::mouseClick(w->wiederh()[1], Qt::LeftButton);
        w->wortsch()->setCurrentRow(0);
        w->close();
    });
    f.dialog.show();
    QCOMPARE(f.ini(), QByteArray("[Einstellungen]\r\nDatei=tiere.dat\r\n")); // nothing written
    QVERIFY(f.game.g.EinstGeaendert); // the change still counts
    // Design values, the counts and the motif kept, the vocabulary from the file again.
    QCOMPARE(options(f.game), "2 1 0 111 tiere.dat Marta,Helene,Matthis,Svenja");
    W* w = f.dialog.window();
    QCOMPARE(w->Spieler_Name()[0]->text(), "Marta");
    QVERIFY(w->Sound()->isChecked() && w->Anzeige()->isChecked() && w->wiederh()[0]->isChecked());
    QCOMPARE(w->Zahl()[0]->text() + w->Zahl()[1]->text(), "44");
    QCOMPARE(w->Motiv()->currentRow(), 0);
    QCOMPARE(w->wortsch()->currentRow(), 1);
}

void OptionsDialogTest::vocabularyChoice_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QByteArray>("ini");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<int>("row");
    const QStringList three{"a.dat", "b.dat", "c.dat"}, none;
    auto stored = [](const char* name) {
        return "[Einstellungen]\nDatei=" + QByteArray(name) + "\n";
    };
    QTest::newRow("stored name present") << three << stored("b.dat") << "b.dat" << 1;
    QTest::newRow("case differs") << three << stored("B.dat") << "a.dat" << 0;
    QTest::newRow("stored name absent") << three << stored("gone.dat") << "a.dat" << 0;
    QTest::newRow("nothing stored") << three << QByteArray() << "a.dat" << 0;
    QTest::newRow("empty list") << none << stored("gone.dat") << "gone.dat" << -1;
    QTest::newRow("empty list, nothing stored") << none << QByteArray() << "" << -1;
}

void OptionsDialogTest::vocabularyChoice()
{
    QFETCH(QStringList, files);
    QFETCH(QByteArray, ini);
    QFETCH(QString, chosen);
    QFETCH(int, row);
    Fixture f(files, ini);
    QListWidget* list = f.dialog.window()->wortsch();
    QCOMPARE(list->count(), files.size());
    QCOMPARE(list->currentRow(), row);
    QCOMPARE(f.game.g.WortDatei, chosen);
    QVERIFY(!f.game.g.EinstGeaendert); // loading is no change
}

void OptionsDialogTest::paintDrawsRaisedFrames_data()
{
    QTest::addColumn<QPoint>("pixel");
    QTest::addColumn<QColor>("colour");
    const QColor white(255, 255, 255), grey(128, 128, 128);
    QTest::newRow("names, upper") << QPoint(100, 42) << white;
    QTest::newRow("names, lower") << QPoint(100, 197) << grey;
    QTest::newRow("repeat, left") << QPoint(172, 80) << white;
    QTest::newRow("repeat, right") << QPoint(347, 80) << grey;
}

void OptionsDialogTest::paintDrawsRaisedFrames()
{
    QFETCH(QPoint, pixel);
    QFETCH(QColor, colour);
    Fixture f;
    QCOMPARE(f.shown()->grab().toImage().pixelColor(pixel), colour);
}

QTEST_MAIN(OptionsDialogTest)
#include "tst_options_dialog.moc"
