#include "editors/list/copy_buffer.h"

#include "core/record_stream.h"
#include "core/reminder_store.h"
#include "platform/files.h"
#include "platform/paths.h"

using namespace Qt::StringLiterals;

bool CopyBufferValid = false;

static QString Copy_File() {
    return platform::Paths::Get().Program_Folder() + "/temp.dat"_L1;
}

bool Write_CopyBuffer(const ReminderClass& reminder) {
    RecordWriter stream;
    reminder.SaveData_To_File(stream);
    if (stream.Failed() || !platform::Files::Get().Replace(Copy_File(), stream.Bytes()))
        return false;
    CopyBufferValid = true;
    return true;
}

PasteResult Read_CopyBuffer(std::unique_ptr<ReminderClass>& reminder) {
    if (!CopyBufferValid || !platform::Files::Get().Exists(Copy_File()))
        return PasteResult::Nothing;
    const std::optional<std::string> bytes = platform::Files::Get().Read(Copy_File());
    auto pasted = std::make_unique<ReminderClass>();
    pasted->SetDefaultValues();
    if (!bytes)
        return PasteResult::Damaged;
    RecordReader stream(*bytes);
    if (pasted->LoadData_From_File(stream) != TableLoad::Loaded)
        return PasteResult::Damaged;
    pasted->rs_DayCreated = Get_TodayDay();
    pasted->rs_ID = Get_NewReminderID(pasted->rs_ID2);
    reminder = std::move(pasted);
    return PasteResult::Pasted;
}
