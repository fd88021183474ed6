// The filters for what is typed into the panel's fields. Lengths count UTF-16 code units.
#pragma once

#include <cstdint>

#include "panel/model/text_field.h"

namespace kesto {

/// What both number formatters share: the limit, and how they cut an edit that would move the caret beyond
/// it.
class LengthLimitedFilter : public Formatter {
 public:
  /// The greatest length of a typed text. It is 0 until it is set, so every insertion is refused.
  void SetmaxCharactersCount(std::int64_t count) { maxValue = count; }
  /// The number format that every number formatter has. Nothing uses it, because the filter judges text.
  void setFormat(const QString& format) { m_format = format; }

  /// An edit that would move the caret beyond the limit is refused, and its text is cut to the limit (never
  /// within a surrogate pair) and selected whole. A deletion is accepted. An insertion is accepted when the
  /// text before it was shorter than the limit and its first character is allowed there.
  bool isPartialStringValid(QString& partialString, TextRange& proposedSelectedRange,
                            const QString& originalString, TextRange originalSelectedRange,
                            QString* errorDescription) const override;

 protected:
  virtual bool mayBeginInsertion(QChar first) const = 0;

 private:
  std::int64_t maxValue = 0;
  QString m_format;
};

/// Accepts text that begins with a decimal digit.
class MyIntegerNumberFilter : public LengthLimitedFilter {
 protected:
  bool mayBeginInsertion(QChar first) const override { return first >= u'0' && first <= u'9'; }
};

/// Accepts any text.
class MyRomanFilter : public LengthLimitedFilter {
 protected:
  bool mayBeginInsertion(QChar /*first*/) const override { return true; }
};

/// For observers of login names; the filter has no operation to call on it.
class LoginnameInputFilterCallback {
 public:
  virtual ~LoginnameInputFilterCallback() = default;
};

/// Accepts every edit. It is one of the panel's filters, although no field of this model's layouts uses it.
class LoginnameInputFilter : public Formatter {
 public:
  /// `callback` is neither owned nor called, because the filter has nothing to report.
  void setCallback(LoginnameInputFilterCallback* callback) { m_context = callback; }

  bool isPartialStringValid(QString& partialString, TextRange& proposedSelectedRange,
                            const QString& originalString, TextRange originalSelectedRange,
                            QString* errorDescription) const override;

 private:
  LoginnameInputFilterCallback* m_context = nullptr;
};

}  // namespace kesto
