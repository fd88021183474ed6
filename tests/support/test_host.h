// A double of the host with its own printer, and the PPD that it lends.
#pragma once

#include <QtCore/QTemporaryDir>

#include "hosts/cups/ppd_file.h"
#include "hosts/session/panel_host.h"
#include "tests/support/printing.h"
#include "tests/support/test_platform.h"

namespace kesto::test {

/// Lines of a PPD that name encoding and model.
inline const QByteArray ppdOfModel = "*LanguageEncoding: ISOLatin1\n*ModelName: \"KESTO VQ-250n\"\n";

/// A small open PPD in a private folder.
class PpdFixture {
 public:
  /// `lines` follow the first line of the file.
  explicit PpdFixture(const QByteArray& lines = ppdOfModel) {
    writeFile(path(), "*PPD-Adobe: \"4.3\"\n" + lines);
    const Outcome opened = openPpdFile(path(), &m_ppd);
    EXPECT_TRUE(opened) << opened.reason();
  }
  QString path() const { return m_folder.filePath(u"test.ppd"_s); }
  ppd_file_s* file() const { return m_ppd.get(); }

 private:
  QTemporaryDir m_folder;
  PpdFile m_ppd;
};

/// A host whose members the test sets. Print-settings keys are given by their last component.
class TestHost : public PanelHost {
 public:
  explicit TestHost(Platform& platform) : PanelHost(platform) {
    settings.emplace();
    session.currentPrinter = {.id = u"Office_MFP"_s, .deviceUri = u"socket://192.0.2.20:9100"_s};
  }

  /// The value under a key, null when it is absent.
  QString value(const Text& key) const { return settings->value(prefix + key).value_or(QString()); }
  void put(const Text& key, const std::optional<QString>& value) { settings->setValue(prefix + key, value); }
  /// Sets "key=value key=value"; values contain no blanks.
  void put(const Text& values) {
    forEachValue(values, [&](const QString& key, const QString& value) { put(key, value); });
  }
  /// Expects "key=value key="; without a value the key must be absent.
  void expect(const Text& values) const {
    forEachValue(values, [&](const QString& key, const QString& wanted) {
      EXPECT_EQ(value(key), wanted.isEmpty() ? QString() : wanted) << key;
    });
  }
  /// All settings as "key=value key=value", sorted.
  QString all() const {
    QStringList lines;
    const auto& map = settings->all();
    for (auto it = map.begin(); it != map.end(); ++it)
      lines.append(it.key().sliced(prefix.size()) + u'=' + it.value());
    return lines.join(u' ');
  }

 private:
  static inline const QString prefix = u"kesto.print.PrintSettings."_s;
};

}  // namespace kesto::test
