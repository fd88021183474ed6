#include "folders/endpoint.h"

#include <arpa/inet.h>

#include <QtCore/QRegularExpression>
#include <algorithm>

namespace kesto {
namespace {

// A character without a special meaning in a URL, or an escape.
constexpr QLatin1String plain("(?:[A-Za-z0-9\\-._~!$&'()*+,;=]|%[0-9A-Fa-f]{2})");

// The address in a host's brackets: a numeric one with colons, with or without a zone, or one of a later
// version.
bool isBracketedAddress(const QString& text) {
  static const QRegularExpression later(QStringLiteral("\\Av[0-9A-Fa-f]++\\.(?:%1|:)++\\z").arg(plain));
  static const QRegularExpression zone(QStringLiteral("\\A(?:[A-Za-z0-9\\-._~]|%[0-9A-Fa-f]{2})++\\z"));
  if (later.match(text).hasMatch()) return !text.contains(u'%');
  const qsizetype percent = text.indexOf(u'%');
  if (percent >= 0 &&
      !(text.mid(percent).startsWith(u"%25") && zone.match(text.mid(percent + 3)).hasMatch())) {
    return false;
  }
  in6_addr address{};
  return ::inet_pton(AF_INET6, (percent < 0 ? text : text.first(percent)).toLatin1().constData(), &address) ==
         1;
}

// A name or an IPv4 address alone.
bool isPlainName(const QString& text) {
  const auto isPlain = [](QChar each) {
    return (each >= u'a' && each <= u'z') || (each >= u'A' && each <= u'Z') ||
           (each >= u'0' && each <= u'9') || each == u'.' || each == u'-';
  };
  return !text.isEmpty() && std::ranges::all_of(text, isPlain);
}

}  // namespace

std::optional<HostAndPort> hostAndPortOf(const QString& text) {
  // To compile the grammar takes longer than the rest of a panel's start, and most printers need none.
  if (isPlainName(text)) return HostAndPort{.host = text, .port = QString()};
  static const QRegularExpression grammar(
      QStringLiteral("\\A(?:\\[([^\\[\\]]++)\\]|%1++)(?::([0-9]*+))?+\\z").arg(plain));
  const QRegularExpressionMatch match = grammar.match(text);
  if (!match.hasMatch() || (match.hasCaptured(1) && !isBracketedAddress(match.captured(1)))) {
    return std::nullopt;
  }
  const QString port = match.captured(2);
  const qsizetype end = match.hasCaptured(2) ? text.size() - port.size() - 1 : text.size();
  return HostAndPort{.host = text.first(end), .port = port};
}

std::optional<Endpoint> endpointOf(const QString& url) {
  static const QRegularExpression grammar(
      QStringLiteral("\\A[Hh][Tt][Tt][Pp]://(?:(?:%1|:)*+@)?+([^/?#@]++)"
                     "((?:/(?:%1|[:@/])*+)?+)((?:\\?(?:%1|[:@/?])*+)?+)(?:#(?:%1|[:@/?])*+)?+\\z")
          .arg(plain));
  const QRegularExpressionMatch match = grammar.match(url);
  if (!match.hasMatch()) return std::nullopt;
  const std::optional<HostAndPort> written = hostAndPortOf(match.captured(1));
  if (!written) return std::nullopt;

  Endpoint endpoint;
  bool isPort = true;
  if (!written->port.isEmpty()) endpoint.port = written->port.toUShort(&isPort);
  if (!isPort) return std::nullopt;
  const bool isBracketed = written->host.startsWith(u'[');
  const QString host = isBracketed ? written->host.mid(1, written->host.size() - 2) : written->host;
  endpoint.host = QString::fromUtf8(QByteArray::fromPercentEncoding(host.toLatin1()));
  endpoint.hostField = match.captured(1).toLatin1();
  const QString path = match.captured(2);
  endpoint.target = (path.isEmpty() ? QStringLiteral("/") : path).toLatin1() + match.captured(3).toLatin1();
  return endpoint;
}

}  // namespace kesto
