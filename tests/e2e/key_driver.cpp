// Plays one word in the real program by keys that Qt Test types, where no input device can reach
// it (a compositor without a seat): a Qt plugin that the program loads when told to by
//   QT_PLUGIN_PATH=<the folder above generic/> QT_QPA_GENERIC_PLUGINS=frostel32-keys:WORD
// It starts a game, types the word's letters, answers the end question with Yes, and tells each
// window it sees on standard error, so the caller can check the splash came first.
#include <QApplication>
#include <QGenericPlugin>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <cstdio>

namespace {

class KeyDriver : public QObject {
public:
    explicit KeyDriver(const QString& word) : word_(word.toUpper())
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->isWidgetType()) {
            QPointer<QWidget> w = static_cast<QWidget*>(watched);
            if (w->isWindow())
                QTimer::singleShot(0, this, [this, w] {
                    if (w) shown(w);
                });
        }
        return false;
    }

private:
    void shown(QWidget* w)
    {
        std::fprintf(stderr, "keys: window %s \"%s\"\n", qPrintable(w->objectName()),
                     qPrintable(w->windowTitle()));
        if (auto* box = qobject_cast<QMessageBox*>(w); box && box->windowTitle() == "Program end") {
            QTest::keyClick(box, Qt::Key_Return); // Yes is the default
        } else if (w->objectName() == QLatin1String("eisfig") && !main_) {
            main_ = w;
            // A compositor gives keyboard focus to a window only where there is a keyboard.
            if (!QApplication::activeWindow()) QApplication::setActiveWindow(w);
            QTest::keyClick(w, Qt::Key_S, Qt::ControlModifier);
            typeNext();
        }
    }

    // A letter typed while the word is drawn does nothing; it is typed again until its tile has
    // gone. The next step is set first: a key that ends the word returns only when the game
    // does.
    void typeNext()
    {
        if (!main_) return;
        if (next_ == word_.size()) {
            QTest::keyClick(main_, Qt::Key_E, Qt::ControlModifier);
            return;
        }
        QTimer::singleShot(100, this, [this] { typeNext(); });
        const QChar letter = word_.at(next_);
        auto* tile =
            main_->findChild<QLabel*>(QStringLiteral("alpha_%1").arg(letter.unicode() - 'A'));
        if (tile && !tile->isVisible()) {
            std::fprintf(stderr, "keys: %c taken\n", char(letter.unicode()));
            ++next_;
        } else {
            QTest::keyClick(main_, char(letter.toLower().unicode()));
        }
    }

    QString word_;
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
