#pragma once
// The rows of the editor's list: all of one size, as wide as the widest word. The view then
// lays out many thousands of rows from one measurement and still scrolls sideways to the
// last letter of every word.
#include <QFontMetricsF>
#include <QHash>
#include <QListView>
#include <QStyledItemDelegate>
#include <array>
#include <vector>

namespace editor {

class SortedWords;

class WordRows : public QStyledItemDelegate {
    Q_OBJECT
public:
    // Follows `words` as shown by `view`, in the view's font: the widest word is looked for
    // when the list is new and again only when that word goes; a word added is measured alone.
    WordRows(const SortedWords* words, QListView* view);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void measureAll();
    void findWidest();
    void measure(const QString& word);
    qint32 sumOf(QStringView word);

    const SortedWords* words_;
    QListView* view_;
    QFontMetricsF metrics_;
    // Each row's sum of its letters' advances, in 64ths of a pixel (the font's own unit, so
    // the sums are exact): the widest word is looked for among the rows nearest the top sum.
    std::vector<qint32> sums_;
    std::array<qint32, 256> latin1_{}; // advances of the first 256 characters, -1 unknown
    QHash<char16_t, qint32> others_;
    QString widest_;
    qreal width_ = -1;
    bool widestGoes_ = false;
};

} // namespace editor
