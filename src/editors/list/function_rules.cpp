#include "editors/list/function_rules.h"

using namespace Qt::StringLiterals;

QString Function_Text(FunctionType type, const QString& path) {
    switch (type) {
    case FunctionType::OpenPage:
        return u"Open page: \"%1\""_s.arg(path);
    case FunctionType::OpenFile:
        return u"Open file: \"%1\""_s.arg(path);
    default:
        return u"- None -"_s;
    }
}

void Tick_FunctionBox(FunctionBoxes& boxes, int box) {
    const int first = box < FirstSizeBox ? 0 : FirstSizeBox;
    const int end = box < FirstSizeBox ? FirstSizeBox : FunctionBoxCount;
    for (int index = first; index < end; ++index)
        boxes[static_cast<std::size_t>(index)] = index == box;
}

FunctionBoxes Boxes_OfFunction(const FunctionEntry& entry) {
    FunctionBoxes boxes{};
    const int type = static_cast<int>(entry.Function_Type);
    if (type > 0 && type <= FirstSizeBox)
        Tick_FunctionBox(boxes, type - 1);
    if (entry.Window_Mode < FunctionBoxCount - FirstSizeBox)
        Tick_FunctionBox(boxes, entry.Window_Mode + FirstSizeBox);
    return boxes;
}

FunctionEntry Function_FromView(const FunctionEntry& before, const FunctionBoxes& boxes,
                                const QString& page, const QString& file) {
    FunctionEntry entry;
    entry.Enabled = before.Enabled;
    entry.Title = before.Title;
    if (boxes[0]) {
        entry.Function_Type = FunctionType::OpenPage;
        const QString address = page.trimmed();
        entry.Function_Path = address.contains("://"_L1) ? address : "http://"_L1 + address;
    } else if (boxes[1]) {
        entry.Function_Type = FunctionType::OpenFile;
        entry.Function_Path = file.trimmed();
    }
    for (int box = FirstSizeBox; box < FunctionBoxCount; ++box)
        if (boxes[static_cast<std::size_t>(box)])
            entry.Window_Mode = static_cast<std::uint8_t>(box - FirstSizeBox);
    return entry;
}
