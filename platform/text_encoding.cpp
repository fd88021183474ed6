#include "platform/text_encoding.h"

#include <unicode/ucnv.h>

#include <QtCore/QLoggingCategory>
#include <algorithm>
#include <array>
#include <memory>

#include "platform/locale_name.h"
#include "platform/secret.h"
#include "platform/surrogates.h"

namespace kesto {
namespace {

Q_LOGGING_CATEGORY(encodings, "kesto.encodings")

struct EncodingRow {
  const char* converter;  // ICU's name
  int systemCode;
  int stringCode;
};

constexpr int none = -1;

// In the order of TextEncoding. ICU has no converters for the platform's four East Asian encodings;
// docs/decisions.md explains which are used instead.
constexpr std::array rows{
    EncodingRow{"macos-0_2-10.2", 0, 30},
    EncodingRow{"ibm-943_P15A-2003", 1, none},
    EncodingRow{"windows-950-2000", 2, none},
    EncodingRow{"ibm-970_P110_P110-2006_U2", 3, none},
    EncodingRow{"macos-6_2-10.4", 6, none},
    EncodingRow{"macos-7_3-10.2", 7, none},
    EncodingRow{"ibm-1383_P110-1999", 25, none},
    EncodingRow{"macos-29-10.2", 29, none},
    EncodingRow{"macos-35-10.2", 35, none},
    EncodingRow{"ISO-8859-1", none, 5},
    EncodingRow{"ibm-5348_P100-1997", none, 12},
    EncodingRow{"ibm-943_P15A-2003", none, 8},
    EncodingRow{"UTF-8", none, 4},
};

const EncodingRow& rowOf(TextEncoding encoding) {
  return rows.at(static_cast<std::size_t>(encoding));
}

struct CloseConverter {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};

using Converter = std::unique_ptr<UConverter, CloseConverter>;

// A converter that stops at a character it cannot convert; null when ICU does not know the name.
Converter openConverter(const char* name) {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open(name, &status));
  if (U_SUCCESS(status)) {
    ucnv_setFallback(converter.get(), 0);
    ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  }
  if (U_FAILURE(status)) converter.reset();
  return converter;
}

// Opened once for each thread, because opening a converter costs far more than using it.
UConverter* converterOf(TextEncoding encoding) {
  thread_local std::array<Converter, rows.size()> open;
  Converter& converter = open.at(static_cast<std::size_t>(encoding));
  if (!converter) {
    converter = openConverter(rowOf(encoding).converter);
    if (!converter) qCWarning(encodings, "no converter %s", rowOf(encoding).converter);
  }
  return converter.get();
}

// ASCII is the same in every encoding, but for ICU's Shift JIS, which swaps three control characters. To open
// a converter for it costs a short program more than all its other texts.
bool isAscii(QByteArrayView bytes) {
  return std::ranges::all_of(bytes, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

// The text of all bytes; null when they are not valid.
QString decoded(UConverter* converter, QByteArrayView bytes) {
  if (converter == nullptr) return {};
  // In these encodings no byte stands for more than two units, so the text never grows: growing would leave a
  // copy of a text that can be secret.
  QString text(bytes.size() * 2 + 1, Qt::Uninitialized);
  UErrorCode status = U_ZERO_ERROR;
  const int32_t count =
      ucnv_toUChars(converter, reinterpret_cast<UChar*>(text.data()), static_cast<int32_t>(text.size()),
                    bytes.data(), static_cast<int32_t>(bytes.size()), &status);
  if (U_FAILURE(status)) {
    wipe(text);
    return {};
  }
  text.truncate(count);
  return text;
}

// One character in some encoding; without bytes when it does not convert.
struct CharacterBytes {
  std::array<char, 16> bytes{};
  qsizetype size = 0;
};

// `character` is one unit or a surrogate pair.
CharacterBytes bytesOfCharacter(QStringView character, TextEncoding encoding) {
  CharacterBytes result;
  if (character.size() == 1 && character.front().unicode() < 0x80) {
    result.bytes[0] = static_cast<char>(character.front().unicode());
    result.size = 1;
    return result;
  }
  UConverter* converter = converterOf(encoding);
  if (converter == nullptr) return result;
  UErrorCode status = U_ZERO_ERROR;
  const int32_t count = ucnv_fromUChars(
      converter, result.bytes.data(), static_cast<int32_t>(result.bytes.size()),
      reinterpret_cast<const UChar*>(character.utf16()), static_cast<int32_t>(character.size()), &status);
  if (U_SUCCESS(status)) result.size = count;
  return result;
}

// The most bytes that this many units can have in any of the encodings. They are reserved in advance, because
// a text that outgrows its room leaves copies in memory.
qsizetype mostBytesOf(qsizetype units) {
  return 4 * units;
}

// The character that begins at `position`; a surrogate pair is one character.
QStringView characterAt(QStringView text, qsizetype position) {
  const bool pair = isWithinPair(text, position + 1);
  return text.sliced(position, pair ? 2 : 1);
}

// Undoes ICU's swap of three control characters in its Shift JIS.
QString withoutSwappedControls(QString text) {
  for (QChar& unit : text) {
    switch (unit.unicode()) {
      case 0x1A:
        unit = QChar(0x7F);
        break;
      case 0x1C:
        unit = QChar(0x1A);
        break;
      case 0x7F:
        unit = QChar(0x1C);
        break;
      default:
        break;
    }
  }
  return text;
}

struct LanguageRow {
  QLatin1String language;
  TextEncoding encoding = TextEncoding::MacRoman;
};

constexpr std::array languages{
    LanguageRow{QLatin1String("ja"), TextEncoding::MacJapanese},
    LanguageRow{QLatin1String("ko"), TextEncoding::MacKorean},
    LanguageRow{QLatin1String("zh"), TextEncoding::MacSimplifiedChinese},
    LanguageRow{QLatin1String("el"), TextEncoding::MacGreek},
    LanguageRow{QLatin1String("cs"), TextEncoding::MacCentralEurope},
    LanguageRow{QLatin1String("et"), TextEncoding::MacCentralEurope},
    LanguageRow{QLatin1String("hu"), TextEncoding::MacCentralEurope},
    LanguageRow{QLatin1String("lt"), TextEncoding::MacCentralEurope},
    LanguageRow{QLatin1String("lv"), TextEncoding::MacCentralEurope},
    LanguageRow{QLatin1String("pl"), TextEncoding::MacCentralEurope},
    LanguageRow{QLatin1String("sk"), TextEncoding::MacCentralEurope},
    LanguageRow{QLatin1String("tr"), TextEncoding::MacTurkish},
};

}  // namespace

int systemEncodingCode(TextEncoding encoding) {
  return rowOf(encoding).systemCode;
}

int stringEncodingCode(TextEncoding encoding) {
  return rowOf(encoding).stringCode;
}

TextEncoding systemEncodingForLocale(const QString& locale) {
  const LocaleName name = localeNameOf(locale);
  const QString& territory = name.territory;
  if (name.language == u"zh" && (territory == u"TW" || territory == u"HK" || territory == u"MO")) {
    return TextEncoding::MacTraditionalChinese;
  }
  if (name.script() == u"Cyrl") return TextEncoding::MacCyrillic;
  for (const LanguageRow& row : languages) {
    if (name.language == row.language) return row.encoding;
  }
  return TextEncoding::MacRoman;
}

QByteArray bytesOfText(QStringView text, TextEncoding encoding, qsizetype maxUnits, qsizetype maxBytes,
                       std::optional<char> substitute) {
  const qsizetype end = qMin(maxUnits, text.size());
  QByteArray bytes;
  bytes.reserve(qMin(maxBytes, mostBytesOf(end)));
  for (qsizetype position = 0; position < end;) {
    const QStringView character = characterAt(text, position);
    if (position + character.size() > end) break;
    CharacterBytes converted = bytesOfCharacter(character, encoding);
    if (converted.size == 0) {
      if (!substitute) break;
      converted.bytes[0] = *substitute;
      converted.size = 1;
    }
    if (bytes.size() + converted.size > maxBytes) break;
    bytes.append(converted.bytes.data(), converted.size);
    position += character.size();
  }
  return bytes;
}

std::optional<QByteArray> cStringOfText(QStringView text, TextEncoding encoding, qsizetype bufferSize) {
  const qsizetype nul = text.indexOf(QChar(u'\0'));
  if (nul >= 0) text = text.first(nul);
  QByteArray bytes;
  bytes.reserve(qMin(bufferSize, mostBytesOf(text.size())));
  for (qsizetype position = 0; position < text.size();) {
    const QStringView character = characterAt(text, position);
    const CharacterBytes converted = bytesOfCharacter(character, encoding);
    if (converted.size == 0 || bytes.size() + converted.size >= bufferSize) return std::nullopt;
    bytes.append(converted.bytes.data(), converted.size);
    position += character.size();
  }
  return bytes;
}

std::optional<QByteArray> asciiOfText(QStringView text, qsizetype bufferSize) {
  const qsizetype nul = text.indexOf(QChar(u'\0'));
  if (nul >= 0) text = text.first(nul);
  if (text.size() >= bufferSize) return std::nullopt;
  for (const QChar unit : text) {
    if (unit.unicode() >= 0x80) return std::nullopt;
  }
  return text.toLatin1();
}

QString textOfBytes(const QByteArray& bytes, TextEncoding encoding) {
  const qsizetype nul = bytes.indexOf('\0');
  const QByteArrayView own = nul < 0 ? bytes : QByteArrayView(bytes).first(nul);
  if (isAscii(own)) return own.isEmpty() ? QStringLiteral("") : QString::fromLatin1(own);
  QString text = decoded(converterOf(encoding), own);
  const bool swapped = encoding == TextEncoding::MacJapanese || encoding == TextEncoding::ShiftJis;
  return swapped && !text.isNull() ? withoutSwappedControls(std::move(text)) : text;
}

QString textOfBytesIn(const QByteArray& bytes, const QByteArray& encodingName) {
  return decoded(openConverter(encodingName.constData()).get(), bytes);
}

}  // namespace kesto
