#include "editor/word_rows.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QHash>
#include <algorithm>
#include <vector>

namespace editor {

QSize WordRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem opt = option;
    initStyleOption(&opt, index);
    opt.text = widest_;
    const QStyle* style = opt.widget ? opt.widget->style() : QApplication::style();
    return style->sizeFromContents(QStyle::CT_ItemViewItem, &opt, QSize(), opt.widget);
}

void WordRows::measure(const QStringList& words, const QFont& font)
{
    widest_.clear();
    width_ = -1;
    // Laying out every word costs too much for a long list. The sum of a word's letters
    // comes within its kerning of the truth, far less than two letters, so only the words
    // that close to the widest sum are laid out.
    const QFontMetricsF metrics(font);
    QHash<QChar, qreal> letters;
    std::vector<qreal> sums;
    sums.reserve(size_t(words.size()));
    qreal top = 0;
    for (const QString& word : words) {
        qreal sum = 0;
        for (QChar c : word) {
            auto it = letters.constFind(c);
            if (it == letters.cend()) it = letters.insert(c, metrics.horizontalAdvance(c));
            sum += *it;
        }
        sums.push_back(sum);
        top = std::max(top, sum);
    }
    const qreal near = top - 2 * metrics.averageCharWidth();
    for (qsizetype i = 0; i < words.size(); ++i)
        if (sums[size_t(i)] >= near) measure(words[i], font);
}

void WordRows::measure(const QString& word, const QFont& font)
{
    const qreal width = QFontMetricsF(font).horizontalAdvance(word);
    if (width <= width_) return;
    width_ = width;
    widest_ = word;
}

} // namespace editor
