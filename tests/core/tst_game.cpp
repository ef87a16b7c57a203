// Games played from scripts. A file in scenarios/ holds a player's moves, one a line; under
// each, indented, stands what followed until the next move: sounds and waits, held words,
// boxes, and the board as the player sees it, where it changed. "---" starts a fresh game in a
// fresh folder.
#include "core/game.h"
#include "support/files.h"
#include "support/scripted_toolkit.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <tuple>
#include <utility>

namespace {

// A game as start-up leaves it, in a working folder of its own.
struct Table {
    Table() { QDir::setCurrent(folder.path()); }
    QTemporaryDir folder;
    support::ScriptedToolkit tk;
    core::Game game{tk};
    bool built = false;
    std::map<QString, int> count;                        // waits and serves so far
    std::multimap<std::pair<QString, int>, QString> due; // moves at the n-th wait or serve
};

// "wait 0.1 x8", "(sound 4, wait 0.1) x3": repeats of one or two entries run together.
QString runs(const QStringList& e)
{
    QStringList parts;
    for (qsizetype i = 0, unit = 1, times = 1; i < e.size(); i += unit * times, unit = times = 1) {
        for (qsizetype u : {1, 2}) {
            qsizetype n = 1;
            while (i + (n + 1) * u <= e.size() && e.mid(i + n * u, u) == e.mid(i, u)) ++n;
            if (n > 1 && n * u > unit * times) unit = u, times = n;
        }
        const QString one = e.mid(i, unit).join(", ");
        if (times == 1) parts << one;
        else parts << (unit == 1 ? one : '(' + one + ')') + " x" + QString::number(times);
    }
    return parts.join(", ");
}

class Script {
public:
    explicit Script(QStringList lines) : lines_(std::move(lines)) { reset(); }

    QStringList play()
    {
        while (const auto line = next()) *line == "---" ? reset() : void(act(*line));
        flush();
        return out_;
    }

private:
    void reset()
    {
        t_ = std::make_unique<Table>();
        shown_.clear();
        t_->tk.player = [this](const QString& entry) { return event(entry); };
    }

    // The next move. Comments, blank lines and moves go to the transcript as they stand,
    // after what the game did since the move before.
    std::optional<QString> next(const QString& question = {})
    {
        flush();
        if (randomLeft_ > 0) return randomMove(question);
        while (at_ < lines_.size()) {
            const QString line = lines_[at_++];
            if (line.startsWith("  ")) continue; // what a run showed before
            out_ << line;
            if (!line.isEmpty() && !line.startsWith('#')) return line;
        }
        return std::nullopt;
    }

    void flush()
    {
        if (randomLeft_ > 0) { // only the words drawn and the wins are counted
            drawn_ += int(t_->tk.log.count("seed"));
            won_ += int(t_->tk.log.filter("Yippieh").size());
            return t_->tk.log.clear(), void(moved_ = false);
        }
        QStringList heard; // sounds, waits and seeds, run together on one line
        for (QString e : t_->tk.log << QString()) { // the empty entry ends the last run
            const bool heardOnly = e.startsWith("wait") || e.startsWith("sound") || e == "seed";
            if (heardOnly) heard << e;
            if (heardOnly || e == "serve") continue;
            if (!heard.isEmpty()) out_ << "  " + runs(std::exchange(heard, {}));
            if (!e.isEmpty()) out_ << "  " + e.replace(QChar(13), "\\r");
        }
        t_->tk.log.clear();
        if (!std::exchange(moved_, false)) return;
        if (const QString v = view(); v != std::exchange(shown_, v)) out_ << "  " + v;
    }

    // Moves due at a wait or a serve arrive then; where the game holds a finished word or
    // asks, the script's next move is played. With none left the player has gone.
    int event(const QString& entry)
    {
        Table& t = *t_;
        const QString kind = entry.section(' ', 0, 0);
        if (kind == "wait" || kind == "serve") {
            const auto [from, to] = t.due.equal_range({kind, ++t.count[kind]});
            for (auto it = from; it != to; ++it) act(it->second);
            if (randomLeft_ > 0 && random_() % 8 == 0) act(randomMove({})); // input meanwhile
            return 0;
        }
        moved_ = true; // the board as it stands while the game waits for the player
        while (const auto line = next(kind == "box" ? entry : QString()))
            if (act(*line)) return std::exchange(answer_, core::kAnswerNo);
        out_ << "  stuck";
        t.game.programEnded();
        return core::kAnswerNo;
    }

