#include "notes/card_heights.h"

#include <algorithm>
#include <bit>

void CardHeights::Reset(const std::vector<int>& newHeights) {
    heights = newHeights;
    sums.assign(heights.size() + 1, 0);
    for (std::size_t place = 1; place < sums.size(); ++place) {
        sums[place] += heights[place - 1];
        const std::size_t next = place + (place & (~place + 1));
        if (next < sums.size())
            sums[next] += sums[place];
    }
}

void CardHeights::Set_Height(int row, int height) {
    const auto index = static_cast<std::size_t>(row);
    const int change = height - heights[index];
    heights[index] = height;
    for (std::size_t place = index + 1; place < sums.size(); place += place & (~place + 1))
        sums[place] += change;
}

std::int64_t CardHeights::Top(int row) const {
    std::int64_t top = 0;
    for (auto place = static_cast<std::size_t>(row); place > 0; place &= place - 1)
        top += sums[place];
    return top;
}

int CardHeights::Row_At(std::int64_t y) const {
    std::size_t before = 0; // rows that end at or above y
    std::int64_t left = y;
    for (std::size_t step = std::bit_floor(std::max(sums.size(), std::size_t{1})); step > 0;
         step /= 2) {
        if (before + step < sums.size() && sums[before + step] <= left) {
            before += step;
            left -= sums[before];
        }
    }
    return std::min(static_cast<int>(before), Count() - 1);
}
