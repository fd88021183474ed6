#include "hosts/dialog/widgets/queue_chooser.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/plain_text.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr int manyQueues = 12;

}  // namespace

QueueChooser::QueueChooser(QWidget* parent)
    : QWidget(parent),
      m_combo(new QComboBox(this)),
      m_state(new QLabel(this)),
      m_retry(new QPushButton(this)) {
  // Neither the width of the field nor the height of a row is measured on every queue.
  m_combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_combo->setMinimumContentsLength(28);
  auto* view = new QListView(m_combo);
  view->setUniformItemSizes(true);
  m_combo->setView(view);
  m_combo->setModel(&m_model);
  m_combo->setObjectName(QStringLiteral("printer"));
  m_combo->setAccessibleName(tr("Printer"));
  m_combo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  m_state->setObjectName(QStringLiteral("printerState"));
  m_state->setTextFormat(Qt::PlainText);
  m_state->setWordWrap(true);
  setPlainText(*m_retry, tr("Try again"));
  m_retry->setAutoDefault(false);
  m_retry->setObjectName(QStringLiteral("retry"));
  m_retry->hide();
  auto* line = new QHBoxLayout;
  line->addWidget(m_state, 1);
  line->addWidget(m_retry);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->addWidget(m_combo);
  column->addLayout(line);
  connect(m_combo, &QComboBox::activated, this, [this](int row) {
    const QString name = m_model.data(m_model.index(row), QueueListModel::NameRole).toString();
    if (!name.isEmpty()) Q_EMIT chosen(name);
  });
  connect(m_retry, &QPushButton::clicked, this, &QueueChooser::retryAsked);
}

void QueueChooser::setQueues(const std::vector<QueueSummary>& queues) {
  m_model.setQueues(queues);
  offerFilter();
  setCurrent(m_current);
}

void QueueChooser::offerFilter() {
  const bool isWanted = m_model.rowCount() > manyQueues;
  if (isWanted == m_combo->isEditable()) return;
  m_combo->setEditable(isWanted);
  if (!isWanted) return;
  m_combo->setInsertPolicy(QComboBox::NoInsert);
  auto* completer = new QCompleter(&m_model, m_combo);
  completer->setFilterMode(Qt::MatchContains);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setCompletionMode(QCompleter::PopupCompletion);
  m_combo->setCompleter(completer);
  connect(m_combo->lineEdit(), &QLineEdit::editingFinished, this, &QueueChooser::takeTypedName);
  m_combo->lineEdit()->installEventFilter(this);
  m_combo->lineEdit()->setAccessibleName(tr("Printer"));
}

// Enter takes the name; it does not print.
bool QueueChooser::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  takeTypedName();
  return true;
}

// What was typed counts when it leaves one queue, or is the name of one.
void QueueChooser::takeTypedName() {
  const QString typed = m_combo->currentText();
  QString name = m_model.queue(typed) != nullptr ? typed : QString();
  if (name.isNull()) {
    const QModelIndexList found =
        m_model.match(m_model.index(0), Qt::DisplayRole, typed, 2, Qt::MatchContains);
    if (found.size() == 1 && !typed.isEmpty()) name = found.first().data(QueueListModel::NameRole).toString();
  }
  const bool isOther = !name.isNull() && name != m_current;
  setCurrent(isOther ? name : m_current);
  if (isOther) Q_EMIT chosen(name);
}

void QueueChooser::setCurrent(const QString& name) {
  m_current = name;
  const int row = m_model.rowOf(name);
  m_combo->setPlaceholderText(name.isNull() ? tr("Looking for printers…") : name);
  m_combo->setCurrentIndex(row);
  if (m_combo->isEditable()) m_combo->setEditText(row < 0 ? name : m_combo->itemText(row));
}

void QueueChooser::showState() {
  const QueueSummary* queue = m_model.queue(m_current);
  showText(queue == nullptr ? QString() : QueueListModel::stateText(*queue), false);
}

void QueueChooser::showText(const QString& text, bool isFault) {
  m_state->setText(shownText(text));
  m_retry->setVisible(isFault);
  if (m_current.isNull())
    m_combo->setPlaceholderText(isFault ? tr("No printer") : tr("Looking for printers…"));
}

}  // namespace kesto
