#include "controls/tab_list.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

constexpr int WidestTab = 10000; // pixels; wider than any screen
constexpr std::size_t Channels = 3;

int Tab_Width(const QString& field) {
    bool isNumber = false;
    const int width = field.trimmed().toInt(&isNumber);
    if (!isNumber)
        return 0;
    return width == WidthOfCaption ? width : std::clamp(width, 0, WidestTab);
}

std::array<double, Channels> Split_Color(ColorValue color) {
    return {static_cast<double>(color & 0xFFU), static_cast<double>((color >> 8) & 0xFFU),
            static_cast<double>((color >> 16) & 0xFFU)};
}

} // namespace

std::optional<std::vector<TabEntry>> Parse_Tabs(const QString& list) {
    const QStringList fields = list.split(u';');
    const qsizetype count = fields.size() / 2;
    if (count > MostTabs)
        return std::nullopt;
    std::vector<TabEntry> tabs;
    for (qsizetype i = 0; i < count; ++i)
        tabs.push_back({Tab_Width(fields[2 * i]), fields[2 * i + 1]});
    return tabs;
}

std::vector<ColorValue> Gradient_Rows(ColorValue top, ColorValue bottom, int rowCount) {
    std::array<double, Channels> running = Split_Color(top);
    std::array<double, Channels> step = Split_Color(bottom);
    for (std::size_t i = 0; i < Channels; ++i)
        step[i] = (step[i] - running[i]) / std::max(rowCount, 1);
    std::vector<ColorValue> rows;
    for (int y = 0; y < rowCount; ++y) {
        ColorValue color = 0;
        for (std::size_t i = 0; i < Channels; ++i) {
            color |= static_cast<ColorValue>(running[i]) << (8 * i);
            running[i] += step[i];
        }
        rows.push_back(color);
    }
    return rows;
}
