// The program's own tooltip: a title and lines of text in a frame. One for the whole program.
#pragma once

#include "controls/form.h"

#include <QPointer>

#include <vector>

class QLabel;

class frmTooltip : public Form {
    Q_OBJECT
public:
    frmTooltip();

    void Set_Title(const QString& title);
    // Lays out the text below the title and sizes the form; lines wider than MaxWidth pixels are
    // cut at blanks, unless it is below 1.
    void Set_Text_and_Size(const QString& Text, int MaxWidth);
    // Shows it beside a picture, given in pixels of the screen, without activating it.
    void Show_Beside(QWidget* picture, const QRect& onScreen);
    // Hides it if it is this picture's.
    void Hide_For(const QWidget* picture);
    bool Shows_For(const QWidget* picture) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* Take_Label(std::size_t index);

    QLabel* titleLabel;
    std::vector<QLabel*> TextLabel;
    QPointer<QWidget> shownFor;
};

// Made at first use.
frmTooltip& The_frmTooltip();
// Null until then.
extern QPointer<frmTooltip> Global_frmTooltip;
