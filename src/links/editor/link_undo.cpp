#include "links/editor/link_undo.h"

#include <algorithm>

void UndoClass::SetArraySize(std::int32_t n) {
    rows.assign(static_cast<std::size_t>(std::int64_t{std::max(n, -1)} + 1), {});
    cursor = 0;
}

void UndoClass::SetLinkData(const QString& URL, const QString& LinkName, const QString& Description,
                            std::uint8_t StartSize) {
    if (cursor < rows.size())
        rows[cursor++] = {URL, LinkName, Description, StartSize, 0};
}

std::int32_t UndoClass::Get_LinksArray_Size() const {
    return static_cast<std::int32_t>(rows.size()) - 1;
}

void UndoClass::GetLinkData(QString& URL, QString& LinkName, QString& Description,
                            std::uint8_t& StartSize) {
    if (cursor >= rows.size())
        return;
    const LinkRec& row = rows[cursor++];
    URL = row.URL;
    LinkName = row.LinkName;
    Description = row.Description;
    StartSize = row.StartSize;
}

void UndoRing::Take_Snapshot(const std::vector<LinkRec>& rows) {
    if (snapshots.size() == Steps)
        snapshots.pop_front();
    const std::size_t count = Link_Count(rows);
    UndoClass& snapshot = snapshots.emplace_back();
    snapshot.SetArraySize(static_cast<std::int32_t>(count) - 1);
    for (std::size_t row = 0; row < count; ++row)
        snapshot.SetLinkData(rows[row].URL, rows[row].LinkName, rows[row].Description,
                             rows[row].StartSize);
}

void UndoRing::Drop_Last() {
    if (!snapshots.empty())
        snapshots.pop_back();
}

bool UndoRing::Undo(std::vector<LinkRec>& rows) {
    if (snapshots.empty())
        return false;
    UndoClass& snapshot = snapshots.back();
    snapshot.Rewind();
    rows.assign(static_cast<std::size_t>(std::int64_t{snapshot.Get_LinksArray_Size()} + 1), {});
    for (LinkRec& row : rows)
        snapshot.GetLinkData(row.URL, row.LinkName, row.Description, row.StartSize);
    snapshots.pop_back();
    return true;
}
