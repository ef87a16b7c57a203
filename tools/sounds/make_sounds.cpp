// Synthesises the game's sound effects frostl0.wav ... frostl13.wav.
//
//   make_sounds OUT_DIR
//
// Every sound is built from notes: a few sine partials under an envelope with a soft
// attack and a faded end, so nothing clicks. Each file is scaled to the same peak so the
// effects sit at one modest level under the game.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <numbers>
#include <string>
#include <vector>

namespace {

constexpr int kRate = 22050;
constexpr double kPeak = 0.5;       // -6 dBFS
constexpr double kEdgeFade = 0.003; // seconds faded in and out at both ends of a file
constexpr double kTwoPi = 2.0 * std::numbers::pi;

struct Partial {
    double ratio; // of the note's frequency
    double amp;
};

// A timbre: partials, and how much faster than the fundamental the upper ones die away
// (0: all alike; plucked and struck sounds lose their brightness first).
struct Timbre {
    std::vector<Partial> partials;
    double damping = 0.0;
};

struct Note {
    double start;       // seconds
    double length;      // seconds, release included
    double freq;        // Hz at the start
    double freqEnd = 0; // Hz at the end, for a slide; 0 keeps the pitch
    double amp = 1.0;
    double attack = 0.005;   // seconds, raised cosine
    double decay = 0.25;     // time constant of the exponential decay, seconds
    double release = 0.02;   // seconds of fade at the end
    double vibratoRate = 0;  // Hz
    double vibratoDepth = 0; // fraction of the frequency
};

double midi(int m) { return 440.0 * std::pow(2.0, (m - 69) / 12.0); }

class Sound {
public:
    explicit Sound(double seconds) : s_(std::size_t(std::lround(seconds * kRate)), 0.0) {}

    void add(const Note& n, const Timbre& t)
    {
        const auto first = std::size_t(std::lround(n.start * kRate));
        const auto count = std::size_t(std::lround(n.length * kRate));
        const double f1 = n.freqEnd > 0 ? n.freqEnd : n.freq;
        const double fMax = std::max(n.freq, f1) * (1.0 + n.vibratoDepth);
        std::vector<double> phase(t.partials.size(), 0.0);
        for (std::size_t i = 0; i < count && first + i < s_.size(); ++i) {
            const double time = double(i) / kRate;
            const double x = double(i) / double(count);
            double f = n.freq * std::pow(f1 / n.freq, x);
            if (n.vibratoRate > 0) {
                // The vibrato grows in, as a player's would.
                f *= 1.0 + n.vibratoDepth * std::min(1.0, x * 2.0) *
                               std::sin(kTwoPi * n.vibratoRate * time);
            }
            double env = std::exp(-time / n.decay);
            if (time < n.attack) env *= 0.5 - 0.5 * std::cos(std::numbers::pi * time / n.attack);
            const double left = n.length - time;
            if (left < n.release)
                env *= 0.5 - 0.5 * std::cos(std::numbers::pi * std::max(0.0, left) / n.release);
            double v = 0;
            for (std::size_t k = 0; k < t.partials.size(); ++k) {
                const Partial& p = t.partials[k];
                if (fMax * p.ratio > 0.45 * kRate) continue; // would fold back as a false tone
                const double extra = t.damping * (p.ratio - 1.0);
                v += p.amp * std::exp(-time * extra / n.decay) * std::sin(phase[k]);
                phase[k] += kTwoPi * f * p.ratio / kRate;
            }
            s_[first + i] += n.amp * env * v;
        }
    }

    // A short burst of low-passed noise: the body of a knock. Seeded, so every build
    // writes the same bytes.
    void addKnock(double start, double length, double amp, double cutoff)
    {
        std::uint32_t seed = 0x2545F491u;
        const double a = 1.0 - std::exp(-kTwoPi * cutoff / kRate);
        double lp1 = 0, lp2 = 0;
        const auto first = std::size_t(std::lround(start * kRate));
        const auto count = std::size_t(std::lround(length * kRate));
        for (std::size_t i = 0; i < count && first + i < s_.size(); ++i) {
            seed = seed * 1664525u + 1013904223u;
            const double white = double(seed >> 8) / double(1u << 24) * 2.0 - 1.0;
            lp1 += a * (white - lp1);
            lp2 += a * (lp1 - lp2);
            const double time = double(i) / kRate;
            double env = std::exp(-time / (length * 0.25));
            const double atk = 0.002;
            if (time < atk) env *= time / atk;
            const double left = length - time;
            if (left < 0.01) env *= std::max(0.0, left) / 0.01;
            s_[first + i] += amp * env * lp2 * 4.0;
        }
    }

