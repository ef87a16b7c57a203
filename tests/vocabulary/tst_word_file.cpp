// Word files: how items are read and filtered, what the writer leaves on disk, how reading
// and writing fail (a full disk too), and the Windows-1252 bytes underneath.
#include "support/files.h"
#include "support/trap_folder.h"
#include "vocabulary/codepage.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>
#include <sys/sysmacros.h>

using B = QByteArray;
using L = QStringList;

class WordFile : public QObject {
    Q_OBJECT
private slots:
    void items_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("words");
        const auto row = [](const char* tag, const B& bytes, const L& words) {
            QTest::newRow(tag) << bytes << words;
        };
        const B a20(20, 'a');
        row("CR LF, comma, end of file", "cat\r\ndog,emu", {"cat", "dog", "emu"});
        row("bare LF", "cat\ndog\n", {"cat", "dog"});
        row("quoted comma, tail dropped", "\"a,b\"x,emu\r\n", {"a,b", "emu"});
        row("quotes run across line ends, to the end of the file if need be",
            "\"a\r\nb\"\r\ncat\r\n\"dog\r\nemu", {"a\r\nb", "cat", "dog\r\nemu"});
        row("leading blanks dropped", "   cat \r\n\ta b\t,\" x \"", {"cat ", "a b\t", " x "});
        row("empty items", "cat\r\n\r\n,dog\r\n", {"cat", "", "", "dog"});
        row("Windows-1252", "\x01\xE4pfel,\x80\r\nM\xD6WE", {"\x01äpfel", "€", "MÖWE"});
        row("20 characters pass, 21 do not", a20 + ",b" + a20 + ',' + a20 + ' ', {a20});
        row("quotes do not count", '"' + a20 + '"', {a20});
        row("sharp s is skipped", "Ma\xDF,weg", {"weg"});
        row("a megabyte in one item", B(1 << 20, 'x') + "\r\nowl", {"owl"});
        row("NUL bytes are characters like any", B("a\0b\r\n\0", 6),
            {QString::fromLatin1("a\0b", 3), QString(QChar(0))});
        // The reader takes 64 KiB at a time: a word or a line end may fall across two reads.
        row("a word across two reads", B(65534, ' ') + "cat\r\nemu", {"cat", "emu"});
        row("CR LF across two reads", B(65535, 'x') + "\r\nowl", {"owl"});
        row("a quote across two reads", B(65535, ' ') + "\"a,b\"", {"a,b"});
    }

    void items()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, words);
        QTemporaryDir tmp;
        QVERIFY(support::writeBytes(tmp.filePath("w.dat"), bytes));
        const auto r = vocabulary::readWordFile(tmp.filePath("w.dat"));
        QCOMPARE(r.words, words);
        QVERIFY(!r.failure);
    }

    void writes_data()
    {
        QTest::addColumn<QString>("setup");
        QTest::addColumn<int>("readNumber"); // 0: "old" is read
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("writeNumber"); // 0: the write succeeds
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char* tag, const char* setup, int read, const L& words, int write,
                            const B& after) {
            QTest::newRow(tag) << setup << read << words << write << after;
        };
        const B cat("cat\r\n"), none("<unreadable>");
        row("CR LF after every line", "old", 0, {"cat", "", "Möwe"}, 0, "cat\r\n\r\nM\xF6we\r\n");
        row("an empty list: not even a line end", "old", 0, {}, 0, "");
        row("missing file", "none", 53, {"cat"}, 0, cat);
        row("zero bytes", "empty", 62, {"cat"}, 0, cat);
        row("a directory in its place", "dir", 75, {"cat"}, 75, none);
        row("a pipe in its place: never read nor written", "fifo", 75, {"cat"}, 75, none);
        row("a device, zeros without end: never read nor written", "device", 75, {"cat"}, 75, none);
        row("unreadable", "unreadable", 70, {"cat"}, 0, cat);
        row("a missing folder", "nofolder", 53, {"cat"}, 76, none);
        row("a full disk keeps the old file", "full disk", 0, {"cat"}, 61, "old\r\n");
        row("a read-only folder: written in place", "read-only", 0, {"cat"}, 0, cat);
    }

    void writes()
    {
        QFETCH(QString, setup);
        QFETCH(int, readNumber);
        QFETCH(QStringList, words);
        QFETCH(int, writeNumber);
        QFETCH(QByteArray, after);
        QTemporaryDir tmp;
        const QString folder = tmp.filePath(setup == "nofolder" ? "nowhere" : "words");
        const QString path = folder + "/w.dat";
        if (setup != "nofolder") QVERIFY(QDir().mkpath(folder));
        if (setup == "empty") QVERIFY(support::writeBytes(path, {}));
        if (setup == "dir") QVERIFY(QDir().mkpath(path + "/keep"));
        if (setup == "fifo") QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
        // /dev/zero's twin, where a faulty write can do no harm.
        if (setup == "device" && mknod(qPrintable(path), S_IFCHR | 0666, makedev(1, 5)) != 0)
            QSKIP("making a device takes root");
        if (!readNumber || setup == "unreadable") QVERIFY(support::writeBytes(path, "old\r\n"));
        const auto number = [](const auto& failure) { return failure ? failure->number : 0; };
        const auto read = [&] {
            const auto r = vocabulary::readWordFile(path);
            return r.words == (readNumber ? L{} : L{"old"}) ? number(r.failure) : -1;
        };
        QCOMPARE(support::inTrap(folder, setup, read), readNumber);
        const auto write = [&] { return number(vocabulary::writeWordFile(path, words)); };
        QCOMPARE(support::inTrap(folder, setup, write), writeNumber);
        QCOMPARE(support::readAll(path), after);
        // Nothing is left beside the file, not even when the write failed.
        QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden |
                                        QDir::NoDotAndDotDot),
                 writeNumber == 76 ? L{} : L{"w.dat"});
    }

    void everyByteRoundTrips()
    {
        QByteArray all;
        for (int b = 0; b < 256; ++b) all.append(char(b));
        const QString text = vocabulary::decodeCp1252(all);
        QCOMPARE(text, QString(QStringDecoder("windows-1252").decode(all))); // the platform's table
        QCOMPARE(vocabulary::encodeCp1252(text), all);
        QCOMPARE(vocabulary::encodeCp1252(u"Ä€Ω中"), B("\xC4\x80??"));
    }
};

QTEST_GUILESS_MAIN(WordFile)
#include "tst_word_file.moc"
