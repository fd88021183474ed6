#include "hosts/dialog/panel/panel_pane.h"

#include <QtCore/QBuffer>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>
#include <array>

#include "hosts/dialog/panel/control_binders.h"
#include "hosts/dialog/panel/dimming_reasons.h"
#include "hosts/dialog/panel/folder_choice.h"
#include "hosts/dialog/panel/panel_groups.h"
#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "panel/model/button.h"
#include "panel/model/panel_view.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/text_field.h"
#include "platform/bundle.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

QString stemOf(const QString& name) {
  for (const QLatin1String suffix : {QLatin1String("StaticText"), QLatin1String("EditText"),
                                     QLatin1String("Popup"), QLatin1String("Button")}) {
    if (name.endsWith(suffix)) return name.chopped(suffix.size());
  }
  return name;
}

bool isOn(const Control& control) {
  const auto* button = qobject_cast<const Button*>(&control);
  return button != nullptr && button->state() == 1;
}

bool isByLogin(const Control& control) {
  const auto* matrix = qobject_cast<const RadioMatrix*>(&control);
  return matrix != nullptr && matrix->selectedRow() == ByLogin;
}

bool lacksAddress(const Control& control) {
  return !isPrinterAddress(printerAddress(*control.view()));
}

// Where a user continues after a choice that requires an entry.
struct NextEntry {
  const char* control;
  bool (*isChosen)(const Control& control);
  const char* entry;
};

constexpr std::array nextEntries{
    NextEntry{"retentionCheckBox", isOn, "suspendKeyEditText"},
    NextEntry{"authenticationMatrix", isByLogin, "loginNameEditText"},
    NextEntry{"getFolderNameButton", lacksAddress, "printersAddressEditText"},
};

// Makes what stands in one column of pages and boxes.
class FormLoader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    QWidget* made = nullptr;
    if (className == u"QTabWidget") made = new PanelPages(parent);
    if (className == u"QGroupBox") made = new PanelGroup(parent);
    if (made == nullptr) return QUiLoader::createWidget(className, parent, name);
    made->setObjectName(name);
    return made;
  }
};

// A loader begins by loading the widgets that are installed for the design of forms. The layouts have none of
// them, and they bring large libraries.
std::unique_ptr<QUiLoader> makeLoader() {
  const QStringList paths = QCoreApplication::libraryPaths();
  QCoreApplication::setLibraryPaths({});
  auto loader = std::make_unique<FormLoader>();
  QCoreApplication::setLibraryPaths(paths);
  return loader;
}

// The texts of a form, which are English.
QList<std::pair<QWidget*, QString>> textsOf(const QWidget& form) {
  QList<std::pair<QWidget*, QString>> texts;
  for (auto* label : form.findChildren<QLabel*>())
    texts.append({label, label->text()});
  for (auto* button : form.findChildren<QAbstractButton*>())
    texts.append({button, button->text()});
  return texts;
}

}  // namespace

PanelPane::PanelPane(PanelView& view) : m_view(&view), m_folderChoice(new FolderChoice(view)) {
  m_refresh.setSingleShot(true);
  connect(&m_refresh, &QTimer::timeout, this, &PanelPane::refresh);
  connect(&view, &PanelView::firstResponderChanged, this, [this] { m_refresh.start(0); });
  connect(&view, &QObject::destroyed, this, [this] {
    m_refresh.stop();
    m_view = nullptr;
  });
}

Outcome PanelPane::make(PanelView& view, const Bundle& bundle, std::unique_ptr<PanelPane>* pane) {
  pane->reset();
  std::unique_ptr<PanelPane> made(new PanelPane(view));
  const std::unique_ptr<QUiLoader> loader = makeLoader();
  loader->setTranslationEnabled(false);  // the controls supply the texts in the user's language
  loader->setWorkingDirectory(
      QFileInfo(bundle.pathForResource(QStringLiteral("ulck"), QStringLiteral("png"))).dir());
  QByteArray form = view.form();
  QBuffer buffer(&form);
  QWidget* root = loader->load(&buffer, made.get());
  if (root == nullptr) return Outcome::failed(loader->errorString());
  for (auto* pages : root->findChildren<PanelPages*>())
    pages->layOut();
  root->layout()->setContentsMargins({});
  for (auto* grid : root->findChildren<QGridLayout*>())
    grid->setContentsMargins({});
  auto* layout = new QVBoxLayout(made.get());
  layout->setContentsMargins({});
  layout->addWidget(root);
  const auto texts = textsOf(*root);
  made->bind();
  for (const auto& [widget, english] : texts)
    rememberEnglish(plainText(*widget), english);
  *pane = std::move(made);
  return Outcome::done();
}

QWidget* PanelPane::widgetOf(const QString& name) const {
  return name.isEmpty() ? nullptr : findChild<QWidget*>(name);
}

void PanelPane::bind() {
  for (Control* control : m_view->controls()) {
    QWidget* widget = widgetOf(control->objectName());
    if (widget == nullptr || !bindControl(*control, *widget)) continue;
    connect(control, &Control::changed, this, [this] { m_refresh.start(0); });
    // The panel's own action was connected earlier, so it has already run.
    connect(control, &Control::actionSent, this, &PanelPane::moveFocusAfter);
  }
  if (auto* button = m_view->control<Button>(QStringLiteral("getFolderNameButton")); button != nullptr)
    connect(button, &Control::actionSent, this, [this] { Q_EMIT addressJudged(addressFault()); });
  for (auto* label : findChildren<QLabel*>()) {
    QWidget* field = widgetOf(stemOf(label->objectName()) + QStringLiteral("EditText"));
    if (field == nullptr) field = widgetOf(stemOf(label->objectName()) + QStringLiteral("Popup"));
    label->setBuddy(field);
  }
  for (Control* control : m_view->controls()) {
    if (QWidget* widget = widgetOf(control->objectName())) describe(*widget);
  }
  alignChoices();
  refresh();
}

