#include "delivery/frm_missed_reminders.h"

#include "controls/help_topic.h"
#include "controls/icons.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/program_end.h"
#include "controls/the_screen.h"
#include "delivery/deliver.h"
#include "platform/shown_text.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowHeight = 16;
constexpr int FromEdge = 2;
constexpr int SmallestLayout = 50;      // below it the controls stay as they are
constexpr qsizetype MeasuredText = 500; // wider than any screen

QPointer<frmMissedReminders> missedWindow;

QPalette List_Palette() {
    QPalette colors(palette::To_Color(palette::System_ButtonFace));
    colors.setColor(QPalette::Base, palette::To_Color(palette::White));
    colors.setColor(QPalette::Text, palette::To_Color(palette::Black));
    return colors;
}

// A row is one line, whatever the text holds.
QString Row_Text(const QString& text) {
    QString line = text;
    for (const QChar lineEnd : {u'\r', u'\n', u'\u2028', u'\u2029'})
        line.replace(lineEnd, u' ');
    return line;
}

} // namespace

frmMissedReminders::frmMissedReminders() {
    setWindowTitle(u"Missed Reminders"_s);
    Set_HelpTopic(*this, help_page::Toolbar);
    setWindowIcon(Load_Icon(IconName::Program));
    setAttribute(Qt::WA_QuitOnClose, false);
    setPalette(List_Palette());
    List1 = new QListWidget(this);
    List1->setFont(Small_Font());
    List1->setAccessibleName(u"Missed Reminders"_s);
    List1->setAccessibleDescription(u"Double click to view"_s);
    List1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    List1->setTextElideMode(Qt::ElideRight);
    List1->setUniformItemSizes(true);
    Label1 = new QLabel(u"Double click to view"_s, this);
    Label1->setFont(Small_Font());
    Label1->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    helpHint = new QLabel(help_page::Hint, this);
    helpHint->setFont(Small_Font());
    helpHint->adjustSize();
    connect(List1, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { Deliver_Row(List1->row(item)); });
}

void frmMissedReminders::Fill_List(std::vector<MissedEntry> missed) {
    entries = std::move(missed);
    List1->clear();
    for (const MissedEntry& entry : entries) {
        auto* item = new QListWidgetItem(Row_Text(entry.Text), List1);
        item->setSizeHint(QSize(0, RowHeight));
        item->setToolTip(platform::Tip_Text(entry.Text));
    }
    List1->setCurrentRow(0);
}

void frmMissedReminders::Add_Rows(std::vector<MissedEntry> missed) {
    missed.insert(missed.end(), entries.begin(), entries.end());
    std::stable_sort(
        missed.begin(), missed.end(),
        [](const MissedEntry& one, const MissedEntry& other) { return one.Day > other.Day; });
    Fill_List(std::move(missed));
}

void frmMissedReminders::Place_Window() {
    int widest = 0;
    for (const MissedEntry& entry : entries)
        widest = std::max(widest, List1->fontMetrics().horizontalAdvance(
                                      Row_Text(entry.Text.left(MeasuredText))));
    // The window manager's frame is known only once it is there: the style's title bar stands for
    // it.
    const int frame = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    const MissedPlace place = Place_MissedWindow(static_cast<int>(entries.size()), widest, frame,
                                                 Global_Toolbar->Bounds(), The_Screen());
    resize(place.Width, place.Height - frame);
    move(place.Left, place.Top);
}

void frmMissedReminders::Deliver_Row(int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= entries.size() || Program_Is_Ending())
        return;
    Deliver_Reminder(entries[static_cast<std::size_t>(row)].Reminder);
}

void frmMissedReminders::resizeEvent(QResizeEvent*) {
    if (isMinimized() || width() < SmallestLayout || height() < SmallestLayout)
        return;
    const int labelTop = height() - FromEdge - SmallLineHeight;
    const int hintRoom = helpHint->width() + 4 * FromEdge;
    const bool hasRoom = width() > Label1->sizeHint().width() + 2 * hintRoom;
    const int beside = hasRoom ? hintRoom : 0; // on both sides, so that it stays in the middle
    Label1->setGeometry(beside, labelTop, width() - 2 * beside, SmallLineHeight);
    helpHint->move(width() - helpHint->width() - 2 * FromEdge, labelTop);
    helpHint->setVisible(hasRoom);
    List1->setGeometry(0, 0, width(), labelTop - FromEdge);
}

void frmMissedReminders::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Deliver_Row(List1->currentRow());
    else
        QWidget::keyPressEvent(event);
}

void LoadAndShow_MissedReminders() {
    if (missedWindow.isNull())
        missedWindow = new frmMissedReminders;
    std::vector<MissedEntry> missed = List_MissedReminders(Read_Moment());
    const bool hasRows = !missed.empty();
    missedWindow->Fill_List(std::move(missed));
    missedWindow->Place_Window();
    if (hasRows)
        missedWindow->show();
}

void Show_SwallowedReminders(const Moment& before, const Moment& now) {
    std::vector<MissedEntry> missed = List_SwallowedReminders(before, now);
    if (missed.empty()) {
        return;
    }
    if (missedWindow.isNull()) {
        missedWindow = new frmMissedReminders;
    }
    if (missedWindow->isVisible()) {
        missedWindow->Add_Rows(std::move(missed));
        return;
    }
    missedWindow->Fill_List(std::move(missed));
    missedWindow->Place_Window();
    missedWindow->show();
}

void Unload_MissedReminders() {
    delete missedWindow.data();
}
