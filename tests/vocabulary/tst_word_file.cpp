// Word files: how items are read, what the filter keeps, how the readers fail, what the
// writer produces, and the Windows-1252 mapping underneath.
#include "support/files.h"
#include "vocabulary/codepage.h"
#include "vocabulary/englisch.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>
#include <QTemporaryDir>
#include <QTest>

using vocabulary::Failure;

namespace {

using support::readAll;
using support::writeBytes;

} // namespace

class WordFile : public QObject {
    Q_OBJECT
private slots:
    void items_data();
    void items();
    void itemsInChunks();
    void filter_data();
    void filter();
    void failures_data();
    void failures();
    void hugeItemIsMeasuredNotKept();
    void everyByteRoundTrips();
    void unmappableCharactersBecomeQuestionMarks();
    void writer_data();
    void writer();
    void writerFailuresKeepTheOldFile_data();
    void writerFailuresKeepTheOldFile();
    void builtinList();

private:
    QTemporaryDir dir_;
};

void WordFile::items_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("CR LF lines") << QByteArray("cat\r\ndog\r\n") << QStringList{"cat", "dog"};
    QTest::newRow("no final line end") << QByteArray("cat\r\ndog") << QStringList{"cat", "dog"};
    QTest::newRow("a comma splits a line")
        << QByteArray("cat,dog\r\n") << QStringList{"cat", "dog"};
    QTest::newRow("quotes keep a comma")
        << QByteArray("\"cat,dog\"\r\nemu\r\n") << QStringList{"cat,dog", "emu"};
    QTest::newRow("text after a closing quote is dropped")
        << QByteArray("\"cat\"x,dog\r\n") << QStringList{"cat", "dog"};
    QTest::newRow("leading blanks dropped, inner ones kept")
        << QByteArray("   cat\r\n\tdog\r\n  a b\r\n") << QStringList{"cat", "dog", "a b"};
    QTest::newRow("a blank line is an empty item")
        << QByteArray("cat\r\n\r\ndog\r\n") << QStringList{"cat", "", "dog"};
    QTest::newRow("a comma with nothing before it")
        << QByteArray(",cat\r\n") << QStringList{"", "cat"};
    QTest::newRow("end of file inside quotes") << QByteArray("\"cat") << QStringList{"cat"};
    QTest::newRow("a stray quote ends at the line")
        << QByteArray("\"cat\r\ndog\r\n") << QStringList{"cat", "dog"};
    QTest::newRow("bare LF lines") << QByteArray("cat\ndog\n") << QStringList{"cat", "dog"};
    QTest::newRow("only a line end") << QByteArray("\r\n") << QStringList{""};
    QTest::newRow("only blanks") << QByteArray("   ") << QStringList{""};
    QTest::newRow("umlauts in Windows-1252")
        << QByteArray("\xE4pfel\r\nM\xD6WE\r\n") << QStringList{"äpfel", "MÖWE"};
    QTest::newRow("the same word twice")
        << QByteArray("cat\r\ncat\r\n") << QStringList{"cat", "cat"};
    QTest::newRow("binary bytes") << QByteArray("\x01\x02\x80,\xFF\r\n", 7)
                                  << QStringList{QString::fromUtf16(u"\u0001\u0002€"), "ÿ"};
}

void WordFile::items()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, words);
    const auto r = vocabulary::readWords(bytes);
    QCOMPARE(r.words, words);
    QVERIFY(!r.failure);
}

void WordFile::itemsInChunks()
{
    // A CR LF, a quote or a word split between two reads must read as in one piece.
    const QByteArray bytes("cat\r\n\"a,b\"\r\n  dog,emu\r\n\r\nfox");
    const QStringList whole = vocabulary::readWords(bytes).words;
    for (qsizetype cut = 1; cut < bytes.size(); ++cut) {
        QStringList got;
        vocabulary::ItemReader reader([&](const vocabulary::ItemReader::Item& item) {
            got << vocabulary::decodeCp1252(item.bytes);
        });
        reader.feed(QByteArrayView(bytes).first(cut));
        reader.feed(QByteArrayView(bytes).sliced(cut));
        QVERIFY(reader.finish());
        QCOMPARE(got, whole);
    }
}

void WordFile::filter_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("words");
    QTest::newRow("20 letters pass, 21 do not")
        << QByteArray("abcdefghijklmnopqrst\r\nabcdefghijklmnopqrstu\r\nok\r\n")
        << QStringList{"abcdefghijklmnopqrst", "ok"};
    QTest::newRow("sharp s is skipped") << QByteArray("Stra\xDF"
                                                      "e\r\nweg\r\n")
                                        << QStringList{"weg"};
    QTest::newRow("quotes do not count")
        << QByteArray("\"abcdefghijklmnopqrst\"\r\n") << QStringList{"abcdefghijklmnopqrst"};
    QTest::newRow("umlauts and capitals pass")
        << QByteArray("\xC4rger\r\n") << QStringList{"Ärger"};
}

void WordFile::filter()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, words);
    QCOMPARE(vocabulary::readWords(bytes).words, words);
    for (const QString& w : words) QVERIFY(vocabulary::passesFilter(w));
    QVERIFY(!vocabulary::passesFilter(u"STRAẞE"));
    QVERIFY(!vocabulary::passesFilter(QString(21, 'a')));
}

void WordFile::failures_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("missing file") << "none" << QStringList() << 53 << "File not found";
    QTest::newRow("zero bytes") << "empty" << QStringList() << 62 << "Input past end of file";
    QTest::newRow("a directory in its place")
        << "dir" << QStringList() << 75 << "Path/File access error";
    QTest::newRow("a missing folder") << "nofolder" << QStringList() << 53 << "File not found";
}

