// Prints how a simulated learner's strokes are judged on Grade 1 and Grade 2, with the own-frame
// aid off (the checker as it is) and on, for each hand and mistake the figures are asked for.
//   copy_simulation DATABASE [SEEDS]

#include "CopySimulation.h"
#include "FileCharacterDatabase.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>

using namespace copysimulation;

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::cerr << "usage: copy_simulation DATABASE [SEEDS]\n";
        return 2;
    }
    FileCharacterDatabase database(argv[1]);
    database.Preload(nullptr);
    const int count = argc > 2 ? std::atoi(argv[2]) : 5;
    std::vector<std::uint32_t> seeds;
    for (int i = 1; i <= count; ++i)
        seeds.push_back(static_cast<std::uint32_t>(i));
    const Hand careful; // σ 12 px, 7 %, 5 px, 3 px wobble
    Hand looser = careful;
    looser.characterOffset = 15;
    looser.characterScale = 0.10f;
    looser.strokeOffset = 6;
    Hand inPlace = careful; // at the model's place and size: only the strokes' own departures
    inPlace.characterOffset = 0;
    inPlace.characterScale = 0;
    Hand tracing; // over the model: each stroke within 2 px, a 2 px waver
    tracing.characterOffset = 0;
    tracing.characterScale = 0;
    tracing.strokeOffset = 2;
    tracing.wobble = 2;
    Hand tracingNoisy = tracing; // and a shaking hand: 2 px of noise on every point
    tracingNoisy.strokeOffset = 0;
    tracingNoisy.wobble = 0;
    tracingNoisy.pointNoise = 2;
    struct Case {
        const char* name;
        Hand hand;
        Mistake mistake;
    } cases[] = {
        {"careful freehand copy (12 px, 7 %, 5 px, 3 px)", careful, Mistake::None},
        {"looser freehand copy (15 px, 10 %, 6 px, 3 px)", looser, Mistake::None},
        {"one stroke moved 15 % in a copy at the model's place", inPlace, Mistake::OneStrokeMoved},
        {"one stroke moved 15 % in a careful freehand copy", careful, Mistake::OneStrokeMoved},
        {"one stroke moved 15 % in a traced copy (2 px offset and waver)", tracing, Mistake::OneStrokeMoved},
        {"whole character moved 30 % (careful hand)", careful, Mistake::CharacterMoved},
        {"half size in a corner (careful hand)", careful, Mistake::HalfSizeInACorner},
        {"tracing over the model (2 px offset and waver)", tracing, Mistake::None},
        {"tracing over the model (2 px noise on every point)", tracingNoisy, Mistake::None},
    };
    std::cout << "Grade 1 and Grade 2, seeds 1 to " << count << '\n';
    for (const Case& c : cases) {
        std::cout << c.name << '\n';
        for (bool own : {false, true}) {
            const Figures f = Run(database, {0, 1}, c.hand, c.mistake, own, seeds);
            std::cout << (own ? "  own frame:  " : "  checker:    ") << Describe(f, c.mistake) << '\n';
        }
    }
    return 0;
}
