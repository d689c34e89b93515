// A picture from a vector file, drawn anew for every size asked for, so that no scaled pixels are
// ever seen.
#pragma once

#include <QIcon>

enum class PictureTint { Color, Grey };

QIcon Svg_Icon(const QString& file, PictureTint tint = PictureTint::Color);
