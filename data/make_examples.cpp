// Writes "examplereminders.dat": make_examples FILE. Runs while the program is built.
#include "core/reminder_store.h"
#include "example_reminders.h"
#include "platform/system.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: make_examples FILE\n", stderr);
        return 2;
    }
    platform::Provide_Base_Services();
    Init_Reminders();
    Fill_ExampleReminders();
    if (!Save_Reminders(QString::fromLocal8Bit(argv[1]))) {
        std::fputs("make_examples: the file could not be written\n", stderr);
        return 1;
    }
    return 0;
}
