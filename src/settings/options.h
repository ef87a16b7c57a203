#pragma once
// What the options window decides when it loads, kept apart from the window so the main
// window's start-up and the tests can use it.
#include <QString>
#include <QStringList>

namespace settings {

// The vocabulary files of the working folder: bare names of "*.dat", sorted by name.
QStringList wordFileRows();
// The row that names the stored file, else the first row; the stored name when there is
// no row at all.
QString chooseWordFile(const QString& stored, const QStringList& rows);
// A stored player name whose ninth character is 1 to 4 stands for the default name.
bool isDefaultName(const QString& name);

} // namespace settings
