// A strip of tabs with gradient faces. It knows no pages: it only reports which tab was chosen.
#pragma once

#include "controls/mouse_watch.h"
#include "controls/tab_list.h"

#include <QWidget>

#include <vector>

class CoolTab : public QWidget {
    Q_OBJECT
public:
    explicit CoolTab(QWidget* parent = nullptr);

    // Pairs of width in pixels and caption, "-1;Tab 1;80;Tab 2"; -1 = as wide as the caption.
    // False, and nothing changes, for more than MostTabs pairs.
    bool Set_Tabs(const QString& list);
    int TabCount() const { return static_cast<int>(tabs.size()); }
    // -1 until one is chosen.
    int Selected() const { return selected; }
    // By the program: tells nobody. -1: none.
    void Select(int tab);
    // Empty for a tab that is not there.
    QRect Tab_Rect(int tab) const;
    QString Tab_Caption(int tab) const;
    // What a click on the tab does.
    void Choose(int tab);

    ColorValue SelectedColor1 = palette::Tab_Selected_Top;
    ColorValue SelectedColor2 = palette::Tab_Selected_Bottom;
    ColorValue UnselectedColor1 = palette::Tab_Unselected_Top;
    ColorValue UnselectedColor2 = palette::Tab_Unselected_Bottom;
    ColorValue BorderColor1 = palette::Black; // above and left of a tab
    ColorValue BorderColor2 = palette::Black; // right of a tab
    ColorValue BorderColor3 = palette::Black; // along the bottom, but for the selected tab
    bool MouseOverHighlight = false;
    ColorValue HighlightColor = palette::Black;

    // The colour that the tab's caption has now.
    QColor Caption_Color(int tab) const;

Q_SIGNALS:
    // By the user: a click, or the arrow keys.
    void TabSelected(int TabI);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool Is_Tab(int tab) const { return tab >= 0 && tab < TabCount(); }
    int Tab_Width(const TabEntry& tab) const;
    int Tab_At(const QPoint& position) const;
    void End_MouseOver();
    void Paint_Tab(QPainter& painter, int tab, const std::vector<ColorValue>& rows) const;

    std::vector<TabEntry> tabs;
    int selected = -1;
    int hot = -1;
    bool focusByKey = false;
    MouseWatch watch;
};
