// The help window: the three requests of the help menu, and the search over all pages, in
// the player's language.
#include "mainwindow/help_window.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBrowser>

class HelpTest : public QObject {
    Q_OBJECT
private slots:
    void requestsAndSearch();
};

void HelpTest::requestsAndSearch()
{
    QLocale::setDefault(QLocale(QLocale::English));
    mainwindow::HelpWindow help;
    help.showHelpOnHelp();
    QCOMPARE(help.currentPage(), QString("helponhelp.html"));
    help.showContents();
    help.search();
    QVERIFY(help.currentPage() == "index.html" && help.searchField()->isVisible());
    // The pages that hold every word of the query, in any case.
    auto find = [&](const char* query) {
        help.searchField()->clear();
        QTest::keyClicks(help.searchField(), query);
        QTest::keyClick(help.searchField(), Qt::Key_Return);
        QStringList pages;
        for (int i = 0; i < help.results()->count(); ++i)
            pages << help.results()->item(i)->data(Qt::UserRole).toString();
        return pages;
    };
    QCOMPARE(find("tip xylophonequartet"), QStringList{""}); // a row that only says so
    QVERIFY(!(help.results()->item(0)->flags() & Qt::ItemIsEnabled));
    const auto row = find("CTRL shortcut").indexOf("commands.html");
    QVERIFY(row >= 0);
    emit help.results()->itemActivated(help.results()->item(row));
    QCOMPARE(help.currentPage(), QString("commands.html"));
    QVERIFY(help.browser()->textCursor().hasSelection()); // at the first place of the words
    // A German player searches the German pages.
    QLocale::setDefault(QLocale(QLocale::German));
    mainwindow::HelpWindow german;
    bool found = false;
    for (const auto& hit : german.find("schneemann schmilzt"))
        found = found || hit.second == "play.html";
    QVERIFY(found);
    QVERIFY(german.find("vocabulary").isEmpty());
}

QTEST_MAIN(HelpTest)
#include "tst_help.moc"
