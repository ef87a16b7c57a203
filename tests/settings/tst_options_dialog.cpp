// The options window at work on the game's live options: spin steps and their repeat, what a
// change means for a running game, what OK stores, the close box, the vocabulary list.
#include "settings/options_window.h"
#include "support/files.h"
#include "support/modal.h"
#include "support/scripted_toolkit.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

using W = settings::OptionsWindow;
using Act = std::function<void(W*)>;

// A working folder with word files, the game, and the window over both.
struct Fixture {
    explicit Fixture(const QStringList& files = {"englisch.dat", "tiere.dat"},
                     const QByteArray& ini = {})
    {
        for (const QString& f : files) support::writeBytes(dir.filePath(f), {});
        if (!ini.isEmpty()) support::writeBytes(iniPath, ini);
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

    QString home = QDir::currentPath();
    QTemporaryDir dir;
    QString iniPath = dir.filePath("frostel.ini");
    support::ScriptedToolkit tk;
    core::Game game{tk};
    settings::Profile profile{iniPath};
    settings::OptionsHost dialog{game, profile, nullptr};
};

// What the game holds of the options, in one line.
QString options(const core::Game& game)
{
    const core::Options& e = game.einst;
    return QString::asprintf("%d %d %d %d%d%d ", game.g.AnzSpieler, game.g.AnzTips, game.g.MotivNr,
                             int(e.wiederh[0]), e.Sound, e.Anzeige) +
           game.g.WortDatei + ' ' +
           QStringList(e.Spieler_Name.begin(), e.Spieler_Name.end()).join(',');
}

// A click on a spin button at (at, at) pixels: above the diagonal counts up.
Act spin(int index, int at)
{
    return [=](W* w) { QTest::mouseClick(w->plumin()[index], Qt::LeftButton, {}, {at, at}); };
}

// As the system delivers it: a click, then the second press as a double click.
Act dblClickRow(const char* name, int row)
{
    return [=](W* w) {
        auto* list = support::child<QListWidget>(w, name);
        QWidget* port = list->viewport();
        const QPoint at = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(port, Qt::LeftButton, {}, at);
        QTest::mouseDClick(port, Qt::LeftButton, {}, at);
    };
}

} // namespace

Q_DECLARE_METATYPE(Act)

class OptionsDialogTest : public QObject {
    Q_OBJECT
private slots:
    void spinStep_data();
    void spinStep();
    void holdingRepeatsDownToOne();
    void changesThatRestartTheGame_data();
    void changesThatRestartTheGame();
    void closing_data();
    void closing();
    void vocabularyChoice_data();
    void vocabularyChoice();
};

void OptionsDialogTest::spinStep_data()
{
    QTest::addColumn<int>("spin"); // 0 players, 1 tips
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QPointF>("at");   // twips inside the picture
    QTest::addColumn<QString>("step"); // face, then the new caption or "stays"
    auto row = [](const char* tag, int spin, const char* caption, QPointF at, const char* step) {
        QTest::newRow(tag) << spin << QString(caption) << at << QString(step);
    };
    row("150/149 counts up", 0, "2", {150, 149}, "1 3");
    row("150/150 counts down", 0, "2", {150, 150}, "2 1");
    row("blanks are skipped", 1, " 1 ", {0, 0}, "1 2");
    row("players stop at 4", 0, "4", {0, 0}, "1 stays");
    row("players stop at 1", 0, "1", {299, 299}, "2 stays");
    row("tips down to 0", 1, "1", {200, 200}, "2 0");
    row("tips stop at 0", 1, "0", {200, 200}, "2 stays");
    row("tips stop at 3", 1, "3", {10, 10}, "1 stays");
    row("hand-edited 7 up", 1, " 7", {10, 10}, "1 stays");
    row("hand-edited 7 down", 1, " 7", {200, 200}, "2 stays");
}

void OptionsDialogTest::spinStep()
{
    QFETCH(int, spin);
    QFETCH(QString, caption);
    QFETCH(QPointF, at);
    QFETCH(QString, step);
    const auto s = settings::spinStep(settings::Spin(spin), caption, at.x(), at.y());
    QCOMPARE(QString::number(s.face) + ' ' + s.caption.value_or("stays"), step);
}

