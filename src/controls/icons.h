// The program's own pictures, drawn from vector files at whatever scale the screen has.
#pragma once

#include <QIcon>
#include <QSize>

enum class IconName {
    AddReminder,
    ViewReminders,
    ViewNotes,
    OpenTextbox,
    Program,
    NewItem,
    DeleteItem,
    CopyItem,
    PasteItem,
    RunItem,
    Help,
    TooltipMark,
    Tick,
    Calendar,
    OpenFolder,
    Undo,
    Apply,
    MoveUp,
    MoveDown,
    MoveLeft,
    MoveRight,
    Link,
    Category,
    Separator,
    Note,
    NoteCategory,
};

QIcon Load_Icon(IconName name);
// The size a picture was drawn for, pixels.
QSize Icon_Size(IconName name);
