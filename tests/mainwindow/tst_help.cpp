// The help window: the three requests of the help menu, and the search.
#include "mainwindow/help_window.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBrowser>

using mainwindow::HelpWindow;

class HelpTest : public QObject {
    Q_OBJECT
private slots:
    void init() { QLocale::setDefault(QLocale(QLocale::English)); }
    void requests();
    void search_data();
    void search();
    void searchFieldLists_data();
    void searchFieldLists();
};

void HelpTest::requests()
{
    HelpWindow help;
    help.showContents();
    QVERIFY(help.isVisible());
    QCOMPARE(help.currentPage(), QString("index.html"));
    QVERIFY(!help.searchField()->isVisible());
    help.search();
    QVERIFY(help.searchField()->isVisible());
    QCOMPARE(help.currentPage(), QString("index.html"));
    help.showHelpOnHelp();
    QCOMPARE(help.currentPage(), QString("helponhelp.html"));
    QVERIFY(help.browser()->toPlainText().contains("search", Qt::CaseInsensitive));
}

void HelpTest::search_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QLocale>("locale");
    const QLocale en(QLocale::English), de(QLocale::German);
    QTest::newRow("one word") << "tip"
                              << "play.html" << true << en;
    QTest::newRow("any case") << "VOCABULARY"
                              << "vocabulary.html" << true << en;
    QTest::newRow("all words must stand") << "ctrl shortcut"
                                          << "commands.html" << true << en;
    QTest::newRow("nowhere") << "xylophonequartet"
                             << "" << false << en;
    QTest::newRow("German pages") << "schneemann schmilzt"
                                  << "play.html" << true << de;
    QTest::newRow("German pages only") << "vocabulary"
                                       << "" << false << de;
}

void HelpTest::search()
{
    QFETCH(QString, query);
    QFETCH(QString, page);
    QFETCH(bool, found);
    QFETCH(QLocale, locale);
    QLocale::setDefault(locale);
    HelpWindow help;
    const auto hits = help.find(query);
    QCOMPARE(!hits.isEmpty(), found);
    bool has = false;
    for (const auto& h : hits) has = has || h.second == page;
    QCOMPARE(has, found);
}

void HelpTest::searchFieldLists_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<bool>("hits");
    QTest::newRow("found") << "vocabulary" << true;
    QTest::newRow("not found") << "qwzx" << false;
}

void HelpTest::searchFieldLists()
{
    QFETCH(QString, query);
    QFETCH(bool, hits);
    HelpWindow help;
    help.search();
    help.searchField()->setText(query);
    QTest::keyClick(help.searchField(), Qt::Key_Return);
    QVERIFY(help.results()->count() > 0);
    QCOMPARE(bool(help.results()->item(0)->flags() & Qt::ItemIsEnabled), hits);
    if (hits) {
        emit help.results()->itemActivated(help.results()->item(0));
        QVERIFY(help.browser()->textCursor().hasSelection()); // the word is shown
    }
}

QTEST_MAIN(HelpTest)
#include "tst_help.moc"
