// The names and icons that reminders are grouped by.
#pragma once

#include "core/table_file.h"

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

struct CategoryEntry {
    QString Name; // empty: the list ends here
    QString Icon;
};

extern std::vector<CategoryEntry> Global_Categories;

// 0..10, all empty.
void Init_Categories();
// "rcategories.txt"; a missing or empty file gives the default table.
TableLoad Load_Categories(const QString& fileName);
void Save_Categories(const QString& fileName);
// The bytes of that file.
std::string Encode_Categories();
// The table's file, for who writes it beside the interface.
TableFile& Categories_File();
// Index of the name without regard to case, or -1. The empty name finds the first free entry.
int Find_Category(const QString& name);
// The names in their order.
QStringList Category_Names();
// The icon of the category's entry; empty when it has none.
QString Icon_OfCategory(const QString& name);
// Adds what reminders use and the table lacks; quick when there is nothing to add.
void Sync_CategoriesFromReminders();
// Removes a known category from the table and from all reminders.
void Delete_Category(const QString& name);

// The category box's word for none.
extern const QString NoCategoryText;
// What a text from a category box becomes in the record: blanks are cleaned away, and where all
// letters are small each word begins with a capital.
QString Category_FromText(const QString& text);
