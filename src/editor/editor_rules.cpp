#include "editor/editor_rules.h"

#include <algorithm>
#include <vector>

namespace editor {

bool keyPasses(QChar c)
{
    // Delete sends code 127 here, where the old keyboard sent no character at all.
    if (c.unicode() <= 31 || c.unicode() == 127) return true;
    // Tested in upper case and never converted: "ß" stays itself and lies above "Z".
    const char16_t u = c.toUpper().unicode();
    return (u >= u'A' && u <= u'Z') || u == u'Ä' || u == u'Ö' || u == u'Ü';
}

QString passingKeys(QStringView typed)
{
    QString out;
    for (QChar c : typed)
        if (keyPasses(c)) out += c;
    return out;
}

namespace {

// A word's two keys, one after the other: decomposed and case-folded, first without its
// accents, then with them. Returns where the first ends.
qsizetype appendKeys(const QString& word, QString& keys)
{
    const QString decomposed = word.normalized(QString::NormalizationForm_D);
    for (QChar c : decomposed)
        if (c.category() != QChar::Mark_NonSpacing) keys += c.toCaseFolded();
    const qsizetype base = keys.size();
    for (QChar c : decomposed) keys += c.toCaseFolded();
    return base;
}

// Two words by their keys: the base letters first, then the accents.
int compareKeys(QStringView baseA, QStringView accentedA, QStringView baseB, QStringView accentedB)
{
    if (int c = baseA.compare(baseB)) return c;
    return accentedA.compare(accentedB);
}

// Words whose keys are equal: small before capital, then one fixed order for the rest, or
// the list would not be stable.
int compareCase(QStringView a, QStringView b)
{
    for (qsizetype i = 0; i < qMin(a.size(), b.size()); ++i)
        if (a[i] != b[i] && a[i].toCaseFolded() == b[i].toCaseFolded())
            return a[i].isLower() ? -1 : 1;
    return a.compare(b);
}

} // namespace

int compareWords(QStringView a, QStringView b)
{
    QString ka, kb;
    const qsizetype ba = appendKeys(a.toString(), ka), bb = appendKeys(b.toString(), kb);
    if (int c = compareKeys(QStringView(ka).left(ba), QStringView(ka).mid(ba),
                            QStringView(kb).left(bb), QStringView(kb).mid(bb)))
        return c;
    return compareCase(a, b);
}

void sortWords(QStringList& words)
{
    // The keys of every word once, side by side in one buffer: the sort then compares plain
    // runs of text, and no word is decomposed twice.
    struct Entry {
        qsizetype word, at, base, end;
    };
    QString keys;
    qsizetype chars = 0;
    for (const QString& w : words) chars += w.size();
    keys.reserve(2 * chars);
    std::vector<Entry> entries;
    entries.reserve(size_t(words.size()));
    for (qsizetype i = 0; i < words.size(); ++i) {
        const qsizetype at = keys.size(), base = appendKeys(words[i], keys);
        entries.push_back({i, at, base, keys.size()});
    }
    const QStringView all(keys);
    std::stable_sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
        if (int c =
                compareKeys(all.sliced(a.at, a.base - a.at), all.sliced(a.base, a.end - a.base),
                            all.sliced(b.at, b.base - b.at), all.sliced(b.base, b.end - b.base)))
            return c < 0;
        return compareCase(words.at(a.word), words.at(b.word)) < 0;
    });
    QStringList sorted;
    sorted.reserve(words.size());
    for (const Entry& e : entries) sorted.append(std::move(words[e.word]));
    words = std::move(sorted);
}

int selectionOnFocus(int start, int textLength)
{
    return qMax(0, textLength - qBound(0, start, textLength));
}

QString loadFailureText(const QString& fileName, const vocabulary::Failure& failure)
{
    if (failure.number == vocabulary::kFileNotFound)
        return QStringLiteral("Datei ") + fileName + QStringLiteral(" nicht gefunden!");
    return vocabulary::failureText(failure);
}

QString saveFailureText(const QString& fileName, const vocabulary::Failure& failure)
{
    // Chr(13) breaks the line in the box; the writer left the old file as it was.
    return QStringLiteral("Datei ") + fileName + QStringLiteral(" nicht gespeichert!\r") +
           vocabulary::failureText(failure);
}

QString errorTitle() { return QStringLiteral("Fehler!"); }

} // namespace editor