    // Plays one line; true when it held a move of the player.
    bool act(const QString& line)
    {
        Table& t = *t_;
        core::Game& g = t.game;
        const QString word = line.section(' ', 0, 0), rest = line.section(' ', 1);
        if (word == "random") { // "random 3000 7": moves drawn from seed 7, then the end
            random_.seed(rest.section(' ', 1).toUInt());
            randomLeft_ = rest.section(' ', 0, 0).toInt() + 1, drawn_ = won_ = 0;
            if (!std::exchange(t.built, true)) g.setUpBoard();
            return act(*next());
        }
        if (word == "during" || word == "serve") { // "during 2: keys p": at the second wait
            const QString at = word == "during" ? "wait" : "serve";
            const int n = t.count[at] + rest.section(':', 0, 0).toInt();
            t.due.insert({{at, n}, rest.section(':', 1).trimmed()});
            return false;
        }
        if (line.contains("; ")) // several moves at once
            return std::ranges::count_if(line.split("; "), [this](auto& one) { return act(one); });
        const bool move = word != "set" && word != "file" && word != "look";
        if (word != "set" && word != "file" && !std::exchange(t.built, true)) g.setUpBoard();
        if (word == "set") set(rest, false);
        else if (word == "file" && rest.endsWith('/')) QDir().mkpath(rest);
        else if (word == "file") // "file a.dat fig\r\n"
            support::writeBytes(
                rest.section(' ', 0, 0),
                rest.section(' ', 1).toUtf8().replace("\\r", "\r").replace("\\n", "\n"));
        else if (word == "look") t.tk.log << view();
        else if (word == "start") g.start();
        else if (word == "end") g.ende();
        else if (word == "tip") g.tip();
        else if (word == "enter") g.key(13);
        else if (word == "keys")
            for (const QChar c : rest) g.key(c.unicode());
        else if (word == "click") g.tile(rest.front().unicode() - u'A');
        else if (word == "button") g.picBut(rest.toInt());
        else if (word == "options")
            g.run([this, rest, &g] { g.opt_Click([this, rest] { set(rest, true); }); });
        else if (word == "load") g.routine([&g] { g.WoerterLaden(); });
        else if (word == "close") g.programEnded();
        else if (word == "yes" || word == "no")
            answer_ = word == "yes" ? core::kAnswerYes : core::kAnswerNo;
        else out_ << "  error: no move " + word;
        moved_ = moved_ || move;
        return move;
    }

    // A move at random, or an answer where a question is open: any, but "once again" is yes.
    // Before it the rules that hold at any moment are checked; after the last one, or a broken
    // rule, the program is closed.
    QString randomMove(const QString& question)
    {
        const QString broken = brokenRule();
        if (--randomLeft_ == 0 || !broken.isEmpty()) {
            out_ << QString("  %1 words drawn, %2 won games, ").arg(drawn_).arg(won_) +
                        (broken.isEmpty() ? QString("no rule broken") : "broken: " + broken);
            return randomLeft_ = 0, "close";
        }
        const auto pick = [this](int n) { return int(random_() % unsigned(n)); };
        if (!question.isEmpty()) return pick(2) || question.endsWith("again?") ? "yes" : "no";
        t_->tk.randoms = {std::uniform_real_distribution(0.0, 1.0)(random_)}; // the next draw
        const QString word = t_->game.g.Wort; // often one of its letters, as a player would
        const QString letter = pick(2) && !word.isEmpty() ? QString(word[pick(int(word.size()))])
                                                          : QString(QChar(u'A' + pick(26)));
        const QString moves[] = {"keys " + letter,
                                 "keys " + letter.toLower(),
                                 "click " + letter,
                                 "tip",
                                 "enter",
                                 QString("button %1").arg("023"[pick(3)]), // not the end's
                                 "start",
                                 "options players=" + QString::number(1 + pick(4)),
                                 "options tips=" + QString::number(pick(4)),
                                 "options motif=" + QString::number(pick(2)),
                                 QString("options repeat=") + (pick(2) ? "all" : "new")};
        const int r = pick(400); // mostly letters, as a player plays; now and then the options
        return moves[r < 300 ? r % 3 : r < 394 ? 3 + r % 3 : r < 396 ? 6 : 7 + r % 4];
    }

