#include "hosts/command/secret_input.h"

#include <fcntl.h>
#include <unistd.h>

#include <QtCore/QFile>
#include <QtCore/QStringDecoder>
#include <cerrno>
#include <cstring>

#include "hosts/command/command_texts.h"
#include "hosts/command/unseen_terminal.h"
#include "platform/descriptor.h"
#include "platform/secret.h"

namespace kesto {
namespace {

// Longer than any entry. A line that outgrew its reserved memory would leave copies behind.
constexpr qsizetype longestLine = 1024;

void show(int terminal, const QByteArray& text) {
  // The user can answer even if the terminal does not show the question.
  [[maybe_unused]] const ssize_t written =
      ::write(terminal, text.constData(), static_cast<std::size_t>(text.size()));
}

// Reads byte by byte, because what follows the line belongs to others.
Outcome readLine(int descriptor, QString* secret) {
  QByteArray line;
  const WipedAtEnd wiped(line);
  line.reserve(longestLine);
  char byte = 0;
  ssize_t count = 0;
  while ((count = ::read(descriptor, &byte, 1)) == 1 && byte != '\n') {
    if (line.size() == longestLine) return Outcome::failed(CommandTexts::tr("the line is too long"));
    line += byte;
  }
  if (count < 0) return Outcome::failed(QString::fromLocal8Bit(std::strerror(errno)));
  if (line.endsWith('\r')) line.chop(1);
  QStringDecoder decoder(QStringDecoder::Utf8);
  *secret = decoder.decode(line);
  if (decoder.hasError()) return Outcome::failed(CommandTexts::tr("the line is not UTF-8"));
  // With an empty code the job would go out unprotected.
  return secret->isEmpty() ? Outcome::failed(CommandTexts::tr("the line is empty")) : Outcome::done();
}

}  // namespace

Outcome readSecretLine(const QString& path, QString* secret) {
  if (path == QLatin1String("-")) return readLine(STDIN_FILENO, secret);
  const Descriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
  if (file) return readLine(file.get(), secret);
  return Outcome::failed(path + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno)));
}

Outcome askSecret(const QString& prompt, QString* secret) {
  const Descriptor terminal(::open("/dev/tty", O_RDWR | O_NOCTTY | O_CLOEXEC));
  if (!terminal) return Outcome::failed(CommandTexts::tr("no terminal to ask at"));
  const UnseenTerminal unseen(terminal.get());
  show(terminal.get(), CommandTexts::tr("%1: ", "a prompt").arg(prompt).toLocal8Bit());
  Outcome read = Outcome::done();
  if (unseen.waitForLine()) read = readLine(terminal.get(), secret);
  show(terminal.get(), "\n");
  return unseen.isInterrupted() ? Outcome::failed(CommandTexts::tr("interrupted")) : read;
}

}  // namespace kesto