    // Scales to the common peak and fades both ends, so the first and last samples are
    // silent whatever the notes did.
    std::vector<std::int16_t> finish() const
    {
        std::vector<double> s = s_;
        const std::size_t fade = std::size_t(kEdgeFade * kRate);
        for (std::size_t i = 0; i < s.size(); ++i) {
            const std::size_t edge = std::min(i, s.size() - 1 - i);
            if (edge < fade) s[i] *= double(edge) / double(fade);
        }
        double peak = 0;
        for (double v : s) peak = std::max(peak, std::abs(v));
        const double gain = peak > 0 ? kPeak / peak : 0.0;
        std::vector<std::int16_t> out(s.size());
        for (std::size_t i = 0; i < s.size(); ++i)
            out[i] = std::int16_t(std::clamp(std::lround(s[i] * gain * 32767.0), -32767L, 32767L));
        return out;
    }

private:
    std::vector<double> s_;
};

// ---- timbres ----------------------------------------------------------------------------

const Timbre kBell{{{1, 1.0}, {2, 0.30}, {3, 0.10}, {4.2, 0.06}}, 1.2};
const Timbre kSoft{{{1, 1.0}, {2, 0.08}}, 0.5};
const Timbre kBrass{{{1, 1.0}, {2, 0.6}, {3, 0.42}, {4, 0.28}, {5, 0.17}, {6, 0.1}, {7, 0.06}},
                    0.15};
const Timbre kMuted{{{1, 1.0}, {2, 0.35}, {3, 0.30}, {4, 0.10}, {5, 0.10}, {7, 0.04}}, 0.1};
const Timbre kBuzz{{{1, 1.0}, {2, 0.55}, {3, 0.35}, {4, 0.2}, {5, 0.12}, {6, 0.07}}, 0.6};
const Timbre kMarimba{{{1, 1.0}, {3.98, 0.25}, {9.9, 0.06}}, 2.0};
const Timbre kPluck{{{1, 1.0}, {2, 0.45}, {3, 0.25}, {4, 0.12}, {5, 0.06}}, 0.9};
const Timbre kMusicBox{{{1, 1.0}, {2, 0.15}, {5.4, 0.05}}, 1.5};
const Timbre kFlute{{{1, 1.0}, {2, 0.12}, {3, 0.05}}, 0.0};

// ---- the sounds -------------------------------------------------------------------------

// 0: a new word begins - a bright chime rising over three notes.
Sound newWord()
{
    Sound s(0.39);
    const int notes[] = {79, 84, 88};
    for (int i = 0; i < 3; ++i)
        s.add({.start = 0.055 * i,
               .length = 0.28,
               .freq = midi(notes[i]),
               .attack = 0.003,
               .decay = 0.12,
               .release = 0.05},
              kBell);
    return s;
}

// 1: the solution shows a letter - a soft blip that lifts a little.
Sound tick()
{
    Sound s(0.07);
    s.add({.start = 0,
           .length = 0.07,
           .freq = midi(86),
           .freqEnd = midi(88),
           .attack = 0.004,
           .decay = 0.03,
           .release = 0.02},
          kSoft);
    return s;
}

// 2: the word is lost - a muted horn stepping down by semitones into a sagging last note.
Sound lost()
{
    Sound s(1.18);
    const int notes[] = {63, 62, 61};
    for (int i = 0; i < 3; ++i)
        s.add({.start = 0.21 * i,
               .length = 0.23,
               .freq = midi(notes[i]),
               .amp = 0.9,
               .attack = 0.02,
               .decay = 0.6,
               .release = 0.05},
              kMuted);
    s.add({.start = 0.63,
           .length = 0.55,
           .freq = midi(60),
           .freqEnd = midi(57),
           .attack = 0.02,
           .decay = 0.7,
           .release = 0.2,
           .vibratoRate = 5.5,
           .vibratoDepth = 0.012},
          kMuted);
    return s;
}

// 3: a miss - a short low buzz sinking in pitch over a dull knock.
Sound miss()
{
    Sound s(0.22);
    s.add({.start = 0,
           .length = 0.22,
           .freq = 130,
           .freqEnd = 75,
           .attack = 0.004,
           .decay = 0.08,
           .release = 0.04},
          kBuzz);
    s.addKnock(0, 0.06, 0.6, 400);
    return s;
}

// 4: a position is uncovered, or a field laid out - a tiny high plink.
Sound plink()
{
    Sound s(0.06);
    s.add({.start = 0,
           .length = 0.06,
           .freq = midi(91),
           .attack = 0.0015,
           .decay = 0.016,
           .release = 0.012},
          kMarimba);
    return s;
}

// 5: a player reaches eight points - a brass call up the major chord, ending on a full
// chord.
Sound fanfare()
{
    Sound s(1.30);
    struct Step {
        double at;
        double len;
        int note;
    };
    const Step steps[] = {
        {0.00, 0.12, 67}, {0.12, 0.12, 72}, {0.24, 0.12, 76}, {0.36, 0.24, 79}, {0.60, 0.12, 76}};
    for (const Step& st : steps)
        s.add({.start = st.at,
               .length = st.len,
               .freq = midi(st.note),
               .attack = 0.012,
               .decay = 0.5,
               .release = 0.03},
              kBrass);
    for (int n : {60, 64, 67, 79})
        s.add({.start = 0.72,
               .length = 0.58,
               .freq = midi(n),
               .amp = n == 79 ? 1.0 : 0.45,
               .attack = 0.015,
               .decay = 0.45,
               .release = 0.22,
               .vibratoRate = 5.0,
               .vibratoDepth = n == 79 ? 0.006 : 0.0},
              kBrass);
    return s;
}

// 6-13: a word is solved - eight little tunes, so the same one does not come every time.
struct Jingle {
    std::vector<int> notes;
    double step; // seconds from note to note
    double last; // length of the last note
    const Timbre* timbre;
    double decay;
    double vibrato = 0;
};

Sound jingle(const Jingle& j)
{
    const double total = j.step * double(j.notes.size() - 1) + j.last;
    Sound s(total);
    for (std::size_t i = 0; i < j.notes.size(); ++i) {
        const bool last = i + 1 == j.notes.size();
        s.add({.start = j.step * double(i),
               .length = last ? j.last : j.step * 1.6,
               .freq = midi(j.notes[i]),
               .attack = j.timbre == &kFlute ? 0.015 : 0.003,
               .decay = j.decay,
               .release = last ? 0.08 : 0.03,
               .vibratoRate = last ? 5.5 : 0.0,
               .vibratoDepth = last ? j.vibrato : 0.0},
              *j.timbre);
    }
    return s;
}

const Jingle kJingles[8] = {
    {{72, 76, 79, 84}, 0.075, 0.2, &kMarimba, 0.18},
    {{79, 81, 83, 86}, 0.07, 0.2, &kPluck, 0.15},
    {{76, 79, 84}, 0.09, 0.24, &kBell, 0.16},
    {{84, 79, 76, 79, 84}, 0.06, 0.18, &kMusicBox, 0.16},
    {{77, 81, 84, 89}, 0.08, 0.2, &kFlute, 0.4, 0.008},
    {{74, 81, 78, 81, 86}, 0.06, 0.18, &kPluck, 0.14},
    {{81, 85, 88, 93}, 0.065, 0.2, &kMarimba, 0.16},
    {{72, 74, 76, 79, 84}, 0.05, 0.2, &kBell, 0.14},
};

// ---- WAV --------------------------------------------------------------------------------

void put16(std::string& b, std::uint16_t v)
{
    b += char(v & 0xFF);
    b += char(v >> 8);
}

void put32(std::string& b, std::uint32_t v)
{
    for (int i = 0; i < 4; ++i) b += char((v >> (8 * i)) & 0xFF);
}

// RIFF/WAVE, one "fmt " chunk for 16-bit mono PCM and one "data" chunk; little-endian
// whatever the build machine is.
bool writeWav(const std::string& path, const std::vector<std::int16_t>& samples)
{
    const std::uint32_t dataBytes = std::uint32_t(samples.size() * 2);
    std::string b;
    b.reserve(44 + dataBytes);
    b += "RIFF";
    put32(b, 36 + dataBytes);
    b += "WAVEfmt ";
    put32(b, 16);
    put16(b, 1); // PCM
    put16(b, 1); // mono
    put32(b, kRate);
    put32(b, kRate * 2); // bytes a second
    put16(b, 2);         // bytes a sample frame
    put16(b, 16);        // bits a sample
    b += "data";
    put32(b, dataBytes);
    for (std::int16_t v : samples) put16(b, std::uint16_t(v));
    std::ofstream f(path, std::ios::binary | std::ios::trunc);
    f.write(b.data(), std::streamsize(b.size()));
    return bool(f.flush());
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_sounds OUT_DIR\n");
        return 2;
    }
    const std::string dir = argv[1];
    std::vector<Sound> sounds = {newWord(), tick(), lost(), miss(), plink(), fanfare()};
    for (const Jingle& j : kJingles) sounds.push_back(jingle(j));
    for (std::size_t n = 0; n < sounds.size(); ++n) {
        const std::string path = dir + "/frostl" + std::to_string(n) + ".wav";
        if (!writeWav(path, sounds[n].finish())) {
            std::fprintf(stderr, "make_sounds: cannot write %s\n", path.c_str());
            return 1;
        }
    }
    return 0;
}
