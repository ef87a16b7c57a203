// The vocabulary editor: what the word box takes, loading, adding, deleting, saving, and
// what OK, Cancel and the close box leave in the file, the game's list and the change flag.
#include "editor/vocabulary_editor.h"
#include "support/files.h"
#include "support/modal.h"
#include "support/scripted_toolkit.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using support::readAll;
using support::writeBytes;
using editor::VocabularyEditor;

namespace {

// The editor's controls, found by name in whatever holds the window.
template <class E> QLineEdit* Text1(const E& e) { return support::child<QLineEdit>(&*e, "Text1"); }
template <class E> QListView* List1(const E& e) { return support::child<QListView>(&*e, "List1"); }
template <class E> QPushButton* button(const E& e, const char* name)
{
    return support::child<QPushButton>(&*e, name);
}

// Keys as a keyboard sends them, one character a key, beyond ASCII too.
void type(QWidget* w, const QString& text)
{
    for (QChar c : text)
        QTest::sendKeyEvent(QTest::Click, w, Qt::Key(c.toUpper().unicode()), QString(c), {});
}

// Counts the boxes that come while no editor stands.
struct Toolkit : support::ScriptedToolkit {
    int withoutEditor = 0;
    int msgBox(const QString& text, int type, const QString& title) override
    {
        const auto* editor = qobject_cast<VocabularyEditor*>(QApplication::activeModalWidget());
        withoutEditor += !(editor && editor->isVisible());
        return ScriptedToolkit::msgBox(text, type, title);
    }
};

void showAndActivate(QWidget* w)
{
    w->show();
    QApplication::setActiveWindow(w);
    QVERIFY(QTest::qWaitForWindowActive(w));
}

} // namespace

class EditorTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { QDir::setCurrent(oldCwd_); }
    void wordBox();
    void load_data();
    void load();
    void add_data();
    void add();
    void clickAndDelete();
    void closing_data();
    void closing();

private:
    // A shown editor on words.dat holding `bytes`.
    std::unique_ptr<VocabularyEditor> shownOn(const QByteArray& bytes);

    std::unique_ptr<QTemporaryDir> dir_;
    QString oldCwd_;
    core::Global g_;
    QStringList mainList_;
    Toolkit tk_;
};

void EditorTest::init()
{
    oldCwd_ = QDir::currentPath();
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(dir_->path()));
    g_ = core::Global{};
    g_.WortDatei = "words.dat";
    mainList_ = {"leftover"};
    tk_.log.clear();
    tk_.answers.clear();
    tk_.withoutEditor = 0;
}

std::unique_ptr<VocabularyEditor> EditorTest::shownOn(const QByteArray& bytes)
{
    writeBytes(g_.WortDatei, bytes);
    auto e = std::make_unique<VocabularyEditor>(g_, mainList_, tk_);
    e->Form_Activate();
    showAndActivate(e.get());
    return e;
}

void EditorTest::wordBox()
{
    VocabularyEditor e(g_, mainList_, tk_);
    QLineEdit* box = Text1(&e);
    type(box, "AbzÄöüß1 ,\"-'.éñÿ"); // letters and umlauts only
    QCOMPARE(box->text(), "AbzÄöü");
    box->setCursorPosition(0); // control keys pass, so Delete still deletes
    QTest::sendKeyEvent(QTest::Click, box, Qt::Key_Delete, QString(QChar(127)), {});
    QCOMPARE(box->text(), "bzÄöü");
    box->clear();
    QInputMethodEvent commit; // composed characters are filtered too
    commit.setCommitString("éaÇü");
    QApplication::sendEvent(box, &commit);
    QCOMPARE(box->text(), "aü");
    box->clear();
    QApplication::clipboard()->setText("Maß, 2" + QString(30, 'p')); // a paste only is cut
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(box->text(), "Maß, 2" + QString(14, 'p'));
}

void EditorTest::load_data()
{
    QTest::addColumn<QString>("wortDatei");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("dictionary order, duplicates stay, the filter drops")
        << "words.dat"
        << "pear\r\nApple\r\nzebra,apple\r\n\xC4pfel\r\nMa\xDF\r\n\"b,a\"\r\npear\r\n" +
               QByteArray(21, 'x')
        << QStringList{"Äpfel", "apple", "Apple", "b,a", "pear", "pear", "zebra"} << QStringList{};
    QTest::newRow("zero bytes") << "words.dat" << QByteArray("") << QStringList{}
                                << QStringList{"box 48 Fehler!: Input past end of file"};
    QTest::newRow("no name: eisfig.dat")
        << "" << QByteArray("ice") << QStringList{"ice"} << QStringList{};
}

