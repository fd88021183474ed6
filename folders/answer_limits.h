// How large and how involved a printer's answer may be, whatever the libraries beneath allow. What goes
// beyond counts as not well-formed; a body that is too long is a failed exchange. docs/security.md lists the
// bounds.
#pragma once

#include <QtCore/QString>

namespace kesto::answer_limits {

inline constexpr qsizetype bytes = qsizetype{32} * 1024 * 1024;  ///< Of the body.
inline constexpr qsizetype expandedText = bytes;  ///< Characters that all references to entities stand for.
inline constexpr qsizetype entities = 256;        ///< Declared ones.
inline constexpr qsizetype entityValue =
    4096;                                      ///< Characters of a declared one, and that one reference adds.
inline constexpr qsizetype attributes = 64;    ///< Of one element.
inline constexpr qsizetype depth = 256;        ///< Elements within one another.
inline constexpr qsizetype nameLength = 4096;  ///< Of an element, attribute or folder, in UTF-16 code units.
inline constexpr std::size_t folders = 100'000;  ///< Of the list.

/// Whether the text of an answer keeps the bounds that must be kept before it is parsed: on attributes, which
/// the XML reader compares each with each, and on entities, which it expands as it reads. Attribute defaults
/// and parameter entities are beyond them altogether. One pass over the text, and no recursion deeper than
/// there are entities.
bool areKeptBy(const QString& xml);

}  // namespace kesto::answer_limits
