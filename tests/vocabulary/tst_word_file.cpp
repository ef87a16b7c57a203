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
        const B a20(20, 'a');
        QTest::newRow("CR LF, comma, end of file") << B("cat\r\ndog,emu") << L{"cat", "dog", "emu"};
        QTest::newRow("bare LF") << B("cat\ndog\n") << L{"cat", "dog"};
        QTest::newRow("quoted comma, tail dropped") << B("\"a,b\"x,emu\r\n") << L{"a,b", "emu"};
        QTest::newRow("quotes run across line ends, to the end of the file if need be")
            << B("\"a\r\nb\"\r\ncat\r\n\"dog\r\nemu") << L{"a\r\nb", "cat", "dog\r\nemu"};
        QTest::newRow("leading blanks dropped, the others kept")
            << B("   cat \r\n\ta b\t,\" x \"") << L{"cat ", "a b\t", " x "};
        QTest::newRow("empty items") << B("cat\r\n\r\n,dog\r\n") << L{"cat", "", "", "dog"};
        QTest::newRow("only blanks") << B("   ") << L{""};
        QTest::newRow("Windows-1252")
            << B("\x01\xE4pfel,\x80\r\nM\xD6WE") << L{"\x01äpfel", "€", "MÖWE"};
        QTest::newRow("20 characters pass, 21 do not")
            << a20 + ",b" + a20 + ',' + a20 + ' ' << L{a20};
        QTest::newRow("quotes do not count") << '"' + a20 + '"' << L{a20};
        QTest::newRow("sharp s is skipped") << B("Ma\xDF,weg") << L{"weg"};
        QTest::newRow("a megabyte in one item") << B(1 << 20, 'x') + "\r\nowl" << L{"owl"};
        QTest::newRow("NUL bytes are characters like any")
            << B("a\0b\r\n\0", 6) << L{QString::fromLatin1("a\0b", 3), QString(QChar(0))};
        // The reader takes 64 KiB at a time: a word or a line end may fall across two reads.
        QTest::newRow("a word across two reads") << B(65534, ' ') + "cat\r\nemu" << L{"cat", "emu"};
        QTest::newRow("CR LF across two reads") << B(65535, 'x') + "\r\nowl" << L{"owl"};
        QTest::newRow("a quote across two reads") << B(65535, ' ') + "\"a,b\"" << L{"a,b"};
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
        const B cat("cat\r\n"), old("old\r\n"), none("<unreadable>");
        QTest::newRow("CR LF after every line")
            << "old" << 0 << L{"cat", "", "Möwe"} << 0 << B("cat\r\n\r\nM\xF6we\r\n");
        QTest::newRow("an empty list: not even a line end") << "old" << 0 << L{} << 0 << B("");
        QTest::newRow("missing file") << "none" << 53 << L{"cat"} << 0 << cat;
        QTest::newRow("zero bytes") << "empty" << 62 << L{"cat"} << 0 << cat;
        QTest::newRow("a directory in its place") << "dir" << 75 << L{"cat"} << 75 << none;
        QTest::newRow("a pipe in its place: never read nor written")
            << "fifo" << 75 << L{"cat"} << 75 << none;
        QTest::newRow("a device, zeros without end: never read nor written")
            << "device" << 75 << L{"cat"} << 75 << none;
        QTest::newRow("unreadable") << "unreadable" << 70 << L{"cat"} << 0 << cat;
        QTest::newRow("a missing folder") << "nofolder" << 53 << L{"cat"} << 76 << none;
        QTest::newRow("a full disk keeps the old file")
            << "full disk" << 0 << L{"cat"} << 61 << old;
        QTest::newRow("a read-only folder: written in place")
            << "read-only" << 0 << L{"cat"} << 0 << cat;
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
