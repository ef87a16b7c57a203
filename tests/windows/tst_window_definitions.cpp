// The window definitions of the options window, the vocabulary editor and the about window:
// every control with its place, look and state, the keys that press the default and cancel
// buttons, and the twips helper that turns the design values into pixels.
#include "assets/editor_window.h"
#include "assets/info_window.h"
#include "assets/options_window.h"
#include "assets/twips.h"

#include <QApplication>
#include <QCheckBox>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <cmath>
#include <map>
#include <memory>

namespace {

// One row of the window tables. Tab -1: no place in the tab order.
struct Control {
    const char* window;
    const char* name;
    const char* kind;
    int left, top, width, height;
    int tab;
    const char* text; // nullptr: the control shows no text
    double points;
    bool bold;
    bool visible;
    bool enabled;
};

// clang-format off
const Control kControls[] = {
    {"Einst", "Spieler_Name_0", "QLineEdit", 390, 1080, 1695, 285, 0, "Marta", 8.25, true, true, true},
    {"Einst", "Spieler_Name_1", "QLineEdit", 390, 1560, 1695, 285, 1, "Helene", 8.25, true, true, true},
    {"Einst", "Spieler_Name_2", "QLineEdit", 390, 2040, 1695, 285, 2, "Matthis", 8.25, true, true, true},
    {"Einst", "Spieler_Name_3", "QLineEdit", 390, 2520, 1695, 285, 3, "Svenja", 8.25, true, true, true},
    {"Einst", "wiederh_0", "QRadioButton", 2865, 1080, 2070, 270, 4, "&all words", 8.25, true, true, true},
    {"Einst", "wiederh_1", "QRadioButton", 2865, 1440, 2145, 285, 5, "&words not guessed", 8.25, true, true, true},
    {"Einst", "Anzeige", "QCheckBox", 2880, 2160, 2175, 255, 6, "s&how solution", 8.25, true, true, true},
    {"Einst", "Sound", "QCheckBox", 2880, 2640, 2220, 330, 7, "&soundeffects", 8.25, true, true, true},
    {"Einst", "OK", "QPushButton", 3840, 4200, 1215, 615, 8, "&OK", 8.25, true, true, true},
    {"Einst", "Label_1", "QLabel", 2760, 240, 615, 255, 9, "&Tips:", 8.25, true, true, true},
    {"Einst", "Zahl_0", "QLabel", 1440, 215, 375, 270, 10, "4", 9.75, true, true, true},
    {"Einst", "Label_0", "QLabel", 240, 240, 1095, 255, 11, "&Players:", 8.25, true, true, true},
    {"Einst", "Zahl_1", "QLabel", 3480, 210, 375, 270, 12, "4", 9.75, true, true, true},
    {"Einst", "Label_2", "QLabel", 360, 720, 1650, 255, 13, "Names", 8.25, true, true, true},
    {"Einst", "Label_3", "QLabel", 2760, 720, 1695, 255, 14, "Repeat", 8.25, true, true, true},
    {"Einst", "Label1", "QLabel", 3120, 2400, 975, 255, 15, " ", 8.25, true, true, true},
    {"Einst", "Label2", "QLabel", 240, 3120, 1455, 255, 16, "&Vocabulary:", 8.25, true, true, true},
    {"Einst", "wortsch", "QListWidget", 360, 3400, 1935, 870, 17, nullptr, 8.25, true, true, true},
    {"Einst", "Label3", "QLabel", 2760, 3120, 1575, 255, 18, "&Picture:", 8.25, true, true, true},
    {"Einst", "Motiv", "QListWidget", 2880, 3480, 2175, 450, 19, nullptr, 8.25, true, true, true},
    {"Einst", "EditButt", "QPushButton", 360, 4440, 2415, 375, 20, "&Edit vocabulary", 8.25, true, true, true},
    {"Einst", "plumin_0", "QLabel", 1800, 200, 300, 300, -1, "", 8.25, true, true, true},
    {"Einst", "plumin_1", "QLabel", 3840, 195, 300, 300, -1, "", 8.25, true, true, true},
    {"Einst", "s_0", "QLabel", 1920, 0, 300, 300, -1, "", 8.25, true, false, true},
    {"Einst", "s_1", "QLabel", 2280, 0, 300, 300, -1, "", 8.25, true, false, true},
    {"Einst", "s_2", "QLabel", 2640, 0, 300, 300, -1, "", 8.25, true, false, true},

    {"WEdit", "Text1", "QLineEdit", 240, 120, 1815, 285, 0, "", 8.25, true, true, true},
    {"WEdit", "List1", "QListWidget", 240, 600, 1815, 2370, 1, nullptr, 8.25, true, true, true},
    {"WEdit", "Hinzuf", "QPushButton", 2400, 120, 1335, 495, 2, "&Add", 8.25, true, true, true},
    {"WEdit", "Loesch", "QPushButton", 2400, 720, 1335, 495, 3, "&Delete", 8.25, true, true, false},
    {"WEdit", "Speichern", "QPushButton", 2400, 1320, 1335, 495, 4, "&Save", 8.25, true, true, true},
    {"WEdit", "OK", "QPushButton", 2400, 1920, 1335, 495, 5, "&OK", 8.25, true, true, true},
    {"WEdit", "Abbruch", "QPushButton", 2400, 2520, 1335, 495, 6, "&Cancel", 8.25, true, true, true},

    {"Info", "Label_0", "QLabel", 840, 1200, 3732, 252, 4, "Frostel32 v2.31", 12, true, true, true},
    {"Info", "Label_3", "QLabel", 720, 2400, 3372, 252, 1, "For more Information see README.TXT!", 8.25, false, true, true},
    {"Info", "OK", "QPushButton", 2640, 4152, 1335, 375, 5, "&OK", 8.25, true, true, true},
    {"Info", "Image1_1", "QLabel", 3960, 2430, 480, 480, -1, "", 8.25, true, true, true},
    {"Info", "Image1_0", "QLabel", 0, 0, 15, 15, -1, "", 8.25, true, true, true},
    {"Info", "Image2", "QLabel", 0, 0, 5340, 4932, -1, "", 8.25, true, true, true},
};
// clang-format on

const QColor kGrey(192, 192, 192);
const QColor kWhite(255, 255, 255);
const QColor kNavy(0, 0, 128);

std::unique_ptr<QDialog> makeWindow(const QString& window)
{
    if (window == "Einst") return std::make_unique<assets::OptionsWindow>();
    if (window == "WEdit") return std::make_unique<assets::EditorWindow>(QString());
    return std::make_unique<assets::InfoWindow>(nullptr);
}

// The design value in pixels, worked out here on its own: halves do not occur in the tables.
QRect pixelsOf(int left, int top, int width, int height)
{
    auto px = [](int twips) { return int(std::floor(twips / 15.0 + 0.5)); };
    return QRect(px(left), px(top), px(width), px(height));
}

bool takesFocus(const char* kind) { return QByteArray(kind) != "QLabel"; }

QWidget* control(QWidget* window, const QString& name)
{
    return name.isEmpty() ? window : window->findChild<QWidget*>(name);
}

QString textOf(const QWidget* w)
{
    if (auto* l = qobject_cast<const QLabel*>(w)) return l->text();
    if (auto* b = qobject_cast<const QAbstractButton*>(w)) return b->text();
    if (auto* e = qobject_cast<const QLineEdit*>(w)) return e->text();
    return QString();
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
    void everyControlIsInTheTable_data();
    void everyControlIsInTheTable();
    void tabOrder_data();
    void tabOrder();
    void mnemonicsReachTheNextControlInTabOrder_data();
    void mnemonicsReachTheNextControlInTabOrder();
    void backgrounds_data();
    void backgrounds();
    void looks_data();
    void looks();
    void pixels_data();
    void pixels();
    void choices_data();
    void choices();
    void lists_data();
    void lists();
    void textBoxLength_data();
    void textBoxLength();
    void defaultAndCancelButtons_data();
    void defaultAndCancelButtons();
    void pictures_data();
    void pictures();
    void controlArrays_data();
    void controlArrays();
    void timers();

    void twipsToPixels_data();
    void twipsToPixels();
    void roundTrip_data();
    void roundTrip();
    void applyTwips_data();
    void applyTwips();
    void setTwipsAndTwipsOf();
};

void WindowDefinitions::windows_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QSize>("client");
    QTest::addColumn<QRect>("twips");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<bool>("frameless");

