#include "controls/tooltip_texts.h"
#include "fuzz.h"

void Try(Ground& ground) {
    const auto table = Parse_Tooltips(ground.Bytes());
    Must(!table || (table->size() >= FirstTooltipSlots && table->size() <= HighestTooltip + 1));
}
