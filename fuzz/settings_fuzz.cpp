// The input is the print settings in lines "key=value", with the keys' last components. A first line "@CODE"
// chooses the system encoding.
#include "fuzz/targets.h"
#include "platform/job_keys.h"
#include "plugin/job_handling_panel.h"
#include "tests/support/bench_host.h"

namespace kesto::fuzz {
namespace {

void put(const QByteArray& lines, PrintSettings* settings) {
  for (const QByteArray& line : lines.split('\n')) {
    const qsizetype sign = line.indexOf('=');
    if (sign < 0) continue;
    settings->setValue(job_keys::whole(line.left(sign).constData()), QString::fromUtf8(line.mid(sign + 1)));
  }
}

// Sealed values are absent or have the length of whole cipher blocks in hexadecimal. The suspend key of a job
// that is not held stays as the host set it.
void checkSealed(const PrintSettings& settings) {
  std::vector<Held> sealed{Held::UserNumber, Held::AccountNumber, Held::FolderPassword};
  if (settings.value(job_keys::whole(job_keys::jobSuspend)) != u"0") sealed.push_back(Held::SuspendKey);
  for (const Held field : sealed) {
    const std::optional<QString> value = settings.value(job_keys::whole(rowOf(field).key));
    require(!value || value->size() == 32, "a sealed code is 32 digits");
  }
  const std::optional<QString> time = settings.value(job_keys::whole(job_keys::spoolTime));
  require(time && time->size() % 2 == 0 && time->size() <= 126, "there is a spool time after a write");
}

}  // namespace

void runSettings(const QByteArray& input) {
  bench::BenchHost host;
  if (input.startsWith('@') && input.size() > 1) {
    constexpr int encodings = static_cast<int>(TextEncoding::Utf8) + 1;
    host.ownPlatform.encoding = static_cast<TextEncoding>(static_cast<std::uint8_t>(input.at(1)) % encodings);
  }
  put(input, &*host.settings);
  KestoPrintPdeVq250nJC panel(host);
  panel.restoreValuesAndReturnError(nullptr);
  panel.saveValuesAndReturnError(nullptr);
  checkSealed(*host.settings);
  const auto written = host.settings->all();
  panel.saveValuesAndReturnError(nullptr);
  require(host.settings->all() == written, "a second write changes nothing");
  panel.summaryInfo();
}

}  // namespace kesto::fuzz