    QTest::newRow("Einst") << "Einst" << QSize(367, 339) << QRect(4755, 2595, 5505, 5085)
                           << "Options" << kGrey << false;
    QTest::newRow("WEdit") << "WEdit" << QSize(265, 213) << QRect(3105, 1605, 3975, 3195)
                           << "Edit vocabulary..." << kGrey << false;
    QTest::newRow("Info") << "Info" << QSize(356, 329) << QRect(3150, 3270, 5340, 4935) << ""
                          << kNavy << true;
}

void WindowDefinitions::windows()
{
    QFETCH(QString, window);
    QFETCH(QSize, client);
    QFETCH(QRect, twips);
    QFETCH(QString, title);
    QFETCH(QColor, background);
    QFETCH(bool, frameless);

    auto w = makeWindow(window);
    QCOMPARE(w->objectName(), window);
    QCOMPARE(w->size(), client);
    QCOMPARE(assets::twipsOf(w.get()), twips);
    QCOMPARE(w->windowTitle(), title);
    QCOMPARE(w->palette().color(QPalette::Window), background);
    QCOMPARE(bool(w->windowFlags() & Qt::FramelessWindowHint), frameless);
    QVERIFY(!w->windowIcon().pixmap(32, 32).isNull());
    QCOMPARE(w->font().family(), QString("DejaVu Sans"));
    QCOMPARE(w->font().pointSizeF(), 8.25);
    QCOMPARE(w->font().weight(), QFont::Bold);

    showAndActivate(w.get());
    QCOMPARE(w->size(), client);
}

