#include "controls/reminder_icons.h"

#include "controls/svg_icon.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static void Init_Pictures() {
    Q_INIT_RESOURCE(controls);
}

const std::array<QString, ReminderIconCount>& ReminderIcon_Names() {
    static const std::array<QString, ReminderIconCount> names = {
        u"Flower pot"_s,     u"Pills"_s,        u"Girl"_s,   u"TV"_s,   u"Credit card"_s,
        u"Planner"_s,        u"Walk machine"_s, u"Boy"_s,    u"Home"_s, u"Affiliate"_s,
        u"Write"_s,          u"Music symbol"_s, u"Cart"_s,   u"Sofa"_s, u"Gift"_s,
        u"Cup and saucer"_s, u"Laptop"_s,       u"Mobile"_s,
    };
    return names;
}

QIcon Reminder_Icon(const QString& name, IconTint tint) {
    const QString wanted = name.trimmed();
    const auto& names = ReminderIcon_Names();
    const bool isKnown = std::any_of(names.begin(), names.end(), [&](const QString& known) {
        return known.compare(wanted, Qt::CaseInsensitive) == 0;
    });
    if (!isKnown)
        return {};
    Init_Pictures();
    const QString file = wanted.toLower().replace(u' ', u'_');
    return Svg_Icon(u":/icons/reminders/%1.svg"_s.arg(file),
                    tint == IconTint::Grey ? PictureTint::Grey : PictureTint::Color);
}
