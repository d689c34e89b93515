// The file form of one reminder.
#include "core/record_stream.h"
#include "core/reminder.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr std::string_view RecordHeader = "rObj";
constexpr std::string_view CurrentVersion = "003";
constexpr std::size_t HourSetupBytes = 8;

// 0 for a version that no reader exists for.
int Read_Version(std::string_view text) {
    if (text == "001")
        return 1;
    if (text == "002")
        return 2;
    return text == CurrentVersion ? 3 : 0;
}

// What the list window shows for all and for none is no category of its own.
bool Is_NoCategory(const QString& category) {
    return category.startsWith("--"_L1) &&
           (category == "--"_L1 || category.toLower() == "-- (all)"_L1);
}

} // namespace

void ReminderClass::SaveData_To_File(RecordWriter& stream) const {
    stream.Put_Header(RecordHeader);
    stream.Put_Header(CurrentVersion);
    stream.Put_Boolean(rs_Enabled);
    stream.Put_Long(rs_ID);
    stream.Put_Long(rs_ID2);
    stream.Put_Byte(static_cast<std::uint8_t>(rs_Reminder_Type));
    stream.Put_Boolean(rs_Minimize_Apps);
    stream.Put_Byte(static_cast<std::uint8_t>(rs_DateType_Used));
    stream.Put_Long(rs_DisabledForToday);
    stream.Put_Boolean(rs_REveryDay);
    stream.Put_ByteArray(rs_wDays);
    stream.Put_LenString(rs_Title);
    stream.Put_LenString(rs_Text);
    stream.Put_Integer(rs_ReWeeks);
    stream.Put_Integer(rs_ReMonths);
    stream.Put_Integer(rs_ReDays);
    stream.Put_Long(rs_FirstRunDate);
    stream.Put_Byte(rs_SRDay);
    stream.Put_Byte(rs_SRMonth);
    stream.Put_Integer(rs_SRYear);
    stream.Put_Long(rs_SRLongday);
    stream.Put_Long(rs_ActivationDay);
    stream.Put_Long(rs_wDaysArray_LMonth);
    stream.Put_Long(rs_wDaysArray_LWeek);
    stream.Put_Boolean(rs_PlaySound);
    stream.Put_LenString(rs_SoundPath);
    for (int index = 0; index < FunctionCount; ++index) {
        const FunctionEntry& entry = GetFuncion(index);
        stream.Put_Boolean(entry.Enabled);
        stream.Put_Byte(static_cast<std::uint8_t>(entry.Function_Type));
        stream.Put_RecString(entry.Function_Path);
        stream.Put_Byte(entry.Window_Mode);
        stream.Put_RecString(entry.Title);
    }
    stream.Put_Long(HourSetupList_Size());
    for (std::int32_t index = 0; index < HourCount; ++index) {
        const HourSetup& setup = Hour_Slot(index).Setup;
        stream.Put_Integer(setup.Enabled);
        stream.Put_Integer(setup.StartMinute);
        stream.Put_Integer(setup.EndMinute);
        stream.Put_Integer(setup.EveryXMinutes);
    }
    stream.Put_LenString(rs_Category);
    stream.Put_LenString(rs_Icon);
    stream.Put_Long(rs_LastExecutedDate);
    stream.Put_Long(rs_REDayOfMonth);
    stream.Put_Long(rs_DayCreated);
    stream.Put_Long(rs_SFReserved3);
}

void ReminderClass::Read_Functions(RecordReader& stream) {
    Functions.clear();
    for (int index = 0; index < FunctionCount; ++index) {
        FunctionEntry entry;
        entry.Enabled = stream.Get_Boolean();
        entry.Function_Type = static_cast<FunctionType>(stream.Get_Byte());
        entry.Function_Path = stream.Get_SharedRecString();
        entry.Window_Mode = stream.Get_Byte();
        entry.Title = stream.Get_SharedRecString();
        if (entry != FunctionEntry{})
            SetFuncion(index, entry);
    }
}

void ReminderClass::Read_HourList(RecordReader& stream) {
    ClearAllHourSetup();
    for (std::size_t left = stream.Get_CountOfLast(HourSetupBytes); left > 0; --left) {
        HourSetup setup;
        setup.Enabled = stream.Get_Integer();
        setup.StartMinute = stream.Get_Integer();
        setup.EndMinute = stream.Get_Integer();
        setup.EveryXMinutes = stream.Get_Integer();
        AddNewHourSetup(setup);
    }
}

TableLoad ReminderClass::LoadData_From_File(RecordReader& stream) {
    if (stream.Get_Start(RecordHeader) != TableLoad::Loaded)
        return TableLoad::Invalid;
    const int version = Read_Version(stream.Get_Header(CurrentVersion.size()));
    if (version == 0)
        return stream.Failed() ? TableLoad::Invalid : TableLoad::UnknownVersion;
    rs_Enabled = stream.Get_Boolean();
    rs_ID = stream.Get_Long();
    rs_ID2 = stream.Get_Long();
    rs_Reminder_Type = static_cast<ReminderType>(stream.Get_Byte());
    rs_Minimize_Apps = stream.Get_Boolean();
    rs_DateType_Used = static_cast<DateType>(stream.Get_Byte());
    rs_DisabledForToday = stream.Get_Long();
    rs_REveryDay = stream.Get_Boolean();
    stream.Get_ByteArray(rs_wDays);
    rs_Title = stream.Get_LenString();
    rs_Text = stream.Get_LenString();
    rs_ReWeeks = stream.Get_Integer();
    rs_ReMonths = stream.Get_Integer();
    rs_ReDays = stream.Get_Integer();
    rs_FirstRunDate = stream.Get_Long();
    rs_SRDay = stream.Get_Byte();
    rs_SRMonth = stream.Get_Byte();
    rs_SRYear = stream.Get_Integer();
    rs_SRLongday = stream.Get_Long();
    rs_ActivationDay = stream.Get_Long();
    rs_wDaysArray_LMonth = stream.Get_Long();
    rs_wDaysArray_LWeek = stream.Get_Long();
    rs_PlaySound = stream.Get_Boolean();
    rs_SoundPath = stream.Get_SharedLenString();
    Read_Functions(stream);
    Read_HourList(stream);
    if (version >= 2) {
        rs_Category = stream.Get_SharedLenString();
        rs_Icon = stream.Get_SharedLenString();
        if (Is_NoCategory(rs_Category))
            rs_Category.clear();
    }
    if (version >= 3) {
        rs_LastExecutedDate = stream.Get_Long();
        rs_REDayOfMonth = stream.Get_Long();
        rs_DayCreated = stream.Get_Long();
        rs_SFReserved3 = stream.Get_Long();
    }
    if (rs_DayCreated == 0 && !stream.Failed())
        rs_DayCreated = 1;
    return stream.Result();
}