    // What any moment keeps: misses and points in range, the turn on a row on show, uncovered
    // fields true to the word. Between moves also the board in order, one picture, and the
    // tiles open exactly while a word is under way. Empty when all hold, else the board.
    QString brokenRule() const
    {
        const core::Game& g = t_->game;
        const core::Board& b = g.board;
        const auto inRange = [](int n, int last) { return n >= 0 && n <= last; };
        bool fine = inRange(g.g.Fehler, core::kLostAt) &&
                    inRange(g.g.AktSpieler, core::kPlayers - 1) &&
                    b.Spieler[qBound(0, int(g.g.AktSpieler), core::kPlayers - 1)].Visible;
        for (int p : g.g.Punkte) fine = fine && inRange(p, core::kPointsToWin);
        for (size_t i = 1; i < b.Feld.size(); ++i)
            fine = fine && (!b.Feld[i].loaded || b.Feld[i].picture < 0 ||
                            g.g.Wort.mid(qsizetype(i) - 1, 1) == core::tileTag(b.Feld[i].picture));
        const QString v = view();
        if (g.busy() || !fine) return fine ? QString() : v;
        const bool underWay = g.g.SpielLaeuft && !b.weiter_Enabled && !g.g.Wort.isEmpty() &&
                              g.g.Treffer < g.g.Wort.size() && g.g.Fehler < core::kLostAt;
        for (int i = 0; i < core::kLetters; ++i) fine = fine && b.alpha[i].Enabled == underWay;
        fine = fine && !v.contains('!') && !v.contains('?') && !v.contains("other symbols");
        return fine && std::ranges::count(b.B_Folge_Visible, true) == 1 ? QString() : v;
    }

    // "set sound=0 words=ox,pop": the game's options, its word list, the screen, the chance.
    void set(const QString& settings, bool viaOptions)
    {
        core::Game& g = t_->game;
        for (const QString& pair : settings.split(' ', Qt::SkipEmptyParts)) {
            const QString key = pair.section('=', 0, 0), v = pair.section('=', 1);
            const auto n = int16_t(v.toInt());
            if (key == "words") g.List1 = v.split(',', Qt::SkipEmptyParts);
            else if (key == "players") g.g.AnzSpieler = n;
            else if (key == "tips") g.g.AnzTips = n;
            else if (key == "points") // "points=0,7": Marta's and Helene's, their symbols up
                for (int i = 0; const QString& p : v.split(',')) {
                    g.g.Punkte[i] = int16_t(p.toInt());
                    for (int j = 0; j < core::kPointsToWin; ++j)
                        g.board.Punkt[i * core::kPointsToWin + j].Visible = j < p.toInt();
                    ++i;
                }
            else if (key == "names")
                std::ranges::copy(v.split(',').mid(0, 4), g.einst.Spieler_Name.begin());
            else if (key == "repeat") g.einst.wiederh = {v == "all", v != "all"};
            else if (key == "file") g.g.WortDatei = v;
            else if (key == "motif") g.g.MotivNr = n;
            else if (key == "sound") g.einst.Sound = n;
            else if (key == "show") g.einst.Anzeige = n;
            else if (key == "width") t_->tk.width = v.toDouble();
            else if (key == "charwidth") t_->tk.charWidth = v.toDouble();
            else if (key == "random") t_->tk.randoms.push_back(v.toDouble());
            else out_ << "  error: no setting " + key;
            // What the options window counts as a change that calls for a new game.
            const QStringList renew{"players", "tips", "names", "repeat", "file"};
            g.g.EinstGeaendert |= viaOptions && renew.contains(key);
        }
    }

