#include "plugin/confirmation.h"

#include "panel/localized.h"
#include "platform/alert_presenter.h"

namespace kesto {
namespace {

QString withoutColons(QStringView text) {
  while (text.startsWith(u':'))
    text = text.sliced(1);
  while (text.endsWith(u':'))
    text.chop(1);
  return text.toString();
}

void addField(QMap<QString, QString>* summary, const TextField* label, const TextField* field) {
  if (label == nullptr || field == nullptr) return;
  summary->insert(withoutColons(label->stringValue()), field->stringValue());
}

void addRetention(QMap<QString, QString>* summary, const PanelState& state) {
  const Outlets& o = state.outlets;
  if (o.retentionCheckBox == nullptr) return;
  const bool isRetained = isOn(o.retentionCheckBox);
  summary->insert(
      o.retentionCheckBox->title(),
      state.pdeBundle->localizedStringForKey(isRetained ? QStringLiteral("On") : QStringLiteral("Off")));
  if (!isRetained) return;
  if (o.folderSelectionPopup != nullptr && o.folderSelectionStaticText != nullptr) {
    const PopUpItem* folder = o.folderSelectionPopup->selectedItem();
    if (folder != nullptr)
      summary->insert(withoutColons(o.folderSelectionStaticText->stringValue()), folder->title);
  }
  if (o.suspendMatrix != nullptr && o.suspendBox != nullptr) {
    const RadioCell* choice = o.suspendMatrix->selectedCell();
    if (choice != nullptr) summary->insert(o.suspendBox->title(), choice->title());
  }
}

}  // namespace

bool isAuthenticationEntered(const PanelState& state) {
  const Outlets& o = state.outlets;
  const bool isLogin = o.authenticationRadioButton != nullptr && o.authenticationRadioButton->state() != 0;
  if (isLogin && isOn(o.loginNameButton)) return !state.loginNameStringRef.isEmpty();
  const TextField* field = isLogin ? o.loginNameEditText : o.userNumberEditText;
  return field == nullptr || !field->stringValue().isEmpty();
}

void alertAuthenticationMissing(PanelState& state) {
  const auto localized = [&](const QString& text) { return localizedStringValue(*state.pdeBundle, text); };
  QString message =
      localized(QStringLiteral("Please confirm the following setting items.\nLogin Name\nUser Number%@"));
  message.replace(QStringLiteral("%@"), QString());
  state.platform->alertPresenter().runInformationalAlert(localized(QStringLiteral("Information")), message,
                                                         localized(QStringLiteral("OK")));
}

QMap<QString, QString> summaryOf(const PanelState& state) {
  QMap<QString, QString> summary;
  if (!state.hasInited) return summary;
  const Outlets& o = state.outlets;
  if (!state.active_directory) {
    addRetention(&summary, state);
    addField(&summary, o.userNameStaticText, o.userNameEditText);
  }
  addField(&summary, o.jobNameStaticText, o.jobNameEditText);
  return summary;
}

}  // namespace kesto
