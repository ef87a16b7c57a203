// The window definitions of the main, options, editor and about windows: every control with
// its design values, the tab order, the default and cancel buttons, and the twips helper.
#include "assets/editor_window.h"
#include "assets/info_window.h"
#include "assets/options_window.h"
#include "assets/twips.h"
#include "mainwindow/main_window.h"

#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <map>
#include <memory>

namespace {

// One row a control. Tab -1: no place in the tab order. Props: "key=value;..." compared with
// the property of that name, plus the checks "hidden", "bold=false", "ground=#rrggbb" (the
// palette colour in every colour group) and "pixmap=WxH".
struct Control {
    const char* window;
    QByteArray name;
    const char* kind;
    int left, top, width, height, tab;
    const char* text; // nullptr: shows no text
    double points;
    QByteArray props;
};

const char* const kLabel =
    "autoFillBackground=true;ground=#c0c0c0;frameShape=NoFrame;alignment=AlignLeading|AlignTop";
const char* const kZahl = "ground=#ffffff;autoFillBackground=true;frameShape=WinPanel;"
                          "frameShadow=Sunken;indent=0;alignment=AlignHCenter|AlignTop";
const char* const kName = "ground=#ffffff;autoFillBackground=false;maxLength=32767";
const char* const kSpin = "hidden;pixmap=20x20;scaledContents=false;focusPolicy=NoFocus";

// clang-format off
const Control kControls[] = {
    {"Einst", "Spieler_Name_0", "QLineEdit", 390, 1080, 1695, 285, 0, "Marta", 8.25, kName},
    {"Einst", "Spieler_Name_1", "QLineEdit", 390, 1560, 1695, 285, 1, "Helene", 8.25, kName},
    {"Einst", "Spieler_Name_2", "QLineEdit", 390, 2040, 1695, 285, 2, "Matthis", 8.25, kName},
    {"Einst", "Spieler_Name_3", "QLineEdit", 390, 2520, 1695, 285, 3, "Svenja", 8.25, kName},
    {"Einst", "wiederh_0", "QRadioButton", 2865, 1080, 2070, 270, 4, "&all words", 8.25, "checked=true;autoExclusive=true"},
    {"Einst", "wiederh_1", "QRadioButton", 2865, 1440, 2145, 285, 5, "&words not guessed", 8.25, "checked=false;autoExclusive=true"},
    {"Einst", "Anzeige", "QCheckBox", 2880, 2160, 2175, 255, 6, "s&how solution", 8.25, "checked=true"},
    {"Einst", "Sound", "QCheckBox", 2880, 2640, 2220, 330, 7, "&soundeffects", 8.25, "checked=true"},
    {"Einst", "OK", "QPushButton", 3840, 4200, 1215, 615, 8, "&OK", 8.25, ""},
    {"Einst", "Label_1", "QLabel", 2760, 240, 615, 255, 9, "&Tips:", 8.25, kLabel},
    {"Einst", "Zahl_0", "QLabel", 1440, 215, 375, 270, 10, "4", 9.75, kZahl},
    {"Einst", "Label_0", "QLabel", 240, 240, 1095, 255, 11, "&Players:", 8.25, kLabel},
    {"Einst", "Zahl_1", "QLabel", 3480, 210, 375, 270, 12, "4", 9.75, kZahl},
    {"Einst", "Label_2", "QLabel", 360, 720, 1650, 255, 13, "Names", 8.25, kLabel},
    {"Einst", "Label_3", "QLabel", 2760, 720, 1695, 255, 14, "Repeat", 8.25, kLabel},
    {"Einst", "Label1", "QLabel", 3120, 2400, 975, 255, 15, " ", 8.25, kLabel},
    {"Einst", "Label2", "QLabel", 240, 3120, 1455, 255, 16, "&Vocabulary:", 8.25, kLabel},
    {"Einst", "wortsch", "QListWidget", 360, 3400, 1935, 870, 17, nullptr, 8.25, "ground=#ffffff;autoFillBackground=false;frameShape=StyledPanel;frameShadow=Sunken;sortingEnabled=false;selectionMode=SingleSelection;pattern=*.dat;count=0"},
    {"Einst", "Label3", "QLabel", 2760, 3120, 1575, 255, 18, "&Picture:", 8.25, kLabel},
    {"Einst", "Motiv", "QListWidget", 2880, 3480, 2175, 450, 19, nullptr, 8.25, "ground=#ffffff;autoFillBackground=false;sortingEnabled=false;selectionMode=SingleSelection;count=0"},
    {"Einst", "EditButt", "QPushButton", 360, 4440, 2415, 375, 20, "&Edit vocabulary", 8.25, ""},
    {"Einst", "plumin_0", "QLabel", 1800, 200, 300, 300, -1, "", 8.25, "pixmap=0x0"},
    {"Einst", "plumin_1", "QLabel", 3840, 195, 300, 300, -1, "", 8.25, "pixmap=0x0"},
    {"Einst", "s_0", "QLabel", 1920, 0, 300, 300, -1, "", 8.25, kSpin},
    {"Einst", "s_1", "QLabel", 2280, 0, 300, 300, -1, "", 8.25, kSpin},
    {"Einst", "s_2", "QLabel", 2640, 0, 300, 300, -1, "", 8.25, kSpin},

    {"WEdit", "Text1", "QLineEdit", 240, 120, 1815, 285, 0, "", 8.25, "maxLength=20"},
    {"WEdit", "List1", "QListView", 240, 600, 1815, 2370, 1, nullptr, 8.25, "frameShape=Box;frameShadow=Plain;selectionMode=ExtendedSelection"},
    {"WEdit", "Hinzuf", "QPushButton", 2400, 120, 1335, 495, 2, "&Add", 8.25, ""},
    {"WEdit", "Loesch", "QPushButton", 2400, 720, 1335, 495, 3, "&Delete", 8.25, "enabled=false"},
    {"WEdit", "Speichern", "QPushButton", 2400, 1320, 1335, 495, 4, "&Save", 8.25, ""},
    {"WEdit", "OK", "QPushButton", 2400, 1920, 1335, 495, 5, "&OK", 8.25, ""},
    {"WEdit", "Abbruch", "QPushButton", 2400, 2520, 1335, 495, 6, "&Cancel", 8.25, ""},

    {"Info", "Label_0", "QLabel", 840, 1200, 3732, 252, 4, "Frostel32 v2.31", 12, "ground=#ffffff;autoFillBackground=true;alignment=AlignHCenter|AlignTop"},
    {"Info", "Label_3", "QLabel", 720, 2400, 3372, 252, 1, "For more Information see README.TXT!", 8.25, "bold=false;ground=#000080;autoFillBackground=false;alignment=AlignHCenter|AlignTop"},
    {"Info", "OK", "QPushButton", 2640, 4152, 1335, 375, 5, "&OK", 8.25, ""},
    {"Info", "Image1_1", "QLabel", 3960, 2430, 480, 480, -1, "", 8.25, "pixmap=32x32;focusPolicy=NoFocus"},
    {"Info", "Image1_0", "QLabel", 0, 0, 15, 15, -1, "", 8.25, "pixmap=0x0"},
    {"Info", "Image2", "QLabel", 0, 0, 5340, 4932, -1, "", 8.25, "pixmap=356x330;scaledContents=true"},

    {"eisfig", "List1", "QListWidget", 6840, 120, 1215, 225, 0, nullptr, 8, "hidden;frameShape=NoFrame"},
    {"eisfig", "Spieler_0", "QLabel", 240, 360, 1900, 360, -1, "Spieler 1", 12, "autoFillBackground=true;frameShape=Panel;frameShadow=Sunken;alignment=AlignCenter"},
    {"eisfig", "Picture1", "QLabel", 240, 4200, 9000, 1800, -1, "", 8, ""},
    {"eisfig", "PicBut_0", "assets::PictureButton", 8520, 480, 550, 550, 1, "", 8, "toolTip=Spiel starten"},
    {"eisfig", "PicBut_1", "assets::PictureButton", 8520, 1320, 550, 550, 2, "", 8, "toolTip=Spiel beenden"},
    {"eisfig", "PicBut_2", "assets::PictureButton", 8520, 2160, 550, 550, 3, "", 8, "toolTip=Buchstaben anzeigen"},
    {"eisfig", "PicBut_3", "QPushButton", 3720, 3480, 1995, 400, 4, "nächstes Wort", 10, "hidden"},
    {"eisfig", "Feld_0", "QLabel", 2520, 3120, 375, 450, -1, "", 8, "hidden"},
    {"eisfig", "Punkt_0", "QLabel", 2400, 360, 390, 405, -1, "", 8, "hidden"},
    {"eisfig", "Symbol_0", "QLabel", 960, 1680, 390, 405, -1, "", 8, "hidden"},
    {"eisfig", "Symbol_1", "QLabel", 1560, 1680, 390, 405, -1, "", 8, "hidden"},
};

// Where the letter tiles lie scattered on Picture1: A to Z, then the hidden umlauts.
const QPoint kTiles[] = {
    {170, 200},  {590, 270},  {1030, 320}, {1450, 345}, {1900, 280},  {2460, 260},
    {2950, 320}, {3470, 340}, {4050, 345}, {4680, 270}, {5710, 330},  {6210, 420},
    {6780, 470}, {7320, 500}, {7950, 470}, {520, 980},  {940, 1070},  {1350, 1170},
    {1810, 1200}, {2290, 1220}, {2750, 1160}, {3180, 1080}, {3860, 1080}, {4420, 1150},
    {4930, 1210}, {5470, 1250}, {6010, 1220}, {6540, 1190}, {7050, 1110},
};
// clang-format on

const QList<Control>& allControls()
{
    static const QList<Control> all = [] {
        QList<Control> all(std::begin(kControls), std::end(kControls));
        const QString letters = QString::fromUtf8("ABCDEFGHIJKLMNOPQRSTUVWXYZÄÖÜ");
        for (int i = 0; i < 29; ++i)
            all.append({"eisfig", "alpha_" + QByteArray::number(i), "QLabel", kTiles[i].x(),
                        kTiles[i].y(), 375, 450, -1, nullptr, 8,
                        (i >= 26 ? "hidden;Tag=" : "Tag=") + QString(letters.at(i)).toUtf8()});
        // The pictures of the melting figure share one place; the game shows one at a time.
        for (int i = 0; i < 10; ++i)
            all.append({"eisfig", "B_Folge_" + QByteArray::number(i), "QLabel", 5640, 360, 2400,
                        2400, -1, "", 8, "hidden;scaledContents=true"});
        return all;
    }();
    return all;
}

const QStringList kWindows{"eisfig", "Einst", "WEdit", "Info"};

std::unique_ptr<QWidget> makeWindow(const QString& window)
{
    if (window == "Einst") return std::make_unique<assets::OptionsWindow>();
    if (window == "WEdit") return std::make_unique<assets::EditorWindow>(QString());
    if (window == "Info") return std::make_unique<assets::InfoWindow>(nullptr);
    static QTemporaryDir dir;
    mainwindow::MainWindow::Setup setup;
    setup.profilePath = dir.filePath("frostel.ini");
    setup.splashMs = 0;
    setup.exitProgram = [](int) {};
    return std::make_unique<mainwindow::MainWindow>(setup);
}

// The widget that carries the controls and the window's ground.
QWidget* client(QWidget* w)
{
    auto* c = w->findChild<QWidget*>("client", Qt::FindDirectChildrenOnly);
    return c ? c : w;
}

QString textOf(const QWidget* w)
{
    if (auto* l = qobject_cast<const QLabel*>(w)) return l->text();
    if (auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text();
    if (auto* e = qobject_cast<const QLineEdit*>(w)) return e->text();
    return QString();
}

bool takesFocus(const Control& c) { return c.tab >= 0 && QByteArray(c.kind) != "QLabel"; }

// The controls that Tab visits, in the order of the table.
QStringList tabOrderOf(const QString& window)
{
    std::map<int, QString> byTab;
    for (const Control& c : allControls())
        if (window == c.window && takesFocus(c)) byTab[c.tab] = c.name;
    QStringList order;
    for (const auto& [tab, name] : byTab) order << name;
    return order;
}

void showAndActivate(QWidget* w)
{
    w->show();
    QApplication::setActiveWindow(w);
    QVERIFY(QTest::qWaitForWindowActive(w));
}

} // namespace

class WindowDefinitions : public QObject {
    Q_OBJECT
private slots:
    void windows_data();
    void windows();
    void controls_data();
    void controls();
    void tabOrder_data();
    void tabOrder();
    void defaultAndCancelButtons_data();
    void defaultAndCancelButtons();
    void twipsToPixels_data();
    void twipsToPixels();
    void setTwipsAndTwipsOf();
    void applyTwips_data();
    void applyTwips();
};

void WindowDefinitions::windows_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("twips");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<bool>("frameless");
    QTest::addColumn<int>("timer"); // interval of the idle Timer1; -1: none

