// The window definitions of the main, options, editor and about windows: every control by name
// and kind, the access keys, the tab order, the default and cancel buttons, the twips helper.
#include "about/info_window.h"
#include "editor/vocabulary_editor.h"
#include "mainwindow/main_window.h"
#include "settings/options_window.h"
#include "support/scripted_toolkit.h"
#include "widgets/twips.h"

#include <QApplication>
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

// One row a control: its window, name, kind and place in the tab order (-1: none). Where
// the controls stand and how they look is the .ui files' business.
struct Control {
    const char* window;
    QByteArray name;
    const char* kind;
    int tab;
};

// clang-format off
const Control kControls[] = {
    {"Einst", "Spieler_Name_0", "QLineEdit", 0}, {"Einst", "Spieler_Name_1", "QLineEdit", 1},
    {"Einst", "Spieler_Name_2", "QLineEdit", 2}, {"Einst", "Spieler_Name_3", "QLineEdit", 3},
    {"Einst", "wiederh_0", "QRadioButton", 4}, {"Einst", "wiederh_1", "QRadioButton", 5},
    {"Einst", "Anzeige", "QCheckBox", 6}, {"Einst", "Sound", "QCheckBox", 7},
    {"Einst", "OK", "QPushButton", 8}, {"Einst", "Label_1", "QLabel", 9},
    {"Einst", "Zahl_0", "QLabel", 10}, {"Einst", "Label_0", "QLabel", 11},
    {"Einst", "Zahl_1", "QLabel", 12}, {"Einst", "Label_2", "QLabel", 13},
    {"Einst", "Label_3", "QLabel", 14}, {"Einst", "Label1", "QLabel", 15},
    {"Einst", "Label2", "QLabel", 16}, {"Einst", "wortsch", "QListWidget", 17},
    {"Einst", "Label3", "QLabel", 18}, {"Einst", "Motiv", "QListWidget", 19},
    {"Einst", "EditButt", "QPushButton", 20}, {"Einst", "plumin_0", "QLabel", 21},
    {"Einst", "plumin_1", "QLabel", 22}, {"Einst", "s_0", "QLabel", -1},
    {"Einst", "s_1", "QLabel", -1}, {"Einst", "s_2", "QLabel", -1},

    {"WEdit", "Text1", "QLineEdit", 0}, {"WEdit", "List1", "QListView", 1},
    {"WEdit", "Hinzuf", "QPushButton", 2}, {"WEdit", "Loesch", "QPushButton", 3},
    {"WEdit", "Speichern", "QPushButton", 4}, {"WEdit", "OK", "QPushButton", 5},
    {"WEdit", "Abbruch", "QPushButton", 6},

    {"Info", "Label_0", "QLabel", 4}, {"Info", "Label_3", "QLabel", 1},
    {"Info", "OK", "QPushButton", 5}, {"Info", "Image1_1", "QLabel", -1},
    {"Info", "Image1_0", "QLabel", -1}, {"Info", "Image2", "QLabel", -1},

    {"eisfig", "List1", "QListWidget", 0}, {"eisfig", "Spieler_0", "QLabel", -1},
    {"eisfig", "Picture1", "QLabel", -1}, {"eisfig", "PicBut_0", "widgets::PictureButton", 1},
    {"eisfig", "PicBut_1", "widgets::PictureButton", 2},
    {"eisfig", "PicBut_2", "widgets::PictureButton", 3}, {"eisfig", "PicBut_3", "QPushButton", 4},
    {"eisfig", "Feld_0", "QLabel", -1}, {"eisfig", "Punkt_0", "QLabel", -1},
    {"eisfig", "Symbol_0", "QLabel", -1}, {"eisfig", "Symbol_1", "QLabel", -1},
};
// clang-format on

const QList<Control>& allControls()
{
    static const QList<Control> all = [] {
        QList<Control> all(std::begin(kControls), std::end(kControls));
        for (int i = 0; i < 29; ++i)
            all.append({"eisfig", "alpha_" + QByteArray::number(i), "QLabel", -1});
        for (int i = 0; i < 10; ++i)
            all.append({"eisfig", "B_Folge_" + QByteArray::number(i), "QLabel", -1});
        return all;
    }();
    return all;
}

