// Controls as a screen reader meets them: over the accessibility bus, by role and name.
#pragma once

#include <QRect>
#include <QString>

#include <vector>

struct Control {
    QString role; // "push button"
    QString name;
    QRect place; // on the screen, in the program's own pixels
    bool focused = false;
    bool checked = false;
};

// Connects this process with a bus, instead of the one before.
void Connect_Accessibility(const QByteArray& address);
// What the program's windows of a title show, or all of them without one; a parent stands before
// its children.
std::vector<Control> Shown_Controls(const QString& window = {});
