// What the game ships besides its code: the sounds and word files the build writes into the
// game's folder, in English and German, and the help pages built into the program.
#include "mainwindow/help_window.h"
#include "support/files.h"
#include "vocabulary/englisch.h"
#include "vocabulary/word_file.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QtTest>

using support::readAll;

namespace {

// The links of a help page as the help window's parser sees them, and its anchors as "=name".
QStringList linksOf(const QString& file)
{
    QTextDocument doc;
    doc.setHtml(QString::fromUtf8(readAll(file)));
    QStringList links;
    for (QTextBlock block = doc.begin(); block.isValid(); block = block.next())
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            links << format.anchorHref();
            for (const QString& name : format.anchorNames()) links << '=' + name;
        }
    links.removeAll(QString());
    return links;
}

} // namespace

class Content : public QObject {
    Q_OBJECT
private slots:
    // All fourteen sounds are PCM wave files whose chunks add up to the file.
    void sounds()
    {
        for (int n = 0; n <= 13; ++n) {
            const QByteArray b = readAll(QStringLiteral(GAME_DIR "/frostl%1.wav").arg(n));
            const auto at = [&](qsizetype i) { return qFromLittleEndian<quint32>(b.data() + i); };
            const qsizetype data = b.indexOf("data");
            QVERIFY2(b.startsWith("RIFF") && b.mid(8, 4) == "WAVE" && b.indexOf("fmt ") > 0 &&
                         data > 0 && at(4) == b.size() - 8 && quint16(at(20)) == 1 /* PCM */ &&
                         at(data + 4) == b.size() - data - 8,
                     qPrintable(QString::number(n)));
        }
    }

    // Every shipped word can be played: A to Z only, 20 letters at most, one a line. Each file
    // is a list of data/words (data/words/de for the German set), sorted as the editor saves;
    // a frostel list keeps its order, and without one frostel.dat holds the built-in list.
    void wordFiles()
    {
        const QStringList files = QStringLiteral(WORD_FILES).split(u',');
        QVERIFY(files.contains("frostel.dat") && files.contains("de/frostel.dat"));
        for (const QString& file : files) {
            const vocabulary::ReadResult r = vocabulary::readWordFile(GAME_DIR "/" + file);
            QVERIFY2(!r.failure, qPrintable(file));
            for (const QString& w : r.words)
                QVERIFY2(QRegularExpression("^[A-Za-z]{1,20}$").match(w).hasMatch(), qPrintable(w));
            const QString list = (WORD_LISTS_DIR "/" + file).chopped(4) + ".txt";
            QStringList source = QString::fromUtf8(readAll(list)) // what the file was made from
                                     .split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
            if (!QFile::exists(list)) source.clear(), vocabulary::WortlisteFuellen(source);
            if (!file.endsWith("frostel.dat")) source.sort(Qt::CaseInsensitive);
            QCOMPARE(r.words, source);
        }
    }

    // The help for each locale: the German pages when German, else the English ones. Each set
    // has every page; every link of every page lands on a page and a place that exist, and
    // every page can be reached from the contents.
    void helpLinks_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("folder");
        QTest::newRow("C") << QLocale::c() << ":/help/";
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
        QCOMPARE(pages, QDir(":/help").entryList({"*.html"}, QDir::Files));
        for (const QString& page : pages) {
            QVERIFY2(page == "index.html" || linksOf(folder + "index.html").contains(page),
                     qPrintable(page));
            for (const QString& href : linksOf(folder + page)) {
                const QUrl url(href);
                const QString file = ':' + QUrl("qrc" + folder + page).resolved(url).path();
                if (href.startsWith('=')) continue;
                QVERIFY2(url.scheme().isEmpty() && QFile::exists(file),
                         qPrintable(page + ": " + href));
                QVERIFY2(!url.hasFragment() || linksOf(file).contains('=' + url.fragment()),
                         qPrintable(href));
            }
        }
        // The help window searches the pages of the player's language.
        QLocale::setDefault(locale);
        const auto hits = mainwindow::HelpWindow().find("schneemann schmilzt");
        QCOMPARE(hits.isEmpty(), !folder.endsWith("de/"));
        QLocale::setDefault(QLocale::c());
    }
};

QTEST_MAIN(Content)
#include "tst_content.moc"
