// The vocabulary editor: what the word box takes, the order of the list, loading, adding,
// deleting, saving, and what OK, Cancel and the close box leave in the file, the game's
// list and the change flag.
#include "support/files.h"
#include "support/scripted_toolkit.h"
#include "vocabulary/editor/vocabulary_editor.h"
#include "vocabulary/word_file.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using vocabulary::editor::VocabularyEditor;
using Editor = std::unique_ptr<VocabularyEditor>;

namespace {

using support::readAll;
using support::writeBytes;

// Keys as a keyboard sends them, one character a key, beyond ASCII too.
void type(QWidget* w, const QString& text)
{
    for (QChar c : text)
        QTest::sendKeyEvent(QTest::Click, w, Qt::Key(c.toUpper().unicode()), QString(c), {});
}

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
    void typing_data();
    void typing();
    void load_data();
    void load();
    void add_data();
    void add();
    void clickAndDelete();
    void focusSelectsToTheEnd_data();
    void focusSelectsToTheEnd();
    void save_data();
    void save();
    void closing_data();
    void closing();
    void reopenAfterOk();
    void panels();

private:
    // A shown editor on "words.dat" holding `bytes`, the boxes of its load forgotten.
    Editor shownOn(const QByteArray& bytes);

    std::unique_ptr<QTemporaryDir> dir_;
    QString oldCwd_;
    core::Global g_;
    QStringList mainList_;
    support::ScriptedToolkit tk_;
};

void EditorTest::init()
{
    oldCwd_ = QDir::currentPath();
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(dir_->path()));
    g_ = core::Global{};
    g_.WortDatei = QStringLiteral("words.dat");
    mainList_ = {QStringLiteral("leftover")};
    tk_.log.clear();
    tk_.answers.clear();
}

Editor EditorTest::shownOn(const QByteArray& bytes)
{
    if (!bytes.isNull()) writeBytes(g_.WortDatei, bytes);
    Editor e = std::make_unique<VocabularyEditor>(g_, mainList_, tk_);
    e->Form_Activate();
    showAndActivate(e.get());
    tk_.log.clear();
    return e;
}

void EditorTest::typing_data()
{
    QTest::addColumn<QString>("how"); // keys, paste, compose or delete (at the start)
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("box");
    QTest::newRow("letters and umlauts as typed") << "keys"
                                                  << "AbzÄöü"
                                                  << "AbzÄöü";
    QTest::newRow("sharp s closes up") << "keys"
                                       << "Straße"
                                       << "Strae";
    QTest::newRow("digits, blank, punctuation") << "keys"
                                                << "a1 b,c\"d-e'f.g"
                                                << "abcdefg";
    QTest::newRow("other accented letters") << "keys"
                                            << "caféñÿ"
                                            << "caf";
    QTest::newRow("twenty letters at most") << "keys" << QString(25, 'k') << QString(20, 'k');
    QTest::newRow("paste bypasses the filter") << "paste"
                                               << "Maß, 2"
                                               << "Maß, 2";
    QTest::newRow("paste is cut at twenty") << "paste" << QString(30, 'p') << QString(20, 'p');
    QTest::newRow("composed characters filtered") << "compose"
                                                  << "éaÇü"
                                                  << "aü";
    QTest::newRow("the Delete key still deletes") << "delete"
                                                  << "abc"
                                                  << "bc";
}

void EditorTest::typing()
{
    QFETCH(QString, how);
    QFETCH(QString, input);
    QFETCH(QString, box);

    VocabularyEditor e(g_, mainList_, tk_);
    if (how == "keys") {
        type(e.Text1(), input);
    } else if (how == "paste") {
        QApplication::clipboard()->setText(input);
        QTest::keyClick(e.Text1(), Qt::Key_V, Qt::ControlModifier);
    } else if (how == "delete") {
        e.Text1()->setText(input);
        e.Text1()->setCursorPosition(0);
        QTest::sendKeyEvent(QTest::Click, e.Text1(), Qt::Key_Delete, QString(QChar(127)), {});
    } else {
        QInputMethodEvent commit;
        commit.setCommitString(input);
        QApplication::sendEvent(e.Text1(), &commit);
    }
    QCOMPARE(e.Text1()->text(), box);
}

