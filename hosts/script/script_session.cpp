#include "hosts/script/script_session.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QMetaProperty>
#include <array>
#include <cmath>

#include "panel/model/button.h"
#include "panel/model/panel_view.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/text_field.h"

namespace kesto {
namespace {

QJsonObject error(const QString& reason) {
  return {{QStringLiteral("error"), reason}};
}

QJsonObject answerOf(const Outcome& outcome) {
  return outcome ? QJsonObject() : error(outcome.reason());
}

QJsonObject single(const char* name, const QJsonValue& value) {
  return {{QLatin1String(name), value}};
}

// The properties that a class adds to those of its base, as JSON.
QJsonObject propertiesOf(const QObject& object, const QMetaObject& base = QObject::staticMetaObject) {
  QJsonObject properties;
  const QMetaObject* meta = object.metaObject();
  for (int i = base.propertyCount(); i < meta->propertyCount(); ++i) {
    const QMetaProperty property = meta->property(i);
    properties.insert(QLatin1String(property.name()), QJsonValue::fromVariant(property.read(&object)));
  }
  return properties;
}

// What the value of a command's member may be.
bool isText(const QJsonValue& value) {
  return value.isString();
}

bool isTextOrNull(const QJsonValue& value) {
  return value.isString() || value.isNull();
}

bool isWhole(const QJsonValue& value) {
  return value.isDouble() && value.toDouble() == std::trunc(value.toDouble());
}

int wholeOf(const QJsonValue& value) {
  return static_cast<int>(std::clamp(value.toDouble(), -2147483648.0, 2147483647.0));
}

}  // namespace

void AlertRecorder::runInformationalAlert(const QString& title, const QString& message,
                                          const QString& button) {
  m_alerts.append(QJsonObject{{QStringLiteral("title"), title},
                              {QStringLiteral("message"), message},
                              {QStringLiteral("button"), button}});
}

QJsonArray AlertRecorder::take() {
  return std::exchange(m_alerts, QJsonArray());
}

struct ScriptSession::CommandRow {
  struct MemberRow {
    const char* name = nullptr;
    bool (*admits)(const QJsonValue&) = nullptr;
  };
  const char* name = nullptr;
  QJsonObject (ScriptSession::*run)(const QJsonObject&) = nullptr;
  std::array<MemberRow, 3> members{};
};

const ScriptSession::CommandRow* ScriptSession::commandNamed(const QString& name) {
  using S = ScriptSession;
  constexpr CommandRow::MemberRow control{"control", isText};
  constexpr CommandRow::MemberRow text{"text", isText};
  static constexpr std::array table{
      CommandRow{"panels", &S::panels, {{{"type", isText}}}},
      CommandRow{"show", &S::show},
      CommandRow{"restore", &S::restore},
      CommandRow{"save", &S::save},
      CommandRow{"shouldPrint", &S::shouldPrint},
      CommandRow{"summary", &S::summary},
      CommandRow{"click", &S::click, {{control}}},
      CommandRow{"select", &S::select, {{control}}},
      CommandRow{"type", &S::type, {{control, text}}},
      CommandRow{"paste", &S::paste, {{control, text}}},
      CommandRow{"caret", &S::caret, {{control, {"location", isWhole}, {"length", isWhole}}}},
      CommandRow{"backspace", &S::backspace, {{control}}},
      CommandRow{"controls", &S::controls},
      CommandRow{"facts", &S::facts},
      CommandRow{"settings", &S::settings},
      CommandRow{"set", &S::set, {{{"key", isText}, {"value", isTextOrNull}}}},
      CommandRow{"quit", &S::quit},
  };
  for (const CommandRow& row : table) {
    if (name == QLatin1String(row.name)) return &row;
  }
  return nullptr;
}

QJsonObject ScriptSession::answer(const QByteArray& line) {
  QJsonParseError fault;
  const QJsonDocument document = QJsonDocument::fromJson(line, &fault);
  if (!document.isObject()) {
    return error(fault.error == QJsonParseError::NoError ? QStringLiteral("not an object")
                                                         : fault.errorString());
  }
  const QJsonObject command = document.object();
  const QJsonValue name = command.value(QStringLiteral("do"));
  const CommandRow* row = name.isString() ? commandNamed(name.toString()) : nullptr;
  if (row == nullptr) return error(QStringLiteral("no such command"));
  for (const CommandRow::MemberRow& member : row->members) {
    if (member.name == nullptr) break;
    const QLatin1String memberName(member.name);
    if (!command.contains(memberName)) return error(QStringLiteral("%1 is missing").arg(memberName));
    if (!member.admits(command.value(memberName)))
      return error(QStringLiteral("%1 is not of its kind").arg(memberName));
  }
  QJsonObject result = (this->*row->run)(command);
  const QJsonArray alerts = m_alerts.take();
  if (!alerts.isEmpty()) result.insert(QStringLiteral("alerts"), alerts);
  return result;
}

template <class T>
T* ScriptSession::controlOf(const QJsonObject& command) const {
  const PanelView* view = m_host.loadedView();
  return view == nullptr ? nullptr : view->control<T>(command.value(QStringLiteral("control")).toString());
}

QJsonObject ScriptSession::panels(const QJsonObject& command) {
  const PanelList panels =
      m_plugIn.PDEPanelsForType(command.value(QStringLiteral("type")).toString(), &m_host);
  return single("panels", panels ? QJsonValue(static_cast<qint64>(panels->size())) : QJsonValue());
}

QJsonObject ScriptSession::show(const QJsonObject& /*command*/) {
  const bool hasView = m_host.panel()->panelView() != nullptr;
  m_host.panel()->willShow();
  return single("view", hasView);
}

QJsonObject ScriptSession::restore(const QJsonObject& /*command*/) {
  return single("answer", m_host.panel()->restoreValuesAndReturnError(nullptr));
}

QJsonObject ScriptSession::save(const QJsonObject& /*command*/) {
  return single("answer", m_host.panel()->saveValuesAndReturnError(nullptr));
}

QJsonObject ScriptSession::shouldPrint(const QJsonObject& /*command*/) {
  return single("answer", m_host.panel()->shouldPrint());
}

QJsonObject ScriptSession::summary(const QJsonObject& /*command*/) {
  QJsonObject pairs;
  const QMap<QString, QString> summary = m_host.panel()->summaryInfo();
  for (auto it = summary.begin(); it != summary.end(); ++it)
    pairs.insert(it.key(), it.value());
  return single("summary", pairs);
}

QJsonObject ScriptSession::click(const QJsonObject& command) {
  auto* button = controlOf<Button>(command);
  return button == nullptr ? error(QStringLiteral("no such button")) : answerOf(button->click());
}

QJsonObject ScriptSession::select(const QJsonObject& command) {
  auto* matrix = controlOf<RadioMatrix>(command);
  auto* popUp = controlOf<PopUp>(command);
  if (matrix == nullptr && popUp == nullptr) return error(QStringLiteral("no such matrix or pop-up"));
  const QString member = matrix != nullptr ? QStringLiteral("row") : QStringLiteral("index");
  const QJsonValue number = command.value(member);
  if (!isWhole(number)) return error(QStringLiteral("%1 is missing or no whole number").arg(member));
  return answerOf(matrix != nullptr ? matrix->choose(wholeOf(number)) : popUp->choose(wholeOf(number)));
}

QJsonObject ScriptSession::type(const QJsonObject& command) {
  auto* field = controlOf<TextField>(command);
  if (field == nullptr) return error(QStringLiteral("no such field"));
  return answerOf(field->type(command.value(QStringLiteral("text")).toString()));
}

QJsonObject ScriptSession::paste(const QJsonObject& command) {
  auto* field = controlOf<TextField>(command);
  if (field == nullptr) return error(QStringLiteral("no such field"));
  return answerOf(field->paste(command.value(QStringLiteral("text")).toString()));
}

QJsonObject ScriptSession::caret(const QJsonObject& command) {
  auto* field = controlOf<TextField>(command);
  if (field == nullptr) return error(QStringLiteral("no such field"));
  return answerOf(field->placeCaret({wholeOf(command.value(QStringLiteral("location"))),
                                     wholeOf(command.value(QStringLiteral("length")))}));
}

QJsonObject ScriptSession::backspace(const QJsonObject& command) {
  auto* field = controlOf<TextField>(command);
  return field == nullptr ? error(QStringLiteral("no such field")) : answerOf(field->backspace());
}

QJsonObject ScriptSession::controls(const QJsonObject& /*command*/) {
  QJsonObject controls;
  QJsonValue responder;
  if (const PanelView* view = m_host.loadedView()) {
    for (const Control* control : view->controls())
      controls.insert(control->objectName(), propertiesOf(*control));
    if (view->firstResponder() != nullptr) responder = view->firstResponder()->objectName();
  }
  return {{QStringLiteral("controls"), controls}, {QStringLiteral("firstResponder"), responder}};
}

QJsonObject ScriptSession::facts(const QJsonObject& /*command*/) {
  PrintDialogPanel& panel = *m_host.panel();
  QJsonObject facts = propertiesOf(panel, PrintDialogPanel::staticMetaObject);
  facts.insert(QStringLiteral("panelName"), panel.panelName());
  facts.insert(QStringLiteral("panelKind"), panel.panelKind());
  facts.insert(QStringLiteral("supportedPPDOptionKeys"),
               QJsonArray::fromStringList(panel.supportedPPDOptionKeys()));
  facts.insert(QStringLiteral("shouldHide"), panel.shouldHide());
  facts.insert(QStringLiteral("shouldShowHelp"), panel.shouldShowHelp());
  return facts;
}

QJsonObject ScriptSession::settings(const QJsonObject& /*command*/) {
  QJsonObject values;
  if (m_host.settings) {
    const auto& all = m_host.settings->all();
    for (auto it = all.begin(); it != all.end(); ++it)
      values.insert(it.key(), it.value());
  }
  return single("settings", values);
}

QJsonObject ScriptSession::set(const QJsonObject& command) {
  if (!m_host.settings) return error(QStringLiteral("the host has no print settings"));
  const QJsonValue value = command.value(QStringLiteral("value"));
  m_host.settings->setValue(command.value(QStringLiteral("key")).toString(),
                            value.isNull() ? std::nullopt : std::optional(value.toString()));
  return {};
}

QJsonObject ScriptSession::quit(const QJsonObject& /*command*/) {
  m_isOver = true;
  return {};
}

}  // namespace kesto
