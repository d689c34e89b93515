#include "controls/program_look.h"

#include "controls/form.h"
#include "controls/metrics.h"

#include <QApplication>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace {
constexpr ColorValue System_ToolTip = 0x80000018;
constexpr ColorValue System_Selection = 0x8000000D;
} // namespace

// With a part of them from the desktop, a dark theme mixes dark lists into light windows.
void Set_ProgramLook() {
    QApplication::setStyle(u"Fusion"_s);
    QPalette colors = Form_Palette();
    colors.setColor(QPalette::Highlight, palette::To_Color(System_Selection));
    colors.setColor(QPalette::HighlightedText, palette::To_Color(palette::White));
    colors.setColor(QPalette::ToolTipBase, palette::To_Color(System_ToolTip));
    colors.setColor(QPalette::ToolTipText, palette::To_Color(palette::Black));
    QApplication::setPalette(colors);
    QToolTip::setPalette(colors);
    QApplication::setFont(Small_Font());
}
