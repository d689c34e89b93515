// The sticky text box: a small note above all windows. Its text lives as long as the run, its place
// longer.
#pragma once

#include "controls/form.h"
#include "controls/text_fields.h"
#include "settings/global_settings.h"

#include <optional>

// Selects the words that it comes with when it gets the focus for the first time, so that the first
// key press replaces them.
class TextboxText : public MemoField {
    Q_OBJECT
public:
    explicit TextboxText(QWidget* parent);
    // Shows the scroll bar when there are more lines than fit, else hides it.
    void Check_ScrollBar();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    int Text_Height() const;

    std::int32_t LoadedTextBox = 0; // 0 until the first focus
    bool keepsSelection = false;    // against the click that may have brought the focus
};

class frmTextbox : public Form {
    Q_OBJECT
public:
    frmTextbox();
    // Above all windows, out of the task bar, where it can be reached.
    void Show_Box();
    void Hide_Box();

protected:
    bool Query_Unload(UnloadMode mode) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Note_Place();
    void Stay_OnTop();

    TextboxText* Text1 = nullptr;
    std::optional<std::int32_t> lastTopmost; // millisecond clock
};

// Takes the place from the settings; a place off the screen is brought back.
void Init_Textbox();
// Shows the box, or hides it with its text.
void Toggle_Textbox();
// Where the box stands; nothing before Init_Textbox. It is plain data, good at any end.
std::optional<WindowPlace> Textbox_Place();
