#include "delivery/deliver.h"
#include "delivery/message_menu.h"
#include "support/fake_files.h"
#include "window_fixture.h"

#include <QSet>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

class Deliver : public WindowTest {
protected:
    Deliver() { files.Replace(sound, "x"); }
    // The commands of a delivery.
    QString Play(const QString& path, bool playSound = true) {
        const std::int32_t index = Add_Reminder(u"text"_s);
        Reminder(index).rs_PlaySound = playSound;
        Reminder(index).rs_SoundPath = path;
        Deliver_Reminder(Ref(index));
        return std::exchange(media.commands, {}).join(u'|').replace(sound, u"F"_s);
    }

    FakeFiles files;
    QTemporaryDir folder;
    QString sound = folder.filePath(u"ding dong.wav"_s);
};

TEST_F(Deliver, A_Sound_Is_Opened_Played_And_Ended_By_The_Next) {
    Global_MciCounter = 0;
    media.shortened = u"S"_s;
    EXPECT_EQ(Play(u"  "_s + sound + u" "_s), u"OPEN S TYPE MPEGVideo ALIAS a0|"
                                              "SET 0 TIME FORMAT TMSF|PLAY a0 FROM 0"_s);
    media.refused << u"mpegvideo"_s << u"SET 0"_s;
    EXPECT_EQ(Play(sound),
              u"CLOSE a0|OPEN S TYPE MPEGVideo ALIAS a1|"
              "OPEN F TYPE waveaudio ALIAS a1|SET 0 TIME FORMAT TMSF|PLAY a1 FROM 0"_s);
    Global_PlayerClass->CloseAudioFile();
    media.refused << u"waveaudio"_s;
    EXPECT_EQ(Play(sound), u"CLOSE a1|OPEN S TYPE MPEGVideo ALIAS a2|"
                           "OPEN F TYPE waveaudio ALIAS a2"_s);
    EXPECT_EQ(Play(sound, false), QString()); // nothing was open
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(Deliver, Only_A_Reminder_Without_A_File_Beeps) {
    const std::int32_t counter = Global_MciCounter;
    EXPECT_EQ(Play(sound + u"x"_s) + Play(u"   "_s) + Play(QString(), false), QString());
    EXPECT_EQ(desktop.beeps, 0);
    EXPECT_EQ(Play(QString()), QString());
    EXPECT_EQ(desktop.beeps, 1);
    EXPECT_EQ(Global_MciCounter, counter);
}

TEST_F(Deliver, The_Type_Chooses_The_Way_And_An_Unknown_One_Shows_Nothing) {
    struct Case {
        const char* name;
        int type;
        bool minimize;
        bool onLine, near, centered;
        int minimised;
    };
    const Case cases[] = {{"inside the toolbar", 0, true, true, false, false, 0},
                          {"beside the toolbar", 1, true, false, true, false, 0},
                          {"centred", 2, false, false, false, true, 0},
                          {"centred alone", 2, true, false, false, true, 1},
                          {"a byte that is no type", 3, true, false, false, false, 0}};
    for (const Case& row : cases) {
        Unload_ReminderWindows();
        Start_Afresh(9, 0, 0);
        desktop.minimised = 0;
        const std::int32_t index = Add_Typed(u"text"_s, static_cast<ReminderType>(row.type));
        Reminder(index).rs_Minimize_Apps = row.minimize;
        Deliver_Reminder(Ref(index));
        EXPECT_EQ(Any_MessageActive(), row.onLine) << row.name;
        EXPECT_EQ(Global_NearWindows[0].Used, row.near) << row.name;
        EXPECT_EQ(Global_CenterWindows[0].Used, row.centered) << row.name;
        EXPECT_EQ(desktop.minimised, row.minimised) << row.name;
    }
    Start_Afresh(9, 0, 0);
    Reminder(Add_Reminder(u"freed"_s)).rs_PlaySound = true;
    Global_Reminders[0].Used = false;
    for (const std::int32_t index : {-1, 0, 1, 51}) {
        Deliver_Reminder(Ref(index));
        Show_ToolbarMessage(Ref(index));
    }
    EXPECT_FALSE(Any_MessageActive());
    EXPECT_EQ(desktop.beeps, 0);
}

TEST_F(Deliver, Reminders_That_Share_A_Pair_Are_All_Shown_And_Found_Again) {
    const auto Shown = [](const auto& entries, auto isUsed) {
        return std::count_if(entries.begin(), entries.end(), isUsed);
    };
    for (const int type : {0, 1, 2}) {
        for (const int first : {0, 1}) {
            Unload_ReminderWindows();
            Start_Afresh(9, 0, 0);
            for (const char16_t* text : {u"A", u"B"}) {
                const std::int32_t index =
                    Add_Typed(QString::fromUtf16(text), static_cast<ReminderType>(type));
                Reminder(index).rs_ID = 0;
            }
            for (const int index : {first, 1 - first, first})
                Deliver_Reminder(Ref(index));
            EXPECT_EQ(Shown(Global_ToolbarMessages, [](const auto& one) { return one.Active; }) +
                          Shown(Global_NearWindows, [](const auto& one) { return one.Used; }) +
                          Shown(Global_CenterWindows, [](const auto& one) { return one.Used; }),
                      2)
                << type;
        }
    }
    Start_Afresh(9, 0, 0);
    Deliver_Reminder(Ref(Add_Typed(u"A"_s, ReminderType::InsideToolbar)));
    Reminder(Add_Typed(u"made since"_s, ReminderType::InsideToolbar)).rs_ID = 0;
    Answer_Message(0, ReminderAnswer::RemindAgain);
    EXPECT_EQ(Find_ReminderIndex(Global_RA_Reminders[0].ID, Global_RA_Reminders[0].ID2), 0);
    EXPECT_NE(Reminder(1).rs_ID, 0);
}

TEST_F(Deliver, Of_A_Thousand_At_Once_Each_Is_Reached_Once) {
    for (const ReminderType type : {ReminderType::NextToToolbar, ReminderType::Centered}) {
        Unload_ReminderWindows();
        Start_Afresh(9, 0, 0);
        for (int number = 0; number < 1000; ++number)
            Add_Typed(QString::number(number), type);
        for (std::int32_t index = 0; index < 2000; ++index)
            Deliver_Reminder(Ref(index % 1000));
        QSet<QString> reached;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            auto* note = qobject_cast<frmImportantRWin*>(window);
            for (; note != nullptr && !note->Is_Closed(); note->wbButton3_Click()) {
                ASSERT_FALSE(reached.contains(Text_Of(note)));
                reached.insert(Text_Of(note));
            }
        }
        EXPECT_EQ(reached.size(), 1000);
    }
}

} // namespace
