// The options of a job as users write them and libcups reads them.
#pragma once

#include <cups/cups.h>

#include <QtCore/QMap>
#include <QtCore/QString>
#include <initializer_list>
#include <utility>

namespace kesto {

/// The options of a text such as "sides=one-sided media=a4 nocollate", by name.
QMap<QString, QString> parseJobOptions(const QString& text);

/// Adds the options of a text, or one option, to others. An option replaces an earlier one of the same name
/// in any letter case, and one that libcups treats as the same.
void addJobOptions(const QString& text, QMap<QString, QString>* options);
void addJobOption(const QString& name, const QString& value, QMap<QString, QString>* options);

/// libcups's option array, freed with its owner.
class OptionArray {
 public:
  OptionArray() = default;
  explicit OptionArray(const QMap<QString, QString>& options) { add(options); }
  ~OptionArray() { cupsFreeOptions(m_count, m_options); }
  OptionArray(const OptionArray&) = delete;
  OptionArray& operator=(const OptionArray&) = delete;

  void add(const char* name, const char* value) { m_count = cupsAddOption(name, value, m_count, &m_options); }
  void add(const QMap<QString, QString>& options);
  void parse(const char* text) { m_count = cupsParseOptions(text, m_count, &m_options); }
  /// Takes the options over that a call of libcups gives back, and their count.
  template <class Call>
  void take(Call call) {
    cupsFreeOptions(std::exchange(m_count, 0), std::exchange(m_options, nullptr));
    m_count = call(&m_options);
  }
  bool has(const char* name) const { return value(name) != nullptr; }
  /// Null when there is none of this name.
  const char* value(const char* name) const { return cupsGetOption(name, m_count, m_options); }
  QMap<QString, QString> all() const;
  /// Adds the options that libcups assigns to the given groups of a request.
  void encode(ipp_t* request, std::initializer_list<ipp_tag_t> groups) const {
    for (const ipp_tag_t group : groups)
      cupsEncodeOptions2(request, m_count, m_options, group);
  }

 private:
  int m_count = 0;
  cups_option_t* m_options = nullptr;
};

}  // namespace kesto
