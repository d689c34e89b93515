// A text that acts when it is clicked.
#pragma once

#include <QLabel>

class ClickLabel : public QLabel {
    Q_OBJECT
public:
    // Pixels; as wide as its text.
    ClickLabel(const QString& text, int left, int top, QWidget* parent);
    // Blue and underlined.
    void Look_Clickable();

Q_SIGNALS:
    void Click();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    // With a focus policy: Space and Enter click.
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