    // The board in one line: the fields and where they begin, the picture, the scoreboard
    // (* at turn), the tiles, the tip and next-word controls, the words left, the motif.
    QString view() const
    {
        const core::Game& g = t_->game;
        const core::Board& b = g.board;
        if (g.ended()) return "ended";
        QString fields; // "?" for a field out of its row
        for (size_t i = 1; i < b.Feld.size(); ++i) {
            const core::Field& f = b.Feld[i];
            const bool inRow = f.loaded && f.Visible && f.Top == b.Feld[0].Top &&
                               f.Left == b.Feld[1].Left + int(i - 1) * 450;
            fields += !inRow ? QChar('?') : f.picture < 0 ? QChar('_') : core::tileTag(f.picture);
        }
        QStringList parts{fields.isEmpty() ? "no word"
                                           : fields + " at " + QString::number(b.Feld[1].Left),
                          "stage"};
        for (int i = 0; i < core::kStages; ++i)
            if (b.B_Folge_Visible[i]) parts.back() += ' ' + QString::number(i);
        if (b.B_Folge0_Height != 2400)
            parts.back() += QStringLiteral(" %1 high").arg(b.B_Folge0_Height);
        QStringList rows; // "!": points out of order or apart from the score, a row out of line
        for (int i = 0; i < core::kPlayers; ++i) {
            const core::PlayerLabel& l = b.Spieler[i];
            int points = 0;
            bool fine =
                l.Visible && l.loaded && (i == 0 || l.Top >= b.Spieler[i - 1].Top + l.Height);
            for (int j = 0; j < core::kPointsToWin; ++j) {
                const core::PointSymbol& s = b.Punkt[i * core::kPointsToWin + j];
                fine = s.Top == l.Top && (!s.Visible || points++ == j) && fine;
            }
            fine = fine && points == g.g.Punkte[i];
            const bool red = l.BackColor == core::kRed && l.ForeColor == core::kWhite;
            const bool blue = l.BackColor == core::kBlue && l.ForeColor == core::kLightGrey;
            const QString turn = red ? "*" : blue ? "" : "?";
            if (l.Visible || points)
                rows << turn + l.Caption + ' ' + QString::number(points) + (fine ? "" : "!");
        }
        parts << rows.join(", ");
        QString gone, open; // an umlaut's tile that shows counts as open
        for (int i = 0; i < core::kTiles; ++i) {
            const core::Tile& tile = b.alpha[i];
            if (i < core::kLetters && !tile.Visible) gone += core::tileTag(i);
            else if (tile.Enabled || (i >= core::kLetters && tile.Visible))
                open += core::tileTag(i);
        }
        parts << (open.isEmpty()                                ? "tiles shut"
                  : open.size() + gone.size() == core::kLetters ? "tiles open"
                                                                : "open " + open);
        if (!gone.isEmpty()) parts.back() += ", gone " + gone;
        for (const auto& [name, menu, button] :
             {std::tuple{"tip", b.tip_Enabled, b.PicBut_Visible[2]},
              std::tuple{"next", b.weiter_Enabled, b.PicBut_Visible[3]}})
            if (menu || button)
                parts << name + QString(menu == button ? "" : menu ? " menu only" : " button only");
        parts << "list " + (g.List1.isEmpty() ? "(empty)" : g.List1.join(','));
        const bool same = std::ranges::all_of(
            b.Punkt, [&](const core::PointSymbol& s) { return s.symbol == b.seriesMotif; });
        parts << QString(same ? "" : "other symbols, ") +
                     (b.seriesMotif == core::Motif::AppleTree ? "apple tree" : "Frostel");
        return parts.join("; ");
    }

    QStringList lines_, out_;
    QString shown_; // the board as last shown
    std::mt19937 random_;
    int randomLeft_ = 0, drawn_ = 0, won_ = 0; // random moves still to play; what they did
    qsizetype at_ = 0;
    std::unique_ptr<Table> t_;
    bool moved_ = false;           // the player has moved since the board was last shown
    int answer_ = core::kAnswerNo; // to the question that is open
};

} // namespace

class Scenarios : public QObject {
    Q_OBJECT
private slots:
    void play_data()
    {
        QTest::addColumn<QString>("path");
        const QFileInfoList files = QDir(qEnvironmentVariable("FROSTEL_SCENARIOS", SCENARIOS))
                                        .entryInfoList({"*.txt"}, QDir::Files, QDir::Name);
        QVERIFY(!files.isEmpty());
        for (const QFileInfo& f : files)
            QTest::newRow(qPrintable(f.completeBaseName())) << f.filePath();
    }

    void play()
    {
        QFETCH(QString, path);
        QStringList expected = QString::fromUtf8(support::readAll(path)).split('\n');
        if (expected.last().isEmpty()) expected.removeLast();
        const QStringList seen = Script(expected).play();
        // On a difference the whole run lands beside the test binary, for a diff with the script.
        const QString run =
            QCoreApplication::applicationDirPath() + '/' + QFileInfo(path).fileName();
        if (seen != expected) support::writeBytes(run, seen.join('\n').toUtf8() + '\n');
        QCOMPARE(seen, expected);
    }
};

QTEST_GUILESS_MAIN(Scenarios)
#include "tst_game.moc"
