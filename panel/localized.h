// Localised texts and system icons.
#pragma once

#include <cstdint>
#include <optional>

#include "panel/outlets.h"
#include "platform/bundle.h"

namespace kesto {

/// The localised form of a text: leading white space is skipped, the text up to the first ":" is the key into
/// the bundle's default table, and one ":" is put back when the text had one. The text is unchanged when it
/// has no key, and null when `source` is null.
QString localizedStringValue(const Bundle& bundle, const QString& source);

/// A four-character type code.
constexpr std::uint32_t typeCode(const char (&code)[5]) {
  std::uint32_t value = 0;
  for (int i = 0; i < 4; ++i)
    value = value << 8 | static_cast<std::uint8_t>(code[i]);
  return value;
}

/// The icon of a type code, 18 by 18 points: "ulck" an open padlock, "lock" a closed one. The image's name is
/// the code; its path is null when the bundle has no such picture.
Image initWithSystemIconType(const Bundle& bundle, std::uint32_t code);

/// The image in the bundle's resource `name` of type "png"; none when it is missing.
std::optional<Image> imageOfResource(const Bundle& bundle, const QString& name);

}  // namespace kesto
