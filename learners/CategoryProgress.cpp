#include "CategoryProgress.h"

#include <algorithm>
#include <stdexcept>

std::uint16_t CategoryProgress::At(const std::vector<std::uint16_t>& list, std::size_t index)
{
    if (index >= list.size())
        throw std::out_of_range("invalid vector<T> subscript");
    return list[index];
}

bool CategoryProgress::Contains(const std::vector<std::uint16_t>& list, std::uint16_t id)
{
    return std::find(list.begin(), list.end(), id) != list.end();
}

bool CategoryProgress::RemoveFirst(std::vector<std::uint16_t>& list, std::uint16_t id)
{
    const auto found = std::find(list.begin(), list.end(), id);
    if (found == list.end())
        return false;
    list.erase(found);
    return true;
}
