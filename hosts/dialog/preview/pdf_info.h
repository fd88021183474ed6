// The pages of a PDF file, as the program pdfinfo lists them.
#pragma once

#include "hosts/dialog/preview/document_examiner.h"

namespace kesto {

/// The arguments for a file on standard input.
QStringList pdfInfoArguments();

/// Takes sizes and cuts from the program's output.
void takePdfInfo(const QByteArray& info, ExaminedFile* file);

}  // namespace kesto
