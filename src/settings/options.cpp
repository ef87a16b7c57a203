#include "settings/options.h"

#include <QDir>

namespace settings {

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

bool isDefaultName(const QString& name)
{
    return name.size() >= 9 && name[8] >= u'1' && name[8] <= u'4';
}

} // namespace settings
