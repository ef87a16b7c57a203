// Ends the real program by keys that Qt Test types, where no input device can reach it (a
// compositor without a seat): a Qt plugin that the program loads when told to by
//   QT_PLUGIN_PATH=<the folder above generic/> QT_QPA_GENERIC_PLUGINS=frostel32-keys
// It asks for the end by Ctrl+E, answers Yes by Enter, and tells each window it sees on
// standard error with when it showed, so the caller can check the splash came first and stood.
#include <QApplication>
#include <QElapsedTimer>
#include <QGenericPlugin>
#include <QTest>
#include <QTimer>
#include <cstdio>

namespace {

class KeyDriver : public QObject {
public:
    KeyDriver() { clock_.start(), qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* w = qobject_cast<QWidget*>(watched);
        // Told once the show is done; the window itself ends the call if it goes first.
        if (event->type() == QEvent::Show && w && w->isWindow())
            QTimer::singleShot(0, w, [w, at = clock_.elapsed()] { shown(w, at); });
        return false;
    }

private:
    static void shown(QWidget* w, qint64 at)
    {
        std::fprintf(stderr, "keys: window %s \"%s\" at %lld ms\n", qPrintable(w->objectName()),
                     qPrintable(w->windowTitle()), static_cast<long long>(at));
        if (w->windowTitle() == "Program end") QTest::keyClick(w, Qt::Key_Return); // Yes: default
        else if (w->objectName() == "eisfig") {
            // A compositor gives keyboard focus to a window only where there is a keyboard.
            if (!QApplication::activeWindow()) QApplication::setActiveWindow(w);
            QTest::keyClick(w, Qt::Key_E, Qt::ControlModifier);
        }
    }

    QElapsedTimer clock_;
};

class KeyDriverPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "key_driver.json")
public:
    QObject* create(const QString&, const QString&) override { return new KeyDriver; }
};

} // namespace

#include "key_driver.moc"
