// The input is a print server's reply in IPP.
#include "fuzz/targets.h"
#include "hosts/cups/bounds.h"
#include "hosts/cups/ipp_reply.h"

namespace kesto::fuzz {
namespace {

// Reads every value as text, including those of nested collections.
void readAll(ipp_t* message, int depth) {
  require(depth <= deepestCollection, "collections stay within their depth");
  for (ipp_attribute_t* each = ippFirstAttribute(message); each != nullptr;
       each = ippNextAttribute(message)) {
    ippAttributeString(each, nullptr, 0);
    if (ippGetValueTag(each) != IPP_TAG_BEGIN_COLLECTION) continue;
    for (int i = 0; i < ippGetCount(each); ++i)
      readAll(ippGetCollection(each, i), depth + 1);
  }
}

}  // namespace

void runReply(const QByteArray& input) {
  Ipp reply;
  const bool isRead = bool(readReply(input, &reply));
  require(isRead == bool(reply), "a reply is there when it was read");
  if (!isRead) return;
  require(bool(checkReply(input)), "only what was checked is read");
  readAll(reply.get(), 0);
}

}  // namespace kesto::fuzz
