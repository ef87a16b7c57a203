// Plays one word in the real program by keys that Qt Test types, where no input device can reach
// it (a compositor without a seat): a Qt plugin that the program loads when told to by
//   QT_PLUGIN_PATH=<the folder above generic/> QT_QPA_GENERIC_PLUGINS=frostel32-keys:WORD
// It starts a game, types the word's letters, answers the end question with Yes, and tells each
// window it sees on standard error, so the caller can check the splash came first.
#include <QApplication>
#include <QGenericPlugin>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <cstdio>

namespace {

class KeyDriver : public QObject {
public:
    explicit KeyDriver(const QString& word) : word_(word.toUpper().toLatin1())
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* w = qobject_cast<QWidget*>(watched);
        // Told once the show is done; the window itself ends the call if it goes first.
        if (event->type() == QEvent::Show && w && w->isWindow())
            QTimer::singleShot(0, w, [this, w] { shown(w); });
        return false;
    }

private:
    void shown(QWidget* w)
    {
        std::fprintf(stderr, "keys: window %s \"%s\"\n", qPrintable(w->objectName()),
                     qPrintable(w->windowTitle()));
        if (w->windowTitle() == "Program end") {
            QTest::keyClick(w, Qt::Key_Return); // Yes is the default
        } else if (w->objectName() == "eisfig" && !main_) {
            main_ = w;
            // A compositor gives keyboard focus to a window only where there is a keyboard.
            if (!QApplication::activeWindow()) QApplication::setActiveWindow(w);
            QTest::keyClick(w, Qt::Key_S, Qt::ControlModifier);
            typeNext();
        }
    }

    // A letter typed while the word is drawn does nothing; it is typed again until its tile has
    // gone. The next step is set first: a key that ends the word returns only when the game does.
    void typeNext()
    {
        if (!main_) return;
        if (next_ == word_.size()) return QTest::keyClick(main_, Qt::Key_E, Qt::ControlModifier);
        QTimer::singleShot(100, this, [this] { typeNext(); });
        const char letter = word_.at(next_);
        auto* tile = main_->findChild<QWidget*>(QStringLiteral("alpha_%1").arg(letter - 'A'));
        if (tile && !tile->isVisible()) std::fprintf(stderr, "keys: %c taken\n", letter), ++next_;
        else QTest::keyClick(main_, char(letter - 'A' + 'a'));
    }

    QByteArray word_;
    qsizetype next_ = 0;
    QPointer<QWidget> main_;
};

class KeyDriverPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "key_driver.json")
public:
    QObject* create(const QString&, const QString& word) override { return new KeyDriver(word); }
};

} // namespace

#include "key_driver.moc"
