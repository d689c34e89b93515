#include "fuzz.h"
#include "notes/notes_store.h"
#include "notes/open_note.h"

// The window's part is not here.
void Forget_OpenNote() {}

void Try(Ground& ground) {
    Init_Notes();
    if (Load_Notes_File(ground.file) != TableLoad::Loaded) {
        return;
    }
    Must(Save_Notes_File(ground.file));
    const std::string saved = ground.Bytes();
    Must(Load_Notes_File(ground.file) == TableLoad::Loaded && Save_Notes_File(ground.file));
    Must(ground.Bytes() == saved);
}
