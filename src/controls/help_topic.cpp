#include "controls/help_topic.h"

#include <QVariant>
#include <QWidget>

namespace {
constexpr char TopicProperty[] = "helpTopic";
} // namespace

void Set_HelpTopic(QWidget& window, const QString& page) {
    window.setProperty(TopicProperty, page);
}

QString HelpTopic_Of(const QWidget& widget) {
    for (const QWidget* window = &widget; window != nullptr; window = window->parentWidget()) {
        QString page = window->property(TopicProperty).toString();
        if (!page.isEmpty())
            return page;
    }
    return {};
}
