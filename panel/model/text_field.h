// Labels and text fields, and the formatter that judges what the user types.
#pragma once

#include <memory>

#include "panel/model/control.h"
#include "platform/export.h"
#include "platform/outcome.h"

namespace kesto {

/// A range of UTF-16 code units.
struct TextRange {
  qsizetype location = 0;
  qsizetype length = 0;

  bool operator==(const TextRange&) const = default;
};

/// Judges every edit of the user before it happens. A field shows its value unchanged: the conversions of
/// values belong to the protocol of formatters, but no field uses them.
class KESTO_EXPORT Formatter {
 public:
  virtual ~Formatter() = default;

  /// The text shown for a value.
  virtual QString stringForObjectValue(const QVariant& value) const;
  /// The value of a text; `errorDescription` is never set. Succeeds for every text.
  virtual bool getObjectValue(QVariant* value, const QString& forString, QString* errorDescription) const;
  /// Whether the field may become `partialString` with `proposedSelectedRange` selected. On refusal both
  /// arguments may have been replaced by what the field is to show instead; unchanged ones leave the field as
  /// it was.
  virtual bool isPartialStringValid(QString& partialString, TextRange& proposedSelectedRange,
                                    const QString& originalString, TextRange originalSelectedRange,
                                    QString* errorDescription) const = 0;
};

/// A line of text: a label (tag 0) or a field that the user can edit (any other tag). Positions and lengths
/// count UTF-16 code units. A text is wiped when it is replaced or its field is destroyed.
class KESTO_EXPORT TextField : public Control {
  Q_OBJECT
  Q_PROPERTY(QString stringValue READ stringValue NOTIFY changed)
  Q_PROPERTY(bool editable READ isEditable NOTIFY changed)
  Q_PROPERTY(bool selectable READ isSelectable NOTIFY changed)
  Q_PROPERTY(QString textColor READ textColorName NOTIFY changed)
  Q_PROPERTY(int tag READ tag CONSTANT)
  Q_PROPERTY(QVariantList selection READ selectionList NOTIFY changed)

 public:
  enum class Color { Black, Gray };

  /// A label is neither editable nor selectable; a field is both.
  TextField(const QString& name, PanelView* view, int tag);
  ~TextField() override;

  QString kind() const override;
  int tag() const { return m_tag; }

  const QString& stringValue() const { return m_stringValue; }
  /// Sets the text from code, without the formatter and with the caret at the end.
  void setStringValue(const QString& text);

  bool isEditable() const { return m_editable; }
  void setEditable(bool editable) { assign(m_editable, editable); }
  bool isSelectable() const { return m_selectable; }
  void setSelectable(bool selectable) { assign(m_selectable, selectable); }
  Color textColor() const { return m_textColor; }
  void setTextColor(Color color) { assign(m_textColor, color); }

  TextRange selection() const { return m_selection; }
  const Formatter* formatter() const { return m_formatter.get(); }
  void setFormatter(std::unique_ptr<Formatter> formatter) { m_formatter = std::move(formatter); }

  /// The user types at the selection, character by character, each through the formatter if there is one.
  /// This and the next three operations make the field the first responder, and fail when the field does not
  /// accept them.
  Outcome type(const QString& text);
  /// The user inserts a text at the selection in one step.
  Outcome paste(const QString& text);
  /// The user deletes the selection, or the character before it.
  Outcome backspace();
  /// The user sets the selection, which is clamped to the text and never splits a surrogate pair.
  Outcome placeCaret(TextRange range);
  /// Applies one edit that a toolkit has computed: the resulting text and the selection in it. The formatter
  /// decides what the field then contains.
  void edit(QString proposed, TextRange proposedSelection);

 private:
  QString textColorName() const;
  QVariantList selectionList() const;
  Outcome beginEdit();
  void insert(QStringView text);
  void replaceText(const QString& text, TextRange selection);

  int m_tag;
  QString m_stringValue;
  TextRange m_selection;
  bool m_editable;
  bool m_selectable;
  Color m_textColor = Color::Black;
  std::unique_ptr<Formatter> m_formatter;
};

}  // namespace kesto
