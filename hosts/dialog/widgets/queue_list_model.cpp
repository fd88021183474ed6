#include "hosts/dialog/widgets/queue_list_model.h"

#include <algorithm>

#include "platform/shown_text.h"

namespace kesto {

int QueueListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_queues.size()) + (m_offersPdf ? 1 : 0);
}

QVariant QueueListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  if (index.row() == std::ssize(m_queues)) {
    const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
    return isText ? QVariant(tr("Save as PDF")) : role == NameRole ? QVariant(QString(pdfName)) : QVariant();
  }
  const QueueSummary& queue = m_queues[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return queue.info.isEmpty() || queue.info == queue.name
                 ? shownText(queue.name)
                 : QStringLiteral("%1 — %2").arg(shownText(queue.name), shownText(queue.info));
    case Qt::ToolTipRole:
      return stateText(queue);
    case NameRole:
      return queue.name;
    default:
      return {};
  }
}

void QueueListModel::setQueues(const std::vector<QueueSummary>& queues) {
  beginResetModel();
  m_queues = queues;
  endResetModel();
}

void QueueListModel::offerPdf() {
  if (m_offersPdf) return;
  beginInsertRows({}, rowCount(), rowCount());
  m_offersPdf = true;
  endInsertRows();
}

std::vector<QueueSummary>::const_iterator QueueListModel::placeOf(const QString& name) const {
  return std::ranges::lower_bound(m_queues, name, {}, &QueueSummary::name);
}

int QueueListModel::rowOf(const QString& name) const {
  if (name == pdfName) return m_offersPdf ? static_cast<int>(m_queues.size()) : -1;
  const auto place = placeOf(name);
  return place != m_queues.end() && place->name == name ? static_cast<int>(place - m_queues.begin()) : -1;
}

const QueueSummary* QueueListModel::queue(const QString& name) const {
  const int row = rowOf(name);
  return row < 0 || name == pdfName ? nullptr : &m_queues[static_cast<std::size_t>(row)];
}

void QueueListModel::setQueue(const QueueSummary& queue) {
  const int row = rowOf(queue.name);
  if (row >= 0) {
    m_queues[static_cast<std::size_t>(row)] = queue;
    Q_EMIT dataChanged(index(row), index(row));
    return;
  }
  const auto place = placeOf(queue.name);
  const int at = static_cast<int>(place - m_queues.begin());
  beginInsertRows({}, at, at);
  m_queues.insert(place, queue);
  endInsertRows();
}

void QueueListModel::removeQueue(const QString& name) {
  const int row = rowOf(name);
  if (row < 0) return;
  beginRemoveRows({}, row, row);
  m_queues.erase(m_queues.begin() + row);
  endRemoveRows();
}

QString QueueListModel::stateOf(const QueueSummary& queue) {
  // The scheduler's message when nobody has given a reason.
  const bool hasReason =
      !QStringList{QString(), QStringLiteral("Rejecting Jobs"), QStringLiteral("Paused")}.contains(
          queue.stateMessage, Qt::CaseInsensitive);
  if (!queue.isAccepting)
    return hasReason ? tr("Not accepting jobs: %1").arg(queue.stateMessage) : tr("Not accepting jobs");
  if (queue.state == u"stopped") return hasReason ? tr("Paused: %1").arg(queue.stateMessage) : tr("Paused");
  return queue.state == u"processing" ? tr("Printing") : tr("Ready");
}

QString QueueListModel::stateText(const QueueSummary& queue) {
  QStringList parts{stateOf(queue)};
  if (!queue.location.isEmpty()) parts.append(queue.location);
  const int waiting = queue.state == u"processing" ? queue.jobs - 1 : queue.jobs;
  if (waiting > 0) parts.append(waiting == 1 ? tr("1 job waiting") : tr("%1 jobs waiting").arg(waiting));
  return parts.join(QStringLiteral(" · "));
}

StateIcon::Kind QueueListModel::stateKind(const QueueSummary& queue) {
  if (!queue.isAccepting || queue.state == u"stopped") return StateIcon::Kind::Attention;
  return queue.state == u"processing" ? StateIcon::Kind::Busy : StateIcon::Kind::Ready;
}

}  // namespace kesto
