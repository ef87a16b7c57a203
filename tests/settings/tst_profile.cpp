// The settings file against golden cases (a file before, the operations, the file after),
// a large file, failed writes, the number form, which stored names stand for the default
// ones, and the word files the options offer.
#include "../support/files.h"
#include "../support/trap_folder.h"
#include "settings/options.h"
#include "settings/profile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <optional>

using support::readAll;
using support::writeBytes;

class ProfileTest : public QObject {
    Q_OBJECT
private slots:
    void golden_data();
    void golden();
    void largeFile();
    void failedWrite_data();
    void failedWrite();
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
    if (QFile::exists(in)) {
        QVERIFY(QDir().mkpath(tmp.filePath("config")));
        QVERIFY(QFile::copy(in, path));
    }
    settings::Profile profile(path);
    // One operation a line: int|section|key|default|expected, str|section|key|default|size|
    // expected, or write|section|key|value; "#" starts a comment.
    for (const QString& line : QString::fromUtf8(readAll(golden.filePath(name + ".ops")))
                                   .split('\n', Qt::SkipEmptyParts)) {
        if (line.startsWith('#')) continue;
        QStringList f = line.split('|');
        for (QString& v : f) v.replace("<255 blanks>", QString(255, ' '));
        if (f[0] == "int") {
            QCOMPARE(profile.GetPrivateProfileInt(f[1], f[2], f[3].toInt()), f[4].toInt());
        } else if (f[0] == "str") {
            QCOMPARE(profile.GetPrivateProfileString(f[1], f[2], f[3], f[4].toInt()), f[5]);
        } else {
            QCOMPARE(f[0], QString("write"));
            QVERIFY(profile.WritePrivateProfileString(f[1], f[2], f[3]));
        }
    }
    // No .out: the file must be as it was, or still missing.
    QCOMPARE(readAll(path), readAll(QFile::exists(out) ? out : in));
    // The file is replaced whole: nothing else is left in its folder.
    if (QFile::exists(path))
        QCOMPARE(QDir(tmp.filePath("config")).entryList(QDir::Files | QDir::Hidden),
                 QStringList{"frostel.ini"});
}

void ProfileTest::largeFile()
{
    // Megabytes of lines of its own: a write keeps every one, and the keys after them too.
    QByteArray notes;
    for (int i = 0; i < 150000; ++i) notes += "note" + QByteArray::number(i) + "=kept as it is\r\n";
    QTemporaryDir tmp;
    const QString path = tmp.filePath("frostel.ini");
    QVERIFY(writeBytes(path, "[Window]\r\nTop= 1\r\n[Notes]\r\n" + notes + "[Einstellungen]\r\n"));
    settings::Profile profile(path);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(profile.WritePrivateProfileString("Einstellungen", "Tips", " 2"));
    QVERIFY(profile.WritePrivateProfileString("Window", "Status", " 0"));
    qInfo("two writes to %lld bytes: %lld ms", notes.size(), clock.elapsed());
    QCOMPARE(readAll(path), "[Window]\r\nTop= 1\r\nStatus= 0\r\n[Notes]\r\n" + notes +
                                "[Einstellungen]\r\nTips= 2\r\n");
}

void ProfileTest::failedWrite_data()
{
    QTest::addColumn<QString>("blocker");
    QTest::newRow("a file where the folder should be") << "config";
    QTest::newRow("a folder where the file should be") << "config/frostel.ini";
    QTest::newRow("a full disk keeps the old file") << "full";
    QTest::newRow("a read-only folder takes no new file") << "readonly";
}

void ProfileTest::failedWrite()
{
    QFETCH(QString, blocker);
    QTemporaryDir tmp;
    const QString path = tmp.filePath("config/frostel.ini");
    std::optional<support::TrapFolder> trap;
    if (blocker == "full") trap.emplace(tmp.filePath("config"), support::TrapFolder::FullDisk);
    if (blocker == "readonly") trap.emplace(tmp.filePath("config"), support::TrapFolder::ReadOnly);
    if (blocker == "config") QVERIFY(writeBytes(tmp.filePath(blocker), "x"));
    if (blocker == "config/frostel.ini") QVERIFY(QDir().mkpath(path));
    const QByteArray before("[Window]\r\nTop= 200\r\n");
    if (blocker == "full") QVERIFY(writeBytes(path, before));
    settings::Profile profile(path);
    const auto write = [&] {
        return int(profile.WritePrivateProfileString("Window", "Top", " 0"));
    };
    QCOMPARE(trap ? trap->run(write) : write(), 0);
    QCOMPARE(readAll(path), blocker == "full" ? before : QByteArray("<unreadable>"));
}

void ProfileTest::numbersNamesAndFiles()
{
    // Numbers are written as the game prints them: a blank where a minus sign would go.
    QCOMPARE(settings::numberForm(0), " 0");
    QCOMPARE(settings::numberForm(-345), "-345");
    QCOMPARE(settings::numberForm(1.5), " 1.5");
    // A stored name whose ninth character is 1 to 4 stands for the default name.
    for (const char* name : {"Spieler 1", "Bartholo4mew"})
        QVERIFY2(settings::isDefaultName(name), name);
    for (const char* name : {"Spieler 0", "Spieler 5", "Spieler1"})
        QVERIFY2(!settings::isDefaultName(name), name);
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
