// The settings file against golden cases (a file before, the operations, the file after),
// the number form, and the choices the options make at load.
#include "settings/options.h"
#include "settings/profile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray bytesOf(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class ProfileTest : public QObject {
    Q_OBJECT
private slots:
    void golden_data();
    void golden();
    void numberForm_data();
    void numberForm();
    void unwritableFolder_data();
    void unwritableFolder();
    void defaultNames_data();
    void defaultNames();
    void wordFileChoice_data();
    void wordFileChoice();
};

void ProfileTest::golden_data()
{
    QTest::addColumn<QString>("name");
    const QDir dir(GOLDEN_DIR);
    const QStringList cases = dir.entryList({"*.ops"}, QDir::Files, QDir::Name);
    QVERIFY(cases.size() >= 10);
    for (const QString& ops : cases) {
        const QString name = ops.chopped(4);
        QTest::newRow(qPrintable(name)) << name;
    }
}

void ProfileTest::golden()
{
    QFETCH(QString, name);
    const QDir golden(GOLDEN_DIR);
    QTemporaryDir tmp;
    const QString path = tmp.filePath("config/frostel.ini");
    if (golden.exists(name + ".in")) {
        QVERIFY(QDir().mkpath(tmp.filePath("config")));
        QVERIFY(QFile::copy(golden.filePath(name + ".in"), path));
    }
    settings::Profile profile(path);
    const QStringList lines =
        QString::fromUtf8(bytesOf(golden.filePath(name + ".ops"))).split('\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
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
    if (golden.exists(name + ".out"))
        QCOMPARE(bytesOf(path), bytesOf(golden.filePath(name + ".out")));
    else if (golden.exists(name + ".in"))
        QCOMPARE(bytesOf(path), bytesOf(golden.filePath(name + ".in")));
    else QVERIFY(!QFile::exists(path));
    // Nothing but the file itself is left in its folder.
    if (QFile::exists(path))
        QCOMPARE(QDir(tmp.filePath("config")).entryList(QDir::Files | QDir::Hidden),
                 QStringList{"frostel.ini"});
}

void ProfileTest::numberForm_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("small") << 4.0 << " 4";
    QTest::newRow("zero") << 0.0 << " 0";
    QTest::newRow("negative") << -1.0 << "-1";
    QTest::newRow("twips") << 9600.0 << " 9600";
    QTest::newRow("negative place") << -345.0 << "-345";
    QTest::newRow("a fraction keeps its point") << 1.5 << " 1.5";
}

void ProfileTest::numberForm()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(settings::numberForm(value), text);
}

void ProfileTest::unwritableFolder_data()
{
    QTest::addColumn<QString>("blocker");
    QTest::newRow("a file where the folder should be") << "config";
    QTest::newRow("a folder where the file should be") << "config/frostel.ini";
}

void ProfileTest::unwritableFolder()
{
    QFETCH(QString, blocker);
    QTemporaryDir tmp;
    if (blocker == "config") {
        QFile f(tmp.filePath("config"));
        QVERIFY(f.open(QIODevice::WriteOnly));
    } else {
        QVERIFY(QDir().mkpath(tmp.filePath(blocker)));
    }
    settings::Profile profile(tmp.filePath("config/frostel.ini"));
    QVERIFY(!profile.WritePrivateProfileString("Window", "Status", " 0"));
    QCOMPARE(profile.GetPrivateProfileInt("Window", "Status", 5), 5);
}

void ProfileTest::defaultNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isDefault");
    QTest::newRow("the default itself") << "Spieler 3" << true;
    QTest::newRow("any ninth character 1 to 4") << "Alexandr2" << true;
    QTest::newRow("ninth character 5") << "Spieler 5" << false;
    QTest::newRow("eight characters never") << "Spieler1" << false;
    QTest::newRow("longer, ninth is 4") << "Bartholo4mew" << true;
    QTest::newRow("empty") << "" << false;
}

void ProfileTest::defaultNames()
{
    QFETCH(QString, name);
    QFETCH(bool, isDefault);
    QCOMPARE(settings::isDefaultName(name), isDefault);
}

void ProfileTest::wordFileChoice_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("chosen");
    const QStringList rows{"frostel.dat", "nature.dat", "zoo.dat"};
    QTest::newRow("stored and listed") << "nature.dat" << rows << "nature.dat";
    QTest::newRow("nothing stored: the first row") << "" << rows << "frostel.dat";
    QTest::newRow("gone from the folder: the first row") << "old.dat" << rows << "frostel.dat";
    QTest::newRow("case counts") << "ZOO.dat" << rows << "frostel.dat";
    QTest::newRow("no rows: the stored name stays") << "old.dat" << QStringList() << "old.dat";
}

void ProfileTest::wordFileChoice()
{
    QFETCH(QString, stored);
    QFETCH(QStringList, rows);
    QFETCH(QString, chosen);
    QCOMPARE(settings::chooseWordFile(stored, rows), chosen);
}

QTEST_GUILESS_MAIN(ProfileTest)
#include "tst_profile.moc"
