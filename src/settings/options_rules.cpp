#include "settings/options_rules.h"

#include "settings/profile.h"

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
    const bool inRange = spin == Spin::Players ? (w > 0 && w < 5) : (w > -1 && w < 4);
    if (inRange) step.caption = QString::number(w);
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

std::vector<std::pair<QString, QString>> storedOptions(const core::Global& g,
                                                       const core::Options& einst)
{
    std::vector<std::pair<QString, QString>> out;
    out.emplace_back(QStringLiteral("Anzahl"), numberForm(g.AnzSpieler));
    out.emplace_back(QStringLiteral("Sound"), numberForm(einst.Sound));
    out.emplace_back(QStringLiteral("Anzeige"), numberForm(einst.Anzeige));
    out.emplace_back(QStringLiteral("Wiederholung"), numberForm(einst.wiederh[0] ? -1 : 0));
    out.emplace_back(QStringLiteral("Tips"), numberForm(g.AnzTips));
    for (int i = 0; i < core::kPlayers; ++i)
        out.emplace_back(QStringLiteral("Spieler%1").arg(i + 1), einst.Spieler_Name[i]);
    out.emplace_back(QStringLiteral("Datei"), g.WortDatei);
    out.emplace_back(QStringLiteral("Motiv"), numberForm(g.MotivNr));
    return out;
}

} // namespace settings
