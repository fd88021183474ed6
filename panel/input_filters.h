// The filters that watch over typing in the panel's fields. Lengths count UTF-16 code units.
#pragma once

#include <cstdint>

#include "panel/model/text_field.h"

namespace kesto {

/// What both number formatters share: the limit, and the cut of an edit whose caret would pass it.
class LengthLimitedFilter : public Formatter {
 public:
  /// The length that typing can reach; 0 until it is set, which refuses every insertion.
  void SetmaxCharactersCount(std::int64_t count) { maxValue = count; }
  /// The format of numbers, as any number formatter has one; nothing asks for it: the filter watches over
  /// text.
  void setFormat(const QString& format) { m_format = format; }

  /// An edit whose caret would pass the limit is cut to the limit, never within a surrogate pair, all
  /// selected, and refused. A deletion is accepted. An insertion is accepted when the text before it was
  /// shorter than the limit and its first character may begin one.
  bool isPartialStringValid(QString& partialString, TextRange& proposedSelectedRange,
                            const QString& originalString, TextRange originalSelectedRange,
                            QString* errorDescription) const override;

 protected:
  virtual bool mayBeginInsertion(QChar first) const = 0;

 private:
  std::int64_t maxValue = 0;
  QString m_format;
};

/// Lets in what begins with a decimal digit.
class MyIntegerNumberFilter : public LengthLimitedFilter {
 protected:
  bool mayBeginInsertion(QChar first) const override { return first >= u'0' && first <= u'9'; }
};

/// Lets in any text.
class MyRomanFilter : public LengthLimitedFilter {
 protected:
  bool mayBeginInsertion(QChar /*first*/) const override { return true; }
};

/// For observers of login names; the filter has no operation to call on it.
class LoginnameInputFilterCallback {
 public:
  virtual ~LoginnameInputFilterCallback() = default;
};

/// Accepts every edit. It belongs to the panel's filters, though no field of this model's layouts carries it.
class LoginnameInputFilter : public Formatter {
 public:
  /// `callback` is not owned and never called, as the filter has nothing to tell.
  void setCallback(LoginnameInputFilterCallback* callback) { m_context = callback; }

  bool isPartialStringValid(QString& partialString, TextRange& proposedSelectedRange,
                            const QString& originalString, TextRange originalSelectedRange,
                            QString* errorDescription) const override;

 private:
  LoginnameInputFilterCallback* m_context = nullptr;
};

}  // namespace kesto
