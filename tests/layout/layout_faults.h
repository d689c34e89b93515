// What is wrong with the layout of a window: texts that are cut, shortened or covered, controls
// that lie on one another or that a screen reader has no name for. It looks at what is really
// painted.
#pragma once

#include <QStringList>

class QWidget;

QStringList Layout_Faults(QWidget* window);
