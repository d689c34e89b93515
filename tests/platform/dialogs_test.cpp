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
#include <QWidget>
#include <QWindow>
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
        EXPECT_LT(message.width(), 700);
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    dialogs->Message(u"Can't open "_s + QString(30'000, u'x') + " <b>now</b>"_L1,
                     BoxStyle::Critical);
    EXPECT_TRUE(text.startsWith("Tockly/Can't open xxx"_L1) && text.endsWith(" <b>now</b>"_L1));
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

TEST(Dialogs, a_line_is_typed_or_cancelled_and_blocks_the_window_that_asks_alone) {
    const auto dialogs = platform::Make_Dialogs();
    QWidget owner;
    QWidget other;
    auto* field = new QWidget(&owner);
    for (QWidget* window : {&owner, &other}) {
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
    }
    QStringList taken;
    const auto take = [&](const QString& text) { taken << text; };
    const auto open_box = [] { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); };
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        dialogs->Input(field, u"New name"_s, u"Rename"_s, u"old"_s, take);
        ASSERT_NE(open_box(), nullptr);
        auto* line = open_box()->findChild<QLineEdit*>();
        EXPECT_EQ(line->text(), u"old"_s);
        EXPECT_EQ(line->accessibleName(), u"New name"_s);
        EXPECT_FALSE(dialogs->Holds_Timers());
        struct Presses : QObject {
            int count = 0;
            bool eventFilter(QObject*, QEvent* event) override {
                count += event->type() == QEvent::MouseButtonPress ? 1 : 0;
                return false;
            }
        } seen;
        owner.installEventFilter(&seen);
        other.installEventFilter(&seen);
        QTest::mouseClick(owner.windowHandle(), Qt::LeftButton, {}, {5, 5});
        EXPECT_EQ(seen.count, 0);
        QTest::mouseClick(other.windowHandle(), Qt::LeftButton, {}, {5, 5});
        EXPECT_EQ(seen.count, 1);
        line->selectAll();
        QTest::keyClicks(line, u"new"_s);
        QTest::keyClick(line, key);
        EXPECT_EQ(open_box(), nullptr);
    }
    EXPECT_EQ(taken, QStringList{u"new"_s});

    dialogs->Open_File(field, u"Open File"_s, u"/tmp"_s, u"MP3 File (*.mp3);;WAV File (*.wav)"_s,
                       [&](const platform::ChosenFile& chosen) {
                           taken << chosen.Path << QString::number(chosen.Filter_Index);
                       });
    ASSERT_NE(open_box(), nullptr);
    open_box()->findChild<QLineEdit*>()->setText(u"alarm"_s);
    open_box()->findChild<QComboBox*>(u"fileTypeCombo"_s)->setCurrentIndex(1);
    QTest::keyClick(open_box()->findChild<QLineEdit*>(), Qt::Key_Return);
    EXPECT_EQ(taken, (QStringList{u"new"_s, u"/tmp/alarm"_s, u"1"_s}));

    const QTemporaryDir folder;
    ASSERT_TRUE(QFile(folder.filePath(u"without a dot"_s)).open(QIODevice::WriteOnly));
    dialogs->Open_File(field, {}, folder.path(), u"All Files (*.*)"_s, [](const auto&) {});
    const auto* view = open_box()->findChild<QListView*>(u"listView"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view->model()->rowCount(view->rootIndex()) == 1; }));
    EXPECT_EQ(open_box()->findChild<QComboBox*>(u"fileTypeCombo"_s)->currentText(),
              u"All Files (*.*)"_s);
    open_box()->reject();

    dialogs->Input(field, {}, {}, {}, take);
    delete field;
    QTest::keyClick(open_box(), Qt::Key_Return);
    EXPECT_EQ(taken.size(), 3) << "nobody is there to take it";
}

TEST(Dialogs, the_end_of_the_session_cancels_every_open_box_and_all_later_ones) {
    const auto dialogs = platform::Make_Dialogs();
    QWidget owner;
    const auto never = [](const auto&) { ADD_FAILURE(); };
    dialogs->Input(&owner, u"Outer"_s, u"Outer"_s, u"text"_s, never);
    With_Next_Box([&](QDialog&) { dialogs->Dismiss_All(); });
    EXPECT_EQ(dialogs->Question(u"Inner?"_s, true), Answer::Cancel);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    dialogs->Message(u"later"_s, BoxStyle::Information);
    EXPECT_EQ(dialogs->Question(u"Later?"_s, false), Answer::No);
    dialogs->Open_File(&owner, {}, {}, {}, never);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
