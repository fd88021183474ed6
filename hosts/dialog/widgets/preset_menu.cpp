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

PresetMenu::PresetMenu(PanelSession& session, QWidget* parent)
    : QPushButton(parent), m_session(session), m_menu(new QMenu(this)) {
  setPlainText(*this, tr("Presets"));
  setAccessibleName(tr("Presets"));
  setAutoDefault(false);
  setMenu(m_menu);
  connect(m_menu, &QMenu::aboutToShow, this, &PresetMenu::fill);
}

void PresetMenu::fill() {
  m_menu->clear();
  QStringList names;
  const Outcome found = m_session.presets()->names(&names);
  if (!found) m_menu->addAction(withPlainAmpersands(asSentence(found.reason())))->setEnabled(false);
  if (found && names.isEmpty()) m_menu->addAction(tr("No presets for this printer"))->setEnabled(false);
  for (const QString& name : names)
    connect(m_menu->addAction(withPlainAmpersands(name)), &QAction::triggered, this,
            [this, name] { load(name); });
  m_menu->addSeparator();
  connect(m_menu->addAction(tr("Save as preset…")), &QAction::triggered, this, &PresetMenu::save);
  QMenu* removal = m_menu->addMenu(tr("Delete preset"));
  removal->setEnabled(!names.isEmpty());
  for (const QString& name : names)
    connect(removal->addAction(withPlainAmpersands(name)), &QAction::triggered, this,
            [this, name] { remove(name); });
}

void PresetMenu::load(const QString& name) {
  if (Outcome loaded = m_session.loadPreset(name); !loaded) {
    QMessageBox::warning(window(), tr("Presets"), asSentence(loaded.reason()));
    return;
  }
  Q_EMIT this->loaded();
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
  if (dialog.exec() != QDialog::Accepted || m_session.presets() == nullptr) return;
  if (Outcome saved = m_session.savePreset(name->text().trimmed(), codes->isChecked()); !saved)
    QMessageBox::warning(window(), tr("Presets"), asSentence(saved.reason()));
}

void PresetMenu::remove(const QString& name) {
  if (Outcome removed = m_session.presets()->remove(name); !removed)
    QMessageBox::warning(window(), tr("Presets"), asSentence(removed.reason()));
}

}  // namespace kesto
