#pragma once
// The editor's list of words: always in the list's alphabetical order, whatever the order
// they come in, one plain string a word so that a list of many thousands stays light.
#include <QAbstractListModel>
#include <QStringList>

namespace editor {

class SortedWords : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

    const QStringList& words() const { return words_; }
    // The list anew: the words put in order at once.
    void setWords(QStringList words);
    // Files one word in its place, before any word equal to it. Returns its row.
    int add(const QString& word);

private:
    QStringList words_;
};

} // namespace editor
