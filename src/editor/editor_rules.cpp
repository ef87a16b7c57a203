#include "editor/editor_rules.h"

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
