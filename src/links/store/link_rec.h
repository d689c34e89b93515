// One row of the user's links: its depth in the menu and its kind are the first characters of URL.
#pragma once

#include "core/table_file.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct LinkRec {
    QString URL; // empty: the list ends here
    QString LinkName;
    QString Description;
    std::uint8_t StartSize = 0; // 0 normal, 1 minimised, 2 maximised
    std::int32_t LastVisited = 0;
    bool operator==(const LinkRec&) const = default;
};

extern std::vector<LinkRec> Global_LinkArray;
// The program's own commands; behind the user's rows in the menu, never saved.
extern std::vector<LinkRec> Global_DefaultLinkArray;

// Rows up to the first empty URL.
std::size_t Link_Count(const std::vector<LinkRec>& rows);

// The first-run rows.
void Build_Default_Links();
void Build_Program_Links();
// After a failure the table is as it was.
TableLoad Load_Links_File(const QString& fileName);
// False: nothing was replaced.
bool Save_Links_File(const QString& fileName);
// The bytes of that file; nothing when a text is too long for its field.
std::optional<std::string> Encode_Links();
// The table's file, for who writes it beside the interface.
TableFile& Links_File();