const QStringList kWindows{"eisfig", "Einst", "WEdit", "Info"};

std::unique_ptr<QWidget> makeWindow(const QString& window)
{
    static QTemporaryDir dir;
    static support::ScriptedToolkit tk;
    static core::Game game{tk};
    static settings::Profile profile{dir.filePath("frostel.ini")};
    if (window == "Einst")
        return std::make_unique<settings::OptionsWindow>(game, profile, QStringList(), true,
                                                         nullptr);
    if (window == "WEdit")
        return std::make_unique<editor::VocabularyEditor>(game.g, game.List1, tk);
    if (window == "Info") return std::make_unique<about::InfoWindow>(nullptr);
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

// The spin buttons take the focus for the keyboard's Up and Down.
bool takesFocus(const Control& c)
{
    return c.tab >= 0 && (QByteArray(c.kind) != "QLabel" || c.name.startsWith("plumin"));
}

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
    QTest::addColumn<bool>("frameless");
    QTest::addColumn<int>("timer"); // interval of the idle Timer1; -1: none
    QTest::newRow("eisfig") << "eisfig" << false << -1;
    QTest::newRow("Einst") << "Einst" << false << 200;
    QTest::newRow("WEdit") << "WEdit" << false << -1;
    QTest::newRow("Info") << "Info" << true << 0;
}

void WindowDefinitions::windows()
{
    QFETCH(QString, window);
    QFETCH(bool, frameless);
    QFETCH(int, timer);

    auto w = makeWindow(window);
    QCOMPARE(w->objectName(), window);
    QCOMPARE(bool(w->windowFlags() & Qt::FramelessWindowHint), frameless);
    QVERIFY(!w->windowIcon().pixmap(32, 32).isNull());
    QTimer* t = w->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(t ? t->interval() : -1, timer);
    if (t) QVERIFY(!t->isActive());

    // Every control the window holds is in the table, of its kind, and no other.
    QStringList found, expected;
    for (QWidget* c : client(w.get())->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        found << QString("%1 %2").arg(c->objectName(), c->metaObject()->className());
        if (qobject_cast<QLabel*>(c))
            for (QWidget* g : c->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
                found << QString("%1 %2").arg(g->objectName(), g->metaObject()->className());
    }
    for (const Control& c : allControls())
        if (window == c.window) expected << QString("%1 %2").arg(QString(c.name), c.kind);
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);

    // A label takes no focus; its access key goes to the next control in tab order.
    for (const Control& c : allControls()) {
        auto* label = w->findChild<QLabel*>(QString(c.name));
        if (window != c.window || !label || !label->text().contains('&')) continue;
        const Control* next = nullptr;
        for (const Control& d : allControls())
            if (window == d.window && d.tab > c.tab && takesFocus(d) &&
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
    // A chain is a ring: where it is cut does not matter.
    while (!chain.isEmpty() && chain.first() != order.first()) chain.append(chain.takeFirst());
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
    QCOMPARE(widgets::twipsToPixels(twips), pixels);
    QCOMPARE(widgets::pixelsToTwips(pixels), pixels * 15.0);
}

void WindowDefinitions::setTwipsAndTwipsOf()
{
    QCOMPARE(widgets::twipsToPixels(QRect(3735, -1515, 15, 22)), QRect(249, -101, 1, 1));
    QWidget window;
    auto* c = new QWidget(&window);
    c->setGeometry(2, 3, 4, 5);
    QCOMPARE(widgets::twipsOf(c), QRect(30, 45, 60, 75)); // no design value: from the geometry
    widgets::setTwips(c, QRect(1440, 215, 375, 270));
    QCOMPARE(c->property("twips").toString(), QString("1440,215,375,270"));
    QCOMPARE(c->geometry(), QRect(96, 14, 25, 18));
    QCOMPARE(widgets::twipsOf(c), QRect(1440, 215, 375, 270));
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
    widgets::applyTwips(&window);
    // A window takes its size only; where it stands is for its load handler to say.
    QCOMPARE(window.geometry(), QRect(40, 50, 100, 200));
    QCOMPARE(c->geometry(), expected);
    QCOMPARE(g->geometry(), expected);
}

QTEST_MAIN(WindowDefinitions)
#include "tst_window_definitions.moc"
