// The scoreboard rows, whose turn it is, and the shortening of names.
#include "support/scripted_toolkit.h"

#include <QTest>

using support::GameFixture;

class Scoreboard : public QObject {
    Q_OBJECT
private slots:
    void rowsAndTurns_data();
    void rowsAndTurns();
    void captionShortening_data();
    void captionShortening();
};

void Scoreboard::rowsAndTurns_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<int>>("turns"); // after each miss
    QTest::addColumn<int>("dropTo");       // a count lowered after the third miss, 0: none
    QTest::newRow("one keeps the turn") << 1 << 1 << QList<int>{0, 0, 0} << 0;
    QTest::newRow("three take turns") << 3 << 3 << QList<int>{1, 2, 0, 1} << 0;
    // Lowered without a new game (a resize of the options hid the change): the turn wraps
    // instead of running past the rows.
    QTest::newRow("two left below the turn") << 4 << 4 << QList<int>{1, 2, 3, 0, 1} << 2;
}

void Scoreboard::rowsAndTurns()
{
    QFETCH(int, stored);
    QFETCH(int, rows);
    QFETCH(QList<int>, turns);
    QFETCH(int, dropTo);
    GameFixture f({"apple"}, stored);
    const QStringList names{"Marta", "Helene", "Matthis", "Svenja"};
    for (int i = 0; i < core::kPlayers; ++i) {
        const auto& label = f.game.board.Spieler[i];
        QVERIFY(label.loaded); // every row exists, shown or not
        QCOMPARE(label.Visible, i < rows);
        if (i < rows) QCOMPARE(label.Caption, names[i]);
        QCOMPARE(f.visiblePoints(i), 0);
    }
    f.game.start();
    for (int k = -1; k < turns.size(); ++k) {
        if (k == 3 && dropTo) f.game.g.AnzSpieler = int16_t(dropTo);
        if (k >= 0) f.game.key('z' - k); // letters apple does not hold
        const int turn = k < 0 ? 0 : turns[k];
        QCOMPARE(int(f.game.g.AktSpieler), turn);
        for (int i = 0; i < rows; ++i) {
            QCOMPARE(f.game.board.Spieler[i].BackColor, i == turn ? core::kRed : core::kBlue);
            QCOMPARE(f.game.board.Spieler[i].ForeColor,
                     i == turn ? core::kWhite : core::kLightGrey);
        }
    }
}

void Scoreboard::captionShortening_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("charWidth");
    QTest::addColumn<QString>("caption");
    // The label is 1900 twips wide: at 200 a character, nine characters fit and ten do not.
    QTest::newRow("exactly nine fit") << "Friedrich" << 200.0 << "Friedrich";
    QTest::newRow("ten too wide: one pass") << "Alexandra1" << 200.0 << "Alexandr.";
    QTest::newRow("the point goes too at the next pass") << "Maximiliane1" << 200.0 << "Maximili.";
    QTest::newRow("names under ten keep their length") << "Christina" << 300.0 << "Christina";
    QTest::newRow("still too wide after the last pass") << "Bartholomew" << 300.0 << "Bartholo.";
}

void Scoreboard::captionShortening()
{
    QFETCH(QString, name);
    QFETCH(double, charWidth);
    QFETCH(QString, caption);
    GameFixture f;
    f.tk.charWidth = charWidth;
    f.game.einst.Spieler_Name[1] = name;
    f.game.NeuesSpiel();
    QCOMPARE(f.game.board.Spieler[1].Caption, caption);
    QCOMPARE(f.game.einst.Spieler_Name[1], name); // the options keep the full name
}

QTEST_GUILESS_MAIN(Scoreboard)
#include "tst_scoreboard.moc"
