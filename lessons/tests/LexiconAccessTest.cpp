// What the pages ask of the lexicon without a window: which characters of a word the learner
// can read, and whether they have learned a character in any category.

#include "LexiconAccess.h"
#include "LexiconWriter.h"
#include "User.h"

#include <gtest/gtest.h>

namespace {

/// 日 (id 0) and 月 (id 1); 明 is not a character of this lexicon.
Lexicon SunAndMoon()
{
    LexiconWriter writer(1);
    writer.AddCharacter(U'日', {}, {}, std::nullopt, std::nullopt);
    writer.AddCharacter(U'月', {}, {}, std::nullopt, std::nullopt);
    return Lexicon(writer.Serialize());
}

std::string Pieces(const std::vector<WordPiece>& pieces)
{
    std::string out;
    for (const WordPiece& p : pieces)
        out += (p.known ? "[" : "(") + p.text + (p.known ? "]" : ")");
    return out;
}

} // namespace

TEST(LexiconAccess, AWordIsCutWhereTheLearnersKnowledgeChanges)
{
    const Lexicon lexicon = SunAndMoon();
    const auto sunOnly = [](std::uint16_t id) { return id == 0; };
    // Kana and 々 are always known; 明 is in no category, so never learned.
    EXPECT_EQ(Pieces(SplitByKnowledge(lexicon, "日々", sunOnly)), "[日々]");
    EXPECT_EQ(Pieces(SplitByKnowledge(lexicon, "明日の月", sunOnly)), "(明)[日の](月)");
    EXPECT_EQ(Pieces(SplitByKnowledge(lexicon, "月日", {})), "(月日)");
    EXPECT_EQ(Pieces(SplitByKnowledge(lexicon, "", sunOnly)), "");
}

TEST(LexiconAccess, LearnedInAnyCategoryButNotWaitingForATest)
{
    User learner;
    learner.GetProgress(0).AddLearned(3);
    learner.GetProgress(5).AddLearned(40);
    learner.GetProgress(5).AddUntested(41);
    EXPECT_TRUE(HasLearned(learner, 3));
    EXPECT_TRUE(HasLearned(learner, 40));
    EXPECT_FALSE(HasLearned(learner, 41));
    EXPECT_FALSE(HasLearned(User(), 3));
    EXPECT_TRUE(LearnedBy(learner)(40));
}

TEST(LexiconAccess, AnOpenedLexiconIsGivenAsItIsWithNothingToTell)
{
    LexiconWriter writer(1);
    writer.AddCharacter(U'日', {}, {}, std::nullopt, std::nullopt);
    LexiconAccess access(std::make_unique<Lexicon>(writer.Serialize()));
    ASSERT_NE(access.Get(), nullptr);
    EXPECT_EQ(access.Get()->CodePoint(0), U'日');
    EXPECT_EQ(access.TakeProblem(), nullptr);
}
