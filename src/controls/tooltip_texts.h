// The longer help texts of the program, from the file "tooltips.txt": sections of "[number] Title"
// with lines below.
#pragma once

#include <QString>

#include <optional>
#include <string_view>
#include <vector>

inline constexpr int FirstTooltipSlots = 11;
inline constexpr int HighestTooltip = 9999;

struct TooltipText {
    QString Title;
    QString Text; // lines end with CR LF; "--" is a gap
    bool operator==(const TooltipText&) const = default;
};

extern std::vector<TooltipText> Global_Tooltips;
// Set when the texts have been read; without it no tooltip shows.
extern bool Global_TooltipsLoaded;

// Reads the file. False: missing or unreadable, and Global_TooltipsLoaded stays cleared.
bool Load_Tooltips(const QString& fileName);

// The table of the file's texts, FirstTooltipSlots or more. A section whose number is outside
// 0..HighestTooltip is passed over with its lines. Nothing for bytes that are no text file.
std::optional<std::vector<TooltipText>> Parse_Tooltips(std::string_view bytes);
