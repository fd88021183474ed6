#include "hosts/lp/entries.h"

#include "hosts/command/command_texts.h"
#include "panel/model/button.h"
#include "panel/model/panel_view.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/text_field.h"

namespace kesto {
namespace {

constexpr char notOffered[] = QT_TRANSLATE_NOOP("LpTexts", "%1: this printer does not offer it");

// A user who sits at the panel.
class PanelUser {
 public:
  explicit PanelUser(PanelView& view) : m_view(view) {}

  Outcome choose(const Entries& entries);
  Outcome enter(Entry entry, const QString& text);
  Outcome turnHoldButtons(const Entries& entries, bool on);

 private:
  template <class T>
  T* control(const QString& name) const {
    return m_view.control<T>(name);
  }
  bool choosesRow(const QString& matrix, int row) const;
  bool isRetained() const;
  Outcome chooseHold(int choice);
  Outcome chooseFolder(const QString& name);
  int storedFolder(const QString& name) const;
  Outcome refusal(const QString& option, Entry entry) const;

  PanelView& m_view;
};

bool PanelUser::choosesRow(const QString& matrix, int row) const {
  auto* found = control<RadioMatrix>(matrix);
  return found != nullptr && found->choose(row);
}

bool PanelUser::isRetained() const {
  const auto* retention = control<Button>(QStringLiteral("retentionCheckBox"));
  return retention != nullptr && retention->state() == 1;
}

Outcome PanelUser::refusal(const QString& option, Entry entry) const {
  const bool wantsHold = needsHold(entry) && !isRetained();
  return Outcome::failed(wantsHold ? CommandTexts::lack(option, QStringLiteral("--hold"))
                                   : LpTexts::tr(fieldTable().at(entry).whenRefused).arg(option));
}

Outcome PanelUser::chooseHold(int choice) {
  auto* retention = control<Button>(QStringLiteral("retentionCheckBox"));
  const bool isSet = isRetained() == (choice != noHold) || (retention != nullptr && retention->click());
  if (isSet && (choice == noHold || choosesRow(QStringLiteral("suspendMatrix"), choice)))
    return Outcome::done();
  const QString option =
      QStringLiteral("--hold ") + QLatin1String(holdChoices.at(static_cast<std::size_t>(choice)));
  return Outcome::failed(LpTexts::tr(notOffered).arg(option));
}

// The item of one of the printer's folders: the one of just this name, else the first that differs in letter
// case alone; the main folder's when there is none.
int PanelUser::storedFolder(const QString& name) const {
  const auto* popUp = control<PopUp>(QStringLiteral("folderSelectionPopup"));
  if (popUp == nullptr) return MainFolder;
  const int count = static_cast<int>(popUp->items().size());
  for (const Qt::CaseSensitivity sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
    for (int item = firstFolderItem; item < count; ++item) {
      if (popUp->items().at(static_cast<std::size_t>(item)).title.compare(name, sensitivity) == 0)
        return item;
    }
  }
  return MainFolder;
}

Outcome PanelUser::chooseFolder(const QString& name) {
  FolderRow row = CustomFolder;
  if (name == QLatin1String("quick")) row = QuickFile;
  if (name == QLatin1String("main")) row = MainFolder;
  // A folder that the printer does not know goes with the main folder in the pop-up: quick file there would
  // take the pass codes away.
  const int item = row == CustomFolder ? storedFolder(name) : static_cast<int>(row);
  auto* popUp = control<PopUp>(QStringLiteral("folderSelectionPopup"));
  if (popUp == nullptr || !popUp->choose(item) || !choosesRow(QStringLiteral("folderSelectionMatrix"), row)) {
    return refusal(fieldTable()[Folder].option(), Folder);
  }
  if (row != CustomFolder) return Outcome::done();
  return enter(Folder, item == MainFolder ? name : popUp->selectedItem()->title);
}

Outcome PanelUser::choose(const Entries& entries) {
  if (entries.hold) {
    if (Outcome chosen = chooseHold(*entries.hold); !chosen) return chosen;
  }
  if (entries.texts[Folder]) {
    if (Outcome chosen = chooseFolder(*entries.texts[Folder]); !chosen) return chosen;
  }
  // Quick file moves the hold choice to its own row.
  const auto* holdChoice = control<RadioMatrix>(QStringLiteral("suspendMatrix"));
  if (entries.hold && *entries.hold != noHold && holdChoice->selectedRow() != *entries.hold) {
    return Outcome::failed(
        CommandTexts::lack(QStringLiteral("--folder quick"), QStringLiteral("--hold after")));
  }
  const bool byUserNumber = entries.texts[UserNumber].has_value();
  if (!byUserNumber && !entries.texts[Login] && !entries.texts[Password]) return Outcome::done();
  if (choosesRow(QStringLiteral("authenticationMatrix"), byUserNumber ? ByUserNumber : ByLogin))
    return Outcome::done();
  return Outcome::failed(LpTexts::tr("this printer does not ask who prints"));
}

Outcome PanelUser::enter(Entry entry, const QString& text) {
  const FieldRow& row = fieldTable().at(entry);
  auto* field = control<TextField>(fieldOf(entry));
  auto* button = control<Button>(holdButtonOf(entry));
  const bool isHeld = button != nullptr && button->state() == 1;
  if ((isHeld && !button->click()) || field == nullptr ||
      !field->placeCaret({0, field->stringValue().size()}) || !field->backspace() || !field->type(text)) {
    return refusal(row.option(), entry);
  }
  if (field->stringValue() != text) {
    return Outcome::failed(LpTexts::tr("%1 must be %2").arg(row.option(), row.limitText()));
  }
  return isHeld ? button->click() : Outcome::done();
}

Outcome PanelUser::turnHoldButtons(const Entries& entries, bool on) {
  for (const Entry entry : allEntries) {
    if (entries.remember.at(entry) != on) continue;
    auto* button = control<Button>(holdButtonOf(entry));
    if (button != nullptr && ((button->state() == 1) == on || button->click())) continue;
    const QString option = QLatin1String(on ? "--remember " : "--forget ");
    return refusal(option + QLatin1String(fieldTable().at(entry).name), entry);
  }
  return Outcome::done();
}

}  // namespace

const std::array<FieldRow, entryCount>& fieldTable() {
  static constexpr char digits[] = QT_TRANSLATE_N_NOOP("LpTexts", "at most %n digits");
  static constexpr char characters[] = QT_TRANSLATE_N_NOOP("LpTexts", "at most %n characters");
  static constexpr char quickFile[] = QT_TRANSLATE_NOOP("LpTexts", "%1 cannot be used with --folder quick");
  static constexpr char anyFolder[] = QT_TRANSLATE_NOOP("LpTexts", "%1 requires --folder NAME");
  static constexpr char codedFolder[] = QT_TRANSLATE_NOOP(
      "LpTexts", "%1 requires --folder NAME of a folder with a pass code or of a custom folder");
  static constexpr char byNumber[] = QT_TRANSLATE_NOOP("LpTexts", "%1 cannot be used with a user number");
  static constexpr std::array<FieldRow, entryCount> table{{
      {"pin", "N", QT_TRANSLATE_NOOP("LpTexts", "Pass code"),
       QT_TRANSLATE_NOOP("LpTexts", "pass code of the held job"), digits, 8, quickFile},
      {"folder", "NAME", nullptr, QT_TRANSLATE_NOOP("LpTexts", "quick, main or a folder name"), characters,
       255, anyFolder},
      {"folder-pin", "N", QT_TRANSLATE_NOOP("LpTexts", "Folder pass code"),
       QT_TRANSLATE_NOOP("LpTexts", "pass code of the folder"), digits, 8, codedFolder},
      {"login", "NAME", nullptr, QT_TRANSLATE_NOOP("LpTexts", "login name"), nullptr, 0, byNumber},
      {"password", nullptr, QT_TRANSLATE_NOOP("LpTexts", "Password"),
       QT_TRANSLATE_NOOP("LpTexts", "password of the login name"), nullptr, 0, byNumber},
      {"user-number", "N", nullptr, QT_TRANSLATE_NOOP("LpTexts", "user number instead of a login"), digits, 5,
       notOffered},
      {"account-number", "N", nullptr, QT_TRANSLATE_NOOP("LpTexts", "account number"), digits, 5, notOffered},
      {"user-name", "NAME", nullptr, QT_TRANSLATE_NOOP("LpTexts", "user name at the printer"), characters, 32,
       notOffered},
      {"job-name", "NAME", nullptr, QT_TRANSLATE_NOOP("LpTexts", "job name at the printer"), characters, 80,
       notOffered},
  }};
  return table;
}

Outcome applyEntries(PanelView& view, const Entries& entries) {
  PanelUser user(view);
  if (Outcome chosen = user.choose(entries); !chosen) return chosen;
  // Turned off, the button of the login name drops the name, so that a new one comes after it.
  if (Outcome forgot = user.turnHoldButtons(entries, false); !forgot) return forgot;
  for (const Entry entry : allEntries) {
    const auto& text = entries.texts.at(entry);
    if (entry == Folder || !text) continue;
    if (Outcome entered = user.enter(entry, *text); !entered) return entered;
  }
  return user.turnHoldButtons(entries, true);
}

QString missingEntryText(Entry entry) {
  return (entry == UserNumber ? LpTexts::tr("the user number is missing; set it with %1")
                              : LpTexts::tr("the login name is missing; set it with %1"))
      .arg(fieldTable().at(entry).option());
}

}  // namespace kesto