void WindowDefinitions::controls_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QRect>("twips");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasText");
    QTest::addColumn<double>("points");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("enabled");

    for (const Control& c : kControls)
        QTest::addRow("%s.%s", c.window, c.name)
            << c.window << c.name << QByteArray(c.kind) << QRect(c.left, c.top, c.width, c.height)
            << QString::fromUtf8(c.text) << (c.text != nullptr) << c.points << c.bold << c.visible
            << c.enabled;
}

void WindowDefinitions::controls()
{
    QFETCH(QString, window);
    QFETCH(QString, name);
    QFETCH(QByteArray, kind);
    QFETCH(QRect, twips);
    QFETCH(QString, text);
    QFETCH(bool, hasText);
    QFETCH(double, points);
    QFETCH(bool, bold);
    QFETCH(bool, visible);
    QFETCH(bool, enabled);

    auto w = makeWindow(window);
    QWidget* c = control(w.get(), name);
    QVERIFY(c);
    QCOMPARE(QByteArray(c->metaObject()->className()), kind);
    QCOMPARE(assets::twipsOf(c), twips);
    QCOMPARE(c->geometry(), pixelsOf(twips.x(), twips.y(), twips.width(), twips.height()));
    if (hasText) QCOMPARE(textOf(c), text);
    QCOMPARE(c->font().pointSizeF(), points);
    QCOMPARE(c->font().weight(), bold ? QFont::Bold : QFont::Normal);
    QCOMPARE(QFontInfo(c->font()).family(), QString("DejaVu Sans"));
    QCOMPARE(c->isVisibleTo(w.get()), visible);
    QCOMPARE(c->isEnabled(), enabled);
}

void WindowDefinitions::everyControlIsInTheTable_data()
{
    QTest::addColumn<QString>("window");
    for (const char* w : {"Einst", "WEdit", "Info"}) QTest::newRow(w) << w;
}

void WindowDefinitions::everyControlIsInTheTable()
{
    QFETCH(QString, window);
    auto w = makeWindow(window);
    QStringList found;
    for (QWidget* c : w->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        found << c->objectName();
    QStringList expected;
    for (const Control& c : kControls)
        if (window == c.window) expected << c.name;
    found.sort();
    expected.sort();
    QCOMPARE(found, expected);
}

void WindowDefinitions::tabOrder_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QStringList>("order");
    for (const char* window : {"Einst", "WEdit", "Info"}) {
        std::map<int, QString> byTab;
        for (const Control& c : kControls)
            if (QString(window) == c.window && c.tab >= 0 && takesFocus(c.kind))
                byTab[c.tab] = c.name;
        QStringList order;
        for (const auto& [tab, name] : byTab) order << name;
        QTest::newRow(window) << window << order;
    }
}

void WindowDefinitions::tabOrder()
{
    QFETCH(QString, window);
    QFETCH(QStringList, order);
    auto w = makeWindow(window);
    // The focus chain from the window round to itself, as Tab walks it.
    QStringList chain;
    for (QWidget* c = w->nextInFocusChain(); c && c != w.get(); c = c->nextInFocusChain())
        if (c->parentWidget() == w.get() && (c->focusPolicy() & Qt::TabFocus))
            chain << c->objectName();
    QCOMPARE(chain, order);

    // Tab goes the same way from the first control.
    showAndActivate(w.get());
    QWidget* first = w->findChild<QWidget*>(order.first());
    first->setFocus();
    QStringList walked{first->objectName()};
    for (int i = 1; i < order.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        walked << QApplication::focusWidget()->objectName();
    }
    // Tab passes over a disabled control, and the option buttons of a group share one stop.
    QStringList expected = order;
    expected.removeAll("Loesch");
    expected.removeAll("wiederh_1");
    QCOMPARE(walked.mid(0, expected.size()), expected);
}