    // The main window opens at the smallest size it allows, the outer size of its design.
    QTest::newRow("eisfig") << "eisfig" << QSize(640, 465) << QRect(1785, 2535, 9480, 6180) << ""
                            << QColor(0, 0, 128) << false << -1;
    QTest::newRow("Einst") << "Einst" << QSize(367, 339) << QRect(4755, 2595, 5505, 5085)
                           << "Options" << QColor(192, 192, 192) << false << 200;
    QTest::newRow("WEdit") << "WEdit" << QSize(265, 213) << QRect(3105, 1605, 3975, 3195)
                           << "Edit vocabulary..." << QColor(192, 192, 192) << false << -1;
    QTest::newRow("Info") << "Info" << QSize(356, 329) << QRect(3150, 3270, 5340, 4935) << ""
                          << QColor(0, 0, 128) << true << 0;
}

void WindowDefinitions::windows()
{
    QFETCH(QString, window);
    QFETCH(QSize, size);
    QFETCH(QRect, twips);
    QFETCH(QString, title);
    QFETCH(QColor, ground);
    QFETCH(bool, frameless);
    QFETCH(int, timer);

    auto w = makeWindow(window);
    QCOMPARE(w->objectName(), window);
    QCOMPARE(assets::twipsOf(w.get()), twips);
    QCOMPARE(w->windowTitle(), title);
    QCOMPARE(client(w.get())->palette().color(QPalette::Window), ground);
    QCOMPARE(bool(w->windowFlags() & Qt::FramelessWindowHint), frameless);
    QVERIFY(!w->windowIcon().pixmap(32, 32).isNull());
    QCOMPARE(w->font().weight(), QFont::Bold);
    QTimer* t = nullptr;
    if (auto* e = qobject_cast<assets::OptionsWindow*>(w.get())) t = e->Timer1();
    if (auto* i = qobject_cast<assets::InfoWindow*>(w.get())) t = i->Timer1();
    QCOMPARE(t ? t->interval() : -1, timer);
    if (t) QVERIFY(!t->isActive());

    // Every control the window holds is in the table, and no other.
    QStringList found, expected;
    for (QWidget* c : client(w.get())->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        found << c->objectName();
        if (qobject_cast<QLabel*>(c))
            for (QWidget* g : c->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
                found << g->objectName();
    }
    for (const Control& c : allControls())
        if (window == c.window) expected << QString(c.name);
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);

    showAndActivate(w.get());
    QCOMPARE(w->size(), size);
}

