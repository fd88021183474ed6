#include "hosts/dialog/widgets/queue_chooser.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/accessible.h"
#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/printer_details.h"
#include "hosts/dialog/widgets/wrapped_label.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr int manyQueues = 12;

// Hidden until there is something to press it for.
void buildButton(QPushButton& button, const QString& name, const QString& text) {
  setPlainText(button, text);
  exceptFromMnemonics(button);
  button.setAutoDefault(false);
  button.setObjectName(name);
  button.hide();
}

}  // namespace

QueueChooser::QueueChooser(QWidget* parent)
    : QWidget(parent),
      m_combo(new QComboBox(this)),
      m_icon(new StateIcon(this)),
      m_state(new WrappedLabel(this)),
      m_retry(new QPushButton(this)),
      m_more(new QPushButton(this)) {
  buildList();
  m_state->setObjectName(QStringLiteral("printerState"));
  m_state->setTextFormat(Qt::PlainText);
  buildButton(*m_retry, QStringLiteral("retry"), tr("Try again"));
  buildButton(*m_more, QStringLiteral("printerDetailsButton"), tr("Details"));
  m_more->setAccessibleName(tr("Printer details"));
  auto* line = new QHBoxLayout;
  // The first line of a long state stays beside its icon and the button.
  for (QWidget* each : {static_cast<QWidget*>(m_icon), static_cast<QWidget*>(m_state)})
    each->setMinimumHeight(m_more->sizeHint().height());
  line->addWidget(m_icon, 0, Qt::AlignTop);
  line->addWidget(m_state, 1);
  line->addWidget(m_retry);
  line->addWidget(m_more, 0, Qt::AlignTop);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(m_combo);
  column->addLayout(line);
  connect(m_retry, &QPushButton::clicked, this, &QueueChooser::retryAsked);
  connect(m_more, &QPushButton::clicked, this, &QueueChooser::openDetails);
}

void QueueChooser::buildList() {
  // Avoids measuring every queue for the width of the field and the height of a row.
  m_combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_combo->setMinimumContentsLength(28);
  auto* view = new QListView(m_combo);
  view->setUniformItemSizes(true);
  m_combo->setView(view);
  m_combo->setModel(&m_model);
  m_combo->setObjectName(QStringLiteral("printer"));
  nameList(*m_combo, tr("Printer"));
  m_combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  const auto chooseRow = [this](int row) {
    const QString name = m_model.data(m_model.index(row), QueueListModel::NameRole).toString();
    if (!m_isUpdating && !name.isEmpty()) choose(name);
  };
  connect(m_combo, &QComboBox::activated, this, chooseRow);
  connect(m_combo, &QComboBox::currentIndexChanged, this, chooseRow);
}

void QueueChooser::setQueues(const std::vector<QueueSummary>& queues) {
  update([&] {
    m_model.setQueues(queues);
    offerFilter();
  });
}

void QueueChooser::setQueue(const QueueSummary& queue) {
  update([&] { m_model.setQueue(queue); });
}

void QueueChooser::removeQueue(const QString& name) {
  update([&] { m_model.removeQueue(name); });
}

void QueueChooser::setNetwork(const std::vector<QueueSummary>& printers) {
  update([&] {
    m_model.setNetwork(printers);
    offerFilter();
  });
}

void QueueChooser::setChoosable(bool isChoosable) {
  m_combo->setEnabled(isChoosable);
  m_retry->setEnabled(isChoosable);
}

void QueueChooser::offerPdf() {
  update([this] { m_model.offerPdf(); });
}

void QueueChooser::offerFilter() {
  const bool isWanted = m_model.rowCount() > manyQueues;
  if (isWanted == m_combo->isEditable()) return;
  m_combo->setEditable(isWanted);
  if (!isWanted) return setTyped({});
  m_combo->setInsertPolicy(QComboBox::NoInsert);
  auto* completer = new QCompleter(&m_model, m_combo);
  completer->setFilterMode(Qt::MatchContains);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setCompletionMode(QCompleter::PopupCompletion);
  m_combo->setCompleter(completer);
  QLineEdit* field = m_combo->lineEdit();
  field->setAccessibleName(tr("Printer"));
  connect(field, &QLineEdit::textEdited, this, [this](const QString& text) { takeText(text, false); });
  // The list below the field also writes highlighted items into it.
  connect(field, &QLineEdit::textChanged, this, [this, completer](const QString& text) {
    if (text != m_typed) takeText(text, !completer->popup()->isVisible());
  });
  connect(field, &QLineEdit::editingFinished, this, &QueueChooser::confirmText);
  // A key press may reach either of them first.
  for (QObject* part : {static_cast<QObject*>(m_combo), static_cast<QObject*>(field),
                        static_cast<QObject*>(completer->popup())})
    part->installEventFilter(this);
}

