#include "core/categories.h"

#include "core/reminder_store.h"
#include "fuzz.h"

void Try(Ground& ground) {
    Init_Reminders();
    Init_Categories();
    Load_Categories(ground.file);
    Must(!Global_Categories.front().Name.isEmpty());
    const std::string saved = Encode_Categories();
    Save_Categories(ground.file);
    Load_Categories(ground.file);
    Must(saved.empty() || Encode_Categories() == saved);
    Delete_Category(Global_Categories.front().Name);
}
