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
#include <QRegularExpression>
#include <map>

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

} // namespace

class GermanTest : public QObject, support::MainWindowStart {
    Q_OBJECT
    // The main window, the options, the editor, the info and the help as a player opens them.
    Texts allTexts(QStringList* faults)
    {
        auto w = startWindow("[Einstellungen]\r\nSound= 0\r\n");
        settings::Profile profile(ini_);
        settings::OptionsHost options(w->game(), profile, w.get());
        editor::VocabularyEditor editor(w->game().g, w->game().List1, w->toolkit());
        about::InfoWindow info(nullptr);
        mainwindow::HelpWindow help;
        Texts all;
        for (QWidget* window :
             std::initializer_list<QWidget*>{w.get(), options.window(), &editor, &info, &help})
            all.merge(textsOf(window, faults));
        return all;
    }
private slots:
    void init() { QVERIFY(enter()); }
    void cleanup() { leave(); }

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
        QCOMPARE(faults.join('|'), QString());
        // Boxes and the game's own words.
        QCOMPARE(core::Game::tr("Really end the game?"), QString("Das Spiel wirklich beenden?"));
    }
};

QTEST_MAIN(GermanTest)
#include "tst_german.moc"
