// Texts of the user's as boxes and tool tips show them: as they stand, and never wider or higher
// than a screen.
#pragma once

#include <QString>

namespace platform {

// At most 500 characters, cut in the middle, with places at which long words may break.
QString Shown_Text(const QString& text);
// The same for a tool tip: wrapped, none of it read as markup. Empty for an empty text.
QString Tip_Text(const QString& text);

} // namespace platform
