#include "editor/word_list.h"

#include <QAccessible>
#include <QCursor>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace editor {

bool WordList::arithmetic() const
{
    return !isRightToLeft() && viewMode() == ListMode && flow() == TopToBottom && !isWrapping() &&
           !gridSize().isValid() && spacing() == 0 && uniformItemSizes() &&
           !alternatingRowColors() && !isSelectionRectVisible() && !dragEnabled() &&
           !acceptDrops() && verticalScrollMode() == ScrollPerItem &&
           horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff &&
           verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
}

int WordList::rowCount() const
{
    return model() && model()->columnCount(rootIndex()) > 0 ? model()->rowCount(rootIndex()) : 0;
}

QModelIndex WordList::row(int r) const { return model()->index(r, modelColumn(), rootIndex()); }

QSize WordList::rowSize() const
{
    // Of the last row, as the QListView asks: all rows are one size.
    if (!rowSize_.isValid() && rowCount() > 0) {
        const QModelIndex sample = row(rowCount() - 1);
        QStyleOptionViewItem option;
        initViewItemOption(&option);
        const QAbstractItemDelegate* delegate = itemDelegateForIndex(sample);
        rowSize_ = delegate ? delegate->sizeHint(option, sample) : QSize();
    }
    return rowSize_;
}

QSize WordList::contentsSize() const
{
    const int n = rowCount();
    return n > 0 ? QSize(rowSize().width(), n * rowSize().height()) : QSize();
}

std::pair<int, int> WordList::rowsIn(const QRect& area) const
{
    const int n = rowCount(), h = rowSize().height();
    const QRect a = area.normalized();
    // A row reaches down to where the next begins, and across from 0 without end.
    if (n <= 0 || h <= 0 || a.right() < 0 || a.top() > n * h || a.bottom() < 0) return {0, -1};
    const int first = a.top() < 0 ? 0 : std::min(n - 1, a.top() / h);
    const int last = std::min(n - 1, a.bottom() / h);
    return {first, last};
}

int WordList::rowAt(const QPoint& contentsPoint) const
{
    const auto [first, last] = rowsIn(QRect(contentsPoint, QSize(1, 1)));
    return last >= first ? last : -1;
}

void WordList::doItemsLayout()
{
    if (!arithmetic()) return QListView::doItemsLayout();
    // As the QListView does: scroll bars that come or go must not lay out again.
    const State old = state();
    setState(ExpandingState);
    rowSize_ = QSize();
    layoutCleared_ = false;
    QAbstractItemView::doItemsLayout();
    setState(old);
}

QRect WordList::visualRect(const QModelIndex& index) const
{
    if (!arithmetic()) return QListView::visualRect(index);
    if (!index.isValid() || index.model() != model() || index.parent() != rootIndex() ||
        index.column() != modelColumn())
        return QRect();
    const_cast<WordList*>(this)->executeDelayedItemsLayout();
    // As wide as the widest word, or as the view where that is wider.
    const QSize size = rowSize();
    const QRect rect(0, index.row() * size.height(), std::max(size.width(), viewport()->width()),
                     size.height());
    if (!rect.isValid()) return rect;
    return rect.translated(-horizontalOffset(), -verticalOffset());
}

QModelIndex WordList::indexAt(const QPoint& point) const
{
    if (!arithmetic()) return QListView::indexAt(point);
    const_cast<WordList*>(this)->executeDelayedItemsLayout();
    const int r = rowAt(point + QPoint(horizontalOffset(), verticalOffset()));
    const QModelIndex index = r >= 0 ? row(r) : QModelIndex();
    return index.isValid() && visualRect(index).contains(point) ? index : QModelIndex();
}

int WordList::horizontalOffset() const
{
    return arithmetic() ? horizontalScrollBar()->value() : QListView::horizontalOffset();
}

int WordList::verticalOffset() const
{
    if (!arithmetic()) return QListView::verticalOffset();
    // A row a step of the scroll bar.
    const int value = verticalScrollBar()->value(), n = rowCount();
    if (n <= 0) return value;
    return value > n + 1 ? 0 : value * rowSize().height();
}

void WordList::scrollContentsBy(int dx, int dy)
{
    if (!arithmetic()) return QListView::scrollContentsBy(dx, dy);
    // The QListView's own, by nothing, stops a pending scroll to a clicked row, as scrolling
    // by hand does there.
    QListView::scrollContentsBy(0, 0);
    const int n = rowCount();
    if (n <= 0) return;
    if (dy != 0) {
        const int now = std::clamp(verticalScrollBar()->value(), 0, n);
        dy = (std::clamp(now + dy, 0, n) - now) * rowSize().height();
    }
    viewport()->scroll(dx, dy);
}