void WindowDefinitions::mnemonicsReachTheNextControlInTabOrder_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("next");
    QTest::addColumn<int>("key");

    // A label takes no focus; its access key goes to the next control in tab order that can.
    for (const Control& c : kControls) {
        if (QByteArray(c.kind) != "QLabel" || !c.text || !QString(c.text).contains('&')) continue;
        const Control* next = nullptr;
        for (const Control& d : kControls)
            if (QString(d.window) == c.window && d.tab > c.tab && takesFocus(d.kind) &&
                (!next || d.tab < next->tab))
                next = &d;
        QVERIFY(next);
        const QChar letter = QString(c.text).at(QString(c.text).indexOf('&') + 1).toUpper();
        QTest::newRow(c.name) << c.name << next->name << int(Qt::Key_A + (letter.unicode() - 'A'));
    }
}

void WindowDefinitions::mnemonicsReachTheNextControlInTabOrder()
{
    QFETCH(QString, label);
    QFETCH(QString, next);
    QFETCH(int, key);

    assets::OptionsWindow w;
    auto* l = w.findChild<QLabel*>(label);
    QVERIFY(l->buddy());
    QCOMPARE(l->buddy()->objectName(), next);

    // "&Players:" and "&Picture:" share their letter; only the unshared keys can show it.
    if (label == "Label_0" || label == "Label3") return;
    showAndActivate(&w);
    w.Spieler_Name()[0]->setFocus();
    QTest::keyClick(&w, Qt::Key(key), Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), next);
}

void WindowDefinitions::backgrounds_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("role");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<bool>("filled");

    const int base = QPalette::Base, win = QPalette::Window;
    for (int i = 0; i < 4; ++i)
        QTest::addRow("Einst.Spieler_Name_%d", i)
            << "Einst" << QString("Spieler_Name_%1").arg(i) << base << kWhite << false;
    for (const char* n : {"Label_0", "Label_1", "Label_2", "Label_3", "Label1", "Label2", "Label3"})
        QTest::addRow("Einst.%s", n) << "Einst" << n << win << kGrey << true;
    for (const char* n : {"Zahl_0", "Zahl_1"})
        QTest::addRow("Einst.%s", n) << "Einst" << n << win << kWhite << true;
    for (const char* n : {"wortsch", "Motiv"})
        QTest::addRow("Einst.%s", n) << "Einst" << n << base << kWhite << false;
    QTest::newRow("Info.Label_0") << "Info"
                                  << "Label_0" << win << kWhite << true;
    QTest::newRow("Info.Label_3 transparent") << "Info"
                                              << "Label_3" << win << kNavy << false;
    QTest::newRow("Info.OK") << "Info"
                             << "OK" << int(QPalette::Button) << kGrey << false;
}

void WindowDefinitions::backgrounds()
{
    QFETCH(QString, window);
    QFETCH(QString, name);
    QFETCH(int, role);
    QFETCH(QColor, colour);
    QFETCH(bool, filled);

    auto w = makeWindow(window);
    QWidget* c = control(w.get(), name);
    QVERIFY(c);
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(c->palette().color(group, QPalette::ColorRole(role)), colour);
    QCOMPARE(c->autoFillBackground(), filled);
}

void WindowDefinitions::looks_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("shape");
    QTest::addColumn<int>("shadow");
    QTest::addColumn<int>("horizontal");

    const int none = QFrame::NoFrame, plain = QFrame::Plain, sunken = QFrame::Sunken;
    const int left = Qt::AlignLeft, centre = Qt::AlignHCenter;
    for (const char* n : {"Zahl_0", "Zahl_1"})
        QTest::addRow("Einst.%s", n) << "Einst" << n << int(QFrame::WinPanel) << sunken << centre;
    for (const char* n : {"Label_0", "Label_1", "Label_2", "Label_3", "Label1", "Label2", "Label3"})
        QTest::addRow("Einst.%s", n) << "Einst" << n << none << plain << left;
    QTest::newRow("Einst.wortsch") << "Einst"
                                   << "wortsch" << int(QFrame::StyledPanel) << sunken << -1;
    QTest::newRow("WEdit.List1 flat") << "WEdit"
                                      << "List1" << int(QFrame::Box) << plain << -1;
    QTest::newRow("Info.Label_0") << "Info"
                                  << "Label_0" << none << plain << centre;
    QTest::newRow("Info.Label_3") << "Info"
                                  << "Label_3" << none << plain << centre;
}

