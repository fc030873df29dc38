// Prints how a simulated learner's strokes are judged on Grade 1 and Grade 2, with the own-frame
// aid off (the checker as it is) and on, for each hand and mistake the figures are asked for.
// With --steady, how unsteady ink is judged with and without steadying: characters written
// exactly along their paths, points every 2 px, with jitter on every point.
// With --orders, how the other stroke orders are judged over the whole database.
//   copy_simulation DATABASE [SEEDS] [--steady|--orders]

#include "CopySimulation.h"
#include "FileCharacterDatabase.h"

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

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
    if (argc > 3 && std::string(argv[3]) == "--orders") {
        std::vector<std::uint16_t> all;
        for (std::uint16_t c = 0; c < database.CategoryCount(); ++c)
            all.push_back(c);
        const OrderFigures f = RunOrders(database, all, 200, 1);
        std::printf("other stroke orders written in their own order: %d, strokes accepted with the aid %d of %d "
                    "(%.2f %%); accepted whole without it: %d\n",
            f.variants, f.variantStrokesAccepted, f.variantStrokes, 100.0 * f.variantStrokesAccepted / f.variantStrokes,
            f.variantsWholeWithout);
        std::printf("standard order: %d of %d strokes judged alike with the aid and without\n", f.standardSameVerdicts,
            f.standardStrokes);
        std::printf("two consecutive strokes swapped (no other order has the swap): refused %d of %d with the aid, "
                    "%d without\n",
            f.swapsRefusedOn, f.swaps, f.swapsRefusedOff);
        return 0;
    }
    if (argc > 3 && std::string(argv[3]) == "--steady") {
        std::cout << "Grade 1 and Grade 2 written along their paths, points every 2 px, seeds 1 to " << count << '\n';
        for (float jitter : {0.3f, 0.75f, 1.5f, 3.0f}) {
            Hand exact;
            exact.characterOffset = 0;
            exact.characterScale = 0;
            exact.strokeOffset = 0;
            exact.wobble = 0;
            exact.pointNoise = jitter;
            exact.pointSpacing = 2;
            for (float width : {0.0f, 4.0f, 6.0f, 8.0f, 12.0f}) {
                const Figures f = Run(database, {0, 1}, exact, Mistake::None, true, seeds, width);
                const Figures moved = Run(database, {0, 1}, exact, Mistake::OneStrokeMoved, true, seeds, width);
                const Figures reversed = Run(database, {0, 1}, exact, Mistake::OneStrokeReversed, true, seeds, width);
                std::printf("  jitter %.2f px, steadied over %.0f px: %5.1f %% of characters accepted whole, "
                            "%5.1f %% of strokes at the first try (refusals: %d place, %d shape, %d other); "
                            "one stroke moved 15 %%: refused in %5.1f %%; one stroke backwards: refused in %5.1f %%\n",
                    jitter, width, 100 * f.WholeShare(), 100 * f.FirstTryShare(), f.placeRefusals, f.shapeRefusals,
                    f.otherRefusals, 100 * moved.RefusedShare(), 100 * reversed.RefusedShare());
            }
        }
        return 0;
    }
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