void WordList::updateGeometries()
{
    if (!arithmetic()) return QListView::updateGeometries();
    QScrollBar* across = horizontalScrollBar();
    QScrollBar* down = verticalScrollBar();
    const int n = rowCount();
    if (geometry().isEmpty() || n <= 0) {
        across->setRange(0, 0);
        down->setRange(0, 0);
    } else {
        const QSize step = rowSize(), contents = contentsSize(), area = contentsRect().size();
        const bool bothAsNeeded = horizontalScrollBarPolicy() == Qt::ScrollBarAsNeeded &&
                                  verticalScrollBarPolicy() == Qt::ScrollBarAsNeeded;
        // Sideways in pixels. Where both bars come as needed, a bar the other alone would make
        // needed stays away, or the two would chase each other.
        across->setSingleStep(step.width());
        across->setPageStep(viewport()->width());
        const bool downWanted = contents.height() > area.height();
        const bool acrossWanted =
            contents.width() > area.width() - (downWanted ? down->width() : 0);
        across->setRange(0, bothAsNeeded && !acrossWanted ? 0
                                                          : contents.width() - viewport()->width());
        // Down a row a step; a page is as many whole rows as the view shows.
        const int page = contents.height() <= viewport()->height() ? n + 1
                         : step.height() > 0 ? viewport()->height() / step.height()
                                             : 0;
        down->setSingleStep(1);
        down->setPageStep(page);
        down->setRange(0, n - page);
    }
    QAbstractItemView::updateGeometries();
    // Shows or hides the bars at once, as the QListView does, not a moment later.
    setViewportMargins(viewportMargins());
}

void WordList::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (!arithmetic()) return QListView::scrollTo(index, hint);
    if (index.parent() != rootIndex() || index.column() != modelColumn()) return;
    const QRect rect = visualRect(index);
    if (!rect.isValid()) return;
    const QRect area = viewport()->rect();
    if (hint == EnsureVisible && area.contains(rect)) {
        viewport()->update(rect);
        return;
    }
    if (hint == EnsureVisible && rect.top() < area.top()) hint = PositionAtTop;
    else if (hint == EnsureVisible && rect.bottom() > area.bottom()) hint = PositionAtBottom;
    // Whole rows: how many fit in the view with the row at the bottom.
    const int h = rect.height(), r = index.row();
    const int shown = std::min(r, std::max(0, (h > 0 ? area.height() / h : 0) - 1)) + 1;
    if (hint == PositionAtTop) verticalScrollBar()->setValue(r);
    else if (hint == PositionAtBottom) verticalScrollBar()->setValue(r - shown + 1);
    else if (hint == PositionAtCenter) verticalScrollBar()->setValue(r - shown / 2);
}

QModelIndex WordList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (!arithmetic()) return QListView::moveCursor(action, modifiers);
    executeDelayedItemsLayout();
    const int n = rowCount();
    const auto enabled = [this](int r) { return bool(model()->flags(row(r)) & Qt::ItemIsEnabled); };
    const QModelIndex current = currentIndex();
    if (!current.isValid()) {
        int r = 0;
        while (r < n && !enabled(r)) ++r;
        return r < n ? row(r) : QModelIndex();
    }
    const int r = current.row();
    if (action == MoveUp || action == MovePrevious) {
        int up = r - 1;
        while (up >= 0 && !enabled(up)) --up;
        return up >= 0 ? row(up) : current;
    }
    if (action == MoveDown || action == MoveNext) {
        int down = r + 1;
        while (down < n && !enabled(down)) ++down;
        return down < n ? row(down) : current;
    }
    if (!visualRect(current).isValid()) return row(0);
    const int h = rowSize().height(), page = viewport()->height();
    switch (action) {
    case MoveHome: return row(0);
    case MoveEnd: return row(n - 1);
    // A page on, the row that was current stands at the other end of the view.
    case MovePageUp:
        if (h >= page) return moveCursor(MoveUp, modifiers);
        return row(std::max(0, r + 1 - page / h));
    case MovePageDown:
        if (h >= page) return moveCursor(MoveDown, modifiers);
        return row(std::min(n - 1, r - 1 + page / h));
    default: return current; // one column: nothing to the left or right
    }
}

void WordList::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    if (!arithmetic()) return QListView::setSelection(rect, command);
    if (!selectionModel()) return;
    executeDelayedItemsLayout();
    const QPoint offset(horizontalOffset(), verticalOffset());
    const auto usable = [this](int r) {
        return r >= 0 && (model()->flags(row(r)) & Qt::ItemIsEnabled);
    };
    QItemSelection selection;
    if (rect.width() == 1 && rect.height() == 1) {
        // A click: the row under it.
        const int r = rowAt(rect.topLeft() + offset);
        if (usable(r)) selection.select(row(r), row(r));
    } else if (state() == DragSelectingState) {
        const auto [first, last] = rowsIn(rect.translated(offset));
        if (last >= first) selection.select(row(first), row(last));
    } else {
        // From the row where the selection began to the row where it ends, in the two parts
        // that the QListView makes of it.
        const int from = rowAt(QPoint(rect.left(), rect.top()) + offset);
        const int to = rowAt(QPoint(rect.right(), rect.bottom()) + offset);
        if (usable(from) && usable(to)) {
            if (from < to) selection.select(row(from), row(to - 1));
            selection.select(row(std::max(from, to)), row(std::max(from, to)));
            if (from > to) selection.append(QItemSelectionRange(row(to), row(from - 1)));
        }
    }
    selectionModel()->select(selection, command);
}

