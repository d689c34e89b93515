// The name of a drop-down for screen readers. Its value answers in the place of its own name, so
// that it needs a label.
#pragma once

class QComboBox;
class QLabel;
class QString;

// label: the one that is seen beside it; without one it gets one that is not seen.
void Name_Combo(QComboBox* box, const QString& name, QLabel* label = nullptr);
