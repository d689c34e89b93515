// The heights of a column of cards, and where each card stands. Heights may be guesses that are put
// right as cards come into view; all answers take a few steps, however many cards there are.
#pragma once

#include <cstdint>
#include <vector>

class CardHeights {
public:
    // Pixels, 0 and above.
    void Reset(const std::vector<int>& heights);
    void Set_Height(int row, int height);

    int Count() const { return static_cast<int>(heights.size()); }
    int Height(int row) const { return heights[static_cast<std::size_t>(row)]; }
    // Pixels above the row; for the row behind the last one that of all cards.
    std::int64_t Top(int row) const;
    std::int64_t Total() const { return Top(Count()); }
    // The card at the given pixel: the last one for what is below all, -1 without cards.
    int Row_At(std::int64_t y) const;

private:
    std::vector<int> heights;
    std::vector<std::int64_t> sums; // place i holds the sum of the lowest-bit(i) rows before row i
};
