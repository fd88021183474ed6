// Colours of text beside the usual one, legible in light, dark and high contrast.
#pragma once

#include <QtGui/QPalette>

namespace kesto {

/// For what stands out: the palette's link colour, made lighter or darker until it is legible on a window.
QColor accentColor(const QPalette& palette);
/// For what stands back: between the colours of text and window.
QColor quietColor(const QPalette& palette);
/// A colour as near to `wanted` as can be read on a window of the palette.
QColor legible(const QColor& wanted, const QPalette& palette);

}  // namespace kesto
