// The account: a numbered data folder beside the shared files for each user of the machine.
#pragma once

#include <QString>

#include <cstdint>

// The user's data folder for the whole run; no "/" at its end.
extern QString Global_UserPath;

// Whether the folder of this number is there and may not even be listed: no data of this user's.
bool Account_Is_Closed(const QString& programFolder, std::int32_t number);
// Whether the folder of this number is closed, or bears another user's marker and not this user's
// own: the counter of accounts could not be written for everybody then. If it cannot be read
// either, a folder without this user's marker is somebody else's.
bool Account_Is_Taken(const QString& programFolder, std::int32_t number);
// Sets Global_UserPath to "User-<number>" below the program folder, makes the folder and leaves an
// empty file named after the user in it, so that a person browsing the folders can tell whose it
// is. False when there is no folder that can be used; loading goes on.
bool Open_Account(const QString& programFolder, std::int32_t number);
// A data file of the account.
QString Account_File(const QString& name);
