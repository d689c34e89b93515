// A word that a field says about what it was just given.
#pragma once

class QString;
class QWidget;

// Shows the word until the user goes on: below the field, above it where there is no room.
void Say_AtField(QWidget* field, const QString& word);