void EditorTest::load_data()
{
    QTest::addColumn<QString>("wortDatei");
    QTest::addColumn<QByteArray>("bytes"); // null: no file
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<QStringList>("boxes");

    const QString fail = "box 48 Fehler!: ";
    QTest::newRow("dictionary order")
        << "words.dat" << QByteArray("pear\r\nApple\r\nzebra\r\napple\r\n\xC4pfel\r\nOrange")
        << QStringList{"Äpfel", "apple", "Apple", "Orange", "pear", "zebra"} << QStringList{};
    QTest::newRow("duplicates stay, the filter drops")
        << "words.dat"
        << "b,a\r\nMa\xDF\r\n\"b,a\"\r\nb\r\n" + QByteArray(21, 'x') + "\r\n"
        << QStringList{"a", "b", "b", "b,a"} << QStringList{};
    QTest::newRow("missing file") << "words.dat" << QByteArray() << QStringList{}
                                  << QStringList{fail + "Datei words.dat nicht gefunden!"};
    QTest::newRow("zero bytes") << "words.dat" << QByteArray("") << QStringList{}
                                << QStringList{fail + "Input past end of file"};
    QTest::newRow("no name: eisfig.dat")
        << "" << QByteArray("ice") << QStringList{"ice"} << QStringList{};
    QTest::newRow("no name and no eisfig.dat")
        << "" << QByteArray() << QStringList{}
        << QStringList{fail + "Datei eisfig.dat nicht gefunden!"};
}

void EditorTest::load()
{
    QFETCH(QString, wortDatei);
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, list);
    QFETCH(QStringList, boxes);

    const QString file = wortDatei.isEmpty() ? QStringLiteral("eisfig.dat") : wortDatei;
    if (!bytes.isNull()) writeBytes(file, bytes);
    g_.WortDatei = wortDatei;
    g_.Geaendert = true;
    VocabularyEditor e(g_, mainList_, tk_);
    e.List1()->addItem(QStringLiteral("from before"));
    e.Form_Activate();

    QCOMPARE(e.words(), list);
    QCOMPARE(tk_.boxes(), boxes);
    QCOMPARE(g_.WortDatei, file);
    QCOMPARE(QFile::exists(file), !bytes.isNull()); // reading never writes
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
    QTest::newRow("empty box adds nothing") << "" << QStringList{"cat", "mouse"};
}

void EditorTest::add()
{
    QFETCH(QString, typed);
    QFETCH(QStringList, list);

    Editor e = shownOn("mouse\r\ncat\r\n");
    e->Text1()->setFocus();
    type(e->Text1(), typed);
    QTest::keyClick(e->Text1(), Qt::Key_Return); // the default button

    QCOMPARE(e->words(), list);
    QCOMPARE(e->Text1()->text(), QString());
    QCOMPARE(QApplication::focusWidget(), e->Text1()); // ready for the next word
    QVERIFY(g_.Geaendert);                             // also for an empty box, so OK will ask
    QCOMPARE(mainList_, QStringList{"leftover"});
    QCOMPARE(readAll("words.dat"), QByteArray("mouse\r\ncat\r\n"));
}

void EditorTest::clickAndDelete()
{
    Editor e = shownOn("e\r\nd\r\nc\r\nb\r\na\r\n");
    QListWidget* list = e->List1();
    auto click = [&](int row, Qt::KeyboardModifiers mod = {}) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, mod,
                          list->visualItemRect(list->item(row)).center());
    };
    click(1);
    QCOMPARE(e->Text1()->text(), QString("b"));
    QVERIFY(e->Loesch()->isEnabled());
    QVERIFY(!g_.Geaendert);

    click(3, Qt::ControlModifier);
    click(4, Qt::ControlModifier);
    e->Loesch()->click();
    QCOMPARE(e->words(), (QStringList{"a", "c"}));
    QVERIFY(!e->Loesch()->isEnabled());
    QCOMPARE(QApplication::focusWidget(), list);
    QVERIFY(g_.Geaendert);
    // The box keeps the last word clicked, so Add puts it back.
    e->Hinzuf()->click();
    QCOMPARE(e->words(), (QStringList{"a", "c", "e"}));

    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                       list->visualItemRect(list->item(1)).center());
    QCOMPARE(e->Text1()->text(), QString("c"));
}

void EditorTest::focusSelectsToTheEnd_data()
{
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QString>("selected");
    QTest::newRow("cursor at the start") << 0 << "banana";
    QTest::newRow("cursor inside") << 2 << "nana";
    QTest::newRow("cursor at the end") << 6 << "";
}