void EditorTest::load()
{
    QFETCH(QString, wortDatei);
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, list);
    QFETCH(QStringList, boxes);
    const QString file = wortDatei.isEmpty() ? "eisfig.dat" : wortDatei;
    writeBytes(file, bytes);
    g_.WortDatei = wortDatei;
    g_.Geaendert = true;
    VocabularyEditor e(g_, mainList_, tk_);
    qobject_cast<editor::SortedWords*>(List1(&e)->model())->add("from before");
    e.Form_Activate();
    QCOMPARE(e.words(), list);
    QCOMPARE(tk_.boxes(), boxes);
    QCOMPARE(g_.WortDatei, file);
    QCOMPARE(readAll(file), bytes); // reading never writes
    QVERIFY(g_.Geaendert);
}

void EditorTest::add_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("list");
    QTest::newRow("into its sorted place") << "dog" << QStringList{"cat", "dog", "mouse"};
    QTest::newRow("the same word twice") << "cat" << QStringList{"cat", "cat", "mouse"};
    QTest::newRow("case as typed") << "CAT" << QStringList{"cat", "CAT", "mouse"};
    QTest::newRow("umlaut by its base letter") << "Maus" << QStringList{"cat", "Maus", "mouse"};
    QTest::newRow("a long word") << "Donaudampfschiffahrt"
                                 << QStringList{"cat", "Donaudampfschiffahrt", "mouse"};
    QTest::newRow("empty box adds nothing") << "" << QStringList{"cat", "mouse"};
}

void EditorTest::add()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, list);
    auto e = shownOn("mouse\r\ncat\r\n");
    Text1(e)->setFocus();
    type(Text1(e), typed);
    QTest::keyClick(Text1(e), Qt::Key_Return); // the default button
    QCOMPARE(e->words(), list);
    for (int row = 0; row < list.size(); ++row) // every word has room for all its letters
        QVERIFY(List1(e)->visualRect(List1(e)->model()->index(row, 0)).width() >=
                List1(e)->fontMetrics().horizontalAdvance(list[row]));
    QCOMPARE(Text1(e)->text(), QString());
    QCOMPARE(QApplication::focusWidget(), Text1(e)); // ready for the next word
    QVERIFY(g_.Geaendert);                             // also for an empty box, so OK will ask
    QCOMPARE(mainList_, QStringList{"leftover"});
    QCOMPARE(readAll("words.dat"), QByteArray("mouse\r\ncat\r\n"));
}

void EditorTest::clickAndDelete()
{
    auto e = shownOn("eel\r\ndog\r\ncat\r\nbee\r\nant\r\n");
    QListView* list = List1(e);
    auto click = [&](int row, Qt::KeyboardModifiers mod = {}) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, mod,
                          list->visualRect(list->model()->index(row, 0)).center());
    };
    click(1);
    QCOMPARE(Text1(e)->text(), QString("bee"));
    QVERIFY(button(e, "Loesch")->isEnabled());
    QVERIFY(!g_.Geaendert);
    click(3, Qt::ControlModifier);
    click(4, Qt::ControlModifier);
    button(e, "Loesch")->click();
    QCOMPARE(e->words(), (QStringList{"ant", "cat"}));
    QVERIFY(!button(e, "Loesch")->isEnabled());
    QCOMPARE(QApplication::focusWidget(), list);
    QVERIFY(g_.Geaendert);
    // Focus on the box selects from its cursor to the end.
    Text1(e)->setCursorPosition(1);
    QTest::keyClick(list, Qt::Key_Backtab);
    QCOMPARE(Text1(e)->selectedText(), QString("el"));
    // The box keeps the last word clicked, so Add puts it back.
    button(e, "Hinzuf")->click();
    QCOMPARE(e->words(), (QStringList{"ant", "cat", "eel"}));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                       list->visualRect(list->model()->index(1, 0)).center());
    QCOMPARE(Text1(e)->text(), QString("cat"));
}

