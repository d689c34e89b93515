// The message line's two parts: the surface, and the text that passes over it. The strip handles
// their mouse events.
#pragma once

#include <QGlyphRun>
#include <QWidget>

#include <vector>

// Picture1: the yellow surface. It can have the keyboard focus, so that the menu of a message can
// be reached without a mouse.
class MessageSurface : public QWidget {
public:
    explicit MessageSurface(QWidget* parent);

    void Mark_Focus() { focusByKey = true; }
    bool Shows_Focus() const { return hasFocus() && focusByKey; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool focusByKey = false;
};

// Label1: one line of plain text. Moving it by a pixel repaints a pixel's width, of a text of any
// length only what stands there.
class MessageText : public QWidget {
public:
    explicit MessageText(QWidget* parent);

    void Set_Text(const QString& text);
    const QString& Text() const { return shown; }
    // The width that a text takes here, pixels.
    static int Width_Of(const QString& text);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // A few glyphs of the line; they may reach from left to right, pixels of the line.
    struct Piece {
        QGlyphRun Glyphs;
        int Left = 0;
        int Right = 0;
    };

    void Add_Pieces(const QGlyphRun& run);

    QString shown;
    std::vector<Piece> pieces;
};
