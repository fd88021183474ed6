// Addresses of the network as URLs write them (RFC 3986). Everything is kept as it is written: a URL class
// would change letter case and escapes on the way.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <optional>

namespace kesto {

/// What stands for host and port in a URL.
struct HostAndPort {
  QString host;  ///< A name or a numeric address, one with colons in its brackets; never empty.
  QString port;  ///< Decimal digits; empty without a port.
};

/// Reads "host" or "host:port". None when it is not written as a URL has it, or has no host.
std::optional<HostAndPort> hostAndPortOf(const QString& text);

/// Where a request over HTTP goes.
struct Endpoint {
  QString host;          ///< To connect to: without brackets, its escapes decoded.
  quint16 port = 80;     ///< HTTP's own when the URL names none.
  QByteArray hostField;  ///< Host and port as they are written.
  QByteArray target;     ///< Path and query as they are written, beginning with "/".
};

/// The endpoint that a URL of the scheme "http" names. None when it is not a valid URL, has no host or has a
/// port that cannot be one.
std::optional<Endpoint> endpointOf(const QString& url);

}  // namespace kesto
