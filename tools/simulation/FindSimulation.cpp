// How often a character written freehand is found: every character of the database copied by
// the simulated hand (CopySimulation), once per seed, recognized, and the rank of the character
// meant counted (first; among the ten shown).
//   find_simulation DATABASE LEXICON [SEEDS] [--loose] [--missing-last] [--model PATH | --no-model]
// SEEDS is a comma-separated list (default 1,2,3). --loose: the looser hand (σ 15 px, 10 %,
// 6 px); --missing-last: each character written without its last stroke.

#include "CopySimulation.h"
#include "FileCharacterDatabase.h"
#include "InkRecognizer.h"
#include "Lexicon.h"

#include <chrono>
#include <cstdio>
#include <sstream>
#include <string>

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: find_simulation DATABASE LEXICON [SEEDS] [--loose] [--missing-last] "
                             "[--model PATH | --no-model]\n");
        return 2;
    }
    std::vector<std::uint32_t> seeds{1, 2, 3};
    copysimulation::Hand hand; // the careful copy: σ 12 px, 7 %, 5 px, wobble 3 px
    bool missingLast = false, model = true;
    std::string modelPath = InkRecognizer::DefaultModel;
    for (int i = 3; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--loose") {
            hand.characterOffset = 15;
            hand.characterScale = 0.10f;
            hand.strokeOffset = 6;
        } else if (arg == "--missing-last") {
            missingLast = true;
        } else if (arg == "--no-model") {
            model = false;
        } else if (arg == "--model" && i + 1 < argc) {
            modelPath = argv[++i];
        } else {
            seeds.clear();
            std::stringstream list(arg);
            for (std::string item; std::getline(list, item, ',');)
                seeds.push_back(static_cast<std::uint32_t>(std::stoul(item)));
        }
    }
    FileCharacterDatabase database(argv[1]);
    database.Preload(nullptr);
    const Lexicon lexicon(argv[2]);
    InkRecognizer recognizer(database, lexicon);
    std::string error;
    if (model && !recognizer.LoadModel(modelPath, error)) {
        std::fprintf(stderr, "find_simulation: %s: %s\n", modelPath.c_str(), error.c_str());
        return 1;
    }
    long tried = 0, first = 0, ten = 0;
    double seconds = 0;
    for (std::uint32_t seed : seeds) {
        std::mt19937 random(seed);
        for (std::uint16_t id = 0; id < database.CharacterCount(); ++id) {
            if (!database.CharacterExists(id))
                continue;
            const auto element = database.LoadElement(database.LoadCharacter(id)->ElementId());
            const Form& form = element->GetForm(0);
            std::vector<StrokePath> ink = copysimulation::FreehandCopy(form, hand, random);
            if (missingLast) {
                if (ink.size() < 2)
                    continue;
                ink.pop_back();
            }
            const auto start = std::chrono::steady_clock::now();
            const auto found = recognizer.Recognize(ink, 10);
            seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
            ++tried;
            for (std::size_t r = 0; r < found.size(); ++r)
                if (found[r].id == id) {
                    first += r == 0;
                    ++ten;
                    break;
                }
        }
    }
    std::printf("%ld characters written (%zu seeds%s%s%s): first %.2f %%, among the ten %.2f %%, %.2f ms a look-up\n",
        tried, seeds.size(), missingLast ? ", last stroke missing" : "", hand.strokeOffset > 5 ? ", loose hand" : "",
        model ? "" : ", without the model", 100.0 * first / tried, 100.0 * ten / tried, 1000 * seconds / tried);
    return 0;
}