// Names the widget for assistive technology.
void PanelPane::describe(QWidget& widget) {
  const QString stem = stemOf(widget.objectName());
  const auto* label = findChild<QLabel*>(stem + QStringLiteral("StaticText"));
  const QWidget* text = label;
  if (text == nullptr) text = widgetOf(widget.property("labelledBy").toString());
  const auto* control = m_view->control<Button>(widget.objectName());
  if (control != nullptr && control->type() == Button::Type::HoldButton)
    return describeHoldButton(widget, stem);
  if (text == nullptr && plainText(widget).isEmpty()) return;  // a group, which has its name
  const bool namesItself = text == nullptr || &widget == text;
  widget.setAccessibleName(namesItself ? plainText(widget) : withoutColon(plainText(*text)));
}

void PanelPane::describeHoldButton(QWidget& button, const QString& stem) {
  const QWidget* field = widgetOf(stem + QStringLiteral("EditText"));
  const QWidget* text = widgetOf(stem + QStringLiteral("StaticText"));
  if (field == nullptr) return;
  if (text == nullptr) text = widgetOf(field->property("labelledBy").toString());
  const QString label = text == nullptr ? stem : withoutColon(plainText(*text));
  button.setAccessibleName(tr("Lock %1").arg(label));
  button.setProperty("companionOf", field->objectName());
}

void PanelPane::alignChoices() {
  if (m_view != nullptr) m_folderChoice->align();
}

// The panel's rules move its first responder several times for one choice, and often leave none. Only the
// final state matters to the user, whose keys go to the focus.
void PanelPane::moveFocusAfter(const Control* operated) {
  QWidget* entry = nextEntryAfter(*operated);
  const TextField* responder = m_view->firstResponder();
  if (entry == nullptr && responder != nullptr) entry = widgetOf(responder->objectName());
  if (entry != nullptr && entry->isVisible()) entry->setFocus(Qt::OtherFocusReason);
}

// The entry that usually follows a choice of the user; null for none and for a locked one.
QWidget* PanelPane::nextEntryAfter(const Control& operated) const {
  const auto found = std::ranges::find_if(nextEntries, [&](const NextEntry& next) {
    return operated.objectName() == QLatin1String(next.control) && next.isChosen(operated);
  });
  if (found == nextEntries.end()) return nullptr;
  QWidget* entry = widgetOf(QLatin1String(found->entry));
  return entry != nullptr && entry->isEnabled() ? entry : nullptr;
}

// Makes the field with the keyboard focus the first responder again, whatever rules have run meanwhile.
void PanelPane::alignFirstResponder() {
  const QWidget* focused = window()->focusWidget();
  const bool isHere = focused != nullptr && isAncestorOf(focused);
  m_view->makeFirstResponder(isHere ? m_view->control<TextField>(focused->objectName()) : nullptr);
}

QString PanelPane::addressFault() const {
  const QString address = printerAddress(*m_view);
  if (isPrinterAddress(address)) return {};
  return address.isEmpty() ? tr("Enter the printer's address to get the names of its folders.")
                           : tr("\"%1\" is not an address. Enter the printer's name or IP address.")
                                 .arg(shownText(address));
}

void PanelPane::sayNothingIsFiled() {
  QWidget* box = widgetOf(QStringLiteral("filingBox"));
  auto* grid = box == nullptr ? nullptr : qobject_cast<QGridLayout*>(box->layout());
  if (grid == nullptr) return;
  auto* note =
      new QLabel(tr("This printer does not file documents, so the choice of a folder has no effect."));
  note->setObjectName(QStringLiteral("filingNote"));
  note->setWordWrap(true);
  grid->addWidget(note, grid->rowCount(), 1);
  box->setAccessibleDescription(note->text());
}

void PanelPane::refresh() {
  alignFirstResponder();
  for (const Control* control : m_view->controls()) {
    QWidget* widget = widgetOf(control->objectName());
    if (widget == nullptr) continue;
    QString tip = dimmingReason(*control);
    const auto* button = qobject_cast<const Button*>(control);
    if (button != nullptr && button->type() == Button::Type::HoldButton) {
      const QString state = button->state() != 0 ? tr("Locked: this entry is remembered for this printer.")
                                                 : tr("Unlocked: this entry is for this job only.");
      widget->setAccessibleDescription(state);
      if (tip.isNull()) tip = state;
    } else {
      widget->setAccessibleDescription(tip);
    }
    widget->setToolTip(tip);
  }
  Q_EMIT panelChanged();
}

void PanelPane::showEntry(Entry entry) {
  QWidget* widget = widgetOf(fieldOf(entry));
  // A locked entry must be unlocked first.
  if (widget != nullptr && !widget->isEnabled()) widget = widgetOf(holdButtonOf(entry));
  if (widget == nullptr) return;
  widget->setFocus(Qt::OtherFocusReason);
}

}  // namespace kesto