void WindowDefinitions::controls_data()
{
    QTest::addColumn<int>("row");
    const QList<Control> all = allControls();
    for (int i = 0; i < all.size(); ++i)
        QTest::addRow("%s.%s", all[i].window, all[i].name.constData()) << i;
}

void WindowDefinitions::controls()
{
    QFETCH(int, row);
    const Control c = allControls().at(row);
    auto w = makeWindow(c.window);
    QWidget* ctl = client(w.get())->findChild<QWidget*>(QString(c.name));
    QVERIFY(ctl);
    QCOMPARE(QByteArray(ctl->metaObject()->className()), QByteArray(c.kind));
    const QRect twips(c.left, c.top, c.width, c.height);
    QCOMPARE(assets::twipsOf(ctl), twips);
    // Worked out here on its own: no design value ends on half a pixel.
    QCOMPARE(ctl->geometry(), QRect(qRound(c.left / 15.0), qRound(c.top / 15.0),
                                    qRound(c.width / 15.0), qRound(c.height / 15.0)));
    if (c.text) QCOMPARE(textOf(ctl), QString::fromUtf8(c.text));
    QCOMPARE(ctl->font().pointSizeF(), c.points);
    QCOMPARE(QFontInfo(ctl->font()).family(), QString("DejaVu Sans"));

    bool visible = true, bold = true;
    for (const QString& prop : QString::fromUtf8(c.props).split(';', Qt::SkipEmptyParts)) {
        const QString key = prop.section('=', 0, 0), value = prop.section('=', 1);
        if (key == "hidden") {
            visible = false;
        } else if (key == "bold") {
            bold = value == "true";
        } else if (key == "pixmap") {
            const QSize got = qobject_cast<QLabel*>(ctl)->pixmap().deviceIndependentSize().toSize();
            QCOMPARE(QString("%1x%2").arg(got.width()).arg(got.height()), value);
        } else if (key == "ground") {
            const auto role = ctl->inherits("QAbstractScrollArea") || ctl->inherits("QLineEdit")
                                  ? QPalette::Base
                                  : QPalette::Window;
            for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
                QCOMPARE(ctl->palette().color(group, role), QColor(value));
        } else {
            QVERIFY2(ctl->property(qPrintable(key)).isValid(), qPrintable(key));
            QCOMPARE(ctl->property(qPrintable(key)).toString(), value);
        }
    }
    QCOMPARE(ctl->isVisibleTo(w.get()), visible);
    QCOMPARE(ctl->font().weight(), bold ? QFont::Bold : QFont::Normal);

    // A label takes no focus; its access key goes to the next control in tab order.
    if (auto* label = qobject_cast<QLabel*>(ctl); label && label->text().contains('&')) {
        const Control* next = nullptr;
        for (const Control& d : allControls())
            if (QString(d.window) == c.window && d.tab > c.tab && takesFocus(d) &&
                (!next || d.tab < next->tab))
                next = &d;
        QVERIFY(next && label->buddy());
        QCOMPARE(label->buddy()->objectName(), QString(next->name));
    }
}

