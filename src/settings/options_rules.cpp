#include "settings/options_rules.h"

#include <QDir>
#include <algorithm>
#include <limits>

namespace settings {

int captionNumber(const QString& caption)
{
    long long value = 0;
    bool negative = false, signSeen = false, digitSeen = false;
    for (const QChar c : caption) {
        if (c == u' ' || c == u'\t') continue;
        if (!signSeen && !digitSeen && (c == u'-' || c == u'+')) {
            negative = c == u'-';
            signSeen = true;
            continue;
        }
        if (c < u'0' || c > u'9') break;
        digitSeen = true;
        // A caption longer than any count is no count; keep the number from running away.
        value =
            std::min<long long>(value * 10 + (c.unicode() - u'0'), std::numeric_limits<int>::max());
    }
    return int(negative ? -value : value);
}

SpinRange spinRange(Spin spin) { return spin == Spin::Players ? SpinRange{1, 4} : SpinRange{0, 3}; }

SpinStep spinStep(Spin spin, const QString& caption, double x, double y)
{
    SpinStep step;
    int w = captionNumber(caption);
    if (x + y < 300) {
        step.face = 1;
        ++w;
    } else {
        step.face = 2;
        --w;
    }
    const SpinRange range = spinRange(spin);
    if (w >= range.minimum && w <= range.maximum) step.caption = QString::number(w);
    return step;
}

bool restartsGame(OptionChange change)
{
    switch (change) {
    case OptionChange::Players:
    case OptionChange::Tips:
    case OptionChange::Name:
    case OptionChange::Repeat:
    case OptionChange::Vocabulary: return true;
    case OptionChange::Motif:
    case OptionChange::Sound:
    case OptionChange::Anzeige:
    case OptionChange::EditorClosed: return false;
    }
    return false;
}

QStringList wordFileRows()
{
    // "*.dat" by hand: a name filter would load the regular-expression engine at start-up.
    // Sorted without regard to case, as the list is matched.
    QStringList rows;
    const auto sort = QDir::Name | QDir::IgnoreCase;
    for (const QString& name : QDir::current().entryList(QDir::Files | QDir::Readable, sort))
        if (name.endsWith(QStringLiteral(".dat"), Qt::CaseInsensitive)) rows << name;
    return rows;
}

QString chooseWordFile(const QString& stored, const QStringList& rows)
{
    if (rows.isEmpty()) return stored;
    qsizetype index = 0;
    for (qsizetype i = 0; i < rows.size(); ++i)
        if (rows[i] == stored) index = i; // exact, case included
    return rows[index];
}

} // namespace settings