void WindowDefinitions::looks()
{
    QFETCH(QString, window);
    QFETCH(QString, name);
    QFETCH(int, shape);
    QFETCH(int, shadow);
    QFETCH(int, horizontal);

    auto w = makeWindow(window);
    auto* f = w->findChild<QFrame*>(name);
    QVERIFY(f);
    QCOMPARE(int(f->frameShape()), shape);
    if (shape != QFrame::NoFrame) QCOMPARE(int(f->frameShadow()), shadow);
    if (auto* l = qobject_cast<QLabel*>(f)) {
        QCOMPARE(int(l->alignment() & Qt::AlignHorizontal_Mask), horizontal);
        // Text stands at the top, as the labels of the game always had it.
        QCOMPARE(int(l->alignment() & Qt::AlignVertical_Mask), int(Qt::AlignTop));
        // A framed label would otherwise indent its text by half an "x", which pushes the
        // digit out of the bottom of an 18-pixel box.
        if (l->frameWidth() > 0) QCOMPARE(l->indent(), 0);
    }
}

void WindowDefinitions::pixels_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("at"); // negative: from the right or bottom edge
    QTest::addColumn<QColor>("colour");

    QTest::newRow("Einst ground") << "Einst"
                                  << "" << QPoint(1, 1) << kGrey;
    QTest::newRow("Einst name box") << "Einst"
                                    << "Spieler_Name_3" << QPoint(-6, 9) << kWhite;
    QTest::newRow("Einst Zahl inside") << "Einst"
                                       << "Zahl_0" << QPoint(3, -4) << kWhite;
    QTest::newRow("Einst file list") << "Einst"
                                     << "wortsch" << QPoint(-10, -10) << kWhite;
    QTest::newRow("WEdit ground") << "WEdit"
                                  << "" << QPoint(1, 1) << kGrey;
    QTest::newRow("WEdit Text1 flat border") << "WEdit"
                                             << "Text1" << QPoint(0, 0) << QColor(Qt::black);
    QTest::newRow("WEdit Text1 border bottom") << "WEdit"
                                               << "Text1" << QPoint(-1, -1) << QColor(Qt::black);
    QTest::newRow("WEdit List1 flat border") << "WEdit"
                                             << "List1" << QPoint(0, 0) << QColor(Qt::black);
    QTest::newRow("Info label white") << "Info"
                                      << "Label_0" << QPoint(1, 1) << kWhite;
}

void WindowDefinitions::pixels()
{
    QFETCH(QString, window);
    QFETCH(QString, name);
    QFETCH(QPoint, at);
    QFETCH(QColor, colour);

    auto w = makeWindow(window);
    showAndActivate(w.get());
    QWidget* c = control(w.get(), name);
    const QImage image = c->grab().toImage();
    const QPoint p(at.x() < 0 ? image.width() + at.x() : at.x(),
                   at.y() < 0 ? image.height() + at.y() : at.y());
    QCOMPARE(image.pixelColor(p), colour);
}

void WindowDefinitions::choices_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("checked");
    QTest::newRow("wiederh_0 selected") << "wiederh_0" << true;
    QTest::newRow("wiederh_1") << "wiederh_1" << false;
    QTest::newRow("Anzeige ticked") << "Anzeige" << true;
    QTest::newRow("Sound ticked") << "Sound" << true;
}

void WindowDefinitions::choices()
{
    QFETCH(QString, name);
    QFETCH(bool, checked);
    assets::OptionsWindow w;
    auto* b = w.findChild<QAbstractButton*>(name);
    QCOMPARE(b->isChecked(), checked);

    // The two option buttons are one group: choosing one clears the other.
    showAndActivate(&w);
    if (auto* r = qobject_cast<QRadioButton*>(b)) {
        QRadioButton* other = w.wiederh()[name == "wiederh_0" ? 1 : 0];
        QTest::mouseClick(checked ? other : r, Qt::LeftButton);
        QCOMPARE(r->isChecked(), !checked);
        QCOMPARE(other->isChecked(), checked);
    }
}

void WindowDefinitions::lists_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("sorted");
    QTest::addColumn<int>("selection");
    QTest::addColumn<QStringList>("shown"); // after adding the three words below

    const QStringList added{"Frostel", "Schnee", "Apfelbaum"};
    QTest::newRow("Einst.Motiv") << "Einst"
                                 << "Motiv" << false << int(QAbstractItemView::SingleSelection)
                                 << added;
    QTest::newRow("Einst.wortsch")
        << "Einst"
        << "wortsch" << false << int(QAbstractItemView::SingleSelection) << added;
    QTest::newRow("WEdit.List1") << "WEdit"
                                 << "List1" << true << int(QAbstractItemView::ExtendedSelection)
                                 << QStringList{"Apfelbaum", "Frostel", "Schnee"};
}

