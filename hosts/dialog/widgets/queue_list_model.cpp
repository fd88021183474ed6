#include "hosts/dialog/widgets/queue_list_model.h"

#include <algorithm>
#include <iterator>

#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/session/printer_reasons.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

QString rowText(const QueueSummary& queue) {
  QStringList texts;
  for (const QString& text : {queue.info, queue.location}) {
    if (!text.isEmpty() && text != queue.name) texts.append(shownText(text));
  }
  return texts.isEmpty() ? shownText(queue.name)
                         : QStringLiteral("%1 — %2").arg(shownText(queue.name), texts.join(u", "));
}

QString tipText(const QueueSummary& queue) {
  const QString state = shownText(QueueListModel::stateText(queue));
  return tipOf(queue.model.isEmpty() ? state : state + u'\n' + shownText(queue.model));
}

}  // namespace

int QueueListModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  const int network = m_shownNetwork.empty() ? 0 : 1 + static_cast<int>(m_shownNetwork.size());
  return titleRow() + network + (m_offersPdf ? 1 : 0);
}

const QueueSummary& QueueListModel::at(int row) const {
  return row < titleRow() ? m_queues[static_cast<std::size_t>(row)]
                          : m_shownNetwork[static_cast<std::size_t>(row - titleRow() - 1)];
}

Qt::ItemFlags QueueListModel::flags(const QModelIndex& index) const {
  return isTitle(index.row()) ? Qt::NoItemFlags : QAbstractListModel::flags(index);
}

QVariant QueueListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const bool isText = role == Qt::DisplayRole || role == Qt::EditRole;
  if (isTitle(index.row())) return isText ? QVariant(tr("On the network")) : QVariant();
  if (m_offersPdf && index.row() == rowCount() - 1) {
    return isText ? QVariant(tr("Save as PDF")) : role == NameRole ? QVariant(QString(pdfName)) : QVariant();
  }
  const QueueSummary& queue = at(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return rowText(queue);
    case Qt::ToolTipRole:
      return tipText(queue);
    case NameRole:
      return queue.name;
    default:
      return {};
  }
}

void QueueListModel::setQueues(const std::vector<QueueSummary>& queues) {
  beginResetModel();
  m_queues = queues;
  filterNetwork();
  endResetModel();
}

void QueueListModel::setNetwork(const std::vector<QueueSummary>& printers) {
  beginResetModel();
  m_network = printers;
  filterNetwork();
  endResetModel();
}

void QueueListModel::filterNetwork() {
  m_shownNetwork.clear();
  std::ranges::copy_if(m_network, std::back_inserter(m_shownNetwork),
                       [this](const QueueSummary& each) { return !hasQueue(each.name); });
}

void QueueListModel::offerPdf() {
  if (m_offersPdf) return;
  beginInsertRows({}, rowCount(), rowCount());
  m_offersPdf = true;
  endInsertRows();
}

bool QueueListModel::hasQueue(const QString& name) const {
  const auto place = placeOf(name);
  return place != m_queues.end() && place->name == name;
}

std::vector<QueueSummary>::const_iterator QueueListModel::placeOf(const QString& name) const {
  return std::ranges::lower_bound(m_queues, name, {}, &QueueSummary::name);
}

int QueueListModel::rowOf(const QString& name) const {
  if (name == pdfName) return m_offersPdf ? rowCount() - 1 : -1;
  if (hasQueue(name)) return static_cast<int>(placeOf(name) - m_queues.begin());
  const auto found = std::ranges::find(m_shownNetwork, name, &QueueSummary::name);
  return found == m_shownNetwork.end() ? -1
                                       : titleRow() + 1 + static_cast<int>(found - m_shownNetwork.begin());
}

const QueueSummary* QueueListModel::queue(const QString& name) const {
  const int row = rowOf(name);
  return row < 0 || name == pdfName ? nullptr : &at(row);
}

void QueueListModel::setQueue(const QueueSummary& queue) {
  if (hasQueue(queue.name)) {
    const int row = static_cast<int>(placeOf(queue.name) - m_queues.begin());
    m_queues[static_cast<std::size_t>(row)] = queue;
    Q_EMIT dataChanged(index(row), index(row));
    return;
  }
  const auto place = placeOf(queue.name);
  const int at = static_cast<int>(place - m_queues.begin());
  beginInsertRows({}, at, at);
  m_queues.insert(place, queue);
  endInsertRows();
  if (!m_network.empty()) setNetwork(m_network);
}

void QueueListModel::removeQueue(const QString& name) {
  if (!hasQueue(name)) return;
  const int row = static_cast<int>(placeOf(name) - m_queues.begin());
  beginRemoveRows({}, row, row);
  m_queues.erase(m_queues.begin() + row);
  endRemoveRows();
  if (!m_network.empty()) setNetwork(m_network);
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

// The state, then what the printer reports; a printer that cannot print is not called ready.
QString QueueListModel::stateText(const QueueSummary& queue) {
  QStringList parts{stateOf(queue)};
  QStringList reasons = queue.stateReasons;
  if (queue.isAccepting && queue.state == u"stopped") reasons.removeAll(QStringLiteral("paused"));
  for (const PrinterReason& reason : printerReasons(reasons)) {
    if (reason.severity == Severity::Error && parts.first() == tr("Ready")) parts.clear();
    if (!parts.contains(reason.text)) parts.append(reason.text);
  }
  if (!queue.location.isEmpty()) parts.append(queue.location);
  const int waiting = queue.state == u"processing" ? queue.jobs - 1 : queue.jobs;
  if (waiting > 0) parts.append(waiting == 1 ? tr("1 job waiting") : tr("%n jobs waiting", nullptr, waiting));
  return parts.join(QStringLiteral(" · "));
}

StateIcon::Kind QueueListModel::stateKind(const QueueSummary& queue) {
  const std::vector<PrinterReason> reasons = printerReasons(queue.stateReasons);
  const Severity worst = reasons.empty() ? Severity::Report : reasons.front().severity;
  if (worst == Severity::Error) return StateIcon::Kind::Stopped;
  if (!queue.isAccepting || queue.state == u"stopped" || worst == Severity::Warning)
    return StateIcon::Kind::Attention;
  return queue.state == u"processing" ? StateIcon::Kind::Busy : StateIcon::Kind::Ready;
}

}  // namespace kesto
