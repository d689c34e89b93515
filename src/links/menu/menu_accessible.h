// The painted rows of the links menu, as a screen reader meets them.
#pragma once

void Install_MenuAccessibility();
