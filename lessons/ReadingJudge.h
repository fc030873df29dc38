#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// Judges the picks of one reading question. The ON and the KUN choices are judged apart: a set
/// takes picks until its right reading is picked, and is then closed; a wrong pick anywhere makes
/// the answer imperfect. The question is answered when both sets are.
class ReadingJudge {
public:
    enum class Set { On, Kun };
    enum class Outcome {
        Ignored, ///< the set is already answered, or there is no such choice
        Wrong,
        Right,
    };

    /// Starts a question: the right ON and KUN readings ("" for none) and the choices offered.
    void Start(
        std::string on, std::string kun, std::vector<std::string> onChoices, std::vector<std::string> kunChoices);
    /// Judges a pick of choice `index` in `set`.
    Outcome Pick(Set set, std::size_t index);

    /// Both sets are answered.
    bool IsAnswered() const { return m_sets[0].right && m_sets[1].right; }
    /// No wrong pick so far.
    bool IsPerfect() const { return m_perfect; }
    /// The set's right reading has been picked.
    bool IsRight(Set set) const { return Of(set).right; }
    /// The last choice picked in the set, or -1.
    int Selected(Set set) const { return Of(set).selected; }

private:
    struct SetState {
        std::string answer;
        std::vector<std::string> choices;
        int selected = -1;
        bool right = false;
    };
    const SetState& Of(Set set) const { return m_sets[set == Set::On ? 0 : 1]; }

    SetState m_sets[2];
    bool m_perfect = true;
};
