// The vocabulary editor over a stand-in owner: the word box, the list and the keys, and what OK,
// Save, Cancel and the close box leave in the word file, the game's list and the change flag.
#include "editor/vocabulary_editor.h"
#include "support/files.h"
#include "support/scripted_toolkit.h"
#include "support/windows.h"

#include <QLineEdit>
#include <QListView>
#include <QTemporaryDir>

using editor::VocabularyEditor;

namespace {

// Keys as a keyboard sends them, one character a key, beyond ASCII too.
void type(QWidget* w, const QString& text)
{
    for (QChar c : text)
        QTest::sendKeyEvent(QTest::Click, w, Qt::Key(c.toUpper().unicode()), QString(c), {});
}

} // namespace

class EditorTest : public QObject {
    Q_OBJECT
    QString home_ = QDir::currentPath();
    std::unique_ptr<QTemporaryDir> dir_;
    support::ScriptedToolkit tk_;
    core::Game game_{tk_};
    QWidget options_; // the editor's owner

    // Shows the editor on `file` and runs `act` on it; returns once the editor has gone.
    void edit(const QString& file, const std::function<void(VocabularyEditor*)>& act)
    {
        game_.g.WortDatei = file;
        support::onNextModal<VocabularyEditor>(act);
        editor::showEditor(game_, tk_, &options_);
    }

private slots:
    void init()
    {
        dir_ = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(dir_->path()));
        game_.g = core::Global{};
        game_.List1 = {"leftover"};
        tk_.log.clear(), tk_.answers.clear();
        options_.show();
    }
    void cleanup() { QDir::setCurrent(home_), delete options_.findChild<VocabularyEditor*>(); }

    void wordBoxListAndKeys()
    {
        support::writeBytes("words.dat", "pear\r\nApple\r\nzebra,apple\r\n\xC4pfel\r\nMa\xDF\r\n"
                                         "\"b,a\"\r\npear\r\n" +
                                             QByteArray(21, 'x'));
        QStringList seen;  // the box and the list at each step
        QList<int> widths; // of the rows: with the longest word, without it, with it back
        edit("words.dat", [&](VocabularyEditor* e) {
            auto* box = support::child<QLineEdit>(e, "Text1");
            auto* list = support::child<QListView>(e, "List1");
            auto row = [list](int i) { return list->visualRect(list->model()->index(i, 0)); };
            type(box, "AbzÄöüß1 ,\"-'.éñÿ"); // letters and umlauts only
            box->setCursorPosition(0);       // control keys pass, so Delete still deletes
            QTest::sendKeyEvent(QTest::Click, box, Qt::Key_Delete, QString(QChar(127)), {});
            seen << box->text();
            box->setText("Donaudampfschiffahrt");
            QTest::keyClick(box, Qt::Key_Return); // the default button: into its place
            seen << e->words().join(','), widths << row(0).width();
            QVERIFY(box->text().isEmpty() && QApplication::focusWidget() == box);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row(1).center());
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ShiftModifier, row(2).center());
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                              row(4).center());
            QTest::keyClick(e, Qt::Key_D, Qt::AltModifier); // clicks a moment later
            QTRY_COMPARE(e->words().size(), qsizetype(5));  // a block of two and one more
            QVERIFY(QApplication::focusWidget() == list);
            widths << row(0).width();
            box->setCursorPosition(2); // the focus selects from the cursor to the end
            QTest::keyClick(list, Qt::Key_Backtab);
            seen << box->selectedText();
            QTest::keyClick(e, Qt::Key_A, Qt::AltModifier); // the last word clicked comes back
            QTRY_COMPARE(e->words().size(), qsizetype(6));
            seen << e->words().join(','), widths << row(0).width();
            e->close();
        });
        QCOMPARE(
            seen,
            QStringList({"bzÄöü", "Äpfel,apple,Apple,b,a,Donaudampfschiffahrt,pear,pear,zebra",
                         "naudampfschiffahrt", "Äpfel,b,a,Donaudampfschiffahrt,pear,pear,zebra"}));
        QVERIFY(widths[1] < widths[0] && widths[2] == widths[0]);
        QVERIFY(tk_.boxes().isEmpty() && game_.g.Geaendert &&
                game_.List1 == QStringList{"leftover"});
    }

    void closing_data()
    {
        QTest::addColumn<QString>("file");  // "folder.dat" is a folder
        QTest::addColumn<QString>("steps"); // an action a letter; the answers to "Save changes?"
        QTest::addColumn<QString>("after"); // the game's list, the change flag, the boxes, the file
        auto row = [](const char* tag, const char* file, const char* steps, const QString& after) {
            QTest::newRow(tag) << file << steps << after;
        };
        // The blank line comes back, "Maß" is filtered away, "Öl" is one byte.
        row("OK unchanged: no question", "words.dat", "o", ",apple,pear 0 | old");
        row("Delete, OK, Yes saves", "words.dat", "doY", ",pear 0 ? | \r\npear\r\n");
        row("OK changed, No keeps the file", "words.dat", "aoN", ",apple,Öl,pear 1 ? | old");
        row("Esc cancels: the changes go", "words.dat", "ae", "leftover 0 | old");
        row("the close box keeps the flag", "words.dat", "ax", "leftover 1 | old");
        row("no name: eisfig.dat", "", "c", "leftover 0 | ice\r\n");
        row("zero bytes", "empty.dat", "c", "leftover 0 box 48 Fehler!: Input past end of file |");
        row("Save makes a missing file", "new.dat", "asc",
            "Öl 0 box 48 Fehler!: Datei new.dat nicht gefunden! | Öl\r\n");
        // A failed save says so and keeps the window; the game gets the list all the same.
        row("Save fails: a folder in the way", "folder.dat", "asoYc",
            "Öl 0 box 48 Fehler!: Path/File access error,!,?,! | <unreadable>");
    }

    void closing()
    {
        QFETCH(QString, file);
        QFETCH(QString, steps);
        QFETCH(QString, after);
        const QByteArray old = "pear\r\n\r\nMa\xDF\r\napple\r\n";
        for (auto [name, bytes] :
             {std::pair{"words.dat", old}, {"eisfig.dat", "ice\r\n"}, {"empty.dat", ""}})
            support::writeBytes(name, bytes);
        QDir().mkpath("folder.dat/keep");
        for (QChar c : steps)
            if (c.isUpper()) tk_.answers.push_back(c == 'Y' ? core::kAnswerYes : core::kAnswerNo);
        edit(file, [&](VocabularyEditor* e) {
            auto press = [e](const char* name) { support::child<QPushButton>(e, name)->click(); };
            auto* list = support::child<QListView>(e, "List1");
            for (QChar step : steps) {
                if (!e->isVisible()) break; // a hidden window takes no clicks
                if (step == 'a') type(support::child(e, "Text1"), "Öl"), press("Hinzuf");
                if (step == 'd') list->setCurrentIndex(list->model()->index(1, 0)), press("Loesch");
                if (step == 's') press("Speichern");
                if (step == 'o') press("OK");
                if (step == 'c') press("Abbruch");
                if (step == 'e') QTest::keyClick(list, Qt::Key_Escape);
                if (step == 'x') e->close();
            }
        });
        const QString name = file.isEmpty() ? "eisfig.dat" : file;
        const QString failed = "box 48 Fehler!: Datei " + name + " nicht gespeichert!\r";
        QString boxes = tk_.boxes().join(',').replace(failed + "Path/File access error", "!");
        boxes.replace("box 36 " + name + ": Save changes?", "?");
        QString seen = game_.List1.join(',') + ' ' + QString::number(game_.g.Geaendert);
        if (!boxes.isEmpty()) seen += ' ' + boxes;
        const QByteArray bytes = support::readAll(name);
        if (bytes == old) seen += " | old";
        else seen += " |" + (bytes.isEmpty() ? "" : ' ' + QString::fromLatin1(bytes));
        QCOMPARE(seen, after);
        QVERIFY(QDir("folder.dat/keep").exists());
        // OK only hides the editor; Cancel and the close box unload it.
        QCOMPARE(options_.findChild<VocabularyEditor*>() != nullptr,
                 steps.contains('o') && !steps.endsWith('c'));
    }

    // Order and saved bytes against what the editor made before it was made fast: the files of
    // golden/make_words.py, golden/pasted.txt added, rows deleted. FROSTEL_GOLDEN=write: anew.
    void golden_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"letters", "ties", "random"}) QTest::newRow(name) << QString(name);
    }

    void golden()
    {
        QFETCH(QString, name);
        const QString base = QStringLiteral(GOLDEN_DIR "/") + name;
        QVERIFY(QFile::copy(base + ".dat", "words.dat"));
        const QString pasted = QString::fromUtf8(support::readAll(GOLDEN_DIR "/pasted.txt"));
        QStringList order;
        edit("words.dat", [&](VocabularyEditor* e) {
            auto press = [e](const char* name) { support::child<QPushButton>(e, name)->click(); };
            for (const QString& word : pasted.split('\n'))
                support::child<QLineEdit>(e, "Text1")->setText(word), press("Hinzuf");
            auto* list = support::child<QListView>(e, "List1");
            const auto at = [list](int row) { return list->model()->index(row, 0); };
            list->selectionModel()->select(QItemSelection(at(3), at(60)),
                                           QItemSelectionModel::Select);
            list->selectionModel()->select(at(100), QItemSelectionModel::Select);
            press("Loesch"), press("Speichern");
            order = e->words();
            e->close();
        });
        const QByteArray saved = support::readAll("words.dat");
        if (qgetenv("FROSTEL_GOLDEN") == "write")
            QVERIFY(support::writeBytes(base + ".order", order.join('\n').toUtf8()) &&
                    support::writeBytes(base + ".saved", saved));
        QCOMPARE(order.join('\n').split('\n'),
                 QString::fromUtf8(support::readAll(base + ".order")).split('\n'));
        QCOMPARE(saved, support::readAll(base + ".saved"));
    }
};

QTEST_MAIN(EditorTest)
#include "tst_editor.moc"
