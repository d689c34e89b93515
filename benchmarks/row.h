// A row of the table that ./bench prints: fields apart by tabs.
#pragma once

#include <cstdio>
#include <string>

struct BenchRow {
    std::string What, Ours, Yardstick;
    double Ratio = 0;
    double Limit = 0; // of the ratio; 0: none
    double Ten =
        0; // what ten and a hundred times the work cost, in times of the row's; 0: not asked
    double Hundred = 0;
};

inline void Print_Row(const BenchRow& row) {
    const auto number = [](double value) {
        char text[32];
        std::snprintf(text, sizeof text, "%.2f", value);
        return value == 0 ? std::string() : std::string(text);
    };
    std::printf("%s\t%s\t%s\t%s\t%s\t%s\t%s\n", row.What.c_str(), row.Ours.c_str(),
                row.Yardstick.c_str(), number(row.Ratio).c_str(), number(row.Limit).c_str(),
                number(row.Ten).c_str(), number(row.Hundred).c_str());
    std::fflush(stdout);
}
