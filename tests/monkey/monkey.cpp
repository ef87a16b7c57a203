// Plays random commands through the real main window, offscreen, and checks the rules of the
// game after each; a broken rule is reported with the seed and the command's number.
//   monkey [commands [seed]]
#include "support/main_window_start.h"
#include "support/windows.h"

#include <QLabel>
#include <algorithm>
#include <cstdio>
#include <map>
#include <random>
#include <set>

namespace {

// Distinct words, so that each can be followed through the list.
const std::map<QString, QStringList> kWordFiles{
    {"frostel.dat", {"APPLE", "GNU", "OX", "KIWI", "ZEBRA", "BANANA", "QUIZ"}},
    {"zoo.dat", {"EMU", "YAK", "LLAMA"}}};

class Monkey : support::MainWindowStart {
public:
    Monkey(int commands, unsigned seed) : commands_(commands), seed_(seed), random_(seed) {}

    int run()
    {
        if (!enter()) return 2;
        for (const auto& [name, words] : kWordFiles)
            if (vocabulary::writeWordFile(name, words)) return 2;
        QTimer::singleShot(0, qApp, [this] { step(); });
        restart();
        const int result = QCoreApplication::exec();
        w_.reset();
        leave();
        std::printf("monkey: seed %u, %d commands, %d checks, %d word ends, %d draws, %d wins, %d "
                    "starts\n",
                    seed_, done_, checks_, ends_, draws_, wins_, starts_);
        return result;
    }

private:
    int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random_); }
    bool chance(int percent) { return pick(100) < percent; }
    bool finishing() const { return failed_ || done_ >= commands_; }
    void click(QWidget* w, QPoint at = {}) { QTest::mouseClick(w, Qt::LeftButton, {}, at); }

    void step()
    {
        QWidget* modal = QApplication::activeModalWidget();
        // Queued first: when this command waits, the next one comes from inside it.
        QTimer::singleShot(0, qApp, [this] { step(); });
        if (!w_) { // only the boxes of the start-up
            if (auto* box = qobject_cast<QMessageBox*>(modal)) box->buttons().first()->click();
            return;
        }
        const bool running = exits_ == 0;
        if (!running && !modal && depth_ == 0) // the program has ended and unwound
            return finishing() ? QCoreApplication::exit(failed_ ? 1 : 0) : restart();
        if (running) observe();
        ++depth_;
        if (modal) answer(modal);
        else if (running && finishing()) w_->close();
        else if (running) ++done_, act();
        --depth_;
        if (exits_ == 0) observe();
    }

    // The program anew, with the settings file the last one left; one player at first, so that
    // games are won, until the options change that.
    void restart()
    {
        w_.reset();
        exits_ = 0;
        held_ = {};
        w_ = startWindow(++starts_ == 1 ? QByteArray("[Einstellungen]\r\nAnzahl= 1\r\n")
                                        : QByteArray());
        w_->toolkit().waitScale = 0;
    }

    void act()
    {
        const int roll = pick(10000);
        if (roll < 5000) clickTile();
        else if (roll < 7100) QTest::keyClick(w_.get(), char((chance(50) ? 'a' : 'A') + pick(26)));
        else if (roll < 7600) QTest::keyClick(w_.get(), Qt::Key_Return);
        else if (roll < 8000) QTest::keyClick(w_.get(), " 09-.,#\t\x1b"[pick(9)]);
        else if (roll < 8030) press("start", 0);
        else if (roll < 8040) press("ende", 1);
        else if (roll < 8640) press("tip", 2);
        else if (roll < 9440) press("weiter", 3);
        else if (roll < 9470) w_->findChild<QAction*>("opt")->trigger();
        else if (roll < 9998) w_->resize(300 + pick(1100), 200 + pick(800));
        else w_->close();
    }

    // A tile on show, often one of the word's letters, as a player would; now and then any.
    void clickTile()
    {
        std::vector<int> from;
        const bool right = chance(50);
        for (int i = 0; i < core::kLetters; ++i)
            if (w_->tileLabel(i)->isVisible() &&
                (!right || w_->game().g.Wort.contains(core::tileTag(i))))
                from.push_back(i);
        click(w_->tileLabel(from.empty() || chance(10) ? pick(core::kLetters)
                                                       : from[pick(int(from.size()))]));
    }

    // A command by its menu entry or by its button.
    void press(const char* action, int button)
    {
        if (chance(50)) w_->findChild<QAction*>(action)->trigger();
        else click(w_->picBut(button));
    }

    void answer(QWidget* modal)
    {
        if (modal->objectName() == "Einst") return changeOptions(modal);
        auto* box = qobject_cast<QMessageBox*>(modal);
        if (!box) return; // the splash goes by itself
        wins_ += box->windowTitle() == "Yippieh!";
        QAbstractButton* button = box->buttons().at(pick(int(box->buttons().size())));
        if (box->windowTitle() == "Start" && box->standardButton(button) == QMessageBox::Yes) {
            held_.drawAsked = true;
            // A word under way is dropped by the new game: it does not go back into the list.
            if (!w_->game().board.weiter_Enabled) held_.gone.insert(w_->game().g.Wort);
        }
        click(button);
    }

    // One change in the options window, or its close; found by name, as a player finds them.
    void changeOptions(QWidget* options)
    {
        auto find = [options](const QString& name) { return options->findChild<QWidget*>(name); };
        const int roll = finishing() ? 0 : pick(12);
        held_.drawAsked = held_.drawAsked || roll < 2;
        if (roll == 0) click(find("OK"));
        else if (roll == 1) options->close();
        else if (roll < 5) { // a spin button: its upper left half counts up, the rest down
            QWidget* spin = find(QString("plumin_%1").arg(pick(2)));
            click(spin, {pick(spin->width()), pick(spin->height())});
        } else if (roll < 7) {
            QWidget* name = find(QString("Spieler_Name_%1").arg(pick(core::kPlayers)));
            click(name);
            for (int n = pick(30); n > 0; --n) QTest::keyClick(name, char('a' + pick(26)));
        } else if (roll == 7) click(find(QString("wiederh_%1").arg(pick(2))));
        else if (roll == 8) click(find(chance(50) ? "Sound" : "Anzeige"));
        else { // a row of the vocabularies or the motifs; a double click closes the window
            auto* list = qobject_cast<QListWidget*>(find(chance(50) ? "wortsch" : "Motiv"));
            const QPoint at = list->visualItemRect(list->item(pick(list->count()))).center();
            if (chance(80)) return click(list->viewport(), at);
            held_.drawAsked = true;
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
        }
    }

    void observe()
    {
        const core::Game& game = w_->game();
        const core::Global& g = game.g;
        const core::Board& b = game.board;
        check(g.Fehler >= 0 && g.Fehler <= core::kLostAt, "Fehler stays within 0 to 9");
        for (int16_t points : g.Punkte)
            check(points >= 0 && points <= core::kPointsToWin, "no player has more than 8 points");
        const int turn = g.AktSpieler;
        check(turn >= 0 && turn < core::kPlayers && b.Spieler[turn].Visible,
              "the turn is on a player who is shown");
        for (size_t i = 1; i < b.Feld.size(); ++i)
            if (b.Feld[i].loaded && b.Feld[i].picture >= 0)
                check(i <= size_t(g.Wort.size()) &&
                          core::tileTag(b.Feld[i].picture) == g.Wort.at(qsizetype(i) - 1),
                      "an uncovered field shows the word's letter at its place");
        const bool solved = !g.Wort.isEmpty() && g.Treffer == g.Wort.size();
        if (solved) held_.gone.insert(g.Wort);
        // A word ends solved or lost, and stays so until the next draw has laid out its fields.
        const bool ended = solved || g.Fehler == core::kLostAt;
        if (ended && !held_.ended) ++ends_, held_.endPending = true;
        held_.ended = ended;
        // Every draw lets the first picture grow from a flat strip.
        if (!held_.drawing && b.B_Folge0_Height < core::kPictureSize) {
            held_.drawing = true;
            ++draws_;
            check(held_.endPending || held_.drawAsked || !g.SpielLaeuft,
                  "one draw per word end: a draw that no word end, new game or option asked for");
            held_.endPending = held_.drawAsked = false;
        }
        if (b.B_Folge0_Height == core::kPictureSize) held_.drawing = false;
        if (game.busy()) return; // the rest holds between routines
        held_.drawAsked = false;
        const bool underWay = g.SpielLaeuft && !b.weiter_Enabled && !g.Wort.isEmpty() &&
                              g.Treffer < g.Wort.size() && g.Fehler < core::kLostAt;
        check(std::all_of(b.alpha.begin(), b.alpha.begin() + core::kLetters,
                          [underWay](const core::Tile& t) { return t.Enabled == underWay; }),
              "the tiles take letters exactly while a word is under way");
        const auto file = kWordFiles.find(g.WortDatei);
        for (const QString& word : file == kWordFiles.end() ? QStringList() : file->second) {
            if (game.List1.contains(word)) held_.gone.erase(word); // the list was read again
            else
                check(word == g.Wort || held_.gone.count(word),
                      "the word list loses a word only when it is solved or dropped by a new game");
        }
    }

    void check(bool holds, const char* rule)
    {
        ++checks_;
        if (holds || failed_) return;
        failed_ = true;
        std::fprintf(stderr, "monkey: seed %u, command %d: broken: %s\n", seed_, done_, rule);
    }

    std::unique_ptr<mainwindow::MainWindow> w_;
    const int commands_;
    const unsigned seed_;
    std::mt19937 random_;
    int done_ = 0, depth_ = 0, checks_ = 0, starts_ = 0, ends_ = 0, draws_ = 0, wins_ = 0;
    bool failed_ = false;
    // What the rules are held against, since the window started; gone: solved, or dropped by a
    // new game, since the list was read.
    struct {
        bool drawing = false, ended = false, endPending = false, drawAsked = false;
        std::set<QString> gone;
    } held_;
};

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    app.setQuitOnLastWindowClosed(false); // the monkey starts the program again
    return Monkey(argc > 1 ? std::atoi(argv[1]) : 3000,
                  argc > 2 ? unsigned(std::strtoul(argv[2], nullptr, 10)) : 1)
        .run();
}
