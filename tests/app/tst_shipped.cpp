// The program as it ships: the pictures, sounds and word files the build writes, the help pages of
// each language; every text a player sees in German, fitting its control, no menu with two entries
// on one access key, English as it was.
#include "about/info_window.h"
#include "editor/vocabulary_editor.h"
#include "help/help_window.h"
#include "platform/translations.h"
#include "settings/options_window.h"
#include "support/main_window_start.h"
#include "vocabulary/englisch.h"

#include <QAbstractButton>
#include <QAction>
#include <QCryptographicHash>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRegularExpression>
#include <QtEndian>
#include <map>

using support::readAll;

namespace {

using Texts = std::map<QString, QString>; // where it stands -> the text

// Every text of the window and its controls, menus and lists that a player can see; adds to
// `faults` what overflows a control placed by design and two entries of a menu on one key.
Texts textsOf(QWidget* window, QStringList* faults)
{
    Texts t;
    t[window->objectName() + " title"] = window->windowTitle();
    for (QWidget* w : window->findChildren<QWidget*>()) {
        const QString at = window->objectName() + '/' + w->objectName() + ' ';
        auto* l = qobject_cast<QLabel*>(w);
        auto* b = qobject_cast<QAbstractButton*>(w);
        if (l || b) t[at + "text"] = l ? l->text() : b->text();
        if (auto* g = qobject_cast<QGroupBox*>(w)) t[at + "title"] = g->title();
        if (auto* e = qobject_cast<QLineEdit*>(w)) t[at + "hint"] = e->placeholderText();
        if (auto* list = qobject_cast<QListWidget*>(w))
            for (int i = 0; i < list->count(); ++i)
                t[at + QString::number(i)] = list->item(i)->text();
        if (!w->toolTip().isEmpty()) t[at + "tip"] = w->toolTip();
        if (!w->accessibleName().isEmpty()) t[at + "name"] = w->accessibleName();
        // Only what is placed by design has a fixed width; laid out controls grow.
        if ((l || b) && !t[at + "text"].isEmpty() && w->property("twips").isValid() &&
            w->sizeHint().width() > w->width() + 1)
            *faults << at + "overflows";
        if (auto* m = qobject_cast<QMenu*>(w)) {
            t[at + "title"] = m->title();
            QString keys;
            for (QAction* a : m->actions()) {
                const QString key = a->text().section('&', 1).left(1).toLower();
                if (!key.isEmpty() && keys.contains(key)) *faults << m->title() + ": " + a->text();
                keys += key;
            }
        }
    }
    for (QAction* a : window->findChildren<QAction*>()) t["action " + a->objectName()] = a->text();
    return t;
}

// Texts that read the same in both languages: names, the product, words that are German already.
const QStringList kSame = QString("Marta|Helene|Matthis|Svenja|Frostel32 v2.31|Frostel|&OK|OK|"
                                  "&Start|Start|Spiel starten|Spiel beenden|Buchstaben anzeigen|"
                                  "nächstes Wort|&Spiel|&Hilfe|&Ende|&Suchen|&Optionen...|"
                                  "nächstes &Wort|&Benutzen der Hilfe|&Info...|frostel.dat|zoo.dat")
                              .split('|');

// The links of a help page, and its anchors as "=name".
QStringList linksOf(const QString& file)
{
    static const QRegularExpression link("<a (href|name)=\"([^\"]+)\"");
    QStringList links;
    for (const auto& m : link.globalMatch(QString::fromUtf8(readAll(file))))
        links << (m.captured(1) == "name" ? "=" : "") + m.captured(2);
    return links;
}

} // namespace

class ShippedTest : public QObject, support::MainWindowStart {
    Q_OBJECT
    // The main window, the options, the editor, the info and the help as a player opens them.
    Texts allTexts(QStringList* faults)
    {
        auto w = startWindow("[Einstellungen]\r\nSound= 0\r\n");
        settings::Profile profile(ini_);
        settings::OptionsHost options(w->game(), profile, w.get(), {});
        editor::VocabularyEditor editor(w->game().g, w->game().List1, w->toolkit());
        about::InfoWindow info(nullptr);
        help::HelpWindow help;
        Texts all;
        for (QWidget* window :
             std::initializer_list<QWidget*>{w.get(), options.window(), &editor, &info, &help})
            all.merge(textsOf(window, faults));
        return all;
    }
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { leave(); }

