#include "mainwindow/layout.h"

#include "core/game.h"

namespace mainwindow {
namespace {

constexpr int kBFolgeTop = 360, kBFolgeWidth = 2400;
constexpr int kPicButWidth = 550;
constexpr int kPicButTops[3] = {480, 1320, 2160};
constexpr int kPicBut3Width = 1995;
constexpr int kGapBelowWord = 350;

} // namespace

Layout layoutFor(double W, double H, int bFolge0Height, int letters)
{
    using core::idiv;
    Layout l;
    const double bLeft = W * 0.6;
    l.bFolge = {core::cint(bLeft), kBFolgeTop};
    for (int i = 0; i < 3; ++i)
        l.picBut[i] = {idiv(bLeft + W + kBFolgeWidth - kPicButWidth, 2), kPicButTops[i]};
    l.picture1 = {idiv(W - kPicture1Width, 2), idiv(H - kBFolgeTop + bFolge0Height, 2)};
    const long long feldTop = idiv(double(l.picture1.top - kBFolgeTop + bFolge0Height), 2);
    for (int i = 0; i <= letters; ++i)
        l.feld.push_back(
            {idiv(W - letters * core::kTilePitch, 2) + i * core::kTilePitch - core::kTilePitch,
             feldTop});
    l.picBut3 = {idiv(W - kPicBut3Width, 2), feldTop + core::kTileHeight + kGapBelowWord};
    return l;
}

} // namespace mainwindow
