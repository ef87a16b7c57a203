#include "platform/qt_toolkit.h"

#include "platform/sound_player.h"
#include "widgets/twips.h"
#include "widgets/window_design.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QGridLayout>
#include <QLibrary>
#include <QMessageBox>
#include <QPushButton>
#include <QTime>
#include <QTimer>
#include <QUrl>
#include <bit>
#include <cmath>

namespace platform {
namespace {

// Spreads the bits of a seed so that clocks a millisecond apart start far apart.
uint64_t mix(uint64_t z)
{
    z += 0x9E3779B97F4A7C15ULL;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

// A box whose title reads on screen as given, also an empty one.
class Box : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

    // Wide enough that the frame shows the whole title beside its icon and three buttons,
    // each about as wide as the title bar is high (the main window's tells how high).
    void widenForTitle(const QWidget* main)
    {
        QFont bold = font();
        bold.setBold(true);
        const int bar = main ? main->geometry().top() - main->frameGeometry().top() : 0;
        const int width =
            QFontMetrics(bold).horizontalAdvance(windowTitle()) + 4 * std::max(bar, 24) + 16;
        auto* grid = qobject_cast<QGridLayout*>(layout());
        if (grid)
            grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        QMessageBox::showEvent(event);
        widgets::keepEmptyTitle(this);
    }
};

} // namespace

QtToolkit::QtToolkit() : random_(mix(uint64_t(QTime::currentTime().msecsSinceStartOfDay()))) {}

QtToolkit::~QtToolkit() = default;

void QtToolkit::present()
{
    if (beforeEvents) beforeEvents();
}

void QtToolkit::serveEvents()
{
    present();
    QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void QtToolkit::waitForEvents()
{
    if (stopped_) return;
    present();
    // Sleeps until something arrives: no CPU while the players think.
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

void QtToolkit::wait(double seconds)
{
    if (stopped_) return;
    present();
    // The window keeps painting; input that comes now becomes commands that the game
    // queues until the routine that waits has returned.
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(int(std::lround(seconds * waitScale * 1000)));
    QEventLoop* outer = waitLoop_;
    waitLoop_ = &loop;
    loop.exec();
    waitLoop_ = outer;
}

void QtToolkit::stopWaiting()
{
    stopped_ = true;
    if (waitLoop_) waitLoop_->quit();
}

double QtToolkit::clock() { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; }

void QtToolkit::seedRandom(double seed) { random_.seed(mix(std::bit_cast<uint64_t>(seed))); }

double QtToolkit::random()
{
    // 53 random bits: even over 0 up to below 1.
    return double(random_() >> 11) * 0x1.0p-53;
}

int QtToolkit::msgBox(const QString& text, int type, const QString& title)
{
    if (stopped_) return core::kAnswerNo;
    present();
    Box box(main_ && main_->isVisible() ? main_.data() : nullptr);
    box.setWindowTitle(title);
    QString shown = text;
    box.setText(shown.replace(QChar(13), QChar('\n')));
    if (type == core::kYesNoQuestion) {
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
    } else {
        box.setIcon(QMessageBox::Warning);
        box.setStandardButtons(QMessageBox::Ok);
    }
    box.widenForTitle(main_);
    const int r = box.exec();
    if (type != core::kYesNoQuestion) return core::kAnswerOk;
    return r == QMessageBox::Yes ? core::kAnswerYes : core::kAnswerNo;
}

SoundPlayer* QtToolkit::soundPlayer()
{
    if (soundTried_) return player_.get();
    soundTried_ = true;
    // Beside the program (the build tree), or in an installed copy's library folder.
    const QString bin = QCoreApplication::applicationDirPath();
    for (const QString& dir : {bin, bin + QStringLiteral("/" FROSTEL_SOUND_FROM_BINDIR)}) {
        auto module = std::make_unique<QLibrary>(dir + QStringLiteral("/frostel32-sound"));
        if (!module->load()) continue;
        if (auto create =
                reinterpret_cast<CreateSoundPlayer>(module->resolve(kCreateSoundPlayer))) {
            player_.reset(create());
            soundModule_ = std::move(module);
            return player_.get();
        }
    }
    qWarning("frostel32: the sound module was not found; the game stays silent");
    return nullptr;
}

void QtToolkit::playSound(int n)
{
    const QString name = QStringLiteral("frostl%1.wav").arg(n);
    QFileInfo file(name);
    if (!file.exists()) file.setFile(soundFolder + '/' + name);
    if (!file.exists()) return; // a missing file stays silent
    if (SoundPlayer* player = soundPlayer()) player->play(file.absoluteFilePath());
}

double QtToolkit::textWidth(const QString& text)
{
    QFont font = main_ ? main_->font() : QApplication::font();
    font.setPointSizeF(12);
    font.setBold(true);
    return QFontMetricsF(font).horizontalAdvance(text) * widgets::kTwipsPerPixel;
}

double QtToolkit::windowWidth()
{
    return main_ ? main_->frameGeometry().width() * widgets::kTwipsPerPixel : 9600.0;
}

void QtToolkit::endProgram()
{
    stopWaiting();
    if (onEnd) onEnd();
}

} // namespace platform
