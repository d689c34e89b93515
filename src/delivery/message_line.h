// What the queue of toolbar messages asks of the toolbar: a line to write on. All lengths are
// pixels. Implemented by the toolbar window, handed out by the application.
#pragma once

#include <QString>

class MessageLine {
public:
    virtual ~MessageLine() = default;

    virtual int Line_Width() const = 0;
    // Width of a text in the line's font, rounded.
    virtual int Text_Width(const QString& text) const = 0;
    // Puts a text of this width on the line with its left edge at "left"; the text is its tool tip.
    virtual void Put_Text(const QString& text, int width, int left) = 0;
    // Moves the text, and makes it visible.
    virtual void Move_Text(int left) = 0;
    // Takes the text and its tool tip off the line.
    virtual void Clear_Line() = 0;
};

extern MessageLine* Global_MessageLine;
