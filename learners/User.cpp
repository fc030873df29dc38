#include "User.h"

CategoryProgress& User::GetProgress(std::uint16_t categoryId)
{
    for (CategoryProgress& record : m_progress)
        if (record.CategoryId() == categoryId)
            return record;
    CategoryProgress& created = m_progress.emplace_back();
    created.SetCategoryId(categoryId);
    return created;
}