void WindowDefinitions::lists()
{
    QFETCH(QString, window);
    QFETCH(QString, name);
    QFETCH(bool, sorted);
    QFETCH(int, selection);
    QFETCH(QStringList, shown);

    auto w = makeWindow(window);
    auto* list = w->findChild<QListWidget*>(name);
    QCOMPARE(list->isSortingEnabled(), sorted);
    QCOMPARE(int(list->selectionMode()), selection);
    QCOMPARE(list->count(), 0);
    list->addItems({"Frostel", "Schnee", "Apfelbaum"});
    QStringList rows;
    for (int i = 0; i < list->count(); ++i) rows << list->item(i)->text();
    QCOMPARE(rows, shown);
    if (name == "wortsch") QCOMPARE(list->property("pattern").toString(), QString("*.dat"));

    // Shift extends a selection only where several rows may be chosen.
    showAndActivate(w.get());
    list->setCurrentRow(0);
    auto centre = [&](int row) { return list->visualItemRect(list->item(row)).center(); };
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centre(0));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ShiftModifier, centre(1));
    QCOMPARE(list->selectedItems().size(), sorted ? 2 : 1);
}

void WindowDefinitions::textBoxLength_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("maxLength");
    QTest::newRow("WEdit.Text1") << "WEdit"
                                 << "Text1" << 20;
    QTest::newRow("Einst.Spieler_Name_0 unlimited") << "Einst"
                                                    << "Spieler_Name_0" << 32767;
}

void WindowDefinitions::textBoxLength()
{
    QFETCH(QString, window);
    QFETCH(QString, name);
    QFETCH(int, maxLength);

    auto w = makeWindow(window);
    auto* box = w->findChild<QLineEdit*>(name);
    QCOMPARE(box->maxLength(), maxLength);
    showAndActivate(w.get());
    box->setFocus();
    box->selectAll();
    const QString typed(25, QChar('x'));
    QTest::keyClicks(box, typed);
    QCOMPARE(box->text(), typed.left(maxLength));
}

void WindowDefinitions::defaultAndCancelButtons_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<bool>("hideOk");
    QTest::addColumn<QString>("focus");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("pressed"); // empty: no button
    QTest::addColumn<bool>("staysOpen");

    const int enter = Qt::Key_Return, esc = Qt::Key_Escape;
    QTest::newRow("Einst Enter in a name box")
        << "Einst" << false << "Spieler_Name_2" << enter << "OK" << true;
    QTest::newRow("Einst Enter on EditButt")
        << "Einst" << false << "EditButt" << enter << "EditButt" << true;
    QTest::newRow("Einst Esc does nothing")
        << "Einst" << false << "Spieler_Name_0" << esc << "" << true;
    QTest::newRow("Einst Esc in the file list")
        << "Einst" << false << "wortsch" << esc << "" << true;
    QTest::newRow("WEdit Enter in the word box")
        << "WEdit" << false << "Text1" << enter << "Hinzuf" << true;
    QTest::newRow("WEdit Enter on Speichern")
        << "WEdit" << false << "Speichern" << enter << "Speichern" << true;
    QTest::newRow("WEdit Esc in the word box")
        << "WEdit" << false << "Text1" << esc << "Abbruch" << true;
    QTest::newRow("WEdit Esc in the list")
        << "WEdit" << false << "List1" << esc << "Abbruch" << true;
    QTest::newRow("WEdit Esc on OK") << "WEdit" << false << "OK" << esc << "Abbruch" << true;
    QTest::newRow("Info Enter") << "Info" << false << "OK" << enter << "OK" << false;
    QTest::newRow("Info Esc") << "Info" << false << "OK" << esc << "OK" << false;
    QTest::newRow("Info Esc with OK hidden") << "Info" << true << "" << esc << "" << true;
    QTest::newRow("Info Enter with OK hidden") << "Info" << true << "" << enter << "" << true;
}

