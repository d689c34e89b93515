// Small painted pictures of how a reminder shows: on the toolbar, in a window beside it, or in one
// at the centre of the screen.
#pragma once

#include "core/reminder.h"

#include <QString>
#include <QWidget>

// The message on the toolbar or in a reminder window.
class SamplePicture : public QWidget {
    Q_OBJECT
public:
    // As wide as its place.
    SamplePicture(const QRect& place, QWidget* parent);
    void Show_Sample(ReminderType type, const QString& message);
    ReminderType Shown_Type() const { return type; }
    const QString& Shown_Message() const { return message; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Paint_Toolbar(QPainter& painter) const; // samplePicture2
    void Paint_Window(QPainter& painter) const;  // samplePicture1

    ReminderType type = ReminderType::NextToToolbar;
    QString message;
};

// A whole screen, with the place where the reminder comes up.
class ModePicture : public QWidget {
public:
    static constexpr QSize Size{48, 32}; // pixels
    ModePicture(ReminderType type, const QPoint& place, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    ReminderType type;
};
