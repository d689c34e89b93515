#include "editors/list/card_view.h"

#include "controls/metrics.h"
#include "controls/painting.h"
#include "controls/palette.h"
#include "controls/reminder_icons.h"
#include "controls/text_fields.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmapCache>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr ColorValue CardFill = 0xE0C0C0;
constexpr ColorValue BandFill = 0xE0FFFF;
constexpr ColorValue HighlightFill = 0xE0C0C0;
constexpr ColorValue HighlightBand = 0xEFE2E0;
constexpr ColorValue TodayText = 0xFF0000;
constexpr int BandTop = 1;
constexpr int BandHeight = 15;
constexpr int NextRunHeight = 13;
constexpr int IconLeft = 5;
constexpr int IconTop = 8;
constexpr int TextLeft = 58;
constexpr int TextTop = 16;
constexpr int CheckTop = 50;
constexpr int TextHeight = CheckTop - TextTop - 1;
constexpr int TextMargin = 2;
constexpr int DisabledLeft = 132;
constexpr int DisabledTop = 52;
constexpr int DisabledWidth = CardWidth - DisabledLeft - 2;

const QString& Disabled_Text() {
    static const QString text = u"Disabled for the rest of the day"_s;
    return text;
}

QPixmap Icon_Picture(const QString& name, IconColors colors, qreal scale) {
    const QString key = u"reminder/%1/%2/%3"_s.arg(name).arg(static_cast<int>(colors)).arg(scale);
    QPixmap picture;
    if (QPixmapCache::find(key, &picture))
        return picture;
    const QIcon icon =
        Reminder_Icon(name, colors == IconColors::Grey ? IconTint::Grey : IconTint::Color);
    if (icon.isNull())
        return {};
    picture = QPixmap((QSizeF(ReminderIconSize, ReminderIconSize) * scale).toSize());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    icon.paint(&painter, QRect(0, 0, ReminderIconSize, ReminderIconSize));
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
}

} // namespace

void Set_PIC_By_ImageName(const QString& imgName, IconImage& wImg, IconColors colors, qreal scale) {
    wImg.Tag = imgName.trimmed().toLower();
    wImg.Picture = Icon_Picture(wImg.Tag, colors, scale);
}

CardText::CardText(QWidget* parent) : MemoField(parent) {
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
    setReadOnly(true);
    setFocusPolicy(Qt::ClickFocus);
    document()->setDocumentMargin(0);
    setViewportMargins(TextMargin, TextMargin, TextMargin,
                       TextHeight - TextMargin - 2 * SmallLineHeight); // two whole lines
    setAutoFillBackground(true);
    viewport()->setCursor(Qt::IBeamCursor);
}

void CardText::mouseReleaseEvent(QMouseEvent* event) {
    MemoField::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT Click();
}

void CardText::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

CardView::CardView(QWidget* parent) : QWidget(parent) {
    resize(CardWidth, CardHeight);
    setFont(Small_Font());
    Text = new CardText(this);
    // The frames run around it.
    Text->setGeometry(TextLeft, TextTop, CardWidth - TextLeft - 2, TextHeight);
    EnabledBox = new ChkBox(u"Enabled"_s, TextLeft, CheckTop, this);
    EnabledBox->setFocusPolicy(Qt::ClickFocus);
    Color_Text();
    connect(Text, &CardText::Click, this, &CardView::Text_Click);
    connect(Text, &QPlainTextEdit::textChanged, this, [this] {
        if (!showing)
            Q_EMIT Text_Changed();
    });
    connect(EnabledBox, &ChkBox::Checked, this, &CardView::Enabled_Changed);
    connect(EnabledBox, &ChkBox::Unchecked, this, &CardView::Enabled_Changed);
}

void CardView::Show_Content(const CardContent& shown) {
    Set_Title(shown.Title);
    Set_Text(shown.Text);
    Set_Icon(shown.Icon, shown.Colors);
    Set_NextRun(shown.NextRun, shown.RunsToday);
    content = shown;
    Text->resize(Text->width(), TextHeight - Disabled_Raise());
    EnabledBox->Set_Ticked(shown.Enabled && !shown.DisabledForToday);
    update();
}

