// The scoreboard rows, the shortening of names, where a word's fields stand, and counts
// that a hand-edited settings file may put out of range.
#include "support/scripted_toolkit.h"

#include <QTest>

using support::GameFixture;

class Scoreboard : public QObject {
    Q_OBJECT
private slots:
    void rowsStandInPlace();
    void fewerPlayersStillHaveAllRows_data();
    void fewerPlayersStillHaveAllRows();
    void captionShortening_data();
    void captionShortening();
    void fieldPlacement_data();
    void fieldPlacement();
    void wholeNumbers_data();
    void wholeNumbers();
    void playerCountOutOfRange_data();
    void playerCountOutOfRange();
    void playerCountDroppedBelowTheTurn();
    void tipCountOutOfRange_data();
    void tipCountOutOfRange();
    void motifSetsSeriesAndSymbols_data();
    void motifSetsSeriesAndSymbols();
};

void Scoreboard::rowsStandInPlace()
{
    GameFixture f;
    const int tops[] = {400, 985, 1570, 2155};
    const int lefts[] = {2400, 2790, 3180, 3570, 3960, 4350, 4740, 5130};
    for (int i = 0; i < core::kPlayers; ++i) {
        const auto& label = f.game.board.Spieler[i];
        QVERIFY(label.loaded);
        QCOMPARE(label.Top, tops[i]);
        QCOMPARE(label.Left, 240);
        QCOMPARE(label.Width, 1900);
        QCOMPARE(label.Height, 360);
        for (int j = 0; j < core::kPointsToWin; ++j) {
            const auto& s = f.game.board.Punkt[i * 8 + j];
            QVERIFY(s.loaded);
            QCOMPARE(s.Top, tops[i]);
            QCOMPARE(s.Left, lefts[j]);
            QVERIFY(!s.Visible);
        }
    }
}

void Scoreboard::fewerPlayersStillHaveAllRows_data()
{
    QTest::addColumn<int>("players");
    QTest::addColumn<QStringList>("captions");
    QTest::newRow("one") << 1 << QStringList{"Marta"};
    QTest::newRow("two") << 2 << QStringList{"Marta", "Helene"};
    QTest::newRow("four") << 4 << QStringList{"Marta", "Helene", "Matthis", "Svenja"};
}

void Scoreboard::fewerPlayersStillHaveAllRows()
{
    QFETCH(int, players);
    QFETCH(QStringList, captions);
    GameFixture f({"a"}, players);
    for (int i = 0; i < core::kPlayers; ++i) {
        QVERIFY(f.game.board.Spieler[i].loaded);
        QCOMPARE(f.game.board.Spieler[i].Visible, i < players);
        if (i < players) QCOMPARE(f.game.board.Spieler[i].Caption, captions[i]);
        // Player 0 at turn, everybody else not.
        QCOMPARE(f.game.board.Spieler[i].BackColor, i == 0 ? core::kRed : core::kBlue);
    }
    QCOMPARE(f.game.g.AktSpieler, int16_t(0));
}

void Scoreboard::captionShortening_data()
{
    QTest::addColumn<double>("charWidth");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    // The label is 1900 twips wide: at 200 a character, nine characters fit and ten do not.
    QTest::newRow("fits") << 200.0 << "Anna"
                          << "Anna";
    QTest::newRow("exactly nine fit") << 200.0 << "Friedrich"
                                      << "Friedrich";
    QTest::newRow("ten too wide: one pass") << 200.0 << "Alexandra1"
                                            << "Alexandr.";
    QTest::newRow("the point goes too at the next pass") << 200.0 << "Maximiliane1"
                                                         << "Maximili.";
    QTest::newRow("short names keep their length") << 300.0 << "Christina"
                                                   << "Christina";
    QTest::newRow("still too wide after the last pass") << 300.0 << "Bartholomew"
                                                        << "Bartholo.";
    QTest::newRow("empty") << 200.0 << ""
                           << "";
}

void Scoreboard::captionShortening()
{
    QFETCH(double, charWidth);
    QFETCH(QString, name);
    QFETCH(QString, caption);
    GameFixture f;
    f.tk.charWidth = charWidth;
    f.game.einst.Spieler_Name[1] = name;
    f.game.NeuesSpiel();
    QCOMPARE(f.game.board.Spieler[1].Caption, caption);
    QCOMPARE(f.game.einst.Spieler_Name[1], name); // the box keeps the full name
}

void Scoreboard::fieldPlacement_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("firstLeft");
    QTest::newRow("five letters at the minimum width") << 9600.0 << "apple" << 3725;
    QTest::newRow("twenty letters fit the minimum width")
        << 9600.0 << "abcdefghijklmnopqrst" << 350;
    QTest::newRow("one letter") << 9600.0 << "i" << 4625;
    QTest::newRow("an odd difference drops the half") << 9601.0 << "apple" << 3725;
    QTest::newRow("a half twip ties to even, down") << 9600.5 << "apple" << 3725;
    QTest::newRow("a half twip ties to even, up") << 9601.5 << "apple" << 3726;
    QTest::newRow("wide window") << 19200.0 << "apple" << 8525;
}