    // All fourteen sounds are PCM wave files whose chunks add up to the file.
    void sounds()
    {
        for (int n = 0; n <= 13; ++n) {
            const QByteArray b = readAll(QStringLiteral(GAME_DIR "/frostl%1.wav").arg(n));
            const auto at = [&](qsizetype i) { return qFromLittleEndian<quint32>(b.data() + i); };
            const qsizetype data = b.indexOf("data");
            QVERIFY2(b.startsWith("RIFF") && b.mid(8, 4) == "WAVE" && b.indexOf("fmt ") > 0 &&
                         data > 0 && at(4) == b.size() - 8 && quint16(at(20)) == 1 /* PCM */ &&
                         at(28) == at(24) * quint16(at(32)) && // bytes a second, a frame
                         quint16(at(32)) == quint16(at(22)) * quint16(at(34)) / 8 &&
                         at(data + 4) == b.size() - data - 8,
                     qPrintable(QString::number(n)));
        }
    }

    // Every picture of the manifest is built in, at both scales.
    void pictures()
    {
        int count = 0;
        for (const QByteArray& line : readAll(PICTURE_MANIFEST).split('\n')) {
            const QList<QByteArray> f = line.simplified().split(' '); // name width height [source]
            if (f.size() < 3 || line.startsWith('#')) continue;
            const QString path = ":/pictures/" + QString::fromUtf8(f[0]);
            const QSize size(f[1].toInt(), f[2].toInt());
            QVERIFY2(QImage(path + ".png").size() == size &&
                         QImage(path + "@2x.png").size() == size * 2,
                     qPrintable(path));
            ++count;
        }
        QVERIFY(count > 60);
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
            // Recorded as shipped, or players' copies of it would never be brought up to date.
            const QByteArray sum =
                QCryptographicHash::hash(readAll(GAME_DIR "/" + file), QCryptographicHash::Sha256);
            const QString record = QFileInfo(GAME_DIR "/" + file).path() + "/shipped.sha256";
            QVERIFY2(
                readAll(record).contains(sum.toHex() + "  " + file.section('/', -1).toLatin1()),
                qPrintable(file + ": add its line to " + record));
        }
    }

    // The help for each locale: the German pages when German, else the English ones. Each set
    // has every page; every link of every page lands on a page and a place that exist, and
    // every page can be reached from the contents.
    void helpLinks_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("folder");
        QTest::newRow("French") << QLocale(QLocale::French) << ":/help/";
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany) << ":/help/de/";
    }

    void helpLinks()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, folder);
        QCOMPARE(help::helpFolder(locale), folder);
        const QStringList pages = QDir(folder).entryList({"*.html"}, QDir::Files);
        QVERIFY(pages.size() >= 5);
        QCOMPARE(pages, QDir(":/help").entryList({"*.html"}, QDir::Files));
        for (const QString& page : pages) {
            QVERIFY2(page == "index.html" || linksOf(folder + "index.html").contains(page),
                     qPrintable(page));
            for (const QString& href : linksOf(folder + page)) {
                const QString file = folder + href.section('#', 0, 0), at = href.section('#', 1);
                QVERIFY2(
                    href.startsWith('=') ||
                        (QFile::exists(file) && (at.isEmpty() || linksOf(file).contains('=' + at))),
                    qPrintable(page + ": " + href));
            }
        }
        // The help window searches the pages of the player's language.
        QLocale::setDefault(locale);
        const auto hits = help::HelpWindow().find("schneemann schmilzt");
        QCOMPARE(hits.isEmpty(), !folder.endsWith("de/"));
        QLocale::setDefault(QLocale::c());
    }

    void everythingTranslated()
    {
        for (const char* name : {"C", "en_US", "en_GB", "fr_FR"}) // English, the fallback
            QVERIFY2(!platform::installTranslators(QLocale(name)), name);
        QStringList faults;
        const Texts english = allTexts(&faults);
        QVERIFY(platform::installTranslators(QLocale(QLocale::German, QLocale::Germany)));
        const Texts german = allTexts(&faults);
        for (const auto& [at, text] : english)
            if (german.at(at) == text && !kSame.contains(text) &&
                !QRegularExpression("^[ 0-9]*$").match(text).hasMatch())
                faults << at + ": " + text;
        // The help names each menu entry as the menu shows it, in either language.
        for (const auto& [folder, texts] :
             {std::pair{":/help/", english}, {":/help/de/", german}}) {
            QStringList entries;
            for (const auto& [at, text] : texts)
                if (at.startsWith("action ")) entries << QString(text).remove('&').remove("...");
            const QRegularExpression named("&rarr; ([^<.]+)|<tr><td>([^<]+)</td><td><kbd>\\w+\\+");
            for (const QString& page : QDir(folder).entryList({"*.html"}))
                for (const auto& m : named.globalMatch(QString::fromUtf8(readAll(folder + page))))
                    if (!entries.contains(m.captured(1) + m.captured(2)))
                        faults << folder + page + ": " + m.captured(0);
        }
        QCOMPARE(faults.join('|'), QString());
    }
};

QTEST_MAIN(ShippedTest)
#include "tst_shipped.moc"
