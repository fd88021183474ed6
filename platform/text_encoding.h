// Byte encodings of text, with the conversions for the stored forms of names and codes.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <optional>

#include "platform/export.h"

namespace kesto {

/// The encodings that printers' descriptions, stored names and the system's byte strings use.
enum class TextEncoding {
  MacRoman,
  MacJapanese,
  MacTraditionalChinese,
  MacKorean,
  MacGreek,
  MacCyrillic,
  MacSimplifiedChinese,
  MacCentralEurope,
  MacTurkish,
  IsoLatin1,
  WindowsLatin1,
  ShiftJis,
  Utf8,
};

/// The platform's number of a system encoding (0 Mac Roman, 1 Mac Japanese, ...); -1 for encodings that are
/// never the system encoding.
KESTO_EXPORT int systemEncodingCode(TextEncoding encoding);
/// The platform's number of an encoding that a PPD can declare (30 Mac Roman, 5 ISO Latin-1, 4 UTF-8, ...);
/// -1 for the others.
KESTO_EXPORT int stringEncodingCode(TextEncoding encoding);

/// The system encoding of a locale name such as "ja_JP.UTF-8"; Mac Roman for every language that has no
/// encoding of its own.
KESTO_EXPORT TextEncoding systemEncodingForLocale(const QString& locale);

/// The bytes of the first `maxUnits` UTF-16 units of `text`, at most `maxBytes`. The conversion ends before a
/// character whose bytes would exceed the limit. A character that does not convert becomes `substitute`, one
/// byte; without a substitute it ends the conversion. A surrogate pair counts as one character and is never
/// split.
KESTO_EXPORT QByteArray bytesOfText(QStringView text, TextEncoding encoding, qsizetype maxUnits,
                                    qsizetype maxBytes, std::optional<char> substitute = std::nullopt);

/// The whole text as the bytes of a C string (without its NUL) that fits a buffer of `bufferSize` bytes with
/// its NUL; none when a character does not convert or the bytes do not fit. A NUL in the text ends it.
KESTO_EXPORT std::optional<QByteArray> cStringOfText(QStringView text, TextEncoding encoding,
                                                     qsizetype bufferSize);

/// As `cStringOfText`, in ASCII.
KESTO_EXPORT std::optional<QByteArray> asciiOfText(QStringView text, qsizetype bufferSize);

/// The text of the bytes up to the first NUL; a null string when they are not valid in the encoding.
KESTO_EXPORT QString textOfBytes(const QByteArray& bytes, TextEncoding encoding);

/// The text of all bytes in an encoding given by its common name, such as "Shift_JIS"; a null string when
/// they are not valid in it or it is not known.
KESTO_EXPORT QString textOfBytesIn(const QByteArray& bytes, const QByteArray& encodingName);

}  // namespace kesto