void WindowDefinitions::tabOrder_data()
{
    QTest::addColumn<QString>("window");
    for (const QString& w : kWindows) QTest::newRow(qPrintable(w)) << w;
}

void WindowDefinitions::tabOrder()
{
    QFETCH(QString, window);
    const QStringList order = tabOrderOf(window);
    auto w = makeWindow(window);
    QWidget* home = client(w.get());
    QStringList chain;
    for (QWidget* c = w->nextInFocusChain(); c && c != w.get(); c = c->nextInFocusChain())
        if (c->parentWidget() == home && (c->focusPolicy() & Qt::TabFocus))
            chain << c->objectName();
    QCOMPARE(chain, order);
    if (window == "eisfig") return; // its tab stops are hidden until a game starts

    // Tab walks the same way, passing over a disabled control; the option buttons of a
    // group share one stop.
    showAndActivate(w.get());
    QStringList expected = order;
    expected.removeAll("Loesch");
    expected.removeAll("wiederh_1");
    w->findChild<QWidget*>(expected.first())->setFocus();
    QStringList walked{expected.first()};
    for (int i = 1; i < expected.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        walked << QApplication::focusWidget()->objectName();
    }
    QCOMPARE(walked, expected);
}

void WindowDefinitions::defaultAndCancelButtons_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("pressed"); // empty: no button

    auto row = [](const char* tag, const char* window, const char* focus, Qt::Key key,
                  const char* pressed) {
        QTest::newRow(tag) << QString(window) << QString(focus) << int(key) << QString(pressed);
    };
    row("Einst Enter in a name box", "Einst", "Spieler_Name_2", Qt::Key_Return, "OK");
    row("Einst Enter on EditButt", "Einst", "EditButt", Qt::Key_Return, "EditButt");
    row("Einst Esc does nothing", "Einst", "wortsch", Qt::Key_Escape, "");
    row("WEdit Enter in the word box", "WEdit", "Text1", Qt::Key_Return, "Hinzuf");
    row("WEdit Esc in the list", "WEdit", "List1", Qt::Key_Escape, "Abbruch");
    row("WEdit Esc on OK", "WEdit", "OK", Qt::Key_Escape, "Abbruch");
}