QRegion WordList::visualRegionForSelection(const QItemSelection& selection) const
{
    if (!arithmetic()) return QListView::visualRegionForSelection(selection);
    QRegion region;
    for (const QItemSelectionRange& range : selection) {
        if (!range.isValid() || range.parent() != rootIndex()) continue;
        const QRect rect(visualRect(row(range.top())).topLeft(),
                         visualRect(row(range.bottom())).bottomRight());
        if (viewport()->rect().intersects(rect)) region += rect;
    }
    return region;
}

void WordList::paintEvent(QPaintEvent* event)
{
    if (!arithmetic() || !itemDelegate()) return QListView::paintEvent(event);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    QPainter painter(viewport());
    const QModelIndex current = currentIndex();
    const bool focus = (hasFocus() || viewport()->hasFocus()) && current.isValid();
    const QStyle::State state = option.state;
    const auto [first, last] =
        rowsIn(event->rect().translated(horizontalOffset(), verticalOffset()));
    for (int r = first; r <= last; ++r) {
        const QModelIndex index = row(r);
        option.rect = visualRect(index);
        option.state = state;
        if (selectionModel() && selectionModel()->isSelected(index))
            option.state |= QStyle::State_Selected;
        if (state & QStyle::State_Enabled) {
            const bool on = model()->flags(index) & Qt::ItemIsEnabled;
            option.state.setFlag(QStyle::State_Enabled, on);
            option.palette.setCurrentColorGroup(on ? QPalette::Normal : QPalette::Disabled);
        }
        if (focus && index == current) {
            option.state |= QStyle::State_HasFocus;
            if (this->state() == EditingState) option.state |= QStyle::State_Editing;
        }
        option.state.setFlag(QStyle::State_MouseOver, index == hover_);
        itemDelegateForIndex(index)->paint(&painter, option, index);
    }
}

// The row under the mouse, for the style to light up: followed where the QAbstractItemView
// follows its own, which a view of its own cannot read.
void WordList::hoverAt(const QPoint& point) { hover_ = indexAt(point); }

bool WordList::viewportEvent(QEvent* event)
{
    const bool done = QListView::viewportEvent(event);
    if (event->type() == QEvent::HoverMove || event->type() == QEvent::HoverEnter)
        hoverAt(static_cast<QHoverEvent*>(event)->position().toPoint());
    else if (event->type() == QEvent::HoverLeave || event->type() == QEvent::Leave)
        hover_ = QPersistentModelIndex();
    return done;
}

void WordList::mouseMoveEvent(QMouseEvent* event)
{
    QListView::mouseMoveEvent(event);
    if (state() != ExpandingState && state() != CollapsingState && state() != DraggingState &&
        state() != EditingState)
        hoverAt(event->position().toPoint());
}

void WordList::verticalScrollbarValueChanged(int value)
{
    QListView::verticalScrollbarValueChanged(value);
    const QPoint point = viewport()->mapFromGlobal(QCursor::pos());
    if (viewport()->rect().contains(point)) hoverAt(point);
}

void WordList::horizontalScrollbarValueChanged(int value)
{
    QListView::horizontalScrollbarValueChanged(value);
    const QPoint point = viewport()->mapFromGlobal(QCursor::pos());
    if (viewport()->rect().contains(point)) hoverAt(point);
}

void WordList::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    QListView::rowsAboutToBeRemoved(parent, start, end);
    layoutCleared_ = true;
}

// What a screen reader is told: the QListView's own, row numbers read from its layout. That
// layout is gone while rows are being removed, and the QListView tells row -1 then.
void WordList::tell(QAccessible::Event change, const QModelIndex& index)
{
    QAccessibleEvent event(this, change);
    event.setChild(state() == CollapsingState && layoutCleared_ ? -1 : index.row());
    QAccessible::updateAccessibility(&event);
}

void WordList::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    if (!arithmetic()) return QListView::currentChanged(current, previous);
    QAbstractItemView::currentChanged(current, previous);
    if (QAccessible::isActive() && current.isValid()) tell(QAccessible::Focus, current);
}

void WordList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    if (!arithmetic()) return QListView::selectionChanged(selected, deselected);
    if (QAccessible::isActive()) {
        const QModelIndex added = selected.indexes().value(0), gone = deselected.indexes().value(0);
        if (added.isValid()) tell(QAccessible::SelectionAdd, added);
        if (gone.isValid()) tell(QAccessible::SelectionRemove, gone);
    }
    QAbstractItemView::selectionChanged(selected, deselected);
}

} // namespace editor
