#include "editor/word_rows.h"

#include "editor/sorted_words.h"

#include <QApplication>
#include <algorithm>
#include <cmath>

namespace editor {

WordRows::WordRows(const SortedWords* words, QListView* view)
    : QStyledItemDelegate(view), words_(words), view_(view), metrics_(view->font())
{
    latin1_.fill(-1);
    connect(words, &QAbstractItemModel::modelReset, this, &WordRows::measureAll);
    connect(words, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) {
                for (int row = first; row <= last; ++row) {
                    const QString& word = words_->words().at(row);
                    sums_.insert(sums_.begin() + row, sumOf(word));
                    measure(word);
                }
            });
    connect(words, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex&, int first, int last) {
                const QStringList& all = words_->words();
                widestGoes_ =
                    widestGoes_ || std::any_of(all.begin() + first, all.begin() + last + 1,
                                               [this](const QString& w) { return w == widest_; });
            });
    connect(words, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex&, int first, int last) {
                sums_.erase(sums_.begin() + first, sums_.begin() + last + 1);
                if (widestGoes_) findWidest();
                widestGoes_ = false;
            });
}

QSize WordRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    opt.text = widest_;
    const QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();
    return style->sizeFromContents(QStyle::CT_ItemViewItem, &opt, QSize(), opt.widget);
}

void WordRows::measureAll()
{
    metrics_ = QFontMetricsF(view_->font());
    latin1_.fill(-1);
    others_.clear();
    const QStringList& all = words_->words();
    sums_.resize(size_t(all.size()));
    // The words lie scattered in memory once sorted: each is asked for a few words ahead, so
    // that the waits for memory overlap.
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (i + 16 < all.size()) __builtin_prefetch(all[i + 16].constData());
        sums_[size_t(i)] = sumOf(all[i]);
    }
    findWidest();
}

void WordRows::findWidest()
{
    widest_.clear();
    width_ = -1;
    // Laying out every word costs too much for a long list. The sum of a word's letters
    // comes within its kerning of the truth, far less than two letters, so only the words
    // that close to the widest sum are laid out.
    const qint32 top = sums_.empty() ? 0 : *std::max_element(sums_.begin(), sums_.end());
    const qint32 near = top - qint32(std::lround(2 * metrics_.averageCharWidth() * 64));
    const QStringList& all = words_->words();
    for (size_t i = 0; i < sums_.size(); ++i)
        if (sums_[i] >= near) measure(all[qsizetype(i)]);
}

void WordRows::measure(const QString& word)
{
    const qreal width = metrics_.horizontalAdvance(word);
    if (width <= width_) return;
    width_ = width;
    widest_ = word;
}

qint32 WordRows::sumOf(QStringView word)
{
    qint32 sum = 0;
    for (QChar c : word) {
        const char16_t u = c.unicode();
        qint32* advance = u < 256 ? &latin1_[u] : nullptr;
        if (!advance) {
            auto it = others_.find(u);
            if (it == others_.end()) it = others_.insert(u, -1);
            advance = &*it;
        }
        if (*advance < 0) *advance = qint32(std::lround(metrics_.horizontalAdvance(c) * 64));
        sum += *advance;
    }
    return sum;
}

} // namespace editor
