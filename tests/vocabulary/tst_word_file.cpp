// Word files: how items are read and filtered, how reading and writing fail, what the
// writer produces, and the Windows-1252 mapping underneath.
#include "support/files.h"
#include "vocabulary/codepage.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <QTest>

using support::readAll;
using support::writeBytes;

class WordFile : public QObject {
    Q_OBJECT
private slots:
    void items_data();
    void items();
    void failures_data();
    void failures();
    void everyByteRoundTrips();
    void writer();

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
    QTest::newRow("a stray quote ends at the line") << B("\"cat\r\ndog") << L{"cat", "dog"};
    QTest::newRow("leading blanks dropped") << B("   cat\r\n\ta b\r\n") << L{"cat", "a b"};
    QTest::newRow("empty items") << B("cat\r\n\r\n,dog\r\n") << L{"cat", "", "", "dog"};
    QTest::newRow("only blanks") << B("   ") << L{""};
    QTest::newRow("Windows-1252") << B("\x01\xE4pfel,\x80\r\nM\xD6WE")
                                  << L{"\x01äpfel", "€", "MÖWE"};
    QTest::newRow("20 characters pass, 21 do not") << a20 + ",b" + a20 << L{a20};
    QTest::newRow("quotes do not count") << '"' + a20 + '"' << L{a20};
    QTest::newRow("sharp s is skipped") << B("Ma\xDF,weg") << L{"weg"};
    QTest::newRow("a megabyte in one item") << B(1 << 20, 'x') + "\r\nowl" << L{"owl"};
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

void WordFile::failures_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<int>("readNumber");
    QTest::addColumn<QString>("readText");
    QTest::addColumn<int>("writeNumber"); // 0: the write succeeds
    QTest::newRow("missing file") << "none" << 53 << "File not found" << 0;
    QTest::newRow("zero bytes") << "empty" << 62 << "Input past end of file" << 0;
    QTest::newRow("a directory in its place") << "dir" << 75 << "Path/File access error" << 75;
    QTest::newRow("a missing folder") << "nofolder" << 53 << "File not found" << 76;
}

void WordFile::failures()
{
    QFETCH(QString, setup);
    QFETCH(int, readNumber);
    QFETCH(QString, readText);
    QFETCH(int, writeNumber);
    QTemporaryDir tmp;
    QString path = tmp.filePath("w.dat");
    if (setup == "empty") QVERIFY(writeBytes(path, {}));
    if (setup == "dir") QVERIFY(QDir().mkpath(path + "/keep"));
    if (setup == "nofolder") path = tmp.filePath("nowhere/w.dat");

    const auto r = vocabulary::readWordFile(path);
    QCOMPARE(r.words, QStringList());
    QCOMPARE(r.failure, (vocabulary::Failure{readNumber, readText}));

    const auto failure = vocabulary::writeWordFile(path, {"cat"});
    QCOMPARE(failure ? failure->number : 0, writeNumber);
    if (!writeNumber) QCOMPARE(readAll(path), QByteArray("cat\r\n"));
    else QVERIFY(!failure->text.isEmpty());
    // A failed write leaves what was there, and no temporary file beside it.
    QCOMPARE(QDir(tmp.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             writeNumber == 76 ? QStringList() : QStringList{"w.dat"});
    QCOMPARE(QDir(path + "/keep").exists(), setup == "dir");
}

void WordFile::everyByteRoundTrips()
{
    QByteArray all;
    for (int b = 0; b < 256; ++b) all.append(char(b));
    const QString text = vocabulary::decodeCp1252(all);
    QCOMPARE(text.size(), 256);
    QCOMPARE(vocabulary::encodeCp1252(text), all);
    QStringDecoder platform("windows-1252");
    QVERIFY(platform.isValid());
    QCOMPARE(text, QString(platform.decode(all)));
    QCOMPARE(vocabulary::encodeCp1252(u"Ä€Ω中"), QByteArray("\xC4\x80??"));
}

void WordFile::writer()
{
    const QString path = dir_.filePath("out.dat");
    QVERIFY(writeBytes(path, "old contents"));
    QVERIFY(!vocabulary::writeWordFile(path, {"cat", "", "Möwe"}));
    QCOMPARE(readAll(path), QByteArray("cat\r\n\r\nM\xF6we\r\n")); // CR LF after every line
    QVERIFY(!vocabulary::writeWordFile(path, {}));
    QCOMPARE(readAll(path), QByteArray("")); // not even a line end
}

QTEST_GUILESS_MAIN(WordFile)
#include "tst_word_file.moc"
