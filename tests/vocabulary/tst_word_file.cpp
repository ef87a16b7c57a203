// Word files: how items are read and filtered, what the writer produces, how reading and
// writing fail (a full disk too), and the Windows-1252 mapping underneath.
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

using support::readAll;
using support::writeBytes;

class WordFile : public QObject {
    Q_OBJECT
private slots:
    void items_data();
    void items();
    void writes_data();
    void writes();
    void everyByteRoundTrips();

private:
    QTemporaryDir dir_;
};

void WordFile::items_data()
{
    using B = QByteArray;
    using L = QStringList;
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("words");
    const B a20(20, 'a');
    QTest::newRow("CR LF, comma, end of file") << B("cat\r\ndog,emu") << L{"cat", "dog", "emu"};
    QTest::newRow("bare LF") << B("cat\ndog\n") << L{"cat", "dog"};
    QTest::newRow("quoted comma, tail dropped") << B("\"a,b\"x,emu\r\n") << L{"a,b", "emu"};
    QTest::newRow("end of file in quotes") << B("\"cat") << L{"cat"};
    QTest::newRow("quotes run across line ends, to the end of the file if need be")
        << B("\"a\r\nb\"\r\ncat\r\n\"dog\r\nemu") << L{"a\r\nb", "cat", "dog\r\nemu"};
    QTest::newRow("leading blanks dropped") << B("   cat\r\n\ta b\r\n") << L{"cat", "a b"};
    QTest::newRow("empty items") << B("cat\r\n\r\n,dog\r\n") << L{"cat", "", "", "dog"};
    QTest::newRow("only blanks") << B("   ") << L{""};
    QTest::newRow("Windows-1252") << B("\x01\xE4pfel,\x80\r\nM\xD6WE")
                                  << L{"\x01äpfel", "€", "MÖWE"};
    QTest::newRow("20 characters pass, 21 do not") << a20 + ",b" + a20 << L{a20};
    QTest::newRow("quotes do not count") << '"' + a20 + '"' << L{a20};
    QTest::newRow("sharp s is skipped") << B("Ma\xDF,weg") << L{"weg"};
    QTest::newRow("a megabyte in one item") << B(1 << 20, 'x') + "\r\nowl" << L{"owl"};
    QTest::newRow("NUL bytes are characters like any")
        << B("a\0b\r\n\0", 6) << L{QString::fromLatin1("a\0b", 3), QString(QChar(0))};
}

void WordFile::items()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, words);
    const QString path = dir_.filePath("items.dat");
    QVERIFY(writeBytes(path, bytes));
    const auto r = vocabulary::readWordFile(path);
    QCOMPARE(r.words, words);
    QVERIFY(!r.failure);
    // A line end, a quote or a word split between two reads reads as in one piece.
    const qsizetype step = qMax<qsizetype>(1, bytes.size() / 50);
    for (qsizetype cut = 1; cut < bytes.size(); cut += step) {
        QStringList got;
        vocabulary::ItemReader reader([&](const vocabulary::ItemReader::Item& item) {
            const QString word = vocabulary::decodeCp1252(item.bytes);
            if (vocabulary::passesFilter(word)) got << word;
        });
        reader.feed(QByteArrayView(bytes).first(cut));
        reader.feed(QByteArrayView(bytes).sliced(cut));
        QVERIFY(reader.finish());
        QCOMPARE(got, words);
    }
}

void WordFile::writes_data()
{
    using B = QByteArray;
    using L = QStringList;
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
    QTest::newRow("a full disk keeps the old file") << "full disk" << 0 << L{"cat"} << 61 << old;
    QTest::newRow("a read-only folder: written in place")
        << "read-only" << 0 << L{"cat"} << 0 << cat;
}

void WordFile::writes()
{
    QFETCH(QString, setup);
    QFETCH(int, readNumber);
    QFETCH(QStringList, words);
    QFETCH(int, writeNumber);
    QFETCH(QByteArray, after);
    QTemporaryDir tmp;
    const QString folder = tmp.filePath(setup == "nofolder" ? "nowhere" : "words");
    const QString path = folder + "/w.dat";
    support::TrapFolder trap(folder, setup);
    if (setup != "nofolder") QVERIFY(QDir().mkpath(folder));
    if (setup == "empty") QVERIFY(writeBytes(path, {}));
    if (setup == "dir") QVERIFY(QDir().mkpath(path + "/keep"));
    if (setup == "fifo") QCOMPARE(mkfifo(qPrintable(path), 0600), 0);
    // /dev/zero's twin, where a faulty write can do no harm.
    if (setup == "device" && mknod(qPrintable(path), S_IFCHR | 0666, makedev(1, 5)) != 0)
        QSKIP("making a device takes root");
    if (!readNumber || setup == "unreadable") QVERIFY(writeBytes(path, "old\r\n"));
    const auto r = vocabulary::readWordFile(path);
    if (setup != "unreadable") QCOMPARE(r.words, readNumber ? QStringList() : QStringList{"old"});
    const auto failure = [&] {
        return vocabulary::readWordFile(path).failure.value_or(vocabulary::Failure{}).number;
    };
    QCOMPARE(trap.run(failure), readNumber); // where the trap needs it, without root's powers
    const auto write = [&] {
        return vocabulary::writeWordFile(path, words).value_or(vocabulary::Failure{}).number;
    };
    QCOMPARE(trap.run(write), writeNumber);
    QCOMPARE(readAll(path), after);
    // Nothing is left beside the file, not even when the write failed.
    QCOMPARE(QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden |
                                    QDir::NoDotAndDotDot),
             writeNumber == 76 ? QStringList() : QStringList{"w.dat"});
}

void WordFile::everyByteRoundTrips()
{
    QByteArray all;
    for (int b = 0; b < 256; ++b) all.append(char(b));
    const QString text = vocabulary::decodeCp1252(all);
    QCOMPARE(text, QString(QStringDecoder("windows-1252").decode(all))); // the platform's table
    QCOMPARE(vocabulary::encodeCp1252(text), all);
    QCOMPARE(vocabulary::encodeCp1252(u"Ä€Ω中"), QByteArray("\xC4\x80??"));
}

QTEST_GUILESS_MAIN(WordFile)
#include "tst_word_file.moc"
