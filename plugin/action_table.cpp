#include "plugin/action_table.h"

#include <QtCore/QLoggingCategory>
#include <array>

namespace kesto {
namespace {

Q_LOGGING_CATEGORY(actions, "kesto.layout")

using Operation = void (*)(const ActionGroups&, Control*);

struct ActionRow {
  const char* name;
  Operation operation;
};

constexpr std::array table{
#define ACTION(name)                                                                            \
  ActionRow {                                                                                   \
#name ":", [](const ActionGroups& groups, Control* sender) { groups.actions.name(sender); } \
  }
#define HOLD_ACTION(name, field)                                                                        \
  ActionRow {                                                                                           \
#name ":", [](const ActionGroups& groups, Control*) { groups.actions.holdButtonProc(Held::field); } \
  }
    ACTION(tabProc),
    ACTION(retentionCBoxProc),
    ACTION(suspendKeyMatrixProc),
    ACTION(suspendKeyETextProc),
    HOLD_ACTION(suspendKeyButtonProc, SuspendKey),
    ACTION(folderSelectionPopUpButtonProc),
    ACTION(folderPasswordETextProc),
    HOLD_ACTION(folderPasswordButtonProc, FolderPassword),
    HOLD_ACTION(folderNameButtonProc, FolderName),
    ACTION(folderSelectionMatrixProc),
    ACTION(authenticationMatrixProc),
    ACTION(loginNameETextProc),
    ACTION(loginNameButtonProc),
    ACTION(passwordETextProc),
    HOLD_ACTION(passwordButtonProc, Password),
    ACTION(userNumberETextProc),
    HOLD_ACTION(userNumberButtonProc, UserNumber),
    ACTION(userNameETextProc),
    HOLD_ACTION(userNameButtonProc, UserName),
    ACTION(jobNameETextProc),
    HOLD_ACTION(jobNameButtonProc, JobName),
    ACTION(accountNumberETextProc),
    HOLD_ACTION(accountNumberButtonProc, AccountNumber),
    ACTION(printersAddressButtonProc),
#undef HOLD_ACTION
#undef ACTION
    ActionRow{"getFolderNameButtonProc:",
              [](const ActionGroups& groups, Control* sender) {
                groups.folderQuery.getFolderNameButtonProc(sender);
              }},
};

Operation operationNamed(const QString& name) {
  for (const ActionRow& row : table) {
    if (name == QLatin1String(row.name)) return row.operation;
  }
  return nullptr;
}

void bindRules(RadioMatrix* matrix, EnablingRules& rules) {
  for (const QString& name : matrix->rules()) {
    if (!EnablingRules::exists(name)) {
      qCWarning(actions, "%s asks for the unknown rule %s", qUtf8Printable(matrix->objectName()),
                qUtf8Printable(name));
    }
  }
  QObject::connect(matrix, &RadioMatrix::selectedRowChanged, matrix, [&rules](RadioMatrix* changed) {
    for (const QString& name : changed->rules())
      rules.runByName(name);
  });
}

}  // namespace

void bindActions(const PanelView& view, const ActionGroups& groups) {
  for (Control* control : view.controls()) {
    if (auto* matrix = qobject_cast<RadioMatrix*>(control)) bindRules(matrix, groups.rules);
    if (control->action().isEmpty()) continue;
    const Operation operation = operationNamed(control->action());
    if (operation == nullptr) {
      qCWarning(actions, "%s names the unknown action %s", qUtf8Printable(control->objectName()),
                qUtf8Printable(control->action()));
      continue;
    }
    QObject::connect(control, &Control::actionSent, control,
                     [groups, operation](Control* sender) { operation(groups, sender); });
  }
}

}  // namespace kesto
