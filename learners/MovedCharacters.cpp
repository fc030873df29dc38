#include "MovedCharacters.h"

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"

#include <unordered_map>

bool FollowMovedCharacters(User& learner, const std::vector<std::vector<std::uint16_t>>& categoryMembers)
{
    std::unordered_map<std::uint16_t, std::uint16_t> home; // id -> the category that holds it
    for (std::size_t c = 0; c < categoryMembers.size(); ++c)
        for (std::uint16_t id : categoryMembers[c])
            home.emplace(id, static_cast<std::uint16_t>(c));
    struct Move {
        std::uint16_t from, to, id;
        bool learned;
    };
    std::vector<Move> moves;
    for (const CategoryProgress& record : learner.Progress()) {
        auto check = [&](const std::vector<std::uint16_t>& list, bool learned) {
            for (std::uint16_t id : list) {
                const auto found = home.find(id);
                if (found != home.end() && found->second != record.CategoryId())
                    moves.push_back({record.CategoryId(), found->second, id, learned});
            }
        };
        check(record.Learned(), true);
        check(record.Untested(), false);
    }
    for (const Move& move : moves) {
        // The new category's record first: making it may move the others, the old one is there.
        CategoryProgress& to = learner.GetProgress(move.to);
        CategoryProgress& from = learner.GetProgress(move.from);
        if (move.learned) {
            from.RemoveLearned(move.id);
            if (!to.IsLearned(move.id))
                to.AddLearned(move.id);
        } else {
            from.RemoveUntested(move.id);
            if (!to.IsUntested(move.id))
                to.AddUntested(move.id);
        }
    }
    return !moves.empty();
}

bool FollowMovedCharacters(User& learner, CharacterDatabase& database)
{
    std::vector<std::vector<std::uint16_t>> members;
    try {
        for (std::uint16_t c = 0; c < database.CategoryCount(); ++c)
            members.push_back(database.LoadCategory(c)->Characters());
    } catch (const ZavorenCommon::DatabaseLoadException&) {
        return false;
    }
    return FollowMovedCharacters(learner, members);
}
