// Network addresses as URLs write them (RFC 3986). Everything is kept as it is written, where a URL class
// would change letter case and escapes.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <optional>

namespace kesto {

/// Host and port of a URL.
struct HostAndPort {
  QString host;  ///< A name or a numeric address, the latter in brackets if it has colons; never empty.
  QString port;  ///< Decimal digits; empty without a port.
};

/// Reads "host" or "host:port". None when it is not valid in a URL or has no host.
std::optional<HostAndPort> hostAndPortOf(const QString& text);

/// Where a request over HTTP goes.
struct Endpoint {
  QString host;          ///< To connect to: without brackets, its escapes decoded.
  quint16 port = 80;     ///< The default of HTTP when the URL names none.
  QByteArray hostField;  ///< Host and port as they are written.
  QByteArray target;     ///< Path and query as they are written, beginning with "/".
};

/// The endpoint that a URL of the scheme "http" names. None when it is not a valid URL, has no host, or has a
/// number that is not a port.
std::optional<Endpoint> endpointOf(const QString& url);

}  // namespace kesto
