#include "mainwindow/board_view.h"

#include "ui_main_window.h"
#include "widgets/picture_button.h"
#include "widgets/pictures.h"
#include "widgets/spoken_notice.h"
#include "widgets/twips.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace mainwindow {
namespace {

QColor fromBgr(uint32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

// A tile is pressed like a button, and a screen reader can press it.
class TileAccessible : public QAccessibleWidget {
public:
    explicit TileAccessible(QWidget* tile) : QAccessibleWidget(tile, QAccessible::Button) {}
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override
    {
        if (action != pressAction()) return;
        QMetaObject::invokeMethod(widget()->window(), "tileClicked", Qt::QueuedConnection,
                                  Q_ARG(int, widget()->property("tile").toInt()));
    }
};

// A new name is news to a screen reader: only a changed one is set.
void setName(QWidget* widget, const QString& name)
{
    if (widget->accessibleName() != name) widget->setAccessibleName(name);
}

QAccessibleInterface* tileFactory(const QString& className, QObject* object)
{
    if (className != QLatin1String("QLabel") || !object->property("tile").isValid()) return nullptr;
    return new TileAccessible(static_cast<QWidget*>(object));
}

void moveTwips(QWidget* w, long long left, long long top)
{
    w->move(widgets::twipsToPixels(double(left)), widgets::twipsToPixels(double(top)));
}

} // namespace

BoardView::BoardView(Ui::MainWindow& ui, const core::Game& game, qreal devicePixelRatio)
    : ui_(ui), game_(game), dpr_(devicePixelRatio)
{
    QWidget* window = ui_.client->window();
    for (int i = 0; i < core::kTiles; ++i)
        alpha_[i] = window->findChild<QLabel*>(QStringLiteral("alpha_%1").arg(i));
    for (int i = 0; i < core::kStages; ++i)
        B_Folge_[i] = window->findChild<QLabel*>(QStringLiteral("B_Folge_%1").arg(i));
    picButs_ = {ui_.PicBut_0, ui_.PicBut_1, ui_.PicBut_2};
    Spieler_[0] = ui_.Spieler_0;
    Punkt_[0] = ui_.Punkt_0;
    Feld_.push_back(ui_.Feld_0);
    loadPictures(dpr_);
    notice_ = new widgets::SpokenNotice(ui_.client);
}

void BoardView::fitToPanel()
{
    const double panelWidth = widgets::pixelsToTwips(ui_.Picture1->width());
    if (panelWidth != kPicture1Width) {
        const float factor = float(panelWidth / kPicture1Width);
        for (int i = 0; i < core::kLetters; ++i)
            alpha_[i]->move(int(alpha_[i]->x() * factor), int(alpha_[i]->y() * factor));
    }
    B_Folge_[0]->resize(B_Folge_[1]->size());
}

void BoardView::loadPictures(qreal dpr)
{
    // Before any tile is named: naming makes its interface.
    static const bool factory = (QAccessible::installFactory(tileFactory), true);
    Q_UNUSED(factory);
    for (int i = 0; i < core::kTiles; ++i) {
        tilePictures_[i] = widgets::picture(QStringLiteral("alpha%1").arg(i), dpr);
        alpha_[i]->setPixmap(tilePictures_[i]);
        alpha_[i]->setCursor(Qt::PointingHandCursor);
        alpha_[i]->setProperty("tile", i);
        alpha_[i]->setAccessibleName(Announcer::tileName(i));
    }
    const QString names[3] = {tr("Start game"), tr("End game"), tr("Tip")};
    for (int i = 0; i < 3; ++i) picButs_[i]->setAccessibleName(names[i]);
    covered_ = widgets::picture(QStringLiteral("feld0"), dpr);
    ui_.Feld_0->setPixmap(covered_);
    ui_.Picture1->setPixmap(widgets::picture(QStringLiteral("picture1"), dpr));
    symbols_ = {widgets::picture(QStringLiteral("symbol0"), dpr),
                widgets::picture(QStringLiteral("symbol1"), dpr)};
    ui_.Symbol_0->setPixmap(symbols_[0]);
    ui_.Symbol_1->setPixmap(symbols_[1]);
    ui_.Punkt_0->setPixmap(widgets::picture(QStringLiteral("punkt0"), dpr));
    shownSymbol_[0] = core::Motif::Frostel;
    for (int i = 0; i < 3; ++i)
        picButs_[i]->setPicture(widgets::picture(QStringLiteral("picbut%1").arg(i), dpr));
    QPalette pal = ui_.PicBut_3->palette();
    pal.setColor(QPalette::Button, QColor(0, 128, 128));
    pal.setColor(QPalette::ButtonText, Qt::white);
    ui_.PicBut_3->setPalette(pal);
    ui_.PicBut_3->setAutoFillBackground(true);
}

void BoardView::syncFields()
{
    const auto& fields = game_.board.Feld;
    for (size_t i = fields.size(); i < Feld_.size(); ++i) delete Feld_[i];
    Feld_.resize(std::max<size_t>(1, std::min(Feld_.size(), fields.size())));
    for (size_t i = 0; i < fields.size(); ++i) {
        const core::Field& f = fields[i];
        if (i > 0 && !f.loaded) {
            if (i < Feld_.size() && Feld_[i]) {
                delete Feld_[i];
                Feld_[i] = nullptr;
            }
            continue;
        }
        if (i >= Feld_.size()) Feld_.resize(i + 1, nullptr);
        QLabel*& label = Feld_[i];
        if (!label) {
            label = new QLabel(ui_.client);
            label->resize(ui_.Feld_0->size());
            label->setPixmap(covered_);
            label->setProperty("picture", -1);
        }
        moveTwips(label, f.Left, f.Top);
        if (label->property("picture").toInt() != f.picture) {
            label->setPixmap(f.picture < 0 ? covered_ : tilePictures_[f.picture]);
            label->setProperty("picture", f.picture);
        }
        label->setVisible(i > 0 && f.Visible);
        if (i > 0) {
            setName(label,
                    Announcer::fieldName(int(i), int(fields.size()) - 1, Announcer::shown(f)));
        }
    }
}

void BoardView::sync()
{
    syncTiles();
    syncSeries(dpr_);
    syncPlayers();
    syncPoints();
    syncFields();
    syncCommands();
    announce();
}

void BoardView::announce()
{
    const Seen now = Announcer::look(game_);
    const QStringList news = Announcer::changes(heard_, now, game_);
    heard_ = now;
    if (!news.isEmpty()) notice_->say(news);
}

void BoardView::syncTiles()
{
    for (int i = 0; i < core::kTiles; ++i) {
        const core::Tile& t = game_.board.alpha[i];
        alpha_[i]->setVisible(t.Visible);
        alpha_[i]->setCursor(t.Enabled ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }
}

void BoardView::syncSeries(qreal dpr)
{
    const core::Board& b = game_.board;
    if (b.seriesMotif && b.seriesMotif != shownSeries_) {
        shownSeries_ = b.seriesMotif;
        stageLoaded_.fill(false);
    }
    // Only the pictures on show are held: one stage or two, not twenty.
    const QString stem = shownSeries_ == core::Motif::AppleTree ? QStringLiteral("apfelbaum%1")
                                                                : QStringLiteral("eisfigur%1");
    for (int s = 0; s < core::kStages; ++s) {
        if (b.B_Folge_Visible[s] && !stageLoaded_[s] && shownSeries_) {
            B_Folge_[s]->setPixmap(widgets::picture(stem.arg(s), dpr));
            stageLoaded_[s] = true;
        } else if (!b.B_Folge_Visible[s] && stageLoaded_[s]) {
            B_Folge_[s]->clear();
            stageLoaded_[s] = false;
        }
    }
    if (b.B_Folge0_Height != shownHeight_) {
        B_Folge_[0]->resize(B_Folge_[1]->width(), widgets::twipsToPixels(b.B_Folge0_Height));
        shownHeight_ = b.B_Folge0_Height;
    }
    for (int s = 0; s < core::kStages; ++s) {
        B_Folge_[s]->setVisible(b.B_Folge_Visible[s]);
        setName(B_Folge_[s], Announcer::pictureName(game_));
    }
}

void BoardView::syncPlayers()
{
    for (int i = 0; i < core::kPlayers; ++i) {
        const core::PlayerLabel& p = game_.board.Spieler[i];
        if (!p.loaded) continue;
        QLabel*& label = Spieler_[i];
        if (!label) {
            label = new QLabel(ui_.client);
            label->setFont(ui_.Spieler_0->font());
            label->setFrameStyle(ui_.Spieler_0->frameStyle());
            label->setAlignment(ui_.Spieler_0->alignment());
            label->setAutoFillBackground(true);
            label->resize(ui_.Spieler_0->size());
        }
        moveTwips(label, p.Left, p.Top);
        label->setText(p.Caption);
        setName(label, Announcer::playerName(game_, i));
        QPalette pal = label->palette();
        pal.setColor(QPalette::Window, fromBgr(p.BackColor));
        pal.setColor(QPalette::WindowText, fromBgr(p.ForeColor));
        label->setPalette(pal);
        label->setVisible(p.Visible);
    }
}

void BoardView::syncPoints()
{
    for (int k = 0; k < core::kSymbols; ++k) {
        const core::PointSymbol& s = game_.board.Punkt[k];
        if (!s.loaded) continue;
        QLabel*& label = Punkt_[k];
        if (!label) {
            label = new QLabel(ui_.client);
            label->resize(ui_.Punkt_0->size());
        }
        moveTwips(label, s.Left, s.Top);
        if (shownSymbol_[k] != s.symbol) {
            label->setPixmap(symbols_[int(s.symbol)]);
            shownSymbol_[k] = s.symbol;
        }
        label->setVisible(s.Visible);
    }
}

void BoardView::syncCommands()
{
    const core::Board& b = game_.board;
    ui_.tip->setEnabled(b.tip_Enabled);
    ui_.weiter->setEnabled(b.weiter_Enabled);
    for (int i = 0; i < 3; ++i) picButs_[i]->setVisible(b.PicBut_Visible[i]);
    ui_.PicBut_3->setVisible(b.PicBut_Visible[3]);
}

QLabel* BoardView::fieldLabel(int i) const
{
    return i >= 0 && size_t(i) < Feld_.size() ? Feld_[i] : nullptr;
}

QWidget* BoardView::picBut(int i) const
{
    return i >= 0 && i < 3 ? static_cast<QWidget*>(picButs_[i]) : ui_.PicBut_3;
}

void BoardView::arrange(const Layout& l)
{
    for (QLabel* b : B_Folge_) moveTwips(b, l.bFolge.left, l.bFolge.top);
    for (int i = 0; i < 3; ++i) moveTwips(picButs_[i], l.picBut[i].left, l.picBut[i].top);
    moveTwips(ui_.Picture1, l.picture1.left, l.picture1.top);
    moveTwips(ui_.PicBut_3, l.picBut3.left, l.picBut3.top);
    syncFields();
}

} // namespace mainwindow
