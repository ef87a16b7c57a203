#pragma once
// Whether a player sees where the keyboard focus stands: each control measured from the window
// as drawn, focused and not, by the contrast WCAG asks of a focus mark.
#include <QApplication>
#include <QTest>
#include <QTextBrowser>
#include <cmath>
#include <functional>
#include <tuple>

namespace support {

// How far a colour stands out from another, as WCAG measures it: 1 to 21.
inline double contrast(QRgb a, QRgb b)
{
    auto luminance = [](QRgb c) {
        auto lin = [](int v) {
            const double s = v / 255.0;
            return s <= 0.04045 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * lin(qRed(c)) + 0.7152 * lin(qGreen(c)) + 0.0722 * lin(qBlue(c));
    };
    const double x = luminance(a), y = luminance(b);
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

// The sides of `area` (in the window, logical pixels) along which the focus shows no line: a
// side passes where each pixel along it has, within 3 pixels of the edge, a pixel that
// contrasts at least 3:1 with itself in the unfocused window.
inline QString unmarkedSides(const QImage& focused, const QImage& unfocused, const QRect& area)
{
    const qreal dpr = focused.devicePixelRatio();
    const QRect r(area.topLeft() * dpr, area.size() * dpr);
    const int band = int(3 * dpr);
    auto marked = [&](int x, int y, int dx, int dy) {
        for (int i = -band; i <= band; ++i) {
            const QPoint p(x + i * dx, y + i * dy);
            if (focused.valid(p) && contrast(focused.pixel(p), unfocused.pixel(p)) >= 3)
                return true;
        }
        return false;
    };
    QString sides;
    for (const auto& [side, at, along] : {std::tuple{'T', r.top(), true},
                                          {'B', r.bottom(), true},
                                          {'L', r.left(), false},
                                          {'R', r.right(), false}}) {
        const int from = along ? r.left() : r.top(), to = along ? r.right() : r.bottom();
        for (int i = from; i <= to && !sides.contains(side); ++i)
            if (!(along ? marked(i, at, 0, 1) : marked(at, i, 1, 0))) sides += side;
    }
    return sides;
}

// Every control of the window that Tab reaches, focused in turn and measured against itself
// unfocused; the help page's links too. Returns the controls whose focus does not show.
inline QStringList unseenFoci(QWidget* window)
{
    QApplication::setActiveWindow(window); // where a keyboard player works
    if (!QTest::qWaitForWindowActive(window)) return {"not active"};
    QStringList unseen;
    auto measure = [&](const QString& name, const QRect& area, const std::function<void()>& off) {
        const QImage on = window->grab().toImage();
        off();
        if (const QString sides = unmarkedSides(on, window->grab().toImage(), area);
            !sides.isEmpty())
            unseen << name + ' ' + sides;
    };
    for (QWidget* c : window->findChildren<QWidget*>()) {
        if (!(c->focusPolicy() & Qt::TabFocus) || !c->isVisibleTo(window) || !c->isEnabled())
            continue;
        const QString name =
            c->objectName().isEmpty() ? c->metaObject()->className() : c->objectName();
        c->setFocus(Qt::TabFocusReason);
        measure(name, QRect(c->mapTo(window, QPoint()), c->size()), [c] { c->clearFocus(); });
        auto* page = qobject_cast<QTextBrowser*>(c);
        if (!page) continue;
        page->setFocus(Qt::TabFocusReason);
        QTest::keyClick(page, Qt::Key_Tab); // the first link
        QTextCursor link = page->textCursor(), end = link;
        link.setPosition(link.selectionStart());
        end.setPosition(end.selectionEnd());
        const QRect area = page->cursorRect(link).united(page->cursorRect(end));

        measure("link", area.translated(page->viewport()->mapTo(window, QPoint())),
                [page] { page->setTextCursor(QTextCursor(page->document())); });
    }
    return unseen;
}

} // namespace support
