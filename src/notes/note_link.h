// What can be done with a note, as a text that is clicked like a link.
#pragma once

#include "controls/link_label.h"

class NoteLink : public LinkLabel {
    Q_OBJECT
public:
    explicit NoteLink(const QString& caption, QWidget* parent = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
