// Colors of text beside the usual one, legible in light, dark and high contrast.
#pragma once

#include <QtGui/QPalette>

namespace kesto {

/// For what stands out: the palette's link color, made lighter or darker until it is legible on a window.
QColor accentColor(const QPalette& palette);
/// For what stands back: between the colors of text and window.
QColor quietColor(const QPalette& palette);
/// A color as near to `wanted` as can be read on a window of the palette.
QColor legible(const QColor& wanted, const QPalette& palette);
/// Makes dimmed texts and placeholders in all windows stand out enough from their background: a contrast of 3
/// and 4.5. Call it before the first window, so that none has to take the colors over, and after the
/// desktop's colors have changed.
void makeTextsLegible();

}  // namespace kesto
