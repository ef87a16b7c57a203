#include "vocabulary/editor/editor_rules.h"

namespace vocabulary::editor {

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

// Decomposed and folded, with the accents either kept or dropped.
QString sortKey(QStringView word, bool keepAccents)
{
    const QString decomposed = word.toString().normalized(QString::NormalizationForm_D);
    QString key;
    key.reserve(decomposed.size());
    for (QChar c : decomposed)
        if (keepAccents || c.category() != QChar::Mark_NonSpacing) key += c.toCaseFolded();
    return key;
}

} // namespace

int compareWords(QStringView a, QStringView b)
{
    if (int c = sortKey(a, false).compare(sortKey(b, false))) return c;
    if (int c = sortKey(a, true).compare(sortKey(b, true))) return c;
    for (qsizetype i = 0; i < qMin(a.size(), b.size()); ++i)
        if (a[i] != b[i] && a[i].toCaseFolded() == b[i].toCaseFolded())
            return a[i].isLower() ? -1 : 1;
    // Whatever is left still needs one fixed order, or the list would not be stable.
    return a.compare(b);
}

int selectionOnFocus(int start, int textLength)
{
    return qMax(0, textLength - qBound(0, start, textLength));
}

QString loadFailureText(const QString& fileName, const Failure& failure)
{
    if (failure.number == kFileNotFound)
        return QStringLiteral("Datei ") + fileName + QStringLiteral(" nicht gefunden!");
    return failure.text;
}

QString saveFailureText(const QString& fileName, const Failure& failure)
{
    // Chr(13) breaks the line in the box; the writer left the old file as it was.
    return QStringLiteral("Datei ") + fileName + QStringLiteral(" nicht gespeichert!\r") +
           failure.text;
}

QString errorTitle() { return QStringLiteral("Fehler!"); }

} // namespace vocabulary::editor
