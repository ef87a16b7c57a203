#pragma once
// The editor's list: a QListView whose rows, all of one size, are placed by arithmetic. A
// QListView lays out every row anew at every change, which at a million words takes most of a
// frame; here row r stands r row heights down, and a change costs what the rows on screen
// cost. Looks, keys, mouse and what a screen reader is told are the QListView's own. Set up any
// other way (right to left, a grid, spacing, wrapping, rows of their own sizes, alternating
// colours, dragging, scrolling by pixels), the QListView lays out as ever. Rows are never hidden
// here.
#include <QAccessible>
#include <QListView>
#include <QPersistentModelIndex>

namespace editor {

class WordList : public QListView {
    Q_OBJECT
public:
    using QListView::QListView;

    QRect visualRect(const QModelIndex& index) const override;
    QModelIndex indexAt(const QPoint& point) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    void doItemsLayout() override;

protected:
    int horizontalOffset() const override;
    int verticalOffset() const override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void verticalScrollbarValueChanged(int value) override;
    void horizontalScrollbarValueChanged(int value) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

private:
    bool arithmetic() const;
    int rowCount() const;
    QSize rowSize() const;
    QSize contentsSize() const;
    // The rows that a rectangle in contents coordinates touches: [first, last], empty if last
    // < first.
    std::pair<int, int> rowsIn(const QRect& area) const;
    int rowAt(const QPoint& contentsPoint) const;
    QModelIndex row(int r) const;
    void hoverAt(const QPoint& point);
    void tell(QAccessible::Event change, const QModelIndex& index);

    mutable QSize rowSize_; // of every row, asked of the delegate once a layout
    QPersistentModelIndex hover_;
    bool layoutCleared_ = false; // where the QListView's layout would be, while rows go
};

} // namespace editor
