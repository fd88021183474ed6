// What the printer's PPD says about encoding, model and features.
#pragma once

#include <QtCore/QString>

#include "platform/text_encoding.h"

struct ppd_file_s;

namespace kesto {

/// The encoding of the PPD's strings by its declared language encoding, compared exactly; Mac OS Roman for
/// every other name, without one, or without a PPD.
TextEncoding getEncodingFromPPD(ppd_file_s* ppd);

/// The PPD's model name decoded with `encoding`; null when it has none or it does not decode.
QString modelNameOfPPD(ppd_file_s* ppd, TextEncoding encoding);

/// True when the attribute "ARKestoPrintSystem" is present and neither "False" nor "FALSE".
bool declaresKestoPrintSystem(ppd_file_s* ppd);

/// True when the attribute "ARActiveDirectory" is "True" or "TRUE".
bool declaresActiveDirectory(ppd_file_s* ppd);

}  // namespace kesto