// With a wide face the words take a second line, and the text above gives one of its own.
int CardView::Disabled_Raise() const {
    const bool wraps = fontMetrics().horizontalAdvance(Disabled_Text()) > DisabledWidth;
    return content.DisabledForToday && wraps ? SmallLineHeight : 0;
}

void CardView::Set_Title(const QString& title) {
    content.Title = title;
    // Names cost their time when a screen reader is told of each change.
    if (accessibleName() != title) {
        setAccessibleName(title);
        Text->setAccessibleName(u"Text of %1"_s.arg(title));
        EnabledBox->setAccessibleName(u"Enabled: %1"_s.arg(title));
    }
    update();
}

void CardView::Set_Text(const QString& text) {
    content.Text = text;
    if (Plain_Text(*Text) == text)
        return;
    showing = true;
    Text->setPlainText(text);
    showing = false;
}

void CardView::Set_NextRun(const QString& caption, bool today) {
    content.NextRun = caption;
    content.RunsToday = today;
    update();
}

void CardView::Set_Icon(const QString& name, IconColors colors) {
    content.Icon = name;
    content.Colors = colors;
    Set_PIC_By_ImageName(name, ReminderIconIMG, colors, devicePixelRatioF());
    update();
}

void CardView::Color_Text() {
    QPalette colors = Text->palette();
    for (const auto role : {QPalette::Base, QPalette::Window})
        colors.setColor(role, palette::To_Color(highlighted ? HighlightFill : palette::White));
    Text->setPalette(colors);
}

void CardView::Set_Highlight(bool on) {
    highlighted = on;
    Text->setReadOnly(!on);
    // The keyboard's way leads through the controls of the selected card only.
    Text->setFocusPolicy(on ? Qt::StrongFocus : Qt::ClickFocus);
    EnabledBox->setFocusPolicy(on ? Qt::StrongFocus : Qt::ClickFocus);
    Color_Text();
    update();
}

void CardView::Set_Current(bool on) {
    if (current == on)
        return;
    current = on;
    update();
    if (on && QAccessible::isActive()) {
        QAccessibleEvent event(this, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

void CardView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        Q_EMIT Click();
}

void CardView::Paint_Band(QPainter& painter) {
    painter.fillRect(1, BandTop, CardWidth - 2, BandHeight,
                     palette::To_Color(highlighted ? HighlightBand : BandFill));
    const QFontMetrics metrics(font());
    const int runWidth = metrics.horizontalAdvance(content.NextRun);
    const int runLeft = CardWidth - (runWidth + 1) - 2;
    painter.setPen(palette::To_Color(content.RunsToday ? TodayText : palette::Black));
    painter.drawText(QRect(runLeft, BandTop, runWidth + 2, NextRunHeight),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, content.NextRun);
    painter.setPen(palette::To_Color(palette::Black));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    const int room = runLeft - TextLeft - 4;
    painter.drawText(
        QRect(TextLeft, BandTop, room, BandHeight - 2),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        QFontMetrics(bold).elidedText(content.Title.simplified(), Qt::ElideRight, room));
    painter.setFont(font());
}

void CardView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette::To_Color(CardFill));
    Paint_Band(painter);
    if (!highlighted)
        Draw_Frame(painter, rect(), palette::To_Color(palette::Outline));
    if (devicePixelRatioF() != ReminderIconIMG.Picture.devicePixelRatio())
        Set_PIC_By_ImageName(content.Icon, ReminderIconIMG, content.Colors, devicePixelRatioF());
    painter.drawPixmap(IconLeft, IconTop, ReminderIconIMG.Picture);
    if (content.DisabledForToday)
        painter.drawText(QRect(DisabledLeft, DisabledTop - Disabled_Raise(), DisabledWidth,
                               SmallLineHeight + Disabled_Raise()),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, Disabled_Text());
    if (current)
        Draw_Frame(painter, rect().adjusted(1, 1, -1, -1), palette::To_Color(palette::Focus_Mark));
}
