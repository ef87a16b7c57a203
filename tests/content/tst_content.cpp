// The files the game ships with: the sound effects and word files the build writes into
// the game's folder, and the help pages built into the program.
#include "support/files.h"
#include "vocabulary/englisch.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFragment>
#include <QUrl>
#include <QtEndian>
#include <QtTest>

#include <cmath>

namespace {

using support::readAll;

const QString kGameDir = QStringLiteral(GAME_DIR);
const QStringList kHelpPages = {
    QStringLiteral("index.html"),      QStringLiteral("play.html"),
    QStringLiteral("commands.html"),   QStringLiteral("options.html"),
    QStringLiteral("vocabulary.html"), QStringLiteral("helponhelp.html"),
};

QStringList shippedWordFiles()
{
    return QStringLiteral(WORD_FILES).split(u',', Qt::SkipEmptyParts);
}

// What a RIFF/WAVE file says about itself, checked against the file's own size.
struct Wave {
    QString error; // empty when the file is sound
    quint16 format = 0, channels = 0, bits = 0, blockAlign = 0;
    quint32 rate = 0, byteRate = 0;
    QByteArray data;
};

quint16 le16(const QByteArray& b, qsizetype at)
{
    return qFromLittleEndian<quint16>(b.constData() + at);
}
quint32 le32(const QByteArray& b, qsizetype at)
{
    return qFromLittleEndian<quint32>(b.constData() + at);
}

Wave parseWave(const QByteArray& b)
{
    Wave w;
    if (b.size() < 12 || !b.startsWith("RIFF") || b.mid(8, 4) != "WAVE")
        w.error = QStringLiteral("not a RIFF/WAVE file");
    else if (le32(b, 4) != quint32(b.size() - 8))
        w.error = QStringLiteral("RIFF size %1, file holds %2").arg(le32(b, 4)).arg(b.size() - 8);
    bool haveFmt = false, haveData = false;
    qsizetype at = 12;
    while (w.error.isEmpty() && at + 8 <= b.size()) {
        const QByteArray id = b.mid(at, 4);
        const quint32 size = le32(b, at + 4);
        const qsizetype body = at + 8;
        if (qsizetype(size) > b.size() - body || (id == "fmt " && size < 16)) {
            w.error = QStringLiteral("chunk \"%1\" torn").arg(QString::fromLatin1(id));
        } else if (id == "fmt ") {
            w.format = le16(b, body);
            w.channels = le16(b, body + 2);
            w.rate = le32(b, body + 4);
            w.byteRate = le32(b, body + 8);
            w.blockAlign = le16(b, body + 12);
            w.bits = le16(b, body + 14);
            haveFmt = true;
        } else if (id == "data") {
            w.data = b.mid(body, size);
            haveData = true;
        }
        at = body + size + (size & 1);
    }
    if (!w.error.isEmpty()) return w;
    if (at != b.size())
        w.error = QStringLiteral("chunks end at %1, the file at %2").arg(at).arg(b.size());
    else if (!haveFmt || !haveData) w.error = QStringLiteral("no fmt or no data chunk");
    return w;
}

// Lines ended by CR LF, counted on the raw bytes; a lone CR or LF is reported as -1.
qsizetype crlfLines(const QByteArray& bytes)
{
    const qsizetype crlf = bytes.count("\r\n");
    if (bytes.count('\r') != crlf || bytes.count('\n') != crlf) return -1;
    return crlf;
}

bool onlyLettersAtoZ(const QString& w)
{
    static const QRegularExpression re(QStringLiteral("^[A-Za-z]+$"));
    return re.match(w).hasMatch();
}

// The links and anchor names of a help page as the help window sees them: through Qt's
// own rich-text parser, not by pattern-matching the source.
struct PageLinks {
    QStringList hrefs;
    QSet<QString> anchors;
    QString title;
    QString text;
};

PageLinks linksOf(const QString& html)
{
    QTextDocument doc;
    doc.setHtml(html);
    PageLinks p;
    p.title = doc.metaInformation(QTextDocument::DocumentTitle);
    p.text = doc.toPlainText();
    for (QTextBlock block = doc.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat fmt = it.fragment().charFormat();
            if (!fmt.isAnchor()) continue;
            if (!fmt.anchorHref().isEmpty() && !p.hrefs.contains(fmt.anchorHref()))
                p.hrefs.append(fmt.anchorHref());
            for (const QString& name : fmt.anchorNames()) p.anchors.insert(name);
        }
    }
    return p;
}

