// The boxes that are really shown, by key and by pressing their buttons.
#include "platform/dialogs.h"
#include "platform/providers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;
using platform::Answer;
using platform::BoxStyle;

namespace {

// Does something with the box that opens next.
void With_Next_Box(const std::function<void(QDialog&)>& step) {
    QTimer::singleShot(0, qApp, [step] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            With_Next_Box(step);
        } else {
            step(*box);
        }
    });
}

void Press_In_Next_Box(Qt::Key key) {
    With_Next_Box([key](QDialog& box) { QTest::keyClick(&box, key); });
}

} // namespace

TEST(Dialogs, a_message_holds_the_timers_until_it_is_answered) {
    const auto dialogs = platform::Make_Dialogs();
    QString text;
    bool isHeld = false;
    With_Next_Box([&](QDialog& box) {
        const auto& message = dynamic_cast<const QMessageBox&>(box);
        text = message.windowTitle() + u'/' + message.text();
        isHeld = dialogs->Holds_Timers();
        EXPECT_EQ(message.icon(), QMessageBox::Critical);
        EXPECT_TRUE(message.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    dialogs->Message(u"Error <b>saving</b>"_s, BoxStyle::Critical);
    EXPECT_EQ(text, u"Tockly/Error <b>saving</b>"_s);
    EXPECT_TRUE(isHeld);
    EXPECT_FALSE(dialogs->Holds_Timers());
}

TEST(Dialogs, a_question_is_answered_by_its_keys) {
    const auto dialogs = platform::Make_Dialogs();
    const struct {
        Qt::Key key;
        bool withCancel;
        Answer answer;
    } cases[] = {
        {Qt::Key_Return, true, Answer::Yes},
        {Qt::Key_Escape, true, Answer::Cancel},
        {Qt::Key_Escape, false, Answer::No},
    };
    for (const auto& one : cases) {
        Press_In_Next_Box(one.key);
        EXPECT_EQ(dialogs->Question(u"Delete?"_s, one.withCancel), one.answer);
    }
    With_Next_Box(
        [](QDialog& box) { dynamic_cast<QMessageBox&>(box).button(QMessageBox::No)->click(); });
    EXPECT_EQ(dialogs->Question(u"Delete?"_s, true), Answer::No);
}

TEST(Dialogs, a_line_is_typed_or_cancelled_and_holds_no_timers) {
    const auto dialogs = platform::Make_Dialogs();
    With_Next_Box([&](QDialog& box) {
        auto* line = box.findChild<QLineEdit*>();
        EXPECT_EQ(line->text(), u"old"_s);
        EXPECT_EQ(line->accessibleName(), u"New name"_s);
        EXPECT_FALSE(dialogs->Holds_Timers());
        line->selectAll();
        QTest::keyClicks(line, u"new"_s);
        QTest::keyClick(line, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs->Input(u"New name"_s, u"Rename"_s, u"old"_s), u"new"_s);
    Press_In_Next_Box(Qt::Key_Escape);
    EXPECT_EQ(dialogs->Input(u"New name"_s, u"Rename"_s, u"old"_s), std::nullopt);
    Press_In_Next_Box(Qt::Key_Escape);
    EXPECT_FALSE(dialogs->Open_File(u"Sound"_s, u"/"_s, u"Sounds (*.wav *.mp3)"_s));
    With_Next_Box([](QDialog& box) {
        box.findChild<QLineEdit*>()->setText(u"alarm"_s);
        box.findChild<QComboBox*>(u"fileTypeCombo"_s)->setCurrentIndex(1);
        QTest::keyClick(box.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    const auto chosen =
        dialogs->Open_File(u"Open File"_s, u"/tmp"_s, u"MP3 File (*.mp3);;WAV File (*.wav)"_s);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->Path, u"/tmp/alarm"_s);
    EXPECT_EQ(chosen->Filter_Index, 1);
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile(folder.filePath(u"without a dot"_s)).open(QIODevice::WriteOnly));
    With_Next_Box([](QDialog& box) {
        const auto* view = box.findChild<QListView*>(u"listView"_s);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return view->model()->rowCount(view->rootIndex()) == 1; }));
        EXPECT_EQ(box.findChild<QComboBox*>(u"fileTypeCombo"_s)->currentText(),
                  u"All Files (*.*)"_s);
        box.reject();
    });
    dialogs->Open_File({}, folder.path(), u"All Files (*.*)"_s);
}

TEST(Dialogs, the_end_of_the_session_cancels_every_open_box_and_all_later_ones) {
    const auto dialogs = platform::Make_Dialogs();
    std::optional<Answer> inner;
    With_Next_Box([&](QDialog&) {
        With_Next_Box([&](QDialog&) { dialogs->Dismiss_All(); });
        inner = dialogs->Question(u"Inner?"_s, true);
    });
    EXPECT_EQ(dialogs->Input(u"Outer"_s, u"Outer"_s, u"text"_s), std::nullopt);
    EXPECT_EQ(inner, Answer::Cancel);
    dialogs->Message(u"later"_s, BoxStyle::Information);
    EXPECT_EQ(dialogs->Question(u"Later?"_s, false), Answer::No);
    EXPECT_FALSE(dialogs->Open_File({}, {}, {}));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