void OptionsDialogTest::holdingRepeatsDownToOne()
{
    Fixture f;
    W* w = f.shown();
    QLabel* plumin = w->plumin()[0];
    auto face = [&](int i) {
        const QString name = "s_" + QString::number(i);
        return plumin->pixmap().toImage() ==
               support::child<QLabel>(w, name.toLatin1())->pixmap().toImage();
    };
    // The players' caption and which name boxes are enabled.
    auto state = [w] {
        QString s = w->Zahl()[0]->text() + ' ';
        for (QLineEdit* box : w->Spieler_Name()) s += box->isEnabled() ? '1' : '0';
        return s;
    };
    QCOMPARE(state(), " 4 1111");
    QVERIFY(face(0));
    QElapsedTimer clock;
    clock.start();
    QTest::mousePress(plumin, Qt::RightButton, {}, QPoint(15, 15)); // the lower right half
    QCOMPARE(state(), "3 1110");
    QVERIFY(face(2));
    QTRY_COMPARE_WITH_TIMEOUT(state(), "2 1100", 3000);
    QVERIFY2(clock.elapsed() >= 180, "repeats after 200 ms, not before");
    QTRY_COMPARE_WITH_TIMEOUT(state(), "1 1000", 3000);
    QTest::qWait(450);
    QCOMPARE(state(), "1 1000");
    QCOMPARE(int(f.game.g.AnzSpieler), 1);
    w->repaint(); // a repaint leaves the held face
    QVERIFY(face(2));
    QTest::mouseRelease(plumin, Qt::RightButton, {}, QPoint(2, 2));
    for (QTimer* t : w->findChildren<QTimer*>(Qt::FindDirectChildrenOnly))
        QVERIFY(!t->isActive()); // the repeat has stopped
    QVERIFY(face(0));
}

void OptionsDialogTest::changesThatRestartTheGame_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("restarts");
    auto row = [](const char* tag, const Act& act, const QString& after, bool restarts) {
        QTest::newRow(tag) << act << after << restarts;
    };
    auto click = [](const char* control) {
        return Act([=](W* w) { QTest::mouseClick(support::child(w, control), Qt::LeftButton); });
    };
    const Act rename = [](W* w) { QTest::keyClicks(w->Spieler_Name()[1], "X"); };
    const Act resize = [=](W* w) { rename(w), w->resize(w->size() + QSize(20, 20)); };
    const Act repeat = [](W* w) {
        QTest::mouseClick(support::child(w, "wiederh_1"), Qt::LeftButton);
    };
    const Act motif = [](W* w) { w->Motiv()->setCurrentRow(0); };
    const QString names = " Marta,Helene,Matthis,Svenja", dat = " englisch.dat";
    const QString renamed = dat + " Marta,HeleneX,Matthis,Svenja";
    row("players", spin(0, 18), "3 3 1 111" + dat + names, true);
    row("players at the limit", spin(0, 2), "4 3 1 111" + dat + names, false);
    row("tips", spin(1, 18), "4 2 1 111" + dat + names, true);
    row("name", rename, "4 3 1 111" + renamed, true);
    row("repeat", repeat, "4 3 1 011" + dat + names, true);
    row("motif", motif, "4 3 0 111" + dat + names, false);
    row("sound", click("Sound"), "4 3 1 101" + dat + names, false);
    row("show solution", click("Anzeige"), "4 3 1 110" + dat + names, false);
    row("editor", click("EditButt"), "4 3 1 111" + dat + names, false);
    row("name, then a resize", resize, "4 3 1 111" + renamed, false);
}

void OptionsDialogTest::changesThatRestartTheGame()
{
    QFETCH(Act, act);
    QFETCH(QString, after);
    QFETCH(bool, restarts);
    Fixture f;
    int editorRuns = 0;
    f.dialog.openEditor = [&] { ++editorRuns; };
    W* w = f.shown();
    act(w);
    QCOMPARE(options(f.game), after);
    QCOMPARE(f.game.g.EinstGeaendert, restarts);
    const bool editor = QTest::currentDataTag() == QByteArray("editor");
    QCOMPARE(editorRuns, editor ? 1 : 0);
    if (editor) QCOMPARE(w->focusWidget(), support::child(w, "OK"));
    QVERIFY(!QFile::exists(f.iniPath)); // only OK writes
}

