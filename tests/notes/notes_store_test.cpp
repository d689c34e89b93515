#include "notes_fixture.h"

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace {

class NotesStore : public NotesTest {
protected:
    // Two categories and one note, written by hand.
    static std::string One_Note() {
        return "NotesSaveFile001"s + "\x04\0Work"s + "\x02\0Me"s + std::string(32, '\0') +
               "\0\0\0\0"s + "\xFF\xFF"s + "\x05\0Title"s + "\x04\0a\r\nb"s + "\xE8\x03\0\0"s +
               "\x56\x25\0\0"s + "\x21\x02\0\0"s + "\x01"s;
    }
    TableLoad Load(const std::string& bytes) {
        EXPECT_TRUE(system.files.Replace(File(u"notes.dat"_s), bytes));
        return Load_Notes_File(File(u"notes.dat"_s));
    }
    TableLoad Load_Account() {
        return Load_AccountNotes(folder.path(), File(u"examplenotes.dat"_s));
    }
};

TEST_F(NotesStore, The_bytes_are_those_written_by_hand) {
    ASSERT_TRUE(Save_Notes_File(File(u"empty"_s)));
    EXPECT_EQ(Bytes(u"empty"_s), "NotesSaveFile001"s + std::string(36, '\0') + "\xFF\xFF\xFF\xFF"s);
    ASSERT_EQ(Load(One_Note()), TableLoad::Loaded);
    ASSERT_EQ(Global_Notes.size(), 1U);
    EXPECT_EQ(Note_Categories(), 2);
    EXPECT_EQ(Note(0).Text, u"a\r\nb"_s);
    EXPECT_EQ(Note(0).CreatedDay, 1000);
    EXPECT_EQ(Note(0).ModifiedDay, 9558);
    EXPECT_EQ(Note(0).ModifiedMinute, 545);
    EXPECT_EQ(Note(0).Category, 1);
    ASSERT_TRUE(Save_Notes_File(File(u"again"_s)));
    EXPECT_EQ(Bytes(u"again"_s), One_Note());
}

TEST_F(NotesStore, A_new_account_and_a_damaged_one_get_the_examples) {
    const auto Own_Examples = [this](const std::string& bytes) {
        Init_Notes();
        EXPECT_TRUE(system.files.Replace(File(u"examplenotes.dat"_s), bytes));
    };
    EXPECT_EQ(Load_Account(), TableLoad::NoFile);
    EXPECT_EQ(Used_Notes(), 3);
    EXPECT_EQ(Note(2).Category, 1);
    Own_Examples(One_Note()); // they are read, and the program's own follow
    EXPECT_EQ(Load_Account(), TableLoad::NoFile);
    EXPECT_EQ(Note(0).Title, u"Example note 1"_s);
    EXPECT_EQ(Global_Notes.size(), 3U);
    Own_Examples("damaged");
    system.files.Replace(File(u"notes.dat"_s), "NotesSaveFile000");
    EXPECT_EQ(Load_Account(), TableLoad::UnknownVersion);
    EXPECT_EQ(Used_Notes(), 0);
    // The examples that failed too do not make it forget the account's own file.
    ASSERT_TRUE(Save_Notes_File(File(u"notes.dat"_s)));
    EXPECT_EQ(Bytes(u"notes.dat.damaged"_s), "NotesSaveFile000");
    system.files.Replace(File(u"notes.dat"_s), "x");
    EXPECT_EQ(Load_Account(), TableLoad::Invalid);
    system.files.Replace(File(u"notes.dat"_s), One_Note());
    EXPECT_EQ(Load_Account(), TableLoad::Loaded);
    EXPECT_EQ(Used_Notes(), 1);
}

TEST_F(NotesStore, Saving_moves_the_last_notes_into_the_gaps) {
    Add_NoteCategory(u"c"_s);
    for (int note = 0; note < 6; ++note)
        Note(Add_Note(0, Read_Moment())).Title = QString(QChar(u'a' + note));
    for (const int gap : {0, 2, 5})
        Delete_Note(gap);
    ASSERT_TRUE(Save_Notes_File(File(u"notes.dat"_s)));
    Init_Notes();
    ASSERT_EQ(Load_Notes_File(File(u"notes.dat"_s)), TableLoad::Loaded);
    QString order;
    for (const NoteRec& note : Global_Notes)
        order += note.InUse ? note.Title : u"-"_s;
    EXPECT_EQ(order, u"ebd"_s);
}

TEST_F(NotesStore, A_deleted_category_takes_its_notes_and_the_others_keep_theirs) {
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
        Add_NoteCategory(name);
    for (const int category : {2, 1, 0, 2, 1})
        Note(Add_Note(category, Read_Moment())).Title =
            Global_NoteCategories[std::size_t(category)];
    Move_Note(0, 1);
    Delete_NoteCategory(1);
    Delete_NoteCategory(5);
    EXPECT_EQ(Note_Categories(), 2);
    EXPECT_EQ(Notes_OfCategory(0), std::vector<int>{2});
    EXPECT_EQ(Notes_OfCategory(1), std::vector<int>{3});
    EXPECT_EQ(Used_Notes(), 2);
    EXPECT_EQ(Add_Note(1, Read_Moment()), 0); // the first gap
    EXPECT_EQ(Add_Note(2, Read_Moment()), NoNote);
}

} // namespace
