// One print for the desktop portal: the dialog as the service's other end.
#pragma once

#include <memory>

#include "hosts/channel/channel.h"
#include "hosts/channel/portal_settings.h"
#include "hosts/dialog/document.h"
#include "hosts/dialog/print_dialog.h"

namespace kesto {

/// Shows the dialog that the service asks for, answers with the choice and prints the document that comes, as
/// docs/formats/print-channel.md tells. The application's event loop ends with the print.
class PortalPrint : public QObject {
  Q_OBJECT

 public:
  /// `options` name the channel's descriptor, which this object closes.
  explicit PortalPrint(const PrintOptions& options);

 private:
  void take(const QJsonObject& message, Descriptor& attached);
  void open(const QJsonObject& message);
  void offerPages(const QJsonObject& message);
  void preset();
  void attachTo(const QString& parentWindow);
  void takeChoice();
  void takePages(const JobOptions& options);
  void takeDocument();
  void answer(const QString& word, QJsonObject message = {});
  void withdraw();
  void finish(int result);

  PrintOptions m_options;
  PrintChannel m_channel;
  Document m_document;
  QJsonObject m_settings;
  QJsonObject m_pageSetup;
  PortalChoice m_choice;
  bool m_isChosen = false;
  bool m_hasFailed = false;  // the document cannot be printed, and the user has seen why
  bool m_isTaken = false;    // the document is here whole, and the user wants it printed
  std::unique_ptr<PrintDialog> m_dialog;
};

}  // namespace kesto
