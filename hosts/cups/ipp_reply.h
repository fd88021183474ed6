// IPP requests, and replies from untrusted bytes.
#pragma once

#include <cups/cups.h>

#include <QtCore/QByteArray>
#include <QtCore/QStringList>
#include <memory>
#include <span>

#include "platform/outcome.h"

namespace kesto {

struct FreeIpp {
  void operator()(ipp_t* ipp) const;
};

/// An IPP message, deleted with its owner.
using Ipp = std::unique_ptr<ipp_t, FreeIpp>;

/// Whether a reply is well-formed and within the limits of `bounds.h`. libcups reads collections recursively,
/// so it must get only what this function accepts. The result depends on the bytes alone.
Outcome checkReply(const QByteArray& bytes);

/// Checks a reply and reads it. `*reply` is null on failure.
Outcome readReply(const QByteArray& bytes, Ipp* reply);

/// The texts of an attribute, in their order; none for a null one.
QStringList textsOf(ipp_attribute_t* attribute);

/// Names the attributes that the reply to a request should have, and no others.
void askFor(ipp_t* request, std::span<const char* const> attributes);

/// The bytes of a request as they are sent; empty when libcups cannot write it.
QByteArray bytesOfRequest(ipp_t* request);

}  // namespace kesto
