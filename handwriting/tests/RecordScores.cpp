// Writes the score fixture (handwriting/tests/data/scores.txt): one line per case of
// ForEachScoreCase, its name and the score's 32 bits in hexadecimal. Run by hand, only when the
// checker's scores are meant to change.

#include "FileCharacterDatabase.h"
#include "ScoreCases.h"

#include <bit>
#include <cstdio>
#include <fstream>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: record_scores DATABASE OUT\n";
        return 2;
    }
    FileCharacterDatabase db(argv[1]);
    std::ofstream out(argv[2]);
    ForEachScoreCase(db, [&](const std::string& name, float score) {
        char bits[16];
        std::snprintf(bits, sizeof bits, "%08x", std::bit_cast<std::uint32_t>(score));
        out << name << ' ' << bits << '\n';
    });
    return out ? 0 : 1;
}
