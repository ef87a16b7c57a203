// Figures for the word list: reading a 100,000-word file, and one draw from such a list.
//   cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release
//   cmake --build build-release --target bench_core && build-release/bench/bench_core
#include "core/game.h"
#include "vocabulary/word_file.h"

#include <QDir>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <random>

namespace {

constexpr int kWords = 100000;

// Waits cost nothing here: the draw is measured without them.
class NullToolkit : public core::Toolkit {
public:
    void serveEvents() override {}
    void waitForEvents() override {}
    void wait(double) override {}
    double clock() override { return 0; }
    void seedRandom(double) override {}
    double random() override { return dist(gen); }
    int msgBox(const QString&, int, const QString&) override { return core::kAnswerOk; }
    void playSound(int) override {}
    double textWidth(const QString& t) override { return t.size() * 120.0; }
    double windowWidth() override { return 9600; }
    void endProgram() override {}

private:
    std::mt19937_64 gen{42};
    std::uniform_real_distribution<double> dist{0.0, 1.0};
};

QStringList generatedWords()
{
    std::mt19937 gen(7);
    std::uniform_int_distribution<int> len(3, 20), letter(0, 25);
    QStringList words;
    words.reserve(kWords);
    for (int i = 0; i < kWords; ++i) {
        QString w;
        for (int n = len(gen); n > 0; --n) w += QChar(u'a' + letter(gen));
        words << w;
    }
    return words;
}

const QString& wordFile()
{
    static QTemporaryDir dir;
    static const QString path = [] {
        const QString p = dir.filePath("big.dat");
        vocabulary::writeWordFile(p, generatedWords());
        return p;
    }();
    return path;
}

void BM_ReadWordFile(benchmark::State& state)
{
    const QString& path = wordFile();
    qsizetype n = 0;
    for (auto _ : state) {
        auto r = vocabulary::readWordFile(path);
        n = r.words.size();
        benchmark::DoNotOptimize(r);
    }
    state.counters["words"] = double(n);
    state.counters["MB"] = double(QFileInfo(path).size()) / 1e6;
}
BENCHMARK(BM_ReadWordFile)->Unit(benchmark::kMillisecond);

void BM_Draw(benchmark::State& state)
{
    NullToolkit tk;
    core::Game game(tk);
    game.List1 = generatedWords();
    game.einst.wiederh = {state.range(0) == 0, state.range(0) != 0};
    for (auto _ : state) {
        game.NeuesWort();
        if (game.List1.size() < kWords) game.List1.append(game.g.Wort); // keep it full
    }
    state.SetLabel(state.range(0) == 0 ? "all words" : "words not guessed");
}
BENCHMARK(BM_Draw)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
