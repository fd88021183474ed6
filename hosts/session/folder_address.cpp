#include "hosts/session/folder_address.h"

#include <QtCore/QUrl>

namespace kesto {

bool isPrinterAddress(const QString& text) {
  const QUrl url(QStringLiteral("http://%1/").arg(text), QUrl::StrictMode);
  return url.isValid() && !url.host().isEmpty();
}

}  // namespace kesto
