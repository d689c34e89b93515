// How wide a level of the links menu has to be for its captions.
#pragma once

#include <QFontMetrics>
#include <QString>

#include <span>

// A caption as it is shown: one line, and no longer than what can be seen of it.
QString Shown_Caption(const QString& caption);
// Width of the widest caption, pixels. To shape a thousand texts takes longer than to open a
// window: the letters are added up first, and only the widest by that are measured.
int Widest_CaptionOf(std::span<const QString> captions, const QFontMetrics& metrics);
