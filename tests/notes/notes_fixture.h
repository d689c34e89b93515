// What the tests of the notes stand on: fresh tables, a folder of their own, and all services
// replaced.
#pragma once

#include "core/date_text.h"
#include "notes/notes_operations.h"
#include "notes/open_note.h"
#include "support/fake_system.h"

#include <QTemporaryDir>

#include <string>

class NotesTest : public testing::Test {
protected:
    NotesTest() {
        system.clock.Set(2026, 3, 2, 9, 5); // Day 9558
        Init_TimeRoutines();
        Init_DateText();
        Global_DateFormat = QStringLiteral("dd/mm/yyyy");
        Init_Notes();
    }
    QString File(const QString& name) const { return folder.path() + u'/' + name; }
    std::string Bytes(const QString& name) {
        return system.files.Read(File(name)).value_or("no such file");
    }
    static NoteRec& Note(int index) { return Global_Notes[static_cast<std::size_t>(index)]; }
    static int Used_Notes() {
        int used = 0;
        for (const NoteRec& note : Global_Notes)
            used += note.InUse ? 1 : 0;
        return used;
    }

    FakeSystem system;
    QTemporaryDir folder;
};