void WordFile::failures()
{
    QFETCH(QString, setup);
    QFETCH(QStringList, words);
    QFETCH(int, number);
    QFETCH(QString, text);
    QString path = dir_.filePath(setup + ".dat");
    if (setup == "empty") QVERIFY(writeBytes(path, {}));
    if (setup == "dir") QVERIFY(QDir().mkpath(path));
    if (setup == "nofolder") path = dir_.filePath("nowhere/x.dat");
    const auto r = vocabulary::readWordFile(path);
    QCOMPARE(r.words, words);
    QVERIFY(r.failure);
    QCOMPARE(r.failure->number, number);
    QCOMPARE(r.failure->text, text);
}

void WordFile::hugeItemIsMeasuredNotKept()
{
    // A megabyte without a line end, then words: the long item is skipped, the rest kept.
    QByteArray bytes(1 << 20, 'x');
    bytes += "\r\nowl\r\nbat";
    const QString path = dir_.filePath("huge.dat");
    QVERIFY(writeBytes(path, bytes));
    const auto r = vocabulary::readWordFile(path);
    QCOMPARE(r.words, (QStringList{"owl", "bat"}));
    QVERIFY(!r.failure);
}

void WordFile::everyByteRoundTrips()
{
    QByteArray all;
    for (int b = 0; b < 256; ++b) all.append(char(b));
    const QString text = vocabulary::decodeCp1252(all);
    QCOMPARE(text.size(), 256);
    QCOMPARE(vocabulary::encodeCp1252(text), all);
    QCOMPARE(text.at(0x80), QChar(u'€'));
    QCOMPARE(text.at(0x9F), QChar(u'Ÿ'));
    QCOMPARE(text.at(0xDF), QChar(u'ß'));
    for (int undefined : {0x81, 0x8D, 0x8F, 0x90, 0x9D})
        QCOMPARE(text.at(undefined).unicode(), undefined);
    // The same mapping as the platform's own codec.
    QStringDecoder platform("windows-1252");
    QVERIFY(platform.isValid());
    QCOMPARE(text, QString(platform.decode(all)));
}

void WordFile::unmappableCharactersBecomeQuestionMarks()
{
    QCOMPARE(vocabulary::encodeCp1252(u"Ä€Ω中"), QByteArray("\xC4\x80??"));
}

void WordFile::writer_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("CR LF after every line, the last too")
        << QStringList{"cat", "dog"} << QByteArray("cat\r\ndog\r\n");
    QTest::newRow("an empty entry is a blank line")
        << QStringList{"cat", "", "dog"} << QByteArray("cat\r\n\r\ndog\r\n");
    QTest::newRow("umlauts as single bytes") << QStringList{"Möwe"} << QByteArray("M\xF6we\r\n");
    QTest::newRow("an empty list leaves zero bytes") << QStringList() << QByteArray("");
}

void WordFile::writer()
{
    QFETCH(QStringList, words);
    QFETCH(QByteArray, bytes);
    const QString path = dir_.filePath("out.dat");
    QVERIFY(writeBytes(path, "old contents"));
    QVERIFY(!vocabulary::writeWordFile(path, words));
    QCOMPARE(readAll(path), bytes);
    // What the writer wrote reads back as it was, but for the empty file's failure.
    const auto back = vocabulary::readWordFile(path);
    if (words.isEmpty()) QCOMPARE(back.failure->number, 62);
    else QCOMPARE(back.words, words);
}

void WordFile::writerFailuresKeepTheOldFile_data()
{
    QTest::addColumn<QString>("setup");
    QTest::addColumn<int>("number");
    QTest::newRow("a directory in the file's place") << "dir" << 75;
    QTest::newRow("a missing folder") << "nofolder" << 76;
}

void WordFile::writerFailuresKeepTheOldFile()
{
    QFETCH(QString, setup);
    QFETCH(int, number);
    QString path = dir_.filePath("w-" + setup + ".dat");
    if (setup == "dir") {
        QVERIFY(QDir().mkpath(path));
        QVERIFY(writeBytes(path + "/keep.txt", "mine"));
    } else {
        path = dir_.filePath("missing/w.dat");
    }
    const auto failure = vocabulary::writeWordFile(path, {"cat"});
    QVERIFY(failure);
    QCOMPARE(failure->number, number);
    QVERIFY(!failure->text.isEmpty());
    if (setup == "dir") QCOMPARE(readAll(path + "/keep.txt"), QByteArray("mine"));
    // No temporary file is left behind next to the target.
    QStringList left = QDir(dir_.path()).entryList({"w-*"}, QDir::AllEntries | QDir::Hidden);
    left.removeAll("w-dir.dat");
    QCOMPARE(left, QStringList());
}

void WordFile::builtinList()
{
    QStringList list{"keep"};
    vocabulary::WortlisteFuellen(list);
    QCOMPARE(list.size(), 49); // appends, clears nothing
    QCOMPARE(list.first(), QString("keep"));
    QCOMPARE(list.at(1), QString("afternoon"));
    QCOMPARE(list.at(17), QString("crocodile"));
    QCOMPARE(list.last(), QString("vegetables"));
    for (qsizetype i = 1; i < list.size(); ++i) {
        QVERIFY(vocabulary::passesFilter(list[i]));
        QCOMPARE(list[i], list[i].toLower());
    }
}

QTEST_GUILESS_MAIN(WordFile)
#include "tst_word_file.moc"
