// How large and complex a printer's answer may be, whatever the libraries beneath allow. An answer beyond a
// limit counts as not well-formed; a body that is too long is a failed exchange. docs/security.md lists the
// limits.
#pragma once

#include <QtCore/QString>

namespace kesto::answer_limits {

inline constexpr qsizetype bytes = qsizetype{32} * 1024 * 1024;  ///< Of the body.
inline constexpr qsizetype expandedText = bytes;  ///< Characters that all references to entities stand for.
inline constexpr qsizetype entities = 256;        ///< Declared ones.
inline constexpr qsizetype entityValue =
    4096;  ///< Characters of a declared one, and characters that one reference adds.
inline constexpr qsizetype attributes = 64;    ///< Of one element.
inline constexpr qsizetype depth = 256;        ///< Nested elements.
inline constexpr qsizetype nameLength = 4096;  ///< Of an element, attribute or folder, in UTF-16 code units.
inline constexpr std::size_t folders = 100'000;  ///< Of the list.

/// Whether the text of an answer is within the limits that must hold before it is parsed: on attributes, of
/// which the XML reader compares each with every other, and on entities, which it expands while reading.
/// Attribute defaults and parameter entities are not allowed at all. Makes one pass over the text, with
/// recursion at most as deep as there are entities.
bool areKeptBy(const QString& xml);

}  // namespace kesto::answer_limits
