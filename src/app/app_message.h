// The command that a second launch hands to a toolbar that is hidden completely.
#pragma once

#include <QString>

#include <cstdint>

struct AppMessage {
    std::int16_t Pending = 0;
    QString Command; // at most 10 characters
};

extern AppMessage Global_AppMessage;

// Forgets an earlier command. Runs at every complete hide.
void Clear_AppMessage();
void Post_AppMessage(const QString& command);
// True when "Show" is waiting, in any case of letters.
bool Show_IsWaiting();
