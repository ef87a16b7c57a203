#include "settings/profile.h"

#include "vocabulary/codepage.h"
#include "vocabulary/whole_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <cmath>
#include <limits>

namespace settings {
namespace {

// The file's lines without their ends: CR LF, LF and CR alone each end a line. Every other
// byte stays, control bytes too, so that a rewrite gives back what it does not touch.
QList<QByteArray> readLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    const QByteArray bytes = file.readAll(); // whole, whatever its size: nothing may be cut
    QList<QByteArray> lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r' && bytes[i] != '\n') continue;
        lines << bytes.mid(start, i - start);
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
        start = i + 1;
    }
    if (start < bytes.size()) lines << bytes.mid(start);
    return lines;
}

// "[name]" with blanks allowed around: the section's name, else a null string.
QString sectionName(const QByteArray& line)
{
    const QByteArray t = line.trimmed();
    if (t.size() < 2 || t.front() != '[') return {};
    const qsizetype close = t.indexOf(']');
    if (close < 0) return {};
    return vocabulary::decodeCp1252(t.mid(1, close - 1)).trimmed();
}

// A value as read: up to a NUL (it ends a C string), without the blanks around it, and
// without one pair of double quotes around it.
QString valueText(QByteArray bytes)
{
    if (const qsizetype nul = bytes.indexOf('\0'); nul >= 0) bytes.truncate(nul);
    const QString v = vocabulary::decodeCp1252(bytes).trimmed();
    return v.size() >= 2 && v.startsWith('"') && v.endsWith('"') ? v.mid(1, v.size() - 2) : v;
}

bool isKeyLine(const QByteArray& line, const QString& key, QString* value = nullptr)
{
    const qsizetype eq = line.indexOf('=');
    if (eq < 0) return false;
    if (vocabulary::decodeCp1252(line.left(eq)).trimmed().compare(key, Qt::CaseInsensitive) != 0)
        return false;
    if (value) *value = valueText(line.mid(eq + 1));
    return true;
}

} // namespace

QString numberForm(double value)
{
    QString digits;
    if (std::isfinite(value) && value == std::trunc(value) && std::fabs(value) < 1e15)
        digits = QString::number(static_cast<long long>(std::fabs(value)));
    else digits = QString::number(std::fabs(value), 'g', 7);
    return (value < 0 ? QStringLiteral("-") : QStringLiteral(" ")) + digits;
}

QString Profile::lookup(const QString& section, const QString& key) const
{
    bool inSection = false;
    bool seenSection = false;
    for (const QByteArray& line : readLines(path_)) {
        const QString name = sectionName(line);
        if (!name.isNull()) {
            // Only the first section of a name counts, as only the first key does.
            if (seenSection) return {};
            inSection = name.compare(section, Qt::CaseInsensitive) == 0;
            seenSection = inSection;
            continue;
        }
        QString value;
        if (inSection && isKeyLine(line, key, &value)) return value.isNull() ? QString("") : value;
    }
    return {};
}

int Profile::GetPrivateProfileInt(const QString& section, const QString& key, int def) const
{
    const QString v = lookup(section, key);
    if (v.isNull()) return def;
    qsizetype i = 0;
    while (i < v.size() && (v[i] == ' ' || v[i] == '\t')) ++i;
    bool negative = false;
    if (i < v.size() && (v[i] == '-' || v[i] == '+')) negative = v[i++] == '-';
    long long n = 0;
    for (; i < v.size() && v[i].isDigit() && v[i].unicode() < 128; ++i) {
        n = n * 10 + (v[i].unicode() - '0');
        if (n > std::numeric_limits<int>::max()) n = std::numeric_limits<int>::max();
    }
    return int(negative ? -n : n);
}

QString Profile::GetPrivateProfileString(const QString& section, const QString& key,
                                         const QString& def, int size) const
{
    QString v = lookup(section, key);
    if (v.isNull()) {
        v = def;
        while (v.endsWith(' ')) v.chop(1);
    }
    return v.left(qMax(0, size - 1));
}

bool Profile::WritePrivateProfileString(const QString& section, const QString& key,
                                        const QString& value)
{
    QList<QByteArray> lines = readLines(path_);
    const QByteArray entry = vocabulary::encodeCp1252(key) + '=' + vocabulary::encodeCp1252(value);
    qsizetype sectionAt = -1, insertAt = -1;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString name = sectionName(lines[i]);
        if (!name.isNull()) {
            if (sectionAt >= 0) break; // past the end of our section
            if (name.compare(section, Qt::CaseInsensitive) == 0) sectionAt = insertAt = i;
            continue;
        }
        if (sectionAt < 0) continue;
        if (isKeyLine(lines[i], key)) {
            lines[i] = entry;
            insertAt = -2;
            break;
        }
        if (!lines[i].trimmed().isEmpty()) insertAt = i; // after the section's last line
    }
    if (sectionAt < 0) {
        if (!lines.isEmpty() && !lines.last().trimmed().isEmpty()) lines << QByteArray();
        lines << '[' + vocabulary::encodeCp1252(section) + ']' << entry;
    } else if (insertAt != -2) {
        lines.insert(insertAt + 1, entry);
    }
    QByteArray bytes = lines.join("\r\n");
    bytes += "\r\n";

    // A failed write shows no message: the game goes on with its live values.
    const auto failed = [this](const QString& why) {
        qWarning("%s not saved: %s", qPrintable(path_), qPrintable(why));
        return false;
    };
    if (!QDir().mkpath(QFileInfo(path_).absolutePath())) return failed("no folder");
    const auto failure = vocabulary::writeWhole(path_, bytes);
    return !failure || failed(failure->text);
}

QString Profile::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/frostel.ini");
}

} // namespace settings
