// The files the game ships with: the sound effects and word files the build writes into
// the game's folder, and the help pages built into the program.
#include "mainwindow/help_window.h"
#include "support/files.h"
#include "vocabulary/englisch.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>
#include <QtEndian>
#include <QtTest>

namespace {

using support::readAll;

// The links and anchor names of a help page as the help window's parser sees them.
struct PageLinks {
    QStringList hrefs;
    QSet<QString> anchors;
};

PageLinks linksOf(const QString& file)
{
    QTextDocument doc;
    doc.setHtml(QString::fromUtf8(readAll(file)));
    PageLinks p;
    for (QTextBlock block = doc.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat fmt = it.fragment().charFormat();
            if (!fmt.anchorHref().isEmpty()) p.hrefs.append(fmt.anchorHref());
            for (const QString& name : fmt.anchorNames()) p.anchors.insert(name);
        }
    }
    return p;
}

} // namespace

class TestContent : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The game finds its files by bare name in its working folder; so do the tests.
        QVERIFY(QDir::setCurrent(QStringLiteral(GAME_DIR)));
    }

    // All fourteen sounds are there as PCM wave files whose chunks add up to the file.
    void sounds()
    {
        for (int n = 0; n <= 13; ++n) {
            const QByteArray b = readAll(QStringLiteral("frostl%1.wav").arg(n));
            QVERIFY2(b.startsWith("RIFF") && b.mid(8, 4) == "WAVE", qPrintable(QString::number(n)));
            QCOMPARE(qFromLittleEndian<quint32>(b.constData() + 4), quint32(b.size() - 8));
            const qsizetype data = b.indexOf("data");
            QVERIFY(b.indexOf("fmt ") > 0 && data > 0);
            QCOMPARE(qFromLittleEndian<quint16>(b.constData() + 20), quint16(1)); // PCM
            QCOMPARE(qFromLittleEndian<quint32>(b.constData() + data + 4),
                     quint32(b.size() - data - 8));
        }
    }

    // Every shipped word can be played: letters A to Z only, 20 at most, read as written.
    void wordFiles()
    {
        const QStringList files = QStringLiteral(WORD_FILES).split(u',', Qt::SkipEmptyParts);
        QVERIFY(files.contains(QStringLiteral("frostel.dat")));
        for (const QString& file : files) {
            const QByteArray bytes = readAll(file);
            const vocabulary::ReadResult r = vocabulary::readWordFile(file);
            QVERIFY2(!r.failure, qPrintable(file));
            QCOMPARE(r.words.size(), bytes.count("\r\n")); // none skipped, none split
            for (const QString& w : r.words) {
                QVERIFY2(w.size() <= vocabulary::kMaxWordLength, qPrintable(w));
                for (const QChar c : w)
                    QVERIFY2(c.toUpper() >= u'A' && c.toUpper() <= u'Z', qPrintable(w));
            }
        }
        QStringList builtin;
        vocabulary::WortlisteFuellen(builtin);
        QCOMPARE(vocabulary::readWordFile(QStringLiteral("frostel.dat")).words, builtin);
    }

    // Every list in data/words, and in data/words/de for the German set, ships as a .dat of
    // the same words, sorted as the editor saves; a language's own frostel list keeps its order.
    void themedWordFiles()
    {
        for (const QString folder : {"", "de/"}) {
            const QFileInfoList lists = QDir(QStringLiteral(WORD_LISTS_DIR "/") + folder)
                                            .entryInfoList({QStringLiteral("*.txt")}, QDir::Files);
            QVERIFY2(lists.size() >= 3, qPrintable(folder));
            for (const QFileInfo& fi : lists) {
                QStringList source;
                for (const QString& line : QString::fromUtf8(readAll(fi.filePath())).split(u'\n'))
                    if (!line.trimmed().isEmpty()) source.append(line.trimmed());
                if (fi.completeBaseName() != "frostel") source.sort(Qt::CaseInsensitive);
                const QString file = folder + fi.completeBaseName() + ".dat";
                QCOMPARE(vocabulary::readWordFile(file).words, source);
            }
        }
    }

    // The help for each locale: the German pages when German, else the English ones. Each
    // set has every page, every link of every page lands on a page and a place that exist,
    // and every page can be reached from the contents.
    void helpLinks_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("folder");
        QTest::newRow("C") << QLocale::c() << ":/help/";
        QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedStates) << ":/help/";
        QTest::newRow("French") << QLocale(QLocale::French) << ":/help/";
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany) << ":/help/de/";
    }

    void helpLinks()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, folder);
        QCOMPARE(mainwindow::helpFolder(locale), folder);
        const QStringList pages = QDir(folder).entryList({"*.html"}, QDir::Files);
        QVERIFY(pages.size() >= 5);
        QCOMPARE(pages, QDir(QStringLiteral(":/help")).entryList({"*.html"}, QDir::Files));
        const QStringList contents = linksOf(folder + "index.html").hrefs;
        for (const QString& page : pages) {
            QVERIFY2(page == "index.html" || contents.contains(page), qPrintable(page));
            const QUrl base("qrc" + folder + page);
            for (const QString& href : linksOf(folder + page).hrefs) {
                const QUrl url(href);
                const QString file = u':' + base.resolved(url).path();
                QVERIFY2(url.scheme().isEmpty() && QFile::exists(file),
                         qPrintable(page + ": " + href));
                if (url.hasFragment())
                    QVERIFY2(linksOf(file).anchors.contains(url.fragment()), qPrintable(href));
            }
        }
    }
};

QTEST_MAIN(TestContent)
#include "tst_content.moc"
