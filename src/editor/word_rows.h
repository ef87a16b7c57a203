#pragma once
// The rows of the editor's list: all of one size, as wide as the widest word. The view then
// lays out many thousands of rows from one measurement and still scrolls sideways to the
// last letter of every word.
#include <QStyledItemDelegate>

namespace editor {

class WordRows : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    // The widest of the words, anew.
    void measure(const QStringList& words, const QFont& font);
    // One word more.
    void measure(const QString& word, const QFont& font);

private:
    QString widest_;
    qreal width_ = -1;
};

} // namespace editor
