// The game in German: every text a player sees is translated, fits its control at the design
// size, and no menu has two entries on one access key; English stays as it was.
#include "about/info_window.h"
#include "editor/vocabulary_editor.h"
#include "mainwindow/help_window.h"
#include "platform/translations.h"
#include "settings/options_window.h"
#include "support/main_window_start.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <map>

namespace {

using Texts = std::map<QString, QString>; // where it stands -> the text

// Every text of the window and its controls, menus and lists that a player can see.
Texts textsOf(QWidget* window)
{
    Texts t;
    t[window->objectName() + " title"] = window->windowTitle();
    for (QWidget* w : window->findChildren<QWidget*>()) {
        const QString at = window->objectName() + '/' + w->objectName() + ' ';
        if (auto* l = qobject_cast<QLabel*>(w)) t[at + "text"] = l->text();
        if (auto* b = qobject_cast<QAbstractButton*>(w)) t[at + "text"] = b->text();
        if (auto* g = qobject_cast<QGroupBox*>(w)) t[at + "title"] = g->title();
        if (auto* e = qobject_cast<QLineEdit*>(w)) t[at + "hint"] = e->placeholderText();
        if (auto* m = qobject_cast<QMenu*>(w)) t[at + "title"] = m->title();
        if (auto* l = qobject_cast<QListWidget*>(w))
            for (int i = 0; i < l->count(); ++i) t[at + QString::number(i)] = l->item(i)->text();
        if (!w->toolTip().isEmpty()) t[at + "tip"] = w->toolTip();
    }
    for (QAction* a : window->findChildren<QAction*>()) t["action " + a->objectName()] = a->text();
    return t;
}

// Labels, buttons, boxes and options placed by design whose text does not fit there.
QStringList overflowing(QWidget* window)
{
    QStringList out;
    for (QWidget* w : window->findChildren<QWidget*>()) {
        auto* l = qobject_cast<QLabel*>(w);
        auto* b = qobject_cast<QAbstractButton*>(w);
        if (!(l && !l->text().isEmpty() && l->pixmap().isNull()) && !(b && !b->text().isEmpty()))
            continue;
        if (!w->property("twips").isValid()) continue; // laid out, not placed by design
        if (w->sizeHint().width() > w->width() + 1)
            out << QString("%1 %2 > %3")
                       .arg(w->objectName())
                       .arg(w->sizeHint().width())
                       .arg(w->width());
    }
    return out;
}

// Two entries of one menu on the same access key.
QStringList sharedKeys(QWidget* window)
{
    QStringList out;
    for (QMenu* m : window->findChildren<QMenu*>()) {
        QString keys;
        for (QAction* a : m->actions()) {
            const qsizetype at = a->text().indexOf('&');
            if (at < 0 || at + 1 >= a->text().size()) continue;
            const QChar key = a->text()[at + 1].toLower();
            if (keys.contains(key)) out << m->title() + ": " + a->text();
            keys += key;
        }
    }
    return out;
}

// Texts that read the same in both languages: names, the product, words that are German already.
const QStringList kSame{"Marta",
                        "Helene",
                        "Matthis",
                        "Svenja",
                        "Frostel32 v2.31",
                        "Frostel",
                        "&OK",
                        "OK",
                        "&Start",
                        "Start",
                        "Spiel starten",
                        "Spiel beenden",
                        "Buchstaben anzeigen",
                        "nächstes Wort",
                        "&Spiel",
                        "&Hilfe",
                        "&Ende",
                        "&Suchen",
                        "&Optionen...",
                        "nächstes &Wort",
                        "&Benutzen der Hilfe",
                        "&Info...",
                        " ",
                        "frostel.dat",
                        "zoo.dat",
                        "frostel.dat"};

} // namespace

class GermanTest : public QObject, support::MainWindowStart {
    Q_OBJECT
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { leave(); }
    void everythingTranslated();
    void englishNeedsNoTranslator();

private:
    // The four windows and the help window as a player opens them.
    Texts allTexts(QStringList* overflow, QStringList* keys);
};

Texts GermanTest::allTexts(QStringList* overflow, QStringList* keys)
{
    auto w = startWindow("[Einstellungen]\r\nSound= 0\r\n");
    settings::Profile profile(ini_);
    settings::OptionsHost options(w->game(), profile, w.get());
    editor::VocabularyEditor editor(w->game().g, w->game().List1, w->toolkit());
    about::InfoWindow info(nullptr);
    mainwindow::HelpWindow help;
    Texts all;
    for (QWidget* window :
         std::initializer_list<QWidget*>{w.get(), options.window(), &editor, &info, &help}) {
        all.merge(textsOf(window));
        *overflow += overflowing(window);
        *keys += sharedKeys(window);
    }
    return all;
}

void GermanTest::everythingTranslated()
{
    QStringList overflow, keys;
    const Texts english = allTexts(&overflow, &keys);
    QCOMPARE(overflow.join('|'), QString());
    QCOMPARE(keys, QStringList());
    QVERIFY(platform::installTranslators(QLocale(QLocale::German, QLocale::Germany)));
    const Texts german = allTexts(&overflow, &keys);
    QCOMPARE(overflow, QStringList());
    QCOMPARE(keys, QStringList());
    QStringList untranslated;
    for (const auto& [at, text] : english)
        if (!text.trimmed().isEmpty() && german.at(at) == text && !kSame.contains(text) &&
            !QRegularExpression("^[ 0-9]*$").match(text).hasMatch())
            untranslated << at + ": " + text;
    QCOMPARE(untranslated.join("|"), QString());
    // Boxes and the game's own words.
    QCOMPARE(core::Game::tr("Really end the game?"), QString("Das Spiel wirklich beenden?"));
    for (QTranslator* t : qApp->findChildren<QTranslator*>()) QCoreApplication::removeTranslator(t);
}

void GermanTest::englishNeedsNoTranslator()
{
    for (const char* name : {"C", "en_US", "en_GB", "fr_FR"})
        QVERIFY2(!platform::installTranslators(QLocale(name)), name);
}

QTEST_MAIN(GermanTest)
#include "tst_german.moc"
