#include "help/help_window.h"

#include "platform/translations.h"
#include "widgets/focus_ring.h"
#include "widgets/window_design.h"

#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>
#include <QVBoxLayout>

namespace help {
namespace {

struct Page {
    QString name, title, text;
};

// The pages' plain text, read once a folder: the search runs over it.
const QList<Page>& pages(const QString& folder)
{
    static QHash<QString, QList<Page>> read;
    if (const auto it = read.constFind(folder); it != read.cend()) return *it;
    QList<Page>& list = read[folder];
    for (const QString& name : QDir(folder).entryList({"*.html"}, QDir::Files, QDir::Name)) {
        QFile f(folder + name);
        if (!f.open(QIODevice::ReadOnly)) continue;
        QTextDocument doc;
        doc.setHtml(QString::fromUtf8(f.readAll()));
        QString title = doc.metaInformation(QTextDocument::DocumentTitle);
        list.append({name, title.isEmpty() ? name : title, doc.toPlainText()});
    }
    return list;
}

// The page. Its focused link is ringed as a focused control is: the page's own mark is a
// dotted line that is hard to see.
class PageView : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QTextBrowser::paintEvent(event);
        const QTextCursor link = textCursor();
        if (!hasFocus() || !link.hasSelection() || !link.charFormat().isAnchor()) return;
        QTextCursor start = link, end = link;
        start.setPosition(link.selectionStart());
        end.setPosition(link.selectionEnd());
        QPainter painter(viewport());
        widgets::drawFocusRing(painter,
                               cursorRect(start).united(cursorRect(end)).adjusted(-2, -2, 2, 2));
    }
};

} // namespace

QString helpFolder(const QLocale& locale)
{
    return platform::isGerman(locale) ? QStringLiteral(":/help/de/") : QStringLiteral(":/help/");
}

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), folder_(helpFolder(QLocale()))
{
    setWindowTitle(tr("Frostel32 Help"));
    resize(720, 560);
    auto* bar = new QToolBar(this);
    auto* contents = bar->addAction(tr("&Contents"));
    auto* back = bar->addAction(tr("&Back"));
    auto* forward = bar->addAction(tr("&Forward"));
    auto* searchAction = bar->addAction(tr("&Search"));
    // Each on a key as browsers have them, and each a stop of Tab.
    contents->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Home));
    back->setShortcut(QKeySequence::Back);
    forward->setShortcut(QKeySequence::Forward);
    searchAction->setShortcut(QKeySequence::Find);
    for (QAction* a : bar->actions()) {
        a->setToolTip(a->toolTip() + " (" + a->shortcut().toString(QKeySequence::NativeText) + ')');
        bar->widgetForAction(a)->setFocusPolicy(Qt::TabFocus);
    }
    for (const QKeySequence& key :
         {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &QWidget::close);
    browser_ = new PageView(this);
    browser_->setSearchPaths({folder_});
    browser_->setOpenExternalLinks(false);
    browser_->setAccessibleName(tr("Help page"));

    searchPane_ = new QWidget(this);
    field_ = new QLineEdit(searchPane_);
    field_->setPlaceholderText(tr("Words to find"));
    field_->setClearButtonEnabled(true);
    auto* go = new QPushButton(tr("&Find"), searchPane_);
    results_ = new QListWidget(searchPane_);
    field_->setAccessibleName(tr("Words to find"));
    results_->setAccessibleName(tr("Pages found"));
    auto* searchLayout = new QVBoxLayout(searchPane_);
    searchLayout->setContentsMargins(0, 0, 0, 0);
    auto* row = new QHBoxLayout;
    row->addWidget(field_);
    row->addWidget(go);
    searchLayout->addWidget(new QLabel(tr("Search all help pages:"), searchPane_));
    searchLayout->addLayout(row);
    searchLayout->addWidget(results_);
    searchPane_->hide();

    auto* split = new QSplitter(this);
    split->addWidget(searchPane_);
    split->addWidget(browser_);
    split->setStretchFactor(1, 3);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(bar);
    layout->addWidget(split);

    connect(contents, &QAction::triggered, this, &HelpWindow::showContents);
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(searchAction, &QAction::triggered, this, &HelpWindow::search);
    connect(field_, &QLineEdit::returnPressed, this, &HelpWindow::runSearch);
    connect(go, &QPushButton::clicked, this, &HelpWindow::runSearch);
    connect(results_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
        open(item->data(Qt::UserRole).toString());
        // Show the first place the words stand.
        const QStringList words = field_->text().split(' ', Qt::SkipEmptyParts);
        if (!words.isEmpty()) browser_->find(words.first());
    });
}

void HelpWindow::open(const QString& page)
{
    browser_->setSource(QUrl(page));
    bringUp();
}

void HelpWindow::bringUp()
{
    // Over the game, not wherever the window manager would drop it.
    if (!isVisible() && parentWidget()) widgets::centreOnOwner(this, parentWidget());
    show();
    raise();
    activateWindow();
}

void HelpWindow::showContents() { open(QStringLiteral("index.html")); }

void HelpWindow::showHelpOnHelp() { open(QStringLiteral("helponhelp.html")); }

void HelpWindow::search()
{
    searchPane_->show();
    bringUp();
    field_->setFocus();
    field_->selectAll();
}

QString HelpWindow::currentPage() const { return browser_->source().fileName(); }

QList<QPair<QString, QString>> HelpWindow::find(const QString& query) const
{
    const QStringList words = query.split(' ', Qt::SkipEmptyParts);
    QList<QPair<QString, QString>> hits;
    if (words.isEmpty()) return hits;
    for (const Page& p : pages(folder_)) {
        bool all = true;
        for (const QString& w : words) all = all && p.text.contains(w, Qt::CaseInsensitive);
        if (all) hits.append({p.title, p.name});
    }
    return hits;
}

void HelpWindow::runSearch()
{
    results_->clear();
    const auto hits = find(field_->text());
    for (const auto& [title, name] : hits) {
        auto* item = new QListWidgetItem(title, results_);
        item->setData(Qt::UserRole, name);
    }
    if (hits.isEmpty()) {
        auto* item = new QListWidgetItem(tr("No page holds these words."), results_);
        item->setFlags(Qt::NoItemFlags);
    }
}

} // namespace help
