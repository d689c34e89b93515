// What the tests of both dialogs for new reminders stand on: fresh tables, Monday 2 March 2026 at
// nine, and a toolbar that writes down what is asked.
#pragma once

#include "controls/program_end.h"
#include "controls/unload_queue.h"
#include "controls/wb_button.h"
#include "core/categories.h"
#include "core/date_text.h"
#include "core/record_stream.h"
#include "core/reminder_store.h"
#include "support/fake_system.h"
#include "support/fake_toolbar.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QtTest/QTest>
#include <gtest/gtest.h>

constexpr Day Monday = 9558; // 26 years of 365 days, 7 leap days before, 59 days, the 2nd

class EditorTest : public testing::Test {
protected:
    EditorTest() {
        system.clock.Set(2026, 3, 2, 9, 0);
        Init_TimeRoutines();
        Init_DateText();
        Init_Reminders();
        Init_Categories();
        Global_Categories[0] = {QStringLiteral("Work"), QStringLiteral("Write")};
        Global_DateFormat = QStringLiteral("dd/mm/yyyy");
    }
    ~EditorTest() override {
        Set_Program_Ending(false);
        Unload_PendingForms();
        Global_DateFormat = QStringLiteral("mm/dd/yyyy");
    }
    template <class Window>
    static Window* Open_Window() {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<Window*>(top); found && !found->isHidden())
                return found;
        return nullptr;
    }
    template <class Control = QWidget>
    Control* Find(const QString& name) {
        auto* found = window->findChild<Control*>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    void Click(const QString& name) {
        auto* control = Find(name);
        // A radio button listens on its picture and text only.
        QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
    }
    void Type(const QString& name, const QString& text) {
        auto* field = Find(name);
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(field, Qt::Key_Delete);
        for (const QChar letter : text)
            letter == u'\n' ? QTest::keyClick(field, Qt::Key_Return)
                            : QTest::keyClick(field, letter.toLatin1());
    }
    // The focus is told to a window that has it.
    static void Give_Focus(QWidget* target) {
        target->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(target));
    }
    QString Text_Of(const QString& label) { return Find<QLabel>(label)->text(); }
    static std::size_t Used_Slots() {
        std::size_t used = 0;
        for (const ReminderSlot& slot : Global_Reminders)
            used += slot.Used ? 1 : 0;
        return used;
    }
    static std::string Bytes_Of(const ReminderClass& reminder) {
        RecordWriter writer;
        reminder.SaveData_To_File(writer);
        return writer.Bytes();
    }

    FakeSystem system;
    FakeToolbar toolbar;
    QWidget* window = nullptr;
};
