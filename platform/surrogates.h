// Characters that consist of two UTF-16 code units.
#pragma once

#include <QtCore/QStringView>

namespace kesto {

/// Whether `position` (from 0 to the text's size) lies between the two halves of one character.
inline bool isWithinPair(QStringView text, qsizetype position) {
  return position > 0 && position < text.size() && text[position - 1].isHighSurrogate() &&
         text[position].isLowSurrogate();
}

}  // namespace kesto
