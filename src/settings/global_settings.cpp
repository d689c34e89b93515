#include "settings/global_settings.h"

#include "core/date_text.h"
#include "platform/registry.h"
#include "platform/session.h"
#include "settings/registry_access.h"

#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <variant>
#include <vector>

using namespace Qt::StringLiterals;

bool Global_TopForm = true;
bool Global_UseShadows = true;
bool Global_UseTransparency = true;
std::int32_t Global_Autohide_WaitTime = 10000;
bool Global_Autohide_Enabled = false;
std::int32_t Global_Autohide_SelectedHideMode = 4;
std::int32_t Global_Config_MainForm_Width = 0;
std::int32_t Global_Config_MainForm_Top = 0;
std::int32_t Global_Config_MainForm_Left = 0;
std::int32_t Global_Config_Textbox_Top = 0;
std::int32_t Global_Config_Textbox_Left = 0;
std::int32_t Global_CurID = -1;
std::int32_t FirstTime = 1;
std::int32_t Global_MaxAccountID = 1;
bool Global_IsWinXP = false;

namespace {

// The program's folder, for other tools; the program never reads the value.
QString installPath;

enum class SettingKey { User, Machine };
enum class SettingUse { ReadAndWritten, Written };

// A text stands in a binary value, a flag and a number in a DWORD.
using Variable = std::variant<bool*, std::int32_t*, QString*>;

struct SettingRow {
    const char* Name;
    SettingKey Key;
    Variable Target;
    std::int32_t (*Default)(const SettingsDefaults&); // of flags and numbers
    SettingUse Use = SettingUse::ReadAndWritten;
};

template <std::int32_t Value>
std::int32_t Always(const SettingsDefaults& /*defaults*/) {
    return Value;
}

std::int32_t Centred_Left(const SettingsDefaults& defaults) {
    return defaults.ScreenLeft + static_cast<std::int32_t>(std::lrint(defaults.ScreenWidth / 2.0 -
                                                                      defaults.ToolbarWidth / 2.0));
}

// All values, in the order in which they are read.
const std::array Rows{
    SettingRow{"Global_TopForm", SettingKey::User, &Global_TopForm, Always<-1>},
    SettingRow{"Global_UseShadows", SettingKey::User, &Global_UseShadows,
               [](const SettingsDefaults&) { return Global_IsWinXP ? -1 : 0; }},
    SettingRow{"Global_UseTransparency", SettingKey::User, &Global_UseTransparency, Always<-1>},
    SettingRow{"Global_Autohide_WaitTime", SettingKey::User, &Global_Autohide_WaitTime,
               Always<10000>},
    SettingRow{"Global_Autohide_Enabled", SettingKey::User, &Global_Autohide_Enabled, Always<0>},
    SettingRow{"Global_Autohide_SelectedHideMode", SettingKey::User,
               &Global_Autohide_SelectedHideMode, Always<4>},
    SettingRow{"Global_Config_MainForm_Width", SettingKey::User, &Global_Config_MainForm_Width,
               [](const SettingsDefaults& defaults) { return defaults.ToolbarWidth; }},
    SettingRow{"Global_Config_MainForm_Top", SettingKey::User, &Global_Config_MainForm_Top,
               [](const SettingsDefaults& defaults) { return defaults.ScreenTop; }},
    SettingRow{"Global_Config_MainForm_Left", SettingKey::User, &Global_Config_MainForm_Left,
               Centred_Left},
    SettingRow{"Global_Config_Textbox_Top", SettingKey::User, &Global_Config_Textbox_Top,
               [](const SettingsDefaults& defaults) {
                   return defaults.ScreenTop + 30 * defaults.TwipsPerPixelY;
               }},
    SettingRow{"Global_Config_Textbox_Left", SettingKey::User, &Global_Config_Textbox_Left,
               [](const SettingsDefaults& defaults) {
                   return defaults.ScreenLeft + defaults.ScreenWidth - defaults.TextboxWidth;
               }},
    SettingRow{"Global_CurID", SettingKey::User, &Global_CurID, Always<-1>},
    SettingRow{"DateFormat", SettingKey::User, &Global_DateFormat, nullptr},
    SettingRow{"First Time", SettingKey::User, &FirstTime, Always<1>},
    SettingRow{"Global_MaxAccountID", SettingKey::Machine, &Global_MaxAccountID, Always<1>},
    SettingRow{"Path", SettingKey::Machine, &installPath, nullptr, SettingUse::Written},
};

// Saving goes through the rows in the table's order, but for these: the account numbers and the
// path come behind "First Time", and the date format last.
constexpr std::array<std::size_t, 16> SaveOrder{0, 1, 2,  3,  4,  5,  6,  7,
                                                8, 9, 10, 13, 11, 14, 15, 12};

QString Key_Text(SettingKey key) {
    return key == SettingKey::User ? u"HKCU\\Software\\Tockly"_s : u"HKLM\\Software\\Tockly"_s;
}

void Read_Row(const clsRegistryAccess& registry, const SettingRow& row,
              const SettingsDefaults& defaults) {
    const QString key = Key_Text(row.Key);
    const QString name = QString::fromLatin1(row.Name);
    if (auto* const* text = std::get_if<QString*>(&row.Target)) {
        const QString pattern = platform::Session::Get().Short_Date_Pattern();
        **text = registry.ReadBinary(key, name, Default_DateFormat(pattern));
        return;
    }
    const std::int32_t value = registry.ReadDWORD(key, name, row.Default(defaults));
    if (auto* const* flag = std::get_if<bool*>(&row.Target))
        **flag = value != 0;
    else
        *std::get<std::int32_t*>(row.Target) = value;
}

using StoredValue = std::variant<std::int32_t, QString>;

StoredValue Take_Value(const SettingRow& row) {
    if (auto* const* text = std::get_if<QString*>(&row.Target)) {
        return **text;
    }
    if (auto* const* flag = std::get_if<bool*>(&row.Target)) {
        return **flag ? -1 : 0;
    }
    return *std::get<std::int32_t*>(row.Target);
}

void Write_Row(const clsRegistryAccess& registry, const SettingRow& row, const StoredValue& value) {
    const QString key = Key_Text(row.Key);
    const QString name = QString::fromLatin1(row.Name);
    if (const auto* text = std::get_if<QString>(&value)) {
        registry.WriteBinary(key, name, *text);
    } else {
        registry.WriteDWORD(key, name, std::get<std::int32_t>(value));
    }
}

void Take_Geometry(const LiveGeometry& geometry, const QString& programFolder) {
    Global_Config_MainForm_Width = geometry.ToolbarWidth;
    Global_Config_MainForm_Top = geometry.Toolbar.Top;
    Global_Config_MainForm_Left = geometry.Toolbar.Left;
    if (geometry.Textbox) {
        Global_Config_Textbox_Top = geometry.Textbox->Top;
        Global_Config_Textbox_Left = geometry.Textbox->Left;
    }
    installPath = programFolder;
}

void Assign_Account(const SettingsDefaults& defaults) {
    const auto& isTaken = defaults.AccountIsTaken;
    if (Global_CurID != -1 && !(defaults.AccountIsClosed && defaults.AccountIsClosed(Global_CurID)))
        return;
    do {
        Global_CurID = Global_MaxAccountID;
        if (Global_MaxAccountID == std::numeric_limits<std::int32_t>::max())
            return;
        ++Global_MaxAccountID;
    } while (isTaken && isTaken(Global_CurID));
}

} // namespace