PageLinks loadHelpPage(const QString& name)
{
    return linksOf(QString::fromUtf8(readAll(QStringLiteral(":/help/") + name)));
}

} // namespace

class TestContent : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The game finds its files by bare name in its working folder; so do the tests.
        QVERIFY2(QDir::setCurrent(kGameDir), qPrintable(kGameDir));
    }

    void sound_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<double>("maxSeconds");
        QTest::newRow("0 new word") << 0 << 0.6;
        QTest::newRow("1 solution letter") << 1 << 0.2;
        QTest::newRow("2 word lost") << 2 << 1.25;
        QTest::newRow("3 miss") << 3 << 0.5;
        QTest::newRow("4 field uncovered") << 4 << 0.1;
        QTest::newRow("5 game won") << 5 << 1.4;
        for (int n = 6; n <= 13; ++n) QTest::addRow("%d word solved", n) << n << 0.6;
    }

    void sound()
    {
        QFETCH(int, number);
        QFETCH(double, maxSeconds);
        const QString name = QStringLiteral("frostl%1.wav").arg(number);
        QVERIFY2(QFile::exists(name), qPrintable(name + QStringLiteral(" is missing")));

        const Wave w = parseWave(readAll(name));
        QVERIFY2(w.error.isEmpty(), qPrintable(w.error));
        QCOMPARE(w.format, quint16(1)); // PCM
        QCOMPARE(w.channels, quint16(1));
        QCOMPARE(w.bits, quint16(16));
        QVERIFY2(w.rate == 22050 || w.rate == 44100, qPrintable(QString::number(w.rate)));
        QCOMPARE(w.blockAlign, quint16(2));
        QCOMPARE(w.byteRate, w.rate * 2);
        QCOMPARE(w.data.size() % 2, 0);

        const qsizetype frames = w.data.size() / 2;
        const double seconds = double(frames) / w.rate;
        QVERIFY2(seconds > 0.02 && seconds <= maxSeconds && seconds < 1.5,
                 qPrintable(QStringLiteral("%1 s").arg(seconds)));

        double peak = 0, sumSq = 0;
        for (qsizetype i = 0; i < frames; ++i) {
            const double v = qFromLittleEndian<qint16>(w.data.constData() + 2 * i) / 32768.0;
            peak = std::max(peak, std::abs(v));
            sumSq += v * v;
        }
        const double peakDb = 20 * std::log10(std::max(peak, 1e-9));
        const double rmsDb = 10 * std::log10(std::max(sumSq / frames, 1e-18));
        // Heard, at a modest level, and far from clipping.
        QVERIFY2(peakDb > -9 && peakDb < -3,
                 qPrintable(QStringLiteral("peak %1 dBFS").arg(peakDb)));
        QVERIFY2(rmsDb > -35, qPrintable(QStringLiteral("RMS %1 dBFS").arg(rmsDb)));

        // Starting or stopping away from zero clicks.
        const auto sample = [&](qsizetype i) {
            return std::abs(qFromLittleEndian<qint16>(w.data.constData() + 2 * i));
        };
        QVERIFY2(sample(0) < 100, qPrintable(QString::number(sample(0))));
        QVERIFY2(sample(frames - 1) < 100, qPrintable(QString::number(sample(frames - 1))));

        for (int other = 0; other <= 13; ++other)
            if (other != number)
                QVERIFY2(parseWave(readAll(QStringLiteral("frostl%1.wav").arg(other))).data !=
                             w.data,
                         qPrintable(QStringLiteral("sounds like frostl%1.wav").arg(other)));
    }

    void wordFile_data()
    {
        QTest::addColumn<QString>("file");
        const QStringList files = shippedWordFiles();
        QVERIFY(files.contains(QStringLiteral("frostel.dat")));
        for (const QString& f : files) QTest::newRow(qPrintable(f)) << f;
    }

    void wordFile()
    {
        QFETCH(QString, file);
        const QByteArray bytes = readAll(file);
        QVERIFY2(!bytes.isEmpty(), qPrintable(file + QStringLiteral(" is missing or empty")));
        QVERIFY2(bytes.endsWith("\r\n"), "the last line must end with CR LF");
        const qsizetype lines = crlfLines(bytes);
        QVERIFY2(lines > 0, "a line ends in a lone CR or LF");

        const vocabulary::ReadResult r = vocabulary::readWordFile(file);
        QVERIFY2(!r.failure, r.failure ? qPrintable(r.failure->text) : "");
        QCOMPARE(r.words.size(), lines); // no item skipped, none split

        QSet<QString> seen;
        for (const QString& w : r.words) {
            QVERIFY2(onlyLettersAtoZ(w), qPrintable(QLatin1Char('"') + w + QLatin1Char('"')));
            QVERIFY2(w.size() <= vocabulary::kMaxWordLength, qPrintable(w));
            QVERIFY2(!seen.contains(w.toLower()),
                     qPrintable(w + QStringLiteral(" is there twice")));
            seen.insert(w.toLower());
        }
        QVERIFY2(loadHelpPage(QStringLiteral("options.html")).text.contains(file),
                 "not described in the options help");
    }

    void builtinWordFile()
    {
        QStringList builtin;
        vocabulary::WortlisteFuellen(builtin);
        QCOMPARE(builtin.size(), 48);
        const vocabulary::ReadResult r = vocabulary::readWordFile(QStringLiteral("frostel.dat"));
        QVERIFY(!r.failure);
        QCOMPARE(r.words, builtin);
    }

    // Every list in data/words ships as a .dat of the same words, sorted as the editor
    // saves them.
    void themedWordFile_data()
    {
        QTest::addColumn<QString>("list");
        const QFileInfoList lists = QDir(QStringLiteral(WORD_LISTS_DIR))
                                        .entryInfoList({QStringLiteral("*.txt")}, QDir::Files);
        QVERIFY(lists.size() >= 3);
        for (const QFileInfo& fi : lists) QTest::newRow(qPrintable(fi.fileName())) << fi.filePath();
    }

    void themedWordFile()
    {
        QFETCH(QString, list);
        QStringList source;
        for (const QString& line : QString::fromUtf8(readAll(list)).split(u'\n')) {
            if (!line.trimmed().isEmpty()) source.append(line.trimmed());
        }
        QVERIFY2(source.size() >= 60, qPrintable(QString::number(source.size())));
        source.sort(Qt::CaseInsensitive);

        const QString dat = QFileInfo(list).completeBaseName() + QStringLiteral(".dat");
        QVERIFY2(shippedWordFiles().contains(dat),
                 qPrintable(dat + QStringLiteral(" is not shipped")));
        const vocabulary::ReadResult r = vocabulary::readWordFile(dat);
        QVERIFY(!r.failure);
        QCOMPARE(r.words, source);
    }

    void helpPage_data()
    {
        QTest::addColumn<QString>("page");
        // Every page in the resources is listed here, so each is checked.
        QStringList inResources =
            QDir(QStringLiteral(":/help")).entryList({QStringLiteral("*.html")}, QDir::Files);
        QStringList listed = kHelpPages;
        inResources.sort();
        listed.sort();
        QCOMPARE(inResources, listed);
        for (const QString& p : kHelpPages) QTest::newRow(qPrintable(p)) << p;
    }

    void helpPage()
    {
        QFETCH(QString, page);
        QVERIFY2(QFile::exists(QStringLiteral(":/help/") + page),
                 qPrintable(page + QStringLiteral(" is not in the resources")));
        const PageLinks p = loadHelpPage(page);
        QVERIFY2(!p.title.trimmed().isEmpty(), "no title");
        // The look comes from the one stylesheet that every page links.
        QVERIFY(QString::fromUtf8(readAll(QStringLiteral(":/help/") + page))
                    .contains(QStringLiteral("href=\"help.css\"")));
        QVERIFY(QFile::exists(QStringLiteral(":/help/help.css")));
        QVERIFY2(p.text.trimmed().size() > 200, qPrintable(QString::number(p.text.size())));
        if (page != QLatin1String("index.html")) {
            QVERIFY2(p.hrefs.contains(QStringLiteral("index.html")), "no way back to the contents");
            QVERIFY2(loadHelpPage(QStringLiteral("index.html")).hrefs.contains(page),
                     "not in the contents");
        }

        const QUrl base(QStringLiteral("qrc:/help/") + page);
        for (const QString& href : std::as_const(p.hrefs)) {
            const QUrl url(href);
            QVERIFY2(url.scheme().isEmpty(), qPrintable(href + QStringLiteral(" leaves the help")));
            const QUrl target = base.resolved(url);
            const QString file = u':' + target.path();
            QVERIFY2(QFile::exists(file), qPrintable(href + QStringLiteral(" points nowhere")));
            if (url.hasFragment()) {
                const PageLinks t = linksOf(QString::fromUtf8(readAll(file)));
                QVERIFY2(t.anchors.contains(url.fragment()),
                         qPrintable(href + QStringLiteral(": no such place on the page")));
            }
        }
    }
};

QTEST_MAIN(TestContent)
#include "tst_content.moc"
