#include "hosts/session/folder_address.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QUrl>

namespace kesto {

bool isPrinterAddress(const QString& text) {
  // Narrower than what a URL may have there: no user, no escapes, nothing beyond ASCII.
  static const QRegularExpression form(QStringLiteral(
      R"(\A(?:\[[0-9A-Fa-f:.]+\]|[A-Za-z0-9._~-]+)(?::[0-9]{1,5})?(?:/[A-Za-z0-9._~/-]*)?\z)"));
  return form.match(text).hasMatch() &&
         QUrl(QStringLiteral("http://%1/").arg(text), QUrl::StrictMode).isValid();
}

}  // namespace kesto
