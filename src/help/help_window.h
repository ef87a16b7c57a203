#pragma once
// The help window: the shipped pages with contents, links, back and forward, and a search
// over all pages.
#include <QWidget>

class QLineEdit;
class QLocale;
class QListWidget;
class QTextBrowser;
class QSplitter;

namespace help {

// The resource folder of the help pages for a locale: German pages for German, else English.
QString helpFolder(const QLocale& locale);

class HelpWindow : public QWidget {
    Q_OBJECT
public:
    explicit HelpWindow(QWidget* parent = nullptr);

    // The three requests of the help menu.
    void showContents();
    void search(); // opens the search, ready to type
    void showHelpOnHelp();

    // Pages whose text holds every word of the query, as "title" and page name.
    QList<QPair<QString, QString>> find(const QString& query) const;
    QString currentPage() const;
    QTextBrowser* browser() const { return browser_; }
    QListWidget* results() const { return results_; }
    QLineEdit* searchField() const { return field_; }

private:
    void open(const QString& page);
    void bringUp();
    void runSearch();

    const QString folder_;
    QTextBrowser* browser_;
    QLineEdit* field_;
    QListWidget* results_;
    QWidget* searchPane_;
};

} // namespace help
