// Shows screen readers a CoolTab as a list of tabs that can be chosen.
#pragma once

class CoolTab;

void Install_CoolTabAccessibility();
// Tells them that another tab is selected.
void Tell_TabSelection(CoolTab* strip);
