// The commands of the links editor on the flat list of rows: where a row goes, which rows go with
// it, and what becomes of their depths.
#pragma once

#include "links/store/link_rec.h"

#include <optional>

using LinkRows = std::vector<LinkRec>;

inline constexpr int DeepestRow = 9;
inline constexpr int NothingMoved = -1000;

enum class MoveDirection { Up = 0, Down = 1 };

bool Is_Category(const LinkRec& row);
bool Is_Separator(const LinkRec& row);
// 0..9; of a category its own.
int Row_Depth(const LinkRec& row);
// What follows the depth digit; empty for a category.
QString Row_Target(const LinkRec& row);
// The same row at another depth, held within 0..9.
void Set_RowDepth(LinkRec& row, int depth);
// Behind the last row of what belongs to the category by its depth.
int Subtree_End(const LinkRows& rows, int category);

// All take rows without an empty URL, and the selected row (-1 = none).

// Behind the selected row, or as its first child if that is a category; without a selection at the
// end. Returns the new row's index.
int Add_Link(LinkRows& rows, int selected, const QString& target);
// The same for a category; nothing when it would stand too deep.
std::optional<int> Add_Category(LinkRows& rows, int selected);
// A category goes with its subtree.
void Delete_Row(LinkRows& rows, int row);

// The new index of the row; NothingMoved: the list is as it was.
int MoveLink(LinkRows& rows, int Row, MoveDirection Direction);
// Step by step towards another row, as far as that one; what dragging does.
int Move_Row_To(LinkRows& rows, int row, int target);
// Two categories of one depth with their blocks, in either order; what stands between them stays
// there. NewRow: where the block of Row begins then.
void Exchange_Category_Blocks(LinkRows& rows, int Row, int Found, int& NewRow);
int Move_Category_Left(LinkRows& rows, int row);
int Move_Category_Right(LinkRows& rows, int row);

enum class RowIcon { Web, Program, Document, Category, Separator };
RowIcon Icon_Of(const LinkRec& row);
