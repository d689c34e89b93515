// A card of the reminder list. There are only as many as fit into the list: a card shows whichever
// row stands at its place.
#pragma once

#include "controls/chk_box.h"
#include "controls/text_fields.h"
#include "core/reminder_ref.h"

#include <QPixmap>

// Pixels.
constexpr int CardWidth = 293;
constexpr int CardHeight = 69;
constexpr int CardPitch = CardHeight + 4;

enum class IconColors { Color, Grey };

// The picture of a reminder's icon, and the name it was last given.
struct IconImage {
    QString Tag; // trimmed, lower case
    QPixmap Picture;
};
// An unknown name empties the picture. scale: device pixels in a logical one.
void Set_PIC_By_ImageName(const QString& imgName, IconImage& wImg, IconColors colors, qreal scale);

// What a card shows.
struct CardContent {
    QString Title;
    QString Text; // lines end with LF
    QString NextRun;
    bool RunsToday = false;
    bool Enabled = false;
    bool DisabledForToday = false; // wins over Enabled
    QString Icon;
    IconColors Colors = IconColors::Color;
};

// The text on a card. The wheel moves the list.
class CardText : public MemoField {
    Q_OBJECT
public:
    explicit CardText(QWidget* parent);

Q_SIGNALS:
    void Click();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

class CardView : public QWidget {
    Q_OBJECT
public:
    explicit CardView(QWidget* parent);

    // The reminder on view.
    ReminderRef Reminder;
    int Row = -1;

    void Show_Content(const CardContent& content);
    void Set_Title(const QString& title);
    void Set_NextRun(const QString& caption, bool today);
    void Set_Icon(const QString& name, IconColors colors);
    // Shows the text without telling.
    void Set_Text(const QString& text);
    // Highlight_Row and its undoing.
    void Set_Highlight(bool on);
    // The keyboard stands here.
    void Set_Current(bool on);

    const CardContent& Content() const { return content; }
    bool Is_Highlighted() const { return highlighted; }
    CardText* Text = nullptr;
    ChkBox* EnabledBox = nullptr;

Q_SIGNALS:
    void Click();
    void Text_Click();
    void Text_Changed();
    void Enabled_Changed();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Color_Text();
    int Disabled_Raise() const; // pixels
    void Paint_Band(QPainter& painter);

    CardContent content;
    IconImage ReminderIconIMG;
    bool highlighted = false;
    bool current = false;
    bool showing = false; // by the program: not an edit
};