void WindowDefinitions::defaultAndCancelButtons()
{
    QFETCH(QString, window);
    QFETCH(bool, hideOk);
    QFETCH(QString, focus);
    QFETCH(int, key);
    QFETCH(QString, pressed);
    QFETCH(bool, staysOpen);

    auto w = makeWindow(window);
    if (hideOk) w->findChild<QPushButton*>("OK")->hide();
    std::map<QString, std::unique_ptr<QSignalSpy>> spies;
    for (QPushButton* b : w->findChildren<QPushButton*>())
        spies[b->objectName()] = std::make_unique<QSignalSpy>(b, &QPushButton::clicked);
    showAndActivate(w.get());
    QWidget* target = control(w.get(), focus);
    target->setFocus();

    QTest::keyClick(target, Qt::Key(key));
    for (const auto& [name, spy] : spies) QCOMPARE(spy->count(), name == pressed ? 1 : 0);
    QCOMPARE(w->isVisible(), staysOpen);
}

void WindowDefinitions::pictures_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("picture"); // 0 x 0: none
    QTest::addColumn<bool>("stretched");

    for (int i = 0; i < 3; ++i)
        QTest::addRow("Einst.s_%d", i)
            << "Einst" << QString("s_%1").arg(i) << QSize(20, 20) << false;
    // The spin buttons take their face only when the window paints.
    for (int i = 0; i < 2; ++i)
        QTest::addRow("Einst.plumin_%d", i)
            << "Einst" << QString("plumin_%1").arg(i) << QSize(0, 0) << false;
    QTest::newRow("Info.Image2") << "Info"
                                 << "Image2" << QSize(356, 330) << true;
    QTest::newRow("Info.Image1_1") << "Info"
                                   << "Image1_1" << QSize(32, 32) << false;
    QTest::newRow("Info.Image1_0") << "Info"
                                   << "Image1_0" << QSize(0, 0) << false;
}

void WindowDefinitions::pictures()
{
    QFETCH(QString, window);
    QFETCH(QString, name);
    QFETCH(QSize, picture);
    QFETCH(bool, stretched);

    auto w = makeWindow(window);
    auto* image = w->findChild<QLabel*>(name);
    QVERIFY(image);
    QCOMPARE(image->pixmap().deviceIndependentSize().toSize(), picture);
    QCOMPARE(image->hasScaledContents(), stretched);
    QCOMPARE(image->focusPolicy(), Qt::NoFocus);
}

void WindowDefinitions::controlArrays_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("expected");

    assets::OptionsWindow e;
    assets::InfoWindow info(nullptr);
    auto names = [](const auto& array) {
        QStringList out;
        for (const QObject* o : array) out << (o ? o->objectName() : QString("-"));
        return out;
    };
    QTest::newRow("Spieler_Name") << names(e.Spieler_Name())
                                  << QStringList{"Spieler_Name_0", "Spieler_Name_1",
                                                 "Spieler_Name_2", "Spieler_Name_3"};
    QTest::newRow("wiederh") << names(e.wiederh()) << QStringList{"wiederh_0", "wiederh_1"};
    QTest::newRow("Einst Label") << names(e.Label())
                                 << QStringList{"Label_0", "Label_1", "Label_2", "Label_3"};
    QTest::newRow("Zahl") << names(e.Zahl()) << QStringList{"Zahl_0", "Zahl_1"};
    QTest::newRow("plumin") << names(e.plumin()) << QStringList{"plumin_0", "plumin_1"};
    QTest::newRow("s") << names(e.s()) << QStringList{"s_0", "s_1", "s_2"};
    QTest::newRow("Info Label") << names(info.Label())
                                << QStringList{"Label_0", "-", "-", "Label_3"};
    QTest::newRow("Image1") << names(info.Image1()) << QStringList{"Image1_0", "Image1_1"};
}

void WindowDefinitions::controlArrays()
{
    QFETCH(QStringList, names);
    QFETCH(QStringList, expected);
    QCOMPARE(names, expected);
}

void WindowDefinitions::timers()
{
    assets::OptionsWindow e;
    QCOMPARE(e.Timer1()->interval(), 200);
    QVERIFY(!e.Timer1()->isActive());

    assets::InfoWindow info(nullptr);
    QCOMPARE(info.Timer1()->interval(), 0);
    QVERIFY(!info.Timer1()->isActive());
}

