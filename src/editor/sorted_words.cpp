#include "editor/sorted_words.h"

#include "editor/word_order.h"

#include <algorithm>

namespace editor {

int SortedWords::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(words_.size());
}

QVariant SortedWords::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid) ||
        (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    return words_.at(index.row());
}

bool SortedWords::removeRows(int row, int count, const QModelIndex& parent)
{
    if (parent.isValid() || count < 1 || row < 0 || row + count > words_.size()) return false;
    beginRemoveRows(parent, row, row + count - 1);
    words_.remove(row, count);
    endRemoveRows();
    return true;
}

void SortedWords::setWords(QStringList words)
{
    sortWords(words);
    beginResetModel();
    words_ = std::move(words);
    endResetModel();
}

int SortedWords::add(const QString& word)
{
    const auto at =
        std::lower_bound(words_.cbegin(), words_.cend(), word,
                         [](const QString& a, const QString& b) { return compareWords(a, b) < 0; });
    const int row = int(at - words_.cbegin());
    beginInsertRows({}, row, row);
    words_.insert(row, word);
    endInsertRows();
    return row;
}

} // namespace editor