void EditorTest::focusSelectsToTheEnd()
{
    QFETCH(int, cursor);
    QFETCH(QString, selected);

    Editor e = shownOn("cat\r\n");
    e->List1()->setFocus();
    e->Text1()->setText(QStringLiteral("banana"));
    e->Text1()->setCursorPosition(cursor);
    QTest::keyClick(e->List1(), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), e->Text1());
    QCOMPARE(e->Text1()->selectedText(), selected);
}

void EditorTest::save_data()
{
    QTest::addColumn<QString>("wortDatei");
    QTest::addColumn<QByteArray>("before"); // null: no file
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("failure");

    QTest::newRow("sorted CR LF lines in Windows-1252")
        << "words.dat" << QByteArray("zebra\r\nMa\xDF\r\nbee,ant\r\n") << "Öl"
        << QByteArray("ant\r\nbee\r\n\xD6l\r\nzebra\r\n") << "";
    QTest::newRow("a missing file is created")
        << "words.dat" << QByteArray() << "kiwi" << QByteArray("kiwi\r\n") << "";
    QTest::newRow("a blank line comes back blank")
        << "words.dat" << QByteArray("b\r\n\r\na\r\n") << "" << QByteArray("\r\na\r\nb\r\n") << "";
    QTest::newRow("an empty list leaves zero bytes")
        << "words.dat" << QByteArray("-") << "" << QByteArray("") << "";
    // As root nothing is write-protected: a folder in the way is what fails.
    QTest::newRow("a folder in the file's place")
        << "words.dat" << QByteArray() << "kiwi" << QByteArray("<unreadable>")
        << "Path/File access error";
    QTest::newRow("a missing folder") << "gone/words.dat" << QByteArray() << "kiwi"
                                      << QByteArray("<unreadable>") << "Path not found";
}

void EditorTest::save()
{
    QFETCH(QString, wortDatei);
    QFETCH(QByteArray, before);
    QFETCH(QString, typed);
    QFETCH(QByteArray, after);
    QFETCH(QString, failure);

    const bool folderInTheWay = !failure.isEmpty() && wortDatei == "words.dat";
    if (folderInTheWay) QVERIFY(QDir().mkpath("words.dat/keep"));
    g_.WortDatei = wortDatei;
    Editor e = shownOn(before);
    e->Text1()->setText(typed);
    e->Hinzuf()->click();
    if (before == "-") { // delete all; a click first, Delete starts disabled
        e->List1()->setCurrentRow(0);
        e->List1()->selectAll();
        e->Loesch()->click();
    }
    e->Speichern()->click();

    QCOMPARE(readAll(wortDatei), after);
    QCOMPARE(mainList_, e->words()); // the game gets the list either way
    QVERIFY(e->isVisible());
    if (failure.isEmpty()) {
        QCOMPARE(tk_.boxes(), QStringList{});
        QVERIFY(!g_.Geaendert);
        const QStringList back = vocabulary::readWordFile(wortDatei).words;
        QCOMPARE(back, after.isEmpty() ? QStringList{} : e->words());
        return;
    }
    const QString box = "box 48 Fehler!: Datei " + wortDatei + " nicht gespeichert!\r" + failure;
    QCOMPARE(tk_.boxes(), QStringList{box});
    QVERIFY(g_.Geaendert);
    QCOMPARE(QDir("words.dat/keep").exists(), folderInTheWay);
    // OK with Yes keeps the window open, so the edited list is not thrown away.
    tk_.log.clear();
    tk_.answers = {core::kAnswerYes};
    e->OK()->click();
    QCOMPARE(tk_.boxes(), (QStringList{"box 36 " + wortDatei + ": Save changes?", box}));
    QVERIFY(e->isVisible());
}

void EditorTest::closing_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("answer"); // 0: no question expected
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("mainList");
    QTest::addColumn<bool>("geaendert");
    QTest::addColumn<bool>("staysLoaded");

    const QByteArray old("pear\r\napple\r\n"), saved("apple\r\nkiwi\r\npear\r\n");
    const QStringList edited{"apple", "kiwi", "pear"}, leftover{"leftover"};
    QTest::newRow("OK unchanged: no question")
        << QStringList{"ok"} << 0 << old << QStringList{"apple", "pear"} << false << true;
    QTest::newRow("OK changed, Yes saves")
        << QStringList{"add", "ok"} << int(core::kAnswerYes) << saved << edited << false << true;
    QTest::newRow("OK changed, No keeps the file")
        << QStringList{"add", "ok"} << int(core::kAnswerNo) << old << edited << true << true;
    QTest::newRow("OK after Save: no question")
        << QStringList{"add", "save", "ok"} << 0 << saved << edited << false << true;
    QTest::newRow("Cancel drops the changes")
        << QStringList{"add", "cancel"} << 0 << old << leftover << false << false;
    QTest::newRow("Esc is Cancel")
        << QStringList{"add", "esc"} << 0 << old << leftover << false << false;
    QTest::newRow("Cancel after Save keeps what was saved")
        << QStringList{"add", "save", "cancel"} << 0 << saved << edited << false << false;
    QTest::newRow("close box keeps the flag")
        << QStringList{"add", "close"} << 0 << old << leftover << true << false;
}

