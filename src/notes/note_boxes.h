// The two boxes of a note's card: its title, and its text in a box that is as high as the text.
// Neither takes more than the file can hold: what would be too much is refused whole.
#pragma once

#include "controls/text_fields.h"

#include <QLineEdit>

class NoteTitleBox : public QLineEdit {
    Q_OBJECT
public:
    explicit NoteTitleBox(QWidget* parent = nullptr);

Q_SIGNALS:
    void Focused();
    void Left();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

class NoteTextBox : public MemoField {
    Q_OBJECT
public:
    explicit NoteTextBox(QWidget* parent = nullptr);

    // By the program: tells nobody.
    void Show_Text(const QString& text);
    // How high the box has to be at its present width, pixels.
    int Needed_Height() const;

    // The same for texts that no box shows, roughly: they are not laid out.
    class HeightGuess {
    public:
        // width: of the box, pixels.
        explicit HeightGuess(int width);
        int Height_Of(const QString& text) const;

    private:
        qsizetype inLine; // letters
        int lineHeight;   // pixels
    };

Q_SIGNALS:
    void Edited(); // by the user
    void Focused();
    void Left();

protected:
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Choose_Wrapping(const QString& text);
};
