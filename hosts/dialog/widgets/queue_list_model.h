// The queues as the dialog lists them.
#pragma once

#include <QtCore/QAbstractListModel>
#include <vector>

#include "hosts/cups/print_server.h"
#include "hosts/dialog/widgets/state_icon.h"

namespace kesto {

/// Queues by name, then the printers on the network that have none, and "Save as PDF" last once it is
/// offered. A row's text is the name followed by description and location, `NameRole` the name alone.
class QueueListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role { NameRole = Qt::UserRole };

  /// The `NameRole` of "Save as PDF"; a queue's name has no control characters.
  static constexpr QLatin1String pdfName{"\n"};

  using QAbstractListModel::QAbstractListModel;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  /// Shows these queues, which are sorted by name.
  void setQueues(const std::vector<QueueSummary>& queues);
  /// Adds one queue at its place, or changes it.
  void setQueue(const QueueSummary& queue);
  void removeQueue(const QString& name);
  /// Shows these printers of the network, which are sorted by name, below a title.
  void setNetwork(const std::vector<QueueSummary>& printers);
  /// Adds the row "Save as PDF".
  void offerPdf();
  /// The row of a queue or a printer, -1 when it is not listed.
  int rowOf(const QString& name) const;
  /// What is known about a queue or a printer, null when it is not listed.
  const QueueSummary* queue(const QString& name) const;
  const std::vector<QueueSummary>& queues() const { return m_queues; }

  /// The queue's state for the user, what the printer reports, where it stands and what waits there.
  static QString stateText(const QueueSummary& queue);
  static StateIcon::Kind stateKind(const QueueSummary& queue);

 private:
  static QString stateOf(const QueueSummary& queue);
  std::vector<QueueSummary>::const_iterator placeOf(const QString& name) const;

  int titleRow() const { return static_cast<int>(m_queues.size()); }
  bool isTitle(int row) const { return !m_shownNetwork.empty() && row == titleRow(); }
  const QueueSummary& at(int row) const;
  bool hasQueue(const QString& name) const;
  void filterNetwork();

  std::vector<QueueSummary> m_queues;
  std::vector<QueueSummary> m_network;
  std::vector<QueueSummary> m_shownNetwork;  // those without a queue
  bool m_offersPdf = false;
};

}  // namespace kesto
