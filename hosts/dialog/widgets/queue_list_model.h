// The queues as the dialog lists them.
#pragma once

#include <QtCore/QAbstractListModel>
#include <vector>

#include "hosts/cups/print_server.h"
#include "hosts/dialog/widgets/state_icon.h"

namespace kesto {

/// Queues by name, and "Save as PDF" after them once it is offered. A row's text is the name followed by
/// description and location, `NameRole` the name alone.
class QueueListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role { NameRole = Qt::UserRole };

  /// The `NameRole` of "Save as PDF"; no queue can have this name.
  static constexpr QLatin1String pdfName{"\n"};

  using QAbstractListModel::QAbstractListModel;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

  /// Shows these queues, which are sorted by name.
  void setQueues(const std::vector<QueueSummary>& queues);
  /// Adds one queue at its place, or changes it.
  void setQueue(const QueueSummary& queue);
  void removeQueue(const QString& name);
  /// Adds the row "Save as PDF".
  void offerPdf();
  /// The row of a queue, -1 when it is not listed.
  int rowOf(const QString& name) const;
  /// What is known about a queue, null when it is not listed.
  const QueueSummary* queue(const QString& name) const;
  const std::vector<QueueSummary>& queues() const { return m_queues; }

  /// The queue's state for the user, what the printer reports, where it stands and what waits there.
  static QString stateText(const QueueSummary& queue);
  static StateIcon::Kind stateKind(const QueueSummary& queue);

 private:
  static QString stateOf(const QueueSummary& queue);
  std::vector<QueueSummary>::const_iterator placeOf(const QString& name) const;

  std::vector<QueueSummary> m_queues;
  bool m_offersPdf = false;
};

}  // namespace kesto
