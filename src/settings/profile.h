#pragma once
// The settings file "frostel.ini": sections in brackets, key=value lines, 8-bit text.
// Three operations with the behaviour the game has always relied on.
#include <QByteArray>
#include <QString>

namespace settings {

// Numbers as the file holds them: a blank before a number that is not negative, a minus
// sign and no blank before one that is; whole numbers without a decimal point.
QString numberForm(double value);

class Profile {
public:
    explicit Profile(QString path) : path_(std::move(path)) {}
    const QString& path() const { return path_; }

    // The value as a number, or the default when the key or the file is missing. Reads a
    // blank before the digits and a leading sign; stops at the first other character.
    int GetPrivateProfileInt(const QString& section, const QString& key, int def) const;
    // At most size - 1 characters of the value (one pair of double quotes around it taken
    // away), or of the default (its trailing blanks dropped) when the key or file is missing.
    QString GetPrivateProfileString(const QString& section, const QString& key, const QString& def,
                                    int size) const;
    // Adds or replaces the key, creating file and section as needed; every other line
    // stays as it was. The file is replaced whole or not at all. False on failure.
    bool WritePrivateProfileString(const QString& section, const QString& key,
                                   const QString& value);

    // The standard place: the per-user configuration folder, the same for every run.
    static QString defaultPath();

private:
    // The value of the key as stored, or a null string when absent.
    QString lookup(const QString& section, const QString& key) const;
    QString path_;
};

} // namespace settings
