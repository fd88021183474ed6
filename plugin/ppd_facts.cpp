#include "plugin/ppd_facts.h"

#include <cups/ppd.h>

#include <array>
#include <optional>

namespace kesto {
namespace {

// The value of an attribute without specifier; none when the PPD has no such attribute.
std::optional<QByteArray> attributeOf(ppd_file_t* ppd, const char* name) {
  if (ppd == nullptr) return std::nullopt;
  const ppd_attr_t* attribute = ppdFindAttr(ppd, name, nullptr);
  if (attribute == nullptr) return std::nullopt;
  return QByteArray(attribute->value == nullptr ? "" : attribute->value);
}

struct EncodingName {
  const char* name;
  TextEncoding encoding;
};

constexpr std::array encodingNames{
    EncodingName{"ISOLatin1", TextEncoding::IsoLatin1},
    EncodingName{"WindowsANSI", TextEncoding::WindowsLatin1},
    EncodingName{"JIS83-RKSJ", TextEncoding::ShiftJis},
    EncodingName{"UTF-8", TextEncoding::Utf8},
    EncodingName{"UTF8", TextEncoding::Utf8},
};

}  // namespace

TextEncoding getEncodingFromPPD(ppd_file_t* ppd) {
  // libcups's record says UTF-8 for every PPD; the attribute contains what the file declares.
  const std::optional<QByteArray> declared = attributeOf(ppd, "LanguageEncoding");
  for (const EncodingName& row : encodingNames) {
    if (declared == row.name) return row.encoding;
  }
  return TextEncoding::MacRoman;
}

QString modelNameOfPPD(ppd_file_t* ppd, TextEncoding encoding) {
  if (ppd == nullptr || ppd->modelname == nullptr) return {};
  return textOfBytes(ppd->modelname, encoding);
}

bool declaresKestoPrintSystem(ppd_file_t* ppd) {
  const std::optional<QByteArray> value = attributeOf(ppd, "ARKestoPrintSystem");
  return value && *value != "False" && *value != "FALSE";
}

bool declaresActiveDirectory(ppd_file_t* ppd) {
  const std::optional<QByteArray> value = attributeOf(ppd, "ARActiveDirectory");
  return value && (*value == "True" || *value == "TRUE");
}

}  // namespace kesto
