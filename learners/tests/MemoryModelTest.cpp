// The memory model against the reference implementation: every state of 40 grade sequences with
// varied gaps, as ts-fsrs computed them (tools/fixtures/fsrs_reference.mjs wrote the file).

#include "MemoryModel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Step {
    int gap;
    int grade;
    double stability;
    double difficulty;
    double recall; ///< -1 for the first review
    int interval;
};

std::map<int, std::vector<Step>> ReadReference()
{
    std::ifstream file(FSRS_REFERENCE);
    std::map<int, std::vector<Step>> sequences;
    std::string line;
    while (std::getline(file, line)) {
        if (line.empty() || line[0] == '#')
            continue;
        std::istringstream fields(line);
        int sequence = 0, step = 0;
        Step s{};
        std::string recall;
        fields >> sequence >> step >> s.gap >> s.grade >> s.stability >> s.difficulty >> recall >> s.interval;
        s.recall = recall == "-" ? -1 : std::stod(recall);
        sequences[sequence].push_back(s);
    }
    return sequences;
}

::testing::AssertionResult Near(double value, double reference)
{
    if (std::abs(value - reference) <= 1e-4 * std::abs(reference))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << value << " against the reference's " << reference;
}

} // namespace

TEST(MemoryModel, EveryStateAgreesWithTheReferenceImplementation)
{
    const auto sequences = ReadReference();
    ASSERT_GE(sequences.size(), 30u);
    const MemoryModel model(0.90, 365);
    std::size_t steps = 0, sameDay = 0, lapses = 0;
    for (const auto& [n, sequence] : sequences) {
        MemoryModel::Memory memory;
        for (std::size_t i = 0; i < sequence.size(); ++i) {
            const Step& s = sequence[i];
            const auto grade = static_cast<MemoryModel::Grade>(s.grade);
            if (i == 0) {
                memory = model.First(grade);
            } else {
                EXPECT_TRUE(Near(model.Recall(s.gap, memory.stability), s.recall)) << "sequence " << n << " step " << i;
                memory = model.Next(memory, s.gap, grade);
                sameDay += s.gap == 0;
                lapses += s.grade == 1;
            }
            EXPECT_TRUE(Near(memory.stability, s.stability)) << "sequence " << n << " step " << i;
            EXPECT_TRUE(Near(memory.difficulty, s.difficulty)) << "sequence " << n << " step " << i;
            EXPECT_EQ(model.Interval(memory.stability), s.interval) << "sequence " << n << " step " << i;
            ++steps;
        }
    }
    // The file exercises what it should: same-day reviews and lapses among many steps.
    EXPECT_GT(steps, 150u);
    EXPECT_GT(sameDay, 5u);
    EXPECT_GT(lapses, 10u);
}

TEST(MemoryModel, RetentionAndMaximumIntervalShapeTheIntervals)
{
    const MemoryModel usual(0.90, 365);
    // At 90 % retention the interval is the stability itself.
    EXPECT_EQ(usual.Interval(10.0), 10);
    EXPECT_NEAR(usual.Recall(10, 10.0), 0.9, 1e-6);
    // Higher retention, shorter intervals; the maximum caps them.
    EXPECT_LT(MemoryModel(0.97, 365).Interval(100.0), MemoryModel(0.80, 365).Interval(100.0));
    EXPECT_EQ(MemoryModel(0.80, 30).Interval(1000.0), 30);
    EXPECT_EQ(usual.Interval(0.01), 1);
    // Out of the offered range: clamped.
    EXPECT_DOUBLE_EQ(MemoryModel(0.5, 5).Retention(), MemoryModel::LowestRetention);
    EXPECT_EQ(MemoryModel(0.99, 99999).MaximumInterval(), MemoryModel::LongestMaximumInterval);
}
