// Tells screen readers that the card list is a list and its cards are the items.
#pragma once

void Install_CardAccessibility();