void EditorTest::closing()
{
    QFETCH(QStringList, steps);
    QFETCH(int, answer);
    QFETCH(QByteArray, file);
    QFETCH(QStringList, mainList);
    QFETCH(bool, geaendert);
    QFETCH(bool, staysLoaded);

    writeBytes("words.dat", "pear\r\napple\r\n");
    if (answer) tk_.answers = {answer};
    core::Game game(tk_);
    game.g = g_;
    game.List1 = mainList_;
    QWidget options;
    showAndActivate(&options);
    QTimer::singleShot(0, &options, [&] {
        auto* e = options.findChild<VocabularyEditor*>();
        for (const QString& step : steps) {
            if (step == "add") type(e->Text1(), "kiwi"), e->Hinzuf()->click();
            if (step == "save") e->Speichern()->click();
            if (step == "ok") e->OK()->click();
            if (step == "cancel") e->Abbruch()->click();
            if (step == "esc") QTest::keyClick(e->List1(), Qt::Key_Escape);
            if (step == "close") e->close();
        }
    });
    vocabulary::editor::showEditor(game, tk_, &options);

    QCOMPARE(readAll("words.dat"), file);
    QCOMPARE(game.List1, mainList);
    QCOMPARE(game.g.Geaendert, geaendert);
    QCOMPARE(tk_.boxes(), answer ? QStringList{"box 36 words.dat: Save changes?"} : QStringList{});
    auto* e = options.findChild<VocabularyEditor*>();
    QCOMPARE(e != nullptr, staysLoaded);
    if (e) QVERIFY(e->isHidden());
}

void EditorTest::reopenAfterOk()
{
    writeBytes("a.dat", "apple\r\n");
    writeBytes("b.dat", "berry\r\n");
    core::Game game(tk_);
    game.g.WortDatei = QStringLiteral("a.dat");
    QWidget options;
    showAndActivate(&options);
    // Shows the editor; returns its caption, box and list, then types and closes.
    auto show = [&](QPushButton* (VocabularyEditor::*close)() const) {
        QStringList seen;
        QTimer::singleShot(0, &options, [&] {
            auto* e = options.findChild<VocabularyEditor*>();
            seen << e->windowTitle() << e->Text1()->text() << e->words();
            e->Text1()->setText(QStringLiteral("typed"));
            (e->*close)()->click();
        });
        vocabulary::editor::showEditor(game, tk_, &options);
        return seen;
    };
    QCOMPARE(show(&VocabularyEditor::OK), (QStringList{"a.dat", "", "apple"}));
    game.g.WortDatei = QStringLiteral("b.dat");
    // Only hidden by OK: caption and box as they were, the list from the new file.
    QCOMPARE(show(&VocabularyEditor::Abbruch), (QStringList{"a.dat", "typed", "berry"}));
    // Unloaded by Cancel: a fresh window.
    QCOMPARE(show(&VocabularyEditor::Abbruch), (QStringList{"b.dat", "", "berry"}));
}

void EditorTest::panels()
{
    Editor e = shownOn("cat\r\n");
    const QImage img = e->grab().toImage();
    const QColor grey(128, 128, 128), white(255, 255, 255);
    const QWidget* controls[] = {e->Text1(), e->List1()};
    for (const QWidget* control : controls) {
        const QRect r = control->geometry();
        // Sunken: grey one pixel outside above and left, white on the lower and right
        // coordinate, nothing further out.
        QCOMPARE(img.pixelColor(r.left() - 1, r.center().y()), grey);
        QCOMPARE(img.pixelColor(r.center().x(), r.top() - 1), grey);
        QCOMPARE(img.pixelColor(r.left() + r.width(), r.center().y()), white);
        QCOMPARE(img.pixelColor(r.center().x(), r.top() + r.height()), white);
        QCOMPARE(img.pixelColor(r.left() - 2, r.center().y()), QColor(192, 192, 192));
    }
}

QTEST_MAIN(EditorTest)
#include "tst_editor.moc"
