#include "hosts/dialog/widgets/preset_menu.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/session/panel_session.h"

namespace kesto {
namespace {

// The choice of the last job has no name of the user's.
QString nameOf(const QString& preset) {
  return preset.isEmpty() ? PresetMenu::tr("Last used") : preset;
}

}  // namespace

PresetMenu::PresetMenu(PanelSession& session, QWidget* parent)
    : QPushButton(parent), m_session(session), m_menu(new QMenu(this)) {
  setAccessibleName(tr("Presets"));
  setPlainText(*this, tr("Presets"));
  setAutoDefault(false);
  setMenu(m_menu);
  connect(m_menu, &QMenu::aboutToShow, this, &PresetMenu::fill);
}

void PresetMenu::fill() {
  m_menu->clear();
  for (QMenu* former : m_menu->findChildren<QMenu*>(Qt::FindDirectChildrenOnly))
    former->deleteLater();
  QStringList names;
  const Outcome found = m_session.shelf()->names(&names);
  if (!found) m_menu->addAction(withPlainAmpersands(asSentence(found.reason())))->setEnabled(false);
  QAction* last = addPreset(QStringLiteral(""));
  last->setEnabled(m_session.shelf()->hasLastUsed());
  connect(last, &QAction::triggered, this, &PresetMenu::loadLastUsed);
  m_menu->addSeparator();
  if (found && names.isEmpty()) m_menu->addAction(tr("No presets"))->setEnabled(false);
  for (const QString& name : names)
    connect(addPreset(name), &QAction::triggered, this, [this, name] { load(name); });
  m_menu->addSeparator();
  connect(m_menu->addAction(tr("Save as preset…")), &QAction::triggered, this, &PresetMenu::save);
  QMenu* removal = m_menu->addMenu(tr("Delete preset"));
  removal->setEnabled(!names.isEmpty());
  for (const QString& name : names)
    connect(removal->addAction(withPlainAmpersands(name)), &QAction::triggered, this,
            [this, name] { remove(name); });
}

// The one in use has a check mark.
QAction* PresetMenu::addPreset(const QString& name) {
  const QString& active = m_session.activePreset();
  const bool isActive = !active.isNull() && name == active;
  QAction* entry = m_menu->addAction(withPlainAmpersands(isActive ? activeText() : nameOf(name)));
  entry->setCheckable(isActive);
  entry->setChecked(isActive);
  return entry;
}

QString PresetMenu::activeText() const {
  const QString name = nameOf(m_session.activePreset());
  return m_session.isPresetChanged() ? tr("%1 (changed)").arg(name) : name;
}

void PresetMenu::showActive() {
  const QString active = m_session.activePreset().isNull() ? QString() : activeText();
  if (active == accessibleDescription()) return;
  setAccessibleDescription(active);
  setToolTip(tipOf(active));
  const int widest = fontMetrics().horizontalAdvance(u'0') * 24;  // a name may be long
  const QString shown = fontMetrics().elidedText(active, Qt::ElideMiddle, widest);
  setPlainText(*this, active.isNull() ? tr("Presets") : tr("Presets: %1").arg(shown));
  Q_EMIT renamed();
}

void PresetMenu::load(const QString& name) {
  QStringList others;
  const Outcome loaded = m_session.loadPreset(name, &others);
  take(loaded, others);
}

void PresetMenu::loadLastUsed() {
  QStringList others;
  const Outcome loaded = m_session.loadLastUsed(&others);
  take(loaded, others);
}

void PresetMenu::take(const Outcome& loaded, const QStringList& others) {
  showActive();
  if (!loaded) return warn(loaded);
  Q_EMIT this->loaded(others);
}

void PresetMenu::save() {
  QDialog dialog(window());
  dialog.setWindowTitle(tr("Save as preset"));
  auto* name = new QLineEdit(&dialog);
  auto* codes = new QCheckBox(tr("Include the pass codes"), &dialog);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, &dialog);
  QPushButton* accept = buttons->button(QDialogButtonBox::Save);
  accept->setEnabled(false);
  connect(name, &QLineEdit::textChanged, accept,
          [accept](const QString& text) { accept->setEnabled(!text.trimmed().isEmpty()); });
  auto* form = new QFormLayout(&dialog);
  form->addRow(tr("Name:"), name);
  form->addRow(codes);
  form->addRow(buttons);
  connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  if (dialog.exec() != QDialog::Accepted || m_session.shelf() == nullptr) return;
  const QString wanted = name->text().trimmed();
  if (!mayReplace(wanted) || m_session.shelf() == nullptr) return;
  if (Outcome saved = m_session.savePreset(wanted, codes->isChecked()); !saved) warn(saved);
  showActive();
}

bool PresetMenu::mayReplace(const QString& name) {
  QStringList names;
  if (!m_session.shelf()->names(&names) || !names.contains(name)) return true;
  QMessageBox box(QMessageBox::Question, tr("Presets"), tr("Replace the preset \"%1\"?").arg(name),
                  QMessageBox::Save | QMessageBox::Cancel, window());
  box.setTextFormat(Qt::PlainText);
  return box.exec() == QMessageBox::Save;
}

void PresetMenu::remove(const QString& name) {
  if (Outcome removed = m_session.removePreset(name); !removed) warn(removed);
  showActive();
}

void PresetMenu::warn(const Outcome& failure) {
  QMessageBox box(QMessageBox::Warning, tr("Presets"), asSentence(failure.reason()), QMessageBox::Ok,
                  window());
  box.setTextFormat(Qt::PlainText);  // the reason may contain a name
  box.exec();
}

}  // namespace kesto