void WindowDefinitions::twipsToPixels_data()
{
    QTest::addColumn<double>("twips");
    QTest::addColumn<int>("pixels");
    QTest::newRow("0") << 0.0 << 0;
    QTest::newRow("7 rounds down") << 7.0 << 0;
    QTest::newRow("8 rounds up") << 8.0 << 1;
    QTest::newRow("15") << 15.0 << 1;
    QTest::newRow("22") << 22.0 << 1;
    QTest::newRow("23") << 23.0 << 2;
    QTest::newRow("half goes up") << 7.5 << 1;
    QTest::newRow("minus half goes down") << -7.5 << -1;
    QTest::newRow("-7") << -7.0 << 0;
    QTest::newRow("-8") << -8.0 << -1;
    QTest::newRow("215, a Zahl top") << 215.0 << 14;
    QTest::newRow("252, a label height") << 252.0 << 17;
    QTest::newRow("3400, the file list top") << 3400.0 << 227;
    QTest::newRow("3732, the product text width") << 3732.0 << 249;
    QTest::newRow("-3015") << -3015.0 << -201;
}

void WindowDefinitions::twipsToPixels()
{
    QFETCH(double, twips);
    QFETCH(int, pixels);
    QCOMPARE(assets::twipsToPixels(twips), pixels);
}

void WindowDefinitions::roundTrip_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<double>("twips");
    QTest::newRow("0") << 0 << 0.0;
    QTest::newRow("1") << 1 << 15.0;
    QTest::newRow("249") << 249 << 3735.0;
    QTest::newRow("800") << 800 << 12000.0;
    QTest::newRow("-101") << -101 << -1515.0;
}

void WindowDefinitions::roundTrip()
{
    QFETCH(int, pixels);
    QFETCH(double, twips);
    QCOMPARE(assets::pixelsToTwips(pixels), twips);
    QCOMPARE(assets::twipsToPixels(assets::pixelsToTwips(pixels)), pixels);
    QCOMPARE(assets::twipsToPixels(QRect(int(twips), int(twips), 15, 30)),
             QRect(pixels, pixels, 1, 2));
}

void WindowDefinitions::applyTwips_data()
{
    QTest::addColumn<QVariant>("design");
    QTest::addColumn<QRect>("child");
    QTest::addColumn<QRect>("grandchild");

    const QRect before(5, 5, 10, 10);
    QTest::newRow("whole pixels") << QVariant("15,30,45,60") << QRect(1, 2, 3, 4)
                                  << QRect(1, 2, 3, 4);
    QTest::newRow("rounded") << QVariant("7,8,22,23") << QRect(0, 1, 1, 2) << QRect(0, 1, 1, 2);
    QTest::newRow("blanks") << QVariant(" 150, 300 ,450,600") << QRect(10, 20, 30, 40)
                            << QRect(10, 20, 30, 40);
    QTest::newRow("negative place")
        << QVariant("-150,-8,15,15") << QRect(-10, -1, 1, 1) << QRect(-10, -1, 1, 1);
    QTest::newRow("three values") << QVariant("15,30,45") << before << before;
    QTest::newRow("not a number") << QVariant("a,30,45,60") << before << before;
    QTest::newRow("none") << QVariant() << before << before;
}

void WindowDefinitions::applyTwips()
{
    QFETCH(QVariant, design);
    QFETCH(QRect, child);
    QFETCH(QRect, grandchild);

    QWidget window;
    window.setGeometry(40, 50, 100, 100);
    window.setProperty("twips", "150,300,1500,3000");
    auto* c = new QWidget(&window);
    auto* g = new QWidget(c);
    c->setGeometry(5, 5, 10, 10);
    g->setGeometry(5, 5, 10, 10);
    c->setProperty("twips", design);
    g->setProperty("twips", design);

    assets::applyTwips(&window);
    // A window takes its size only; where it stands is for its load handler to say.
    QCOMPARE(window.size(), QSize(100, 200));
    QCOMPARE(window.pos(), QPoint(40, 50));
    QCOMPARE(c->geometry(), child);
    QCOMPARE(g->geometry(), grandchild);
}

void WindowDefinitions::setTwipsAndTwipsOf()
{
    QWidget window;
    auto* c = new QWidget(&window);
    c->setGeometry(2, 3, 4, 5);
    QCOMPARE(assets::twipsOf(c), QRect(30, 45, 60, 75));

    assets::setTwips(c, QRect(1440, 215, 375, 270));
    QCOMPARE(c->property("twips").toString(), QString("1440,215,375,270"));
    QCOMPARE(c->geometry(), QRect(96, 14, 25, 18));
    QCOMPARE(assets::twipsOf(c), QRect(1440, 215, 375, 270));

    assets::setTwips(&window, QRect(4755, 2595, 5505, 5085));
    QCOMPARE(window.size(), QSize(367, 339));
    QCOMPARE(assets::twipsOf(&window), QRect(4755, 2595, 5505, 5085));
}

QTEST_MAIN(WindowDefinitions)
#include "tst_window_definitions.moc"
