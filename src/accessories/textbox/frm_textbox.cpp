#include "accessories/textbox/frm_textbox.h"

#include "accessories/textbox/textbox_rules.h"
#include "controls/help_topic.h"
#include "controls/metrics.h"
#include "controls/one_window.h"
#include "controls/painting.h"
#include "controls/the_screen.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/window.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPlainTextDocumentLayout>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype SelectedAtFirst = 100;  // characters
constexpr std::int32_t TopmostPause = 1000; // ms; being put on top can ask for another painting

std::optional<WindowPlace> savedPlace;
OneWindow<frmTextbox> textbox;

QSize Frame_Size(const QWidget* window) {
    return window == nullptr ? TextboxClientSize : window->frameGeometry().size();
}

// Where the box shall stand, pixels.
QPoint Wanted_Place(const QWidget* window) {
    const WindowPlace place = savedPlace.value_or(WindowPlace());
    return Reachable_Place({TwipsX_To_Pixels(place.Left), TwipsY_To_Pixels(place.Top)},
                           Frame_Size(window), platform::Desktop::Get().Screens(), The_Screen());
}

void Save_Place(const QPoint& place) {
    const WindowPlace before = savedPlace.value_or(WindowPlace());
    // What stands on a pixel's fraction stays as it is.
    if (TwipsX_To_Pixels(before.Left) != place.x() || TwipsY_To_Pixels(before.Top) != place.y())
        savedPlace = WindowPlace{PixelsY_To_Twips(place.y()), PixelsX_To_Twips(place.x())};
}

} // namespace

TextboxText::TextboxText(QWidget* parent) : MemoField(parent) {
    setFont(Small_Font());
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(0);
    setViewportMargins(3, 0, 3, 0);
    setTabChangesFocus(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setAccessibleName(u"Textbox"_s);
    setPlaceholderText(help_page::Hint);
    setPlainText(u"This textbox will stay on top of other windows\n"
                 "Click to change the text\n"_s);
    connect(this, &MemoField::textChanged, this, &TextboxText::Check_ScrollBar);
}

// As far as it matters: a long text is not counted to its end.
int TextboxText::Text_Height() const {
    auto* layout = qobject_cast<QPlainTextDocumentLayout*>(document()->documentLayout());
    const int lineHeight = QFontMetrics(font()).lineSpacing();
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid() && lines * lineHeight <= height();
         block = block.next()) {
        layout->ensureBlockLayout(block);
        lines += block.lineCount();
    }
    return lines * lineHeight;
}

void TextboxText::Check_ScrollBar() {
    setVerticalScrollBarPolicy(Text_Height() > height() ? Qt::ScrollBarAlwaysOn
                                                        : Qt::ScrollBarAlwaysOff);
}

void TextboxText::focusInEvent(QFocusEvent* event) {
    MemoField::focusInEvent(event);
    if (LoadedTextBox != 0)
        return;
    LoadedTextBox = 1;
    keepsSelection = true;
    QTextCursor cursor = textCursor();
    const auto length = static_cast<qsizetype>(document()->characterCount()) - 1;
    cursor.setPosition(0);
    cursor.setPosition(static_cast<int>(std::min(length, SelectedAtFirst)),
                       QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

void TextboxText::focusOutEvent(QFocusEvent* event) {
    MemoField::focusOutEvent(event);
    keepsSelection = false;
}

void TextboxText::mousePressEvent(QMouseEvent* event) {
    const bool keeps = keepsSelection && textCursor().hasSelection();
    keepsSelection = false;
    if (!keeps)
        MemoField::mousePressEvent(event);
}

frmTextbox::frmTextbox() : Form(nullptr, Qt::Tool) {
    setWindowTitle(u"Textbox"_s);
    Set_HelpTopic(*this, help_page::Toolbar);
    setMinimumSize(1, 1);
    Set_BackColor(palette::Message_Back);
    QPalette colors = palette();
    colors.setColor(QPalette::Base, palette::To_Color(palette::Message_Back));
    setPalette(colors);
    Text1 = new TextboxText(this);
    resize(TextboxClientSize);
}

void frmTextbox::Show_Box() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    move(Wanted_Place(this));
    platform::Windows::Get().Leave_TaskBar(winId());
    platform::Windows::Get().Set_Topmost(winId(), true);
    show();
    raise();
    platform::Windows::Get().Activate(winId());
}

void frmTextbox::Hide_Box() {
    Note_Place();
    hide();
}

// The close box only hides it, with its text.
bool frmTextbox::Query_Unload(UnloadMode mode) {
    if (mode != UnloadMode::User)
        return true;
    Hide_Box();
    return false;
}

void frmTextbox::Note_Place() {
    if (isVisible() && !isMinimized())
        Save_Place(pos());
}

void frmTextbox::showEvent(QShowEvent*) {
    Stay_OnTop();
}

void frmTextbox::moveEvent(QMoveEvent*) {
    Note_Place();
}

void frmTextbox::resizeEvent(QResizeEvent*) {
    if (!Lays_Out(width(), height()))
        return;
    Text1->setGeometry(1, 1, width() - 2, height() - 2);
    Text1->Check_ScrollBar();
    update();
}

// At every painting, so that it cannot sink.
void frmTextbox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect Shape1 = Text1->geometry().adjusted(-1, -1, 1, 1);
    Draw_Frame(painter, Shape1, palette::To_Color(palette::Message_Frame));
    Note_Place();
    Stay_OnTop();
}

void frmTextbox::Stay_OnTop() {
    auto& clock = platform::Clock::Get();
    if (lastTopmost && clock.Milliseconds_Since(*lastTopmost) < TopmostPause)
        return;
    lastTopmost = clock.Milliseconds();
    platform::Windows::Get().Set_Topmost(winId(), true);
    platform::Windows::Get().Raise(winId(), platform::RaiseOver::Others);
}

void Init_Textbox() {
    savedPlace = WindowPlace{Global_Config_Textbox_Top, Global_Config_Textbox_Left};
    Save_Place(Wanted_Place(nullptr));
}

void Toggle_Textbox() {
    frmTextbox* box = textbox.Open_OrMake();
    if (box == nullptr)
        return;
    if (box->isVisible() && !box->isMinimized())
        box->Hide_Box();
    else
        box->Show_Box();
}

std::optional<WindowPlace> Textbox_Place() {
    return savedPlace;
}
