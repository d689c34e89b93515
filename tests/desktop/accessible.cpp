#include "desktop/accessible.h"

#include <atspi/atspi.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

struct Release {
    void operator()(gpointer object) const { g_object_unref(object); }
};
using Accessible = std::unique_ptr<AtspiAccessible, Release>;

QString Taken(gchar* text) {
    const QString taken = QString::fromUtf8(text);
    g_free(text);
    return taken;
}

// A window may go away between any two questions: what does not answer is not there.
template <class Visit>
void Each_Child(AtspiAccessible* parent, const Visit& visit) {
    const int count = atspi_accessible_get_child_count(parent, nullptr);
    for (int i = 0; i < count; ++i) {
        if (const Accessible child{atspi_accessible_get_child_at_index(parent, i, nullptr)}) {
            visit(child.get());
        }
    }
}

// A combo box answers with its value; its name is that of the label beside it.
QString Label_Of(AtspiAccessible* node) {
    QString label;
    GArray* relations = atspi_accessible_get_relation_set(node, nullptr);
    for (guint i = 0; relations && i < relations->len; ++i) {
        const std::unique_ptr<AtspiRelation, Release> relation{
            g_array_index(relations, AtspiRelation*, i)};
        if (atspi_relation_get_relation_type(relation.get()) == ATSPI_RELATION_LABELLED_BY) {
            const Accessible target{atspi_relation_get_target(relation.get(), 0)};
            label = target ? Taken(atspi_accessible_get_name(target.get(), nullptr)) : QString();
        }
    }
    if (relations) {
        g_array_free(relations, TRUE);
    }
    return label;
}

void Collect(AtspiAccessible* node, std::vector<Control>& into) {
    const std::unique_ptr<AtspiStateSet, Release> states{atspi_accessible_get_state_set(node)};
    const auto is = [&states](AtspiStateType state) {
        return states && atspi_state_set_contains(states.get(), state) != FALSE;
    };
    if (!is(ATSPI_STATE_SHOWING)) {
        return;
    }
    Control control{.role = Taken(atspi_accessible_get_role_name(node, nullptr)),
                    .name = Taken(atspi_accessible_get_name(node, nullptr)),
                    .place = {},
                    .focused = is(ATSPI_STATE_FOCUSED),
                    .checked = is(ATSPI_STATE_CHECKED)};
    if (control.role == "combo box"_L1) {
        control.name = Label_Of(node);
    }
    const std::unique_ptr<AtspiComponent, Release> component{
        atspi_accessible_get_component_iface(node)};
    AtspiRect* place =
        component ? atspi_component_get_extents(component.get(), ATSPI_COORD_TYPE_SCREEN, nullptr)
                  : nullptr;
    if (place) {
        control.place = {place->x, place->y, place->width, place->height};
        g_free(place);
    }
    into.push_back(control);
    Each_Child(node, [&into](AtspiAccessible* child) { Collect(child, into); });
}

} // namespace

void Connect_Accessibility(const QByteArray& address) {
    atspi_exit();
    qputenv("AT_SPI_BUS_ADDRESS", address);
    // What the library says about windows that went away is no news.
    g_log_set_default_handler([](const gchar*, GLogLevelFlags, const gchar*, gpointer) {}, nullptr);
    atspi_init();
    atspi_set_timeout(3000, 0);
}

std::vector<Control> Shown_Controls(const QString& window) {
    std::vector<Control> shown;
    Each_Child(atspi_get_desktop(0), [&](AtspiAccessible* program) {
        if (Taken(atspi_accessible_get_name(program, nullptr)) != "Tockly"_L1) {
            return;
        }
        Each_Child(program, [&](AtspiAccessible* top) {
            if (window.isEmpty() || Taken(atspi_accessible_get_name(top, nullptr)) == window) {
                Collect(top, shown);
            }
        });
    });
    return shown;
}