void OptionsDialogTest::closing_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QByteArray>("ini"); // null: nothing written
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("restarts");
    const QByteArray keys = "[Einstellungen]\r\nAnzahl= 2\r\nSound= 0\r\nAnzeige= 1\r\n"
                            "Wiederholung= 0\r\nTips= 1\r\nSpieler1=Marta\r\nSpieler2=Helene\r\n"
                            "Spieler3=Matthis\r\nSpieler4=Disabled but kept\r\n";
    const QString kept = " Marta,Helene,Matthis,Disabled but kept";
    QTest::newRow("OK stores eleven keys in order")
        << Act([](W* w) { QTest::mouseClick(support::child(w, "OK"), Qt::LeftButton); })
        << keys + "Datei=englisch.dat\r\nMotiv= 0\r\n"
        << "2 1 0 001 englisch.dat" + kept << false;
    QTest::newRow("double click, vocabulary")
        << dblClickRow("wortsch", 1) << keys + "Datei=tiere.dat\r\nMotiv= 0\r\n"
        << "2 1 0 001 tiere.dat" + kept << true;
    QTest::newRow("double click, motif")
        << dblClickRow("Motiv", 1) << keys + "Datei=englisch.dat\r\nMotiv= 1\r\n"
        << "2 1 1 001 englisch.dat" + kept << false;
    // Design values come back, but for the counts and the motif; the change still counts.
    QTest::newRow("the close box discards") << Act([](W* w) {
        QTest::keyClicks(w->Spieler_Name()[0], "Zed");
        QTest::mouseClick(support::child(w, "Anzeige"), Qt::LeftButton);
        w->wortsch()->setCurrentRow(1);
        w->close();
    }) << QByteArray() << "2 1 0 111 englisch.dat Marta,Helene,Matthis,Svenja"
                                            << true;
}

void OptionsDialogTest::closing()
{
    QFETCH(Act, act);
    QFETCH(QByteArray, ini);
    QFETCH(QString, after);
    QFETCH(bool, restarts);
    Fixture f;
    f.game.g.AnzSpieler = 2;
    f.game.g.AnzTips = 1;
    f.game.g.MotivNr = 0;
    f.game.einst.Sound = 0;
    f.game.einst.wiederh = {false, true};
    f.game.einst.Spieler_Name[3] = "Disabled but kept";
    QPointer<W> w = f.dialog.window();
    QVERIFY(!w->Spieler_Name()[3]->isEnabled());
    QTimer::singleShot(0, [&] {
        QVERIFY(QTest::qWaitForWindowExposed(w));
        act(w);
    });
    QTimer::singleShot(5000, w.data(), &QDialog::reject); // a window left open fails, not hangs
    f.dialog.show();
    QCOMPARE(support::readAll(f.iniPath), ini.isNull() ? "<unreadable>" : ini);
    QCOMPARE(options(f.game), after);
    QCOMPARE(f.game.g.EinstGeaendert, restarts);
    // OK only hides the window; the close box unloads it, so its controls start anew.
    QCOMPARE(!w.isNull(), !ini.isNull());
    QVERIFY(!f.dialog.window()->isVisible());
    QCOMPARE(f.dialog.window()->Spieler_Name()[0]->text(), "Marta");
    QCOMPARE(f.dialog.window()->Zahl()[0]->text(), ini.isNull() ? "4" : " 2");
}

void OptionsDialogTest::vocabularyChoice_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("stored"); // null: no file at all
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<int>("row");
    const QStringList three{"a.dat", "b.dat", "c.dat"};
    QTest::newRow("stored name present") << three << "b.dat"
                                         << "b.dat" << 1;
    QTest::newRow("case counts") << three << "B.dat"
                                 << "a.dat" << 0;
    QTest::newRow("stored name absent") << three << "gone.dat"
                                        << "a.dat" << 0;
    QTest::newRow("nothing stored") << three << QString() << "a.dat" << 0;
    QTest::newRow("empty list") << QStringList() << "gone.dat"
                                << "gone.dat" << -1;
}

void OptionsDialogTest::vocabularyChoice()
{
    QFETCH(QStringList, files);
    QFETCH(QString, stored);
    QFETCH(QString, chosen);
    QFETCH(int, row);
    Fixture f(files,
              stored.isNull() ? QByteArray() : "[Einstellungen]\nDatei=" + stored.toLatin1());
    QListWidget* list = f.dialog.window()->wortsch();
    QCOMPARE(list->count(), files.size());
    QCOMPARE(list->currentRow(), row);
    QCOMPARE(f.game.g.WortDatei, chosen);
    QVERIFY(!f.game.g.EinstGeaendert); // loading is no change
}

QTEST_MAIN(OptionsDialogTest)
#include "tst_options_dialog.moc"