// Here Enter confirms the name instead of printing, and Escape discards the text instead of closing the
// dialog.
bool QueueChooser::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !m_combo->isEditable()) return false;
  QAbstractItemView* list = m_combo->completer()->popup();
  const auto& press = *static_cast<QKeyEvent*>(event);
  const int key = press.key();
  if (key == Qt::Key_Escape && (isPending() || list->isVisible())) {
    list->hide();
    setCurrent(m_current);
    return true;
  }
  if (list->isVisible() && list->currentIndex().isValid()) return false;  // Enter takes the highlighted one
  if (list->isVisible() && (key == Qt::Key_Tab || key == Qt::Key_Backtab)) {
    list->hide();  // it receives the keys while it is open
    confirmText();
    return QCoreApplication::sendEvent(m_combo, event);
  }
  // The mnemonic of a dimmed button, as Print is until the text is confirmed, must not become part of a name.
  const bool isLetter = press.modifiers() == Qt::AltModifier && !press.text().isEmpty();
  if (key != Qt::Key_Return && key != Qt::Key_Enter && !isLetter) return false;
  list->hide();
  confirmText();
  return true;
}

// A text names a queue by its name or by its row in the list; of a row it may be a part if `kind` says so.
QueueChooser::Match QueueChooser::match(const QString& text, Qt::MatchFlag kind) const {
  if (m_model.queue(text) != nullptr) return {.queue = text, .count = 1};
  int count = 0;
  for (const int role : {static_cast<int>(QueueListModel::NameRole), static_cast<int>(Qt::DisplayRole)}) {
    const Qt::MatchFlag flags = role == Qt::DisplayRole ? kind : Qt::MatchFixedString;
    QModelIndexList found = m_model.match(m_model.index(0), role, text, 3, flags);
    found.removeIf([](const QModelIndex& each) { return each.data(QueueListModel::NameRole).isNull(); });
    count = static_cast<int>(found.size());
    if (count == 1) return {.queue = found.first().data(QueueListModel::NameRole).toString(), .count = 1};
  }
  return {.queue = {}, .count = count};
}

void QueueChooser::takeText(const QString& text, bool isWhole) {
  if (m_isUpdating) return;
  const QString name = isWhole ? match(text, Qt::MatchFixedString).queue : QString();
  if (!name.isNull()) return choose(name);
  setTyped(text == currentText() ? QString() : text.isNull() ? QStringLiteral("") : text);
}

void QueueChooser::confirmText() {
  if (!isPending()) return;
  const QString name = match(m_typed, Qt::MatchContains).queue;
  if (!name.isNull() && !m_typed.isEmpty()) choose(name);
}

void QueueChooser::choose(const QString& name) {
  const bool isOther = name != m_current;
  setCurrent(name);
  if (isOther) Q_EMIT chosen(name);
}

void QueueChooser::setTyped(const QString& text) {
  const bool wasPending = isPending();
  m_typed = text;
  updateLine();
  if (isPending() != wasPending) Q_EMIT pendingChanged();
}

void QueueChooser::setCurrent(const QString& name) {
  setTyped({});
  takeCurrent(name);
}

void QueueChooser::takeCurrent(const QString& name) {
  m_current = name;
  update();
}

QString QueueChooser::currentText() const {
  const int row = m_model.rowOf(m_current);
  return row < 0 ? shownText(m_current) : m_combo->itemText(row);
}

// Changes the list, and restores the field to the chosen queue or to what is being typed. The combo box
// itself would select a neighbour and write that into the field.
void QueueChooser::update(const std::function<void()>& change) {
  const QScopedValueRollback guard(m_isUpdating, true);
  const int cursor = m_combo->isEditable() ? m_combo->lineEdit()->cursorPosition() : 0;
  if (change) change();
  m_combo->setPlaceholderText(!m_current.isNull() ? shownText(m_current)
                              : isFault()         ? tr("No printer")
                                                  : tr("Looking for printers…"));
  m_combo->setCurrentIndex(m_model.rowOf(m_current));
  if (m_combo->isEditable()) {
    const QString text = isPending() ? m_typed : currentText();
    if (m_combo->currentText() != text) m_combo->setEditText(text);
    if (isPending()) m_combo->lineEdit()->setCursorPosition(cursor);
  }
  updateLine();
}

// The message about a pending text.
QString QueueChooser::pendingText() const {
  if (m_typed.isEmpty()) return tr("Enter the name of a printer.");
  const auto [name, count] = match(m_typed, Qt::MatchContains);
  if (!name.isNull()) return tr("Press Enter to choose %1.").arg(name);
  return count > 1 ? tr("Several printers match. Choose one of them.")
                   : tr("There is no printer named \"%1\".").arg(m_typed);
}

void QueueChooser::updateLine() {
  const QString text = shownText(isPending() ? pendingText() : m_text);
  m_state->setText(text);
  m_combo->setAccessibleDescription(text);
  m_icon->setKind(text.isEmpty() ? StateIcon::Kind::None : isPending() ? StateIcon::Kind::Attention : m_kind);
  m_retry->setVisible(isFault() && !isPending());
}

void QueueChooser::showDetails(const QueueSummary& queue) {
  m_summary = queue;
  m_more->setVisible(!queue.name.isEmpty());
  if (m_details) m_details->showQueue(queue);
}

void QueueChooser::openDetails() {
  m_details = new PrinterDetails(this);
  m_details->setAttribute(Qt::WA_DeleteOnClose);
  m_details->showQueue(m_summary);
  m_details->adjustSize();
  const QPoint below = m_more->mapToGlobal(QPoint(m_more->width(), m_more->height()));
  m_details->move(below - QPoint(m_details->width(), 0));
  m_details->open();
}

void QueueChooser::showState(const QString& text, StateIcon::Kind kind) {
  m_text = text;
  m_kind = kind;
  update();
}

}  // namespace kesto
