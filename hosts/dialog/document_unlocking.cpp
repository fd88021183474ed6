#include "hosts/dialog/document_unlocking.h"

#include <fcntl.h>
#include <unistd.h>

#include <QtCore/QFile>
#include <array>
#include <cerrno>

#include "hosts/dialog/preview/preview.h"
#include "hosts/dialog/widgets/password_dialog.h"

namespace kesto {
namespace {

constexpr int mostTries = 3;

// The reading end of a pipe that holds the password, so that no buffer of a process object keeps it in
// memory.
Descriptor pipeWith(const QByteArray& password) {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) return {};
  Descriptor reading(ends[0]);
  const Descriptor writing(ends[1]);
  const bool isWhole = ::write(writing.get(), password.constData(),
                               static_cast<std::size_t>(password.size())) == password.size();
  return isWhole ? std::move(reading) : Descriptor();
}

QString nameOf(const Descriptor& file) {
  return QFile::decodeName(pathOf(file.get()));
}

}  // namespace

DocumentUnlocking::DocumentUnlocking(Document& document, const Preview& preview, QWidget& window)
    : m_document(document), m_preview(preview), m_window(window) {
  connect(&preview, &Preview::examined, this, [this] {
    if (m_window.isVisible()) ask();
  });
  // The file that is asked for may be gone.
  connect(&document, &Document::changed, this, [this] {
    m_program.stop();
    if (m_dialog) m_dialog->close();
  });
  connect(&m_program, &PageProgram::ended, this, &DocumentUnlocking::takeEnd);
}

DocumentUnlocking::~DocumentUnlocking() = default;

void DocumentUnlocking::ask() {
  const std::optional<int> file = m_preview.lockedFile();
  if (!file || m_dialog) return;
  m_file = *file;
  m_tries = mostTries;
  m_dialog = new PasswordDialog(m_document.files().at(static_cast<std::size_t>(m_file)).name, &m_window);
  m_dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(m_dialog, &PasswordDialog::entered, this, &DocumentUnlocking::tryPassword);
  connect(m_dialog, &QDialog::finished, this, [this] {
    m_program.stop();
    m_dialog = nullptr;
  });
  m_dialog->open();
}

void DocumentUnlocking::tryPassword(const QByteArray& password) {
  PrivateCopy copy;
  if (Outcome made = copy.append("", 0); !made) return m_dialog->askAgain(made.reason());
  const Descriptor pipe = pipeWith(password);
  if (!pipe) return m_dialog->askAgain(qt_error_string(errno));
  m_copy = copy.take();
  const QByteArray path = m_document.files().at(static_cast<std::size_t>(m_file)).path;
  m_program.start(
      {.program = QStringLiteral("qpdf"),
       .arguments = {QStringLiteral("--password-file=-"), QStringLiteral("--decrypt"),
                     QStringLiteral("--warning-exit-0"), QFile::decodeName(path), QStringLiteral("-")},
       .input = nameOf(pipe),
       .output = nameOf(m_copy)});
}

void DocumentUnlocking::takeEnd(PageProgram::End end) {
  if (end == PageProgram::End::Done && isWholePdfFile(nameOf(m_copy)))
    return m_document.replace(m_file, std::move(m_copy));
  const QString reason = reasonFor(end);
  if (m_tries > 0) return m_dialog->askAgain(reason);
  m_dialog->close();
}

QString DocumentUnlocking::reasonFor(PageProgram::End end) {
  if (end == PageProgram::End::Missing) return tr("The document cannot be opened. Install qpdf to open it.");
  if (end == PageProgram::End::Late) return tr("Opening the document takes too long.");
  if (end == PageProgram::End::Done) return tr("There is not enough space for a copy of the document.");
  if (!m_program.errors().contains("invalid password"))
    return tr("The document is damaged and cannot be opened.");
  --m_tries;
  return m_tries == 1 ? tr("Wrong password. You can try once more.")
                      : tr("Wrong password. You can try %n more times.", nullptr, m_tries);
}

}  // namespace kesto
