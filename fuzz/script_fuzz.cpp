// The input is what kesto-panel reads on standard input.
#include "hosts/script/script_session.h"

#include <QtCore/QJsonDocument>

#include "fuzz/targets.h"
#include "plugin/entry.h"
#include "tests/support/bench_host.h"

namespace kesto::fuzz {
namespace {

// A fuzzer must not contact printers, because an address could be anybody's.
bool asksPrinter(const QByteArray& line) {
  return QJsonDocument::fromJson(line).object().value(QStringLiteral("control")).toString() ==
         u"getFolderNameButton";
}

}  // namespace

void runScript(const QByteArray& input) {
  KestoPrintPdeVq250nJCPDEPlugIn plugIn;
  bench::BenchHost host;
  require(static_cast<bool>(host.openPanel(plugIn)), "the panel opens");
  AlertRecorder alerts;
  ScriptSession session(host, plugIn, alerts);
  for (const QByteArray& line : input.split('\n')) {
    if (session.isOver()) break;
    if (asksPrinter(line)) continue;
    const QByteArray answer = QJsonDocument(session.answer(line)).toJson(QJsonDocument::Compact);
    require(QJsonDocument::fromJson(answer).isObject(), "every line is answered by an object");
  }
}

}  // namespace kesto::fuzz
