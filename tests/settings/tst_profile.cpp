// The settings file against golden cases (a file before, the operations, the file after;
// also on a full disk), the number form, which stored names stand for the default ones, and
// the word files the options offer.
#include "../support/files.h"
#include "../support/trap_folder.h"
#include "settings/options_rules.h"
#include "settings/profile.h"
#include "settings/stored_settings.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using support::readAll;
using support::writeBytes;

class ProfileTest : public QObject {
    Q_OBJECT
private slots:
    void golden_data();
    void golden();
    void numbersNamesAndFiles();
};

void ProfileTest::golden_data()
{
    QTest::addColumn<QString>("name");
    const QStringList cases = QDir(GOLDEN_DIR).entryList({"*.ops"}, QDir::Files, QDir::Name);
    QVERIFY(cases.size() >= 10);
    for (const QString& ops : cases) QTest::newRow(qPrintable(ops.chopped(4))) << ops.chopped(4);
}

void ProfileTest::golden()
{
    QFETCH(QString, name);
    const QDir golden(GOLDEN_DIR);
    QTemporaryDir tmp;
    const QString path = tmp.filePath("config/frostel.ini");
    const QString in = golden.filePath(name + ".in"), out = golden.filePath(name + ".out");
    const QStringList ops =
        QString::fromUtf8(readAll(golden.filePath(name + ".ops"))).split('\n', Qt::SkipEmptyParts);
    // A first line "trap|full disk" or "trap|read-only" sets that trap on the file's folder.
    support::TrapFolder trap(tmp.filePath("config"),
                             ops.value(0).startsWith("trap|") ? ops.value(0).mid(5) : "");
    // "<megabytes>" stands for some megabytes of lines, made here rather than kept.
    static const QByteArray megabytes = [] {
        QByteArray lines;
        for (int i = 0; i < 200000; ++i) lines += "note" + QByteArray::number(i) + "=kept\r\n";
        return lines;
    }();
    const auto expanded = [&](const QString& file) {
        return readAll(file).replace("<megabytes>\r\n", megabytes);
    };
    if (QFile::exists(in)) {
        QVERIFY(QDir().mkpath(tmp.filePath("config")));
        QVERIFY(writeBytes(path, expanded(in)));
    }
    settings::Profile profile(path);
    // One operation a line: int|section|key|default|expected, str|section|key|default|size|
    // expected, write|section|key|value, or fail|section|key|value for a write that must
    // fail; "#" starts a comment.
    for (const QString& line : ops) {
        if (line.startsWith('#') || line.startsWith("trap|")) continue;
        QStringList f = line.split('|');
        for (QString& v : f) v.replace("<255 blanks>", QString(255, ' '));
        if (f[0] == "int") {
            QCOMPARE(profile.GetPrivateProfileInt(f[1], f[2], f[3].toInt()), f[4].toInt());
        } else if (f[0] == "str") {
            QCOMPARE(profile.GetPrivateProfileString(f[1], f[2], f[3], f[4].toInt()), f[5]);
        } else {
            QVERIFY(f[0] == "write" || f[0] == "fail");
            const auto write = [&] {
                return int(profile.WritePrivateProfileString(f[1], f[2], f[3]));
            };
            QCOMPARE(trap.run(write), int(f[0] == "write"));
        }
    }
    // No .out: the file must be as it was, or still missing.
    QCOMPARE(readAll(path), expanded(QFile::exists(out) ? out : in));
    // The file is replaced whole: nothing else is left in its folder.
    if (QFile::exists(path))
        QCOMPARE(QDir(tmp.filePath("config")).entryList(QDir::Files | QDir::Hidden),
                 QStringList{"frostel.ini"});
}

void ProfileTest::numbersNamesAndFiles()
{
    // Numbers are written as the game prints them: a blank where a minus sign would go.
    QCOMPARE(settings::numberForm(0), " 0");
    QCOMPARE(settings::numberForm(-345), "-345");
    QCOMPARE(settings::numberForm(1.5), " 1.5");
    // A stored name whose ninth character is 1 to 4 stands for the default name.
    QTemporaryDir names;
    settings::Profile profile(names.filePath("frostel.ini"));
    const char* stored[] = {"Spieler 1", "Bartholo4mew", "Spieler 5", "Spieler1"};
    for (int i = 0; i < 4; ++i)
        profile.WritePrivateProfileString("Einstellungen", QString("Spieler%1").arg(i + 1),
                                          stored[i]);
    core::Options einst;
    settings::readNames(profile, einst);
    QCOMPARE(QStringList(einst.Spieler_Name.begin(), einst.Spieler_Name.end()),
             (QStringList{"Marta", "Helene", "Spieler 5", "Spieler1"}));
    // The vocabulary list: the folder's "*.dat" files, sorted as they are matched: by name,
    // without regard to case.
    QTemporaryDir tmp;
    for (const char* name : {"UPPER.DAT", "frostel.dat", "b.Dat", "notes.txt"})
        QVERIFY(writeBytes(tmp.filePath(name), "x"));
    const QString cwd = QDir::currentPath();
    QVERIFY(QDir::setCurrent(tmp.path()));
    const QStringList rows = settings::wordFileRows();
    QDir::setCurrent(cwd);
    QCOMPARE(rows, (QStringList{"b.Dat", "frostel.dat", "UPPER.DAT"}));
}

QTEST_GUILESS_MAIN(ProfileTest)
#include "tst_profile.moc"
