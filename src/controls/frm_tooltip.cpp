#include "controls/frm_tooltip.h"

#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/the_screen.h"
#include "controls/tooltip_layout.h"

#include <QFontMetrics>
#include <QLabel>
#include <QPainter>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int Edge = 4;      // left of all texts, and above the title
constexpr int TextTop = 21;  // of the first line, a little off the title
constexpr int AfterText = 8; // right of the widest line, and below the last one
constexpr auto Kind =
    Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus;

} // namespace

QPointer<frmTooltip> Global_frmTooltip;

frmTooltip::frmTooltip() : Form(nullptr, Kind) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    Set_BackColor(palette::Tooltip_Back);
    titleLabel = Add_Label(u"Title:"_s, Edge, Edge);
    QFont bold = Small_Font();
    bold.setBold(true);
    titleLabel->setFont(bold);
}

void frmTooltip::Set_Title(const QString& title) {
    titleLabel->setText(title);
    titleLabel->adjustSize();
}

QLabel* frmTooltip::Take_Label(std::size_t index) {
    if (index == TextLabel.size())
        TextLabel.push_back(Add_Label(u"Text label"_s, Edge, TextTop));
    return TextLabel[index];
}

void frmTooltip::Set_Text_and_Size(const QString& Text, int MaxWidth) {
    const QFontMetrics metrics(Small_Font());
    const auto lines = Layout_Tooltip(
        Text, MaxWidth, [&](const QString& line) { return metrics.horizontalAdvance(line); });
    int widest = titleLabel->width();
    int bottom = titleLabel->geometry().bottom() + 1;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        QLabel* label = Take_Label(i);
        label->setText(lines[i].Text);
        label->adjustSize();
        label->move(Edge, TextTop + lines[i].Top);
        label->show();
        widest = std::max(widest, label->width());
        bottom = label->y() + label->height();
    }
    for (std::size_t i = lines.size(); i < TextLabel.size(); ++i)
        TextLabel[i]->hide();
    setFixedSize(widest + AfterText, bottom + AfterText);
}

void frmTooltip::Show_Beside(QWidget* picture, const QRect& onScreen) {
    shownFor = picture;
    move(Place_Tooltip(onScreen, size(), Screen_At(onScreen.center())));
    // Above the window that it belongs to, also where that one stays on top itself.
    winId();
    windowHandle()->setTransientParent(picture->window()->windowHandle());
    show();
    raise();
}

bool frmTooltip::Shows_For(const QWidget* picture) const {
    return isVisible() && shownFor == picture;
}

void frmTooltip::Hide_For(const QWidget* picture) {
    if (shownFor != picture)
        return;
    shownFor = nullptr;
    hide();
}

void frmTooltip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    Draw_Frame(painter, rect(), palette::To_Color(palette::Outline));
}

frmTooltip& The_frmTooltip() {
    if (Global_frmTooltip.isNull())
        Global_frmTooltip = new frmTooltip;
    return *Global_frmTooltip;
}
