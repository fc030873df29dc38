#pragma once

#include <cstdint>
#include <vector>

/// One learner's lists for one category: characters learned (passed in a test) and characters
/// taught in a lesson but not yet tested. Neither list is sorted or kept free of duplicates.
class CategoryProgress {
public:
    /// The category; 65535 until set.
    std::uint16_t CategoryId() const { return m_categoryId; }
    /// Sets the category.
    void SetCategoryId(std::uint16_t id) { m_categoryId = id; }

    /// Length of the learned list.
    std::size_t LearnedCount() const { return m_learned.size(); }
    /// Length of the untested list.
    std::size_t UntestedCount() const { return m_untested.size(); }
    /// Learned id at a position; throws std::out_of_range "invalid vector<T> subscript" past the end.
    std::uint16_t LearnedAt(std::size_t index) const { return At(m_learned, index); }
    /// Untested id at a position; throws std::out_of_range "invalid vector<T> subscript" past the end.
    std::uint16_t UntestedAt(std::size_t index) const { return At(m_untested, index); }
    /// Whether the id is in the learned list.
    bool IsLearned(std::uint16_t id) const { return Contains(m_learned, id); }
    /// Whether the id is in the untested list.
    bool IsUntested(std::uint16_t id) const { return Contains(m_untested, id); }
    /// Appends to the learned list.
    void AddLearned(std::uint16_t id) { m_learned.push_back(id); }
    /// Appends to the untested list.
    void AddUntested(std::uint16_t id) { m_untested.push_back(id); }
    /// Removes the first occurrence from the learned list, if any.
    void RemoveLearned(std::uint16_t id) { RemoveFirst(m_learned, id); }
    /// Removes the first occurrence from the untested list, if any.
    void RemoveUntested(std::uint16_t id) { RemoveFirst(m_untested, id); }
    /// A learned character sent back for testing goes to the front of the untested list, so it
    /// is tested first. Nothing happens when it was not learned.
    void MoveToUntested(std::uint16_t id)
    {
        if (RemoveFirst(m_learned, id))
            m_untested.insert(m_untested.begin(), id);
    }
    /// A character that passed its test joins the end of the learned list. Nothing happens when
    /// it was not untested. (Deliberately not the mirror image of MoveToUntested.)
    void MoveToLearned(std::uint16_t id)
    {
        if (RemoveFirst(m_untested, id))
            m_learned.push_back(id);
    }
    /// The learned list in order.
    const std::vector<std::uint16_t>& Learned() const { return m_learned; }
    /// The untested list in order.
    const std::vector<std::uint16_t>& Untested() const { return m_untested; }

private:
    static std::uint16_t At(const std::vector<std::uint16_t>& list, std::size_t index);
    static bool Contains(const std::vector<std::uint16_t>& list, std::uint16_t id);
    static bool RemoveFirst(std::vector<std::uint16_t>& list, std::uint16_t id);

    std::uint16_t m_categoryId = 0xFFFF;
    std::vector<std::uint16_t> m_learned;
    std::vector<std::uint16_t> m_untested;
};