void WindowDefinitions::defaultAndCancelButtons()
{
    QFETCH(QString, window);
    QFETCH(QString, focus);
    QFETCH(int, key);
    QFETCH(QString, pressed);

    auto w = makeWindow(window);
    std::map<QString, std::unique_ptr<QSignalSpy>> spies;
    for (QPushButton* b : w->findChildren<QPushButton*>())
        spies[b->objectName()] = std::make_unique<QSignalSpy>(b, &QPushButton::clicked);
    showAndActivate(w.get());
    QWidget* target = w->findChild<QWidget*>(focus);
    target->setFocus();
    QTest::keyClick(target, Qt::Key(key));
    for (const auto& [name, spy] : spies) QCOMPARE(spy->count(), name == pressed ? 1 : 0);
    QVERIFY(w->isVisible()); // only the about window closes on a key
}

void WindowDefinitions::twipsToPixels_data()
{
    QTest::addColumn<double>("twips");
    QTest::addColumn<int>("pixels");
    QTest::newRow("7 rounds down") << 7.0 << 0;
    QTest::newRow("8 rounds up") << 8.0 << 1;
    QTest::newRow("half goes up") << 7.5 << 1;
    QTest::newRow("minus half goes down") << -7.5 << -1;
    QTest::newRow("-7") << -7.0 << 0;
    QTest::newRow("3732") << 3732.0 << 249;
    QTest::newRow("-3015") << -3015.0 << -201;
}

