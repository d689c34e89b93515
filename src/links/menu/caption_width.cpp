#include "links/menu/caption_width.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace {

constexpr qsizetype MostLetters = 4000; // wider than any screen
constexpr std::size_t Measured = 8;

// Widths of single letters; the common ones are asked for once.
class LetterWidths {
public:
    explicit LetterWidths(const QFontMetrics& font) : metrics(font) { known.fill(-1); }

    int Sum(const QString& text) {
        int sum = 0;
        for (const QChar letter : text)
            sum += Width(letter);
        return sum;
    }

private:
    int Width(QChar letter) {
        const std::size_t code = letter.unicode();
        if (code >= known.size())
            return metrics.horizontalAdvance(letter);
        if (known[code] < 0)
            known[code] = metrics.horizontalAdvance(letter);
        return known[code];
    }

    const QFontMetrics& metrics;
    std::array<int, 0x600> known;
};

} // namespace

QString Shown_Caption(const QString& caption) {
    QString line = caption.left(MostLetters);
    for (QChar& letter : line) {
        if (letter.category() == QChar::Other_Control || letter == QChar::LineSeparator ||
            letter == QChar::ParagraphSeparator)
            letter = u' ';
    }
    return line;
}

int Widest_CaptionOf(std::span<const QString> captions, const QFontMetrics& metrics) {
    LetterWidths letters(metrics);
    std::vector<std::pair<int, std::size_t>> sums;
    sums.reserve(captions.size());
    for (std::size_t i = 0; i < captions.size(); ++i)
        sums.emplace_back(letters.Sum(captions[i]), i);
    const std::size_t count = std::min(Measured, sums.size());
    std::partial_sort(sums.begin(), sums.begin() + static_cast<std::ptrdiff_t>(count), sums.end(),
                      std::greater<>());
    int widest = 0;
    for (std::size_t i = 0; i < count; ++i)
        widest = std::max(widest, metrics.horizontalAdvance(captions[sums[i].second]));
    return widest;
}
