// Tells screen readers that a ChkBox is a check box or one of a group, and lets them tick it.
#pragma once

void Install_ChkBoxAccessibility();
