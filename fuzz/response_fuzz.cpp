// The input is everything that a connection delivers before it ends.
#include "folders/http_response.h"
#include "fuzz/targets.h"

namespace kesto::fuzz {
namespace {

constexpr qsizetype largestResponse = 10'000;

HttpResponse readInPieces(const QByteArray& input, qsizetype piece) {
  HttpResponse response(largestResponse);
  for (qsizetype start = 0; start < input.size() && !response.isBad(); start += piece)
    response.take(input.mid(start, piece));
  response.end();
  return response;
}

}  // namespace

void runResponse(const QByteArray& input) {
  const HttpResponse whole = readInPieces(input, qMax(qsizetype{1}, input.size()));
  require(whole.isWhole() != whole.isBad(), "a response that has ended is whole or bad");
  require(!whole.isWhole() || whole.receivedData().size() <= largestResponse, "a body is within its limit");
  const HttpResponse pieces = readInPieces(input, 1);
  require(pieces.isWhole() == whole.isWhole(), "pieces make no difference");
  if (!whole.isWhole()) return;
  require(pieces.receivedData() == whole.receivedData() && pieces.status() == whole.status(),
          "pieces make no difference");
}

}  // namespace kesto::fuzz
