#include "ReadingChoices.h"

#include "CharacterDatabase.h"

#include <algorithm>

namespace {

std::string TextOf(const char* text)
{
    return text ? std::string(text) : std::string();
}

void Fill(std::vector<std::string>& list, const std::string& right, CharacterDatabase& database, Random15& random,
    std::size_t buttons, int maxDraws, const char* (Character::*reading)() const)
{
    list.clear();
    list.push_back(right);
    const int count = database.CharacterCount();
    int draws = 0;
    while (list.size() < buttons && draws < maxDraws) {
        ++draws;
        // A uniform draw from 0 to the count: the one past the last id never exists.
        const int code = random.Uniform(0, count);
        if (code > 0xFFFF || !database.CharacterExists(static_cast<std::uint16_t>(code)))
            continue;
        const std::string text = TextOf((*database.LoadCharacter(static_cast<std::uint16_t>(code)).*reading)());
        if (std::find(list.begin(), list.end(), text) != list.end())
            continue;
        const int place = random.Uniform(0, static_cast<int>(list.size()));
        list.insert(list.begin() + place, text);
    }
}

} // namespace

ReadingChoices ReadingChoices::Build(
    CharacterDatabase& database, const Character& character, Random15& random, std::size_t buttons, int maxDraws)
{
    ReadingChoices choices;
    Fill(choices.on, TextOf(character.OnReading()), database, random, buttons, maxDraws, &Character::OnReading);
    Fill(choices.kun, TextOf(character.KunReading()), database, random, buttons, maxDraws, &Character::KunReading);
    return choices;
}
