#include "hosts/dialog/panes/option_control.h"

#include <QtGui/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyle>
#include <utility>

#include "hosts/dialog/panes/choice_control.h"
#include "hosts/dialog/panes/entry_control.h"
#include "hosts/dialog/panes/pages_control.h"
#include "hosts/dialog/widgets/accessible.h"
#include "hosts/dialog/widgets/plain_text.h"

namespace kesto {
namespace {

QHBoxLayout* lineOf(QWidget& control) {
  auto* line = new QHBoxLayout(&control);
  line->setContentsMargins({});
  return line;
}

class NumberControl : public OptionControl {
 public:
  NumberControl(const OfferedOption& option, JobOptions& options, QWidget* parent)
      : OptionControl(option, options, parent), m_number(new QSpinBox(this)) {
    m_number->setRange(leastNumber, mostNumber);
    name(*m_number, label(), option.key);
    lineOf(*this)->addWidget(m_number);
    connect(m_number, &QSpinBox::valueChanged, this, [this](int number) { take(QString::number(number)); });
  }
  QWidget* field() override { return m_number; }
  void showValue() override { m_number->setValue(value().toInt()); }

 private:
  QSpinBox* m_number;
};

class SwitchControl : public OptionControl {
 public:
  SwitchControl(const OfferedOption& option, JobOptions& options, QWidget* parent)
      : OptionControl(option, options, parent), m_box(new QCheckBox(this)) {
    setPlainText(*m_box, options.text(option.key));
    m_box->setObjectName(option.key);
    lineOf(*this)->addWidget(m_box);
    connect(m_box, &QCheckBox::toggled, this, [this](bool isOn) { take(choice(isOn)); });
  }
  QString label() const override { return {}; }
  QWidget* field() override { return m_box; }
  void showValue() override { m_box->setChecked(value() == choice(true)); }

 private:
  QString choice(bool isOn) const { return options().choices(option().key).at(isOn ? 1 : 0).keyword; }

  QCheckBox* m_box;
};

class TextControl : public OptionControl {
 public:
  TextControl(const OfferedOption& option, JobOptions& options, QWidget* parent)
      : OptionControl(option, options, parent), m_text(new QLineEdit(this)) {
    constexpr int longest = 255;  // of a name in the print system's protocol
    m_text->setMaxLength(longest);
    name(*m_text, label(), option.key);
    lineOf(*this)->addWidget(m_text);
    connect(m_text, &QLineEdit::textChanged, this, [this](const QString& text) { take(text); });
  }
  QWidget* field() override { return m_text; }
  void showValue() override {
    if (m_text->text() != value()) m_text->setText(value());
  }

 private:
  QLineEdit* m_text;
};

}  // namespace

OptionControl::OptionControl(OfferedOption option, JobOptions& options, QWidget* parent)
    : QWidget(parent), m_option(std::move(option)), m_options(options) {}

QString OptionControl::label() const {
  return m_options.text(m_option.key);
}

void OptionControl::take(const QString& value) {
  const QString before = this->value();
  if (value != before || value.isNull() != before.isNull()) m_options.choose(m_option.key, value);
}

void OptionControl::name(QWidget& widget, const QString& accessibleName, const QString& objectName) const {
  const QString text = withoutColon(accessibleName);
  auto* list = qobject_cast<QComboBox*>(&widget);
  list == nullptr ? widget.setAccessibleName(text) : nameList(*list, text);
  widget.setObjectName(objectName);
}

void OptionControl::mark(QLineEdit& field, const QString& fault) {
  field.setToolTip(tipOf(fault));
  field.setAccessibleDescription(fault);
  const QList<QAction*> marks = field.actions();
  if (fault.isNull()) return qDeleteAll(marks);
  if (marks.isEmpty())
    field.addAction(field.style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition);
}

QList<OptionControl*> makeControls(const OfferedOption& option, JobOptions& options, QWidget* parent) {
  switch (option.kind) {
    case OptionKind::Number:
      return {new NumberControl(option, options, parent)};
    case OptionKind::Switch:
      return {new SwitchControl(option, options, parent)};
    case OptionKind::Text:
      return {new TextControl(option, options, parent)};
    case OptionKind::Pages:
      return {new PagesControl(option, options, parent)};
    case OptionKind::Covers:
      return {new CoverControl(option, options, CoverControl::Before, parent),
              new CoverControl(option, options, CoverControl::After, parent)};
    case OptionKind::Scaling:
      return {new PercentControl(option, options, parent)};
    case OptionKind::Hold:
      return {new HoldControl(option, options, parent)};
    case OptionKind::Choice:
    case OptionKind::Keyword:
      break;
  }
  if (option.key == u"PageSize") return {new PaperControl(option, options, parent)};
  if (option.key == u"number-up") return {new NumberUpControl(option, options, parent)};
  return {new ChoiceControl(option, options, parent)};
}

}  // namespace kesto