void Scoreboard::fieldPlacement()
{
    QFETCH(double, width);
    QFETCH(QString, word);
    QFETCH(int, firstLeft);
    GameFixture f({word});
    f.tk.width = width;
    f.game.board.Feld[0].Top = 3273; // as the layout leaves the pattern
    f.game.start();
    const auto& fields = f.game.board.Feld;
    QCOMPARE(int(fields.size()), int(word.size()) + 1);
    for (size_t i = 1; i < fields.size(); ++i) {
        QCOMPARE(fields[i].Left, firstLeft + int(i - 1) * 450);
        QCOMPARE(fields[i].Top, 3273);
        QVERIFY(fields[i].Visible);
        QCOMPARE(fields[i].picture, -1);
    }
    if (word.size() == 20) QCOMPARE(fields.back().Left + 375 - fields[1].Left, 8925);
}

void Scoreboard::wholeNumbers_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("q");
    QTest::newRow("plain") << 7350.0 << 2 << 3675;
    QTest::newRow("remainder dropped") << 7351.0 << 2 << 3675;
    QTest::newRow("half to even down") << 7350.5 << 2 << 3675;
    QTest::newRow("half to even up") << 7351.5 << 2 << 3676;
    QTest::newRow("negative towards zero") << -7351.0 << 2 << -3675;
}

void Scoreboard::wholeNumbers()
{
    QFETCH(double, a);
    QFETCH(int, b);
    QFETCH(int, q);
    QCOMPARE(core::idiv(a, b), (long long)q);
}

void Scoreboard::playerCountOutOfRange_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("visibleRows");
    QTest::addColumn<QList<int>>("turns");
    QTest::newRow("seven: all four rows") << 7 << 4 << QList<int>{1, 2, 3, 0};
    QTest::newRow("zero: one row") << 0 << 1 << QList<int>{0, 0};
    QTest::newRow("negative: one row") << -5 << 1 << QList<int>{0};
    QTest::newRow("beyond 16 bits wrapped") << -32768 << 1 << QList<int>{0};
}

void Scoreboard::playerCountOutOfRange()
{
    QFETCH(int, stored);
    QFETCH(int, visibleRows);
    QFETCH(QList<int>, turns);
    GameFixture f({"apple"}, stored);
    int shown = 0;
    for (const auto& label : f.game.board.Spieler) shown += label.Visible ? 1 : 0;
    QCOMPARE(shown, visibleRows);
    f.game.start();
    for (int i = 0; i < turns.size(); ++i) {
        f.game.key('z' - i); // letters apple does not hold
        QCOMPARE(int(f.game.g.AktSpieler), turns[i]);
    }
}

void Scoreboard::playerCountDroppedBelowTheTurn()
{
    // A count changed without a new game (the options window resized after the change):
    // the turn must wrap, never run past the rows.
    GameFixture f({"apple"}, 4);
    f.game.start();
    for (const char* k = "zyx"; *k; ++k) f.game.key(*k);
    QCOMPARE(f.game.g.AktSpieler, int16_t(3));
    f.game.g.AnzSpieler = 2;
    f.game.key('w');
    QCOMPARE(f.game.g.AktSpieler, int16_t(0));
    f.game.key('v');
    QCOMPARE(f.game.g.AktSpieler, int16_t(1));
}

void Scoreboard::tipCountOutOfRange_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("tipsTaken");
    QTest::addColumn<bool>("buttonAfter");
    // Used as read: seven tips allowed is seven; a negative count never runs out.
    QTest::newRow("seven, four taken") << 7 << 4 << true;
    QTest::newRow("seven, seven taken") << 7 << 7 << false;
    QTest::newRow("minus one, five taken") << -1 << 5 << true;
}

void Scoreboard::tipCountOutOfRange()
{
    QFETCH(int, stored);
    QFETCH(int, tipsTaken);
    QFETCH(bool, buttonAfter);
    GameFixture f({"abcdefghijklmnop"});
    f.game.g.AnzTips = int16_t(stored);
    f.game.start();
    for (int i = 0; i < tipsTaken; ++i) f.game.picBut(2);
    QCOMPARE(f.game.board.PicBut_Visible[2], buttonAfter);
    QCOMPARE(f.fields(), QString("ABCDEFGHIJKLMNOP").left(tipsTaken).leftJustified(16, '_'));
}

void Scoreboard::motifSetsSeriesAndSymbols_data()
{
    QTest::addColumn<int>("motif");
    QTest::addColumn<int>("series");
    QTest::newRow("apple tree") << 0 << 0;
    QTest::newRow("Frostel") << 1 << 1;
    QTest::newRow("out of range takes Frostel") << 5 << 1;
}

void Scoreboard::motifSetsSeriesAndSymbols()
{
    QFETCH(int, motif);
    QFETCH(int, series);
    support::ScriptedToolkit tk;
    core::Game game(tk);
    QCOMPARE(game.board.Punkt[0].symbol, 1); // the white ball before any motif is set
    QCOMPARE(game.board.seriesMotif, -1);
    game.g.MotivNr = int16_t(motif);
    for (int i = 0; i < core::kPlayers; ++i) {
        game.createPlayerLabel(i);
        game.createPlayerSymbols(i);
    }
    QCOMPARE(game.board.Punkt[0].symbol, 1);
    QCOMPARE(game.board.Punkt[1].symbol, series); // new symbols take the motif's
    game.MotivSetzen();
    QCOMPARE(game.board.seriesMotif, series);
    for (const auto& s : game.board.Punkt) QCOMPARE(s.symbol, series);
}

QTEST_GUILESS_MAIN(Scoreboard)
#include "tst_scoreboard.moc"
