// Tells screen readers that a wbButton is a button, and lets them press it.
#pragma once

void Install_ButtonAccessibility();