void Compute_IsWinXP() {
    const platform::SystemVersion version = platform::Session::Get().System_Version();
    Global_IsWinXP = version.major > 5 || (version.major == 5 && version.minor > 0);
}

void Load_Global_Settings(const SettingsDefaults& defaults) {
    const clsRegistryAccess registry;
    for (const SettingRow& row : Rows)
        if (row.Use == SettingUse::ReadAndWritten)
            Read_Row(registry, row, defaults);
    // Twips, although a toolbar is dragged no narrower than 280 pixels: that is meant.
    if (Global_Config_MainForm_Width < 280)
        Global_Config_MainForm_Width = 280;
    Assign_Account(defaults);
}

void Save_Global_Settings(const LiveGeometry& geometry, const QString& programFolder) {
    FirstTime = 0;
    Take_Geometry(geometry, programFolder);
    platform::Registry::Get().Together([] {
        const clsRegistryAccess registry;
        registry.CreateKey(Key_Text(SettingKey::User));
        for (const std::size_t index : SaveOrder) {
            Write_Row(registry, Rows[index], Take_Value(Rows[index]));
        }
    });
}

std::function<void()> Take_Global_Settings(const LiveGeometry& geometry,
                                           const QString& programFolder) {
    Take_Geometry(geometry, programFolder);
    std::vector<std::pair<const SettingRow*, StoredValue>> values;
    for (const std::size_t index : SaveOrder) {
        if (Rows[index].Target != Variable(&FirstTime)) {
            values.emplace_back(&Rows[index], Take_Value(Rows[index]));
        }
    }
    return [values = std::move(values)] {
        platform::Registry::Get().Together([&values] {
            const clsRegistryAccess registry;
            registry.CreateKey(Key_Text(SettingKey::User));
            for (const auto& [row, value] : values) {
                Write_Row(registry, *row, value);
            }
        });
    };
}
