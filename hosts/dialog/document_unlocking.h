// Documents that are protected by a password.
#pragma once

#include <QtCore/QPointer>

#include "hosts/dialog/document.h"
#include "hosts/dialog/preview/page_program.h"

namespace kesto {

class PasswordDialog;
class Preview;

/// Asks for the password of each file that needs one, and puts a private copy without the password in the
/// file's place. qpdf reads the password from a pipe.
class DocumentUnlocking : public QObject {
  Q_OBJECT

 public:
  /// `preview` shows `document`; the dialogs belong to `window`. All three must outlive this object.
  DocumentUnlocking(Document& document, const Preview& preview, QWidget& window);
  ~DocumentUnlocking() override;

  /// Asks for the password of the first protected file, if there is one and nothing is asked already.
  void ask();

 private:
  void tryPassword(const QByteArray& password);
  void takeEnd(PageProgram::End end);
  QString reasonFor(PageProgram::End end);

  Document& m_document;
  const Preview& m_preview;
  QWidget& m_window;
  PageProgram m_program;
  QPointer<PasswordDialog> m_dialog;
  int m_file = 0;   // for whose password the dialog asks
  int m_tries = 0;  // that are left
  Descriptor m_copy;
};

}  // namespace kesto