void EditorTest::closing_data()
{
    QTest::addColumn<QString>("wortDatei"); // "folder.dat" is made a folder
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("answer"); // to "Save changes?"
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("mainList");
    QTest::addColumn<bool>("geaendert");
    QTest::addColumn<QStringList>("boxes"); // "?": the question
    using L = QStringList;
    // The blank line comes back, "Maß" is filtered away, "Öl" is one byte.
    const QByteArray old("pear\r\n\r\nMa\xDF\r\napple\r\n"),
        saved("\r\napple\r\n\xD6l\r\npear\r\n");
    const L edited{"", "apple", "Öl", "pear"}, leftover{"leftover"};
    const int yes = core::kAnswerYes, no = core::kAnswerNo;
    auto row = [](const char* tag, const char* name, const L& steps, int answer,
                  const QByteArray& file, const L& mainList, bool geaendert, const L& boxes = {}) {
        QTest::newRow(tag) << QString(name) << steps << answer << file << mainList << geaendert
                           << boxes;
    };
    row("OK unchanged: no question", "words.dat", {"ok"}, 0, old, {"", "apple", "pear"}, false);
    row("OK changed, Yes saves", "words.dat", {"add", "ok"}, yes, saved, edited, false, {"?"});
    row("OK changed, No keeps the file", "words.dat", {"add", "ok"}, no, old, edited, true, {"?"});
    row("OK after Save: no question", "words.dat", {"add", "save", "ok"}, 0, saved, edited, false);
    row("Cancel drops the changes", "words.dat", {"add", "cancel"}, 0, old, leftover, false);
    row("the close box keeps the flag", "words.dat", {"add", "close"}, 0, old, leftover, true);
    row("Save makes a missing file", "new.dat", {"add", "save", "cancel"}, 0, "\xD6l\r\n", {"Öl"},
        false, {"box 48 Fehler!: Datei new.dat nicht gefunden!"});
    // A failed save says so and keeps the flag, so OK asks and fails again; the game gets the
    // list all the same.
    const QString folder =
        "box 48 Fehler!: Datei folder.dat nicht gespeichert!\rPath/File access error";
    row("Save fails: a folder in the way", "folder.dat", {"add", "save", "ok", "cancel"}, yes,
        "<unreadable>", {"Öl"}, false,
        {"box 48 Fehler!: Path/File access error", folder, "?", folder});
}

void EditorTest::closing()
{
    QFETCH(QString, wortDatei);
    QFETCH(QStringList, steps);
    QFETCH(int, answer);
    QFETCH(QByteArray, file);
    QFETCH(QStringList, mainList);
    QFETCH(bool, geaendert);
    QFETCH(QStringList, boxes);
    writeBytes("words.dat", "pear\r\n\r\nMa\xDF\r\napple\r\n");
    QDir().mkpath("folder.dat/keep");
    if (answer) tk_.answers = {answer};
    core::Game game(tk_);
    game.g.WortDatei = wortDatei;
    game.List1 = mainList_;
    QWidget options;
    showAndActivate(&options);
    QTimer::singleShot(0, &options, [&] {
        auto* e = options.findChild<VocabularyEditor*>();
        for (const QString& step : steps) {
            if (step == "add") type(Text1(e), "Öl"), button(e, "Hinzuf")->click();
            if (step == "save") button(e, "Speichern")->click();
            if (step == "ok") button(e, "OK")->click();
            if (step == "cancel") button(e, "Abbruch")->click();
            if (step == "close") e->close();
        }
    });
    editor::showEditor(game, tk_, &options);

    QCOMPARE(readAll(wortDatei), file);
    QVERIFY(QDir("folder.dat/keep").exists());
    QCOMPARE(game.List1, mainList);
    QCOMPARE(game.g.Geaendert, geaendert);
    boxes.replaceInStrings(QRegularExpression("^\\?$"), "box 36 " + wortDatei + ": Save changes?");
    QCOMPARE(tk_.boxes(), boxes);
    QCOMPARE(tk_.withoutEditor, 0); // a failure to read the file is told over the editor
    // OK only hides the editor; Cancel and the close box unload it.
    auto* e = options.findChild<VocabularyEditor*>();
    QCOMPARE(e != nullptr, steps.last() == "ok");
    if (e) QVERIFY(e->isHidden());
}

QTEST_MAIN(EditorTest)
#include "tst_editor.moc"
