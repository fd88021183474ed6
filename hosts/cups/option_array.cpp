#include "hosts/cups/option_array.h"

namespace kesto {

void OptionArray::add(const QMap<QString, QString>& options) {
  for (auto it = options.begin(); it != options.end(); ++it)
    add(it.key().toUtf8().constData(), it.value().toUtf8().constData());
}

QMap<QString, QString> OptionArray::all() const {
  QMap<QString, QString> options;
  for (int i = 0; i < m_count; ++i)
    options.insert(QString::fromUtf8(m_options[i].name), QString::fromUtf8(m_options[i].value));
  return options;
}

QMap<QString, QString> parseJobOptions(const QString& text) {
  QMap<QString, QString> options;
  addJobOptions(text, &options);
  return options;
}

void addJobOptions(const QString& text, QMap<QString, QString>* options) {
  OptionArray array(*options);
  array.parse(text.toUtf8().constData());
  *options = array.all();
}

void addJobOption(const QString& name, const QString& value, QMap<QString, QString>* options) {
  OptionArray array(*options);
  array.add(name.toUtf8().constData(), value.toUtf8().constData());
  *options = array.all();
}

}  // namespace kesto