void WindowDefinitions::twipsToPixels()
{
    QFETCH(double, twips);
    QFETCH(int, pixels);
    QCOMPARE(assets::twipsToPixels(twips), pixels);
    QCOMPARE(assets::pixelsToTwips(pixels), pixels * 15.0);
}

void WindowDefinitions::setTwipsAndTwipsOf()
{
    QCOMPARE(assets::twipsToPixels(QRect(3735, -1515, 15, 22)), QRect(249, -101, 1, 1));
    QWidget window;
    auto* c = new QWidget(&window);
    c->setGeometry(2, 3, 4, 5);
    QCOMPARE(assets::twipsOf(c), QRect(30, 45, 60, 75)); // no design value: from the geometry
    assets::setTwips(c, QRect(1440, 215, 375, 270));
    QCOMPARE(c->property("twips").toString(), QString("1440,215,375,270"));
    QCOMPARE(c->geometry(), QRect(96, 14, 25, 18));
    QCOMPARE(assets::twipsOf(c), QRect(1440, 215, 375, 270));
}

void WindowDefinitions::applyTwips_data()
{
    QTest::addColumn<QVariant>("design");
    QTest::addColumn<QRect>("expected");

    const QRect before(5, 5, 10, 10);
    QTest::newRow("rounded") << QVariant("7,8,22,23") << QRect(0, 1, 1, 2);
    QTest::newRow("blanks") << QVariant(" 150, 300 ,450,600") << QRect(10, 20, 30, 40);
    QTest::newRow("negative place") << QVariant("-150,-8,15,15") << QRect(-10, -1, 1, 1);
    QTest::newRow("three values") << QVariant("15,30,45") << before;
    QTest::newRow("not a number") << QVariant("a,30,45,60") << before;
    QTest::newRow("none") << QVariant() << before;
}

void WindowDefinitions::applyTwips()
{
    QFETCH(QVariant, design);
    QFETCH(QRect, expected);

    QWidget window;
    window.setGeometry(40, 50, 100, 100);
    window.setProperty("twips", "150,300,1500,3000");
    auto* c = new QWidget(&window);
    auto* g = new QWidget(c);
    for (QWidget* w : {c, g}) {
        w->setGeometry(5, 5, 10, 10);
        w->setProperty("twips", design);
    }
    assets::applyTwips(&window);
    // A window takes its size only; where it stands is for its load handler to say.
    QCOMPARE(window.geometry(), QRect(40, 50, 100, 200));
    QCOMPARE(c->geometry(), expected);
    QCOMPARE(g->geometry(), expected);
}

QTEST_MAIN(WindowDefinitions)
#include "tst_window_definitions.moc"
