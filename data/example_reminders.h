// The starter reminders of a new account.
#pragma once

// Puts them into the first slots of Global_Reminders, which must have room for them.
void Fill_ExampleReminders();
