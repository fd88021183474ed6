#include "settings/value_helpers.h"

#include <QtCore/QLocale>
#include <algorithm>
#include <cstring>
#include <string_view>

namespace kesto {
namespace {

constexpr std::string_view hexDigits = "0123456789ABCDEF";
constexpr std::size_t spoolTimeBuffer = 64;
constexpr int mostPieces = 10;

bool isBaseKey(const char* key) {
  return key != nullptr && *key != '\0' && std::strlen(key) <= longestBaseKey;
}

QString pieceKey(const char* baseKey, std::size_t piece) {
  return QLatin1String(baseKey) + QString::number(piece);
}

}  // namespace

void myitoa(std::span<const std::uint8_t> source, std::span<char> destination) {
  if (destination.empty()) return;
  const std::size_t count = std::min(source.size(), (destination.size() - 1) / 2);
  for (std::size_t i = 0; i < count; ++i) {
    destination[2 * i] = hexDigits[source[i] >> 4];
    destination[2 * i + 1] = hexDigits[source[i] & 15];
  }
  destination[2 * count] = '\0';
}

void myatoi(std::span<const char> source, std::span<std::uint8_t> destination) {
  if (destination.empty()) return;
  const std::size_t count = std::min(source.size() / 2, destination.size() - 1);
  for (std::size_t i = 0; i < count; ++i) {
    const unsigned high = static_cast<std::uint8_t>(source[2 * i]);
    const unsigned low = static_cast<std::uint8_t>(source[2 * i + 1]);
    const unsigned byte = 16 * high + (high >= ':' ? 0x90U : 0U) + low + (low >= ':' ? 0xC9U : 0xD0U);
    destination[i] = static_cast<std::uint8_t>(byte);
  }
  destination[count] = 0;
}

std::size_t GetSpoolTime(std::span<char> destination, const QDateTime& now) {
  if (destination.size() < spoolTimeBuffer) {
    if (!destination.empty()) destination[0] = '\0';
    return 0;
  }
  const int minutes = now.offsetFromUtc() / 60;
  const QString text = QLocale(QLocale::English, QLocale::UnitedStates)
                           .toString(now, QStringLiteral("ddd, dd MMM yyyy HH:mm:ss ")) +
                       (minutes < 0 ? u'-' : u'+') +
                       QStringLiteral("%1%2")
                           .arg(qAbs(minutes) / 60, 2, 10, QLatin1Char('0'))
                           .arg(qAbs(minutes) % 60, 2, 10, QLatin1Char('0'));
  const QByteArray ascii = text.toLatin1().left(spoolTimeBuffer - 1);
  std::memcpy(destination.data(), ascii.constData(), static_cast<std::size_t>(ascii.size()) + 1);
  return static_cast<std::size_t>(ascii.size());
}

void ReplaceSpaceCode(std::span<std::uint8_t> buffer) {
  const auto isScrubbed = [](std::uint8_t byte) {
    return (byte >= 0x01 && byte <= 0x1F && byte != '\t') || byte == '"';
  };
  std::ranges::replace_if(buffer, isScrubbed, std::uint8_t{' '});
}

bool encodingWindowsLatin1(TextEncoding systemEncoding) {
  return systemEncoding != TextEncoding::MacJapanese &&
         systemEncoding != TextEncoding::MacTraditionalChinese && systemEncoding != TextEncoding::MacKorean &&
         systemEncoding != TextEncoding::MacSimplifiedChinese;
}

void MyPMPrintSetAsciiCStrValue(PrintSettings* settings, const QString& key, const char* value) {
  if (settings == nullptr || key.isNull()) return;
  std::optional<QString> text;
  if (value != nullptr && *value != '\0') {
    const std::string_view bytes(value);
    const bool ascii =
        std::ranges::all_of(bytes, [](char byte) { return static_cast<std::uint8_t>(byte) < 0x80; });
    if (ascii) text = QString::fromLatin1(value);
  }
  settings->setValue(key, text);
}

void MyMultiPMPrintSetAsciiCStrValue(PrintSettings* settings, const char* baseKey, const char* value) {
  if (settings == nullptr || !isBaseKey(baseKey)) return;
  settings->setValue(pieceKey(baseKey, 1), std::nullopt);
  if (value == nullptr || *value == '\0') return;
  const std::size_t length = std::strlen(value);
  const std::size_t pieces = (length + pieceLength - 1) / pieceLength;
  for (std::size_t piece = 2; piece <= pieces + 1; ++piece) {
    settings->setValue(pieceKey(baseKey, piece), std::nullopt);
  }
  for (std::size_t piece = 1; piece <= pieces; ++piece) {
    const std::size_t start = (piece - 1) * pieceLength;
    const QByteArray text(value + start, static_cast<qsizetype>(std::min(pieceLength, length - start)));
    MyPMPrintSetAsciiCStrValue(settings, pieceKey(baseKey, piece), text.constData());
  }
}

void MyMultiPMPrintGetAsciiCStrValue(const PrintSettings* settings, const char* baseKey,
                                     std::span<char> destination) {
  if (settings == nullptr || !isBaseKey(baseKey) || destination.empty()) return;
  std::size_t length = 0;
  destination[0] = '\0';
  for (int piece = 1; piece <= mostPieces; ++piece) {
    const std::optional<QString> value = settings->value(pieceKey(baseKey, static_cast<std::size_t>(piece)));
    if (!value) return;
    const QByteArray text = asciiOfText(*value, pieceLength + 2).value_or(QByteArray());
    const auto size = static_cast<std::size_t>(text.size());
    if (size == 0 || size >= destination.size() - length) continue;
    std::memcpy(&destination[length], text.constData(), size + 1);
    length += size;
  }
}

}  // namespace kesto
