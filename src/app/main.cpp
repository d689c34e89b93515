#include "app/program.h"
#include "controls/program_look.h"
#include "platform/system.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
    platform::Prepare_Process();
    QApplication toolkit(argc, argv);
    platform::Restore_Environment();
    QApplication::setApplicationName(u"Tockly"_s);
    QApplication::setDesktopFileName(u"tockly"_s);
    Set_ProgramLook();
    // Closing a window never ends the program.
    QApplication::setQuitOnLastWindowClosed(false);
    platform::Provide_Base_Services();
    platform::Provide_Window_Services();
    return Main();
}
