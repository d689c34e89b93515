#include "delivery/rwin_layout.h"

#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace rwin {

namespace {

constexpr int NarrowestAction = 158;
constexpr int WidestAction = 160;
constexpr int LongestWord = 1000; // characters; many lines of the box

int Lines_OfParagraph(const QString& paragraph, const QFont& font, int width, int most) {
    QTextOption option;
    option.setWrapMode(rwin::Wrap_Mode(paragraph));
    QTextLayout layout(paragraph, font);
    layout.setTextOption(option);
    layout.beginLayout();
    int lines = 0;
    for (QTextLine line = layout.createLine(); line.isValid() && lines <= most;
         line = layout.createLine()) {
        line.setLineWidth(width);
        ++lines;
    }
    layout.endLayout();
    return std::max(lines, 1);
}

// Where the text box begins another line; -1 when nowhere behind the start.
qsizetype Paragraph_End(const QString& text, qsizetype start) {
    const auto isEnd = [](QChar character) {
        return character == u'\n' || character == u'\r' || character == QChar::ParagraphSeparator;
    };
    const auto* const found = std::find_if(text.begin() + start, text.end(), isEnd);
    return found == text.end() ? -1 : found - text.begin();
}

// Any text of capitals gives it.
int Line_Height(const QFont& font) {
    QTextLayout layout(QStringLiteral("ABC"), font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return std::max(static_cast<int>(std::ceil(line.height())), 1);
}

} // namespace

int Action_Width(const std::vector<int>& captionWidths) {
    int widest = 0;
    for (const int width : captionWidths)
        widest = std::max(widest, width);
    return std::clamp(widest + 2 * PictureRoom, NarrowestAction, WidestAction);
}

QTextOption::WrapMode Wrap_Mode(const QString& text) {
    int length = 0;
    for (const QChar character : text) {
        length = character.isSpace() ? 0 : length + 1;
        if (length > LongestWord)
            return QTextOption::WrapAnywhere;
    }
    return QTextOption::WrapAtWordBoundaryOrAnywhere;
}

int Line_Count(const QString& text, const QFont& font, int width, int most) {
    int lines = 0;
    qsizetype start = 0;
    while (lines <= most) {
        const qsizetype end = Paragraph_End(text, start);
        // What fills more lines than are asked for need not be laid out to its end.
        const qsizetype length = std::min(end == -1 ? text.size() - start : end - start,
                                          static_cast<qsizetype>(most + 1) * width);
        lines += Lines_OfParagraph(text.mid(start, length), font, width, most);
        if (end == -1)
            break;
        start = end + (text.sliced(end).startsWith("\r\n"_L1) ? 2 : 1);
    }
    return lines;
}

bool Needs_ScrollBar(const QString& text, const QFont& font) {
    const int fitting = TextBox.height() / Line_Height(font);
    return Line_Count(text, font, TextBox.width() - 2 * TextMargin, fitting) > fitting;
}

} // namespace rwin
