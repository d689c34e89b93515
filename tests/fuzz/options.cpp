// The file of minutes after which a reminder can come again, and the user's date pattern.
#include "core/date_text.h"
#include "core/remind_again.h"
#include "fuzz.h"

void Try(Ground& ground) {
    const QString text =
        QString::fromLatin1(ground.Bytes().data(), static_cast<qsizetype>(ground.Bytes().size()));
    if (IsValidDateFormat(text)) {
        Global_DateFormat = text;
        const Day today = Get_TodayDay();
        DayToDateString(today);
        RemoveYearFromFormat(text);
        Global_DateFormat = Default_DateFormat({});
    }
    ParseUserDateToDay(text, {});
    ParseTime_Colon(text);
    ParseTime_HM(text);
    Init_RA_Reminders();
    Load_RA_Options(ground.file);
    Must(!Global_RA_Options.empty());
    const Moment now = Read_Moment();
    for (const std::int32_t minutes : Global_RA_Options) {
        RA_Caption(minutes);
        const RA_Time time = RA_TargetTime(now, minutes);
        Must(time.Minute <= 1439);
    }
}
