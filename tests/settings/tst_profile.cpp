// The settings file against golden cases: a file before, operations and what they return, the
// file after, failed writes too; the number form, default names, the word files offered.
#include "../support/files.h"
#include "../support/trap_folder.h"
#include "settings/options_rules.h"
#include "settings/profile.h"
#include "settings/stored_settings.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using support::readAll;

class ProfileTest : public QObject {
    Q_OBJECT
private slots:
    void golden_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList cases = QDir(GOLDEN_DIR).entryList({"*.ops"}, QDir::Files, QDir::Name);
        QVERIFY(cases.size() > 10);
        for (const QString& ops : cases)
            QTest::newRow(qPrintable(ops.chopped(4))) << ops.chopped(4);
    }
    void golden()
    {
        QFETCH(QString, name);
        const QString base = QStringLiteral(GOLDEN_DIR "/") + name;
        QTemporaryDir tmp;
        const QString folder = tmp.filePath("config"), path = folder + "/frostel.ini";
        // "<megabytes>" stands for some megabytes of lines, made here rather than kept.
        static QByteArray megabytes;
        for (int i = 0; megabytes.size() < (3 << 20); ++i)
            megabytes += "note" + QByteArray::number(i) + "=kept\r\n";
        const auto expanded = [&](const QString& file) {
            return readAll(file).replace("<megabytes>\r\n", megabytes);
        };
        if (QFile::exists(base + ".in"))
            QVERIFY(QDir().mkpath(folder) && support::writeBytes(path, expanded(base + ".in")));
        settings::Profile profile(path);
        QString trap;
        // One operation a line: int|section|key|default|expected, str|section|key|default|size|
        // expected, write|section|key|value, fail|section|key|value for a write that must fail,
        // trap|what for the writes after it (see trap_folder.h); number|value|text for the number
        // form, name|stored name|default or own, files|files in the folder|the word files offered.
        // "#" starts a comment.
        for (const QString& line : QString::fromUtf8(readAll(base + ".ops")).split('\n')) {
            QStringList f = line.split('|');
            for (QString& v : f) v.replace("<255 blanks>", QString(255, ' '));
            if (f[0] == "trap") trap = f[1];
            else if (f[0] == "int")
                QCOMPARE(profile.GetPrivateProfileInt(f[1], f[2], f[3].toInt()), f[4].toInt());
            else if (f[0] == "str")
                QCOMPARE(profile.GetPrivateProfileString(f[1], f[2], f[3], f[4].toInt()), f[5]);
            else if (f[0] == "number") QCOMPARE(settings::numberForm(f[1].toDouble()), f[2]);
            else if (f[0] == "name") {
                // Read back as a start-up reads it: a default name leaves the game's own.
                settings::Profile names(tmp.filePath("names.ini"));
                names.WritePrivateProfileString("Einstellungen", "Spieler1", f[1]);
                core::Options einst;
                settings::readNames(names, einst);
                QCOMPARE(einst.Spieler_Name[0],
                         f[2] == "default" ? core::Options{}.Spieler_Name[0] : f[1]);
            } else if (f[0] == "files") {
                for (const QString& file : f[1].split(' '))
                    support::writeBytes(tmp.filePath(file), "x");
                const QString cwd = QDir::currentPath();
                QDir::setCurrent(tmp.path());
                const QStringList rows = settings::wordFileRows();
                QDir::setCurrent(cwd);
                QCOMPARE(rows.join(' '), f[2]);
            } else if (f[0] == "write" || f[0] == "fail") {
                const auto write = [&] {
                    return profile.WritePrivateProfileString(f[1], f[2], f[3]);
                };
                QCOMPARE(support::inTrap(folder, trap, write), int(f[0] == "write"));
            } else QVERIFY2(line.isEmpty() || line.startsWith('#'), qPrintable(line));
        }
        // No .out: the file must be as it was, or still missing; and nothing is left beside it.
        QCOMPARE(readAll(path), expanded(base + (QFile::exists(base + ".out") ? ".out" : ".in")));
        if (QFile::exists(path))
            QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden),
                     QStringList{"frostel.ini"});
    }
};

QTEST_GUILESS_MAIN(ProfileTest)
#include "tst_profile.moc"
