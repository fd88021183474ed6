#include "panel/initialize_ui.h"

#include "panel/input_filters.h"
#include "panel/localized.h"
#include "panel/state.h"
#include "panel/trace.h"

namespace kesto {
namespace {

// Translates the text of a control: its title, or a label's string value.
template <class T>
void translate(const Bundle& bundle, T* control) {
  if (control == nullptr) return;
  if constexpr (std::is_same_v<T, TextField>) {
    control->setStringValue(localizedStringValue(bundle, control->stringValue()));
  } else {
    control->setTitle(localizedStringValue(bundle, control->title()));
  }
}

void initializeTabs(const Bundle& bundle, TabView* tabView) {
  if (tabView == nullptr) return;
  QStringList labels = tabView->labels();
  const qsizetype translated = qMin(qsizetype{2}, labels.size());
  for (qsizetype page = 0; page < translated; ++page)
    labels[page] = localizedStringValue(bundle, labels[page]);
  tabView->setLabels(labels);
  tabView->selectTab(0);
}

void installFilter(const HeldField& row, TextField* field) {
  if (field == nullptr || row.filter == FilterKind::None) return;
  std::unique_ptr<LengthLimitedFilter> filter;
  if (row.filter == FilterKind::Digits) {
    filter = std::make_unique<MyIntegerNumberFilter>();
  } else {
    filter = std::make_unique<MyRomanFilter>();
  }
  filter->setFormat(QStringLiteral("##0"));
  filter->SetmaxCharactersCount(row.filterLimit);
  field->setFormatter(std::move(filter));
}

}  // namespace

void initializeUI(PanelState& state) {
  if (state.hasInited) return;
  const Bundle& bundle = *state.pdeBundle;
  const Outlets& o = state.outlets;
  initializeTabs(bundle, o.tabView);
  translate(bundle, o.retentionCheckBox);
  for (Box* box : {o.suspendBox, o.filingBox, o.jobIDBox})
    translate(bundle, box);
  for (TextField* label :
       {o.suspendKeyStaticText, o.folderPasswordStaticText, o.userNumberStaticText, o.accountNumberStaticText,
        o.userNameStaticText, o.jobNameStaticText, o.printersAddressStaticText}) {
    translate(bundle, label);
  }
  translate(bundle, o.userNumberRadioButton);
  translate(bundle, o.getFolderNameButton);
  for (const HeldField& row : heldFields) {
    installFilter(row, o.*row.edit);
    Button* button = o.*row.button;
    // The hold buttons of login name and password keep the images of the layout.
    if (button == nullptr || row.field == Held::LoginName || row.field == Held::Password) continue;
    button->setImage(initWithSystemIconType(bundle, typeCode("ulck")));
    button->setAlternateImage(initWithSystemIconType(bundle, typeCode("lock")));
  }
  if (o.printersAddressEditText != nullptr && !state.mfpURL.isNull()) {
    o.printersAddressEditText->setStringValue(state.mfpURL);
  }
  if (o.chasingArrow != nullptr) o.chasingArrow->setHidden(true);
  state.hasInited = true;
}

void updateUI([[maybe_unused]] PanelState& state) {
  _PDEProlog(state.controller, "--updateUI:");
  _PDEEpilog(state.controller, "--updateUI:");
}

}  // namespace kesto
