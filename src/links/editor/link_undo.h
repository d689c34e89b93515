// Taking back the commands of the links editor: a snapshot of the whole list before each.
#pragma once

#include "links/store/link_rec.h"

#include <deque>

// One snapshot, written and read row by row. The fourth field holds the start size.
class UndoClass {
public:
    // Makes room for the rows 0..n; -1 = none. The cursor goes to the first.
    void SetArraySize(std::int32_t n);
    void SetLinkData(const QString& URL, const QString& LinkName, const QString& Description,
                     std::uint8_t StartSize);
    std::int32_t Get_LinksArray_Size() const;
    // Behind the last row nothing is changed.
    void GetLinkData(QString& URL, QString& LinkName, QString& Description,
                     std::uint8_t& StartSize);
    void Rewind() { cursor = 0; }

private:
    std::vector<LinkRec> rows;
    std::size_t cursor = 0;
};

class UndoRing {
public:
    static constexpr std::size_t Steps = 50;

    // The oldest one makes room for the fifty-first.
    void Take_Snapshot(const std::vector<LinkRec>& rows);
    void Drop_Last();
    // False: there is none left.
    bool Undo(std::vector<LinkRec>& rows);
    std::size_t Count() const { return snapshots.size(); }

private:
    std::deque<UndoClass> snapshots;
};
