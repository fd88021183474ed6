// Replaces the dialog that kesto-portal starts. A test at the other end of a local socket plays the user:
// this program passes on what the service sends, one JSON object a line, and does what the test says in
// return.
#include <unistd.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtNetwork/QLocalSocket>
#include <csignal>

#include "hosts/channel/channel.h"

namespace {

using namespace Qt::StringLiterals;

QJsonObject self() {
  QJsonObject environment;
  for (const char* name : {"GTK_USE_PORTAL", "QT_QPA_PLATFORMTHEME"}) {
    if (qEnvironmentVariableIsSet(name)) environment.insert(QLatin1String(name), qEnvironmentVariable(name));
  }
  return {{u"arguments"_s, QJsonArray::fromStringList(QCoreApplication::arguments().mid(1))},
          {u"environment"_s, environment}};
}

// The document as text.
QString textOf(const kesto::Descriptor& document) {
  QFile file;
  if (!file.open(document.get(), QIODevice::ReadOnly)) return file.errorString();
  return QString::fromLatin1(file.readAll());
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QLocalSocket test;
  test.connectToServer(qEnvironmentVariable("KESTO_STAND_IN"));
  if (!test.waitForConnected()) return 1;
  const auto tell = [&](const QJsonObject& object) {
    test.write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
    test.flush();
  };
  tell(self());
  auto channel =
      std::make_unique<kesto::PrintChannel>(kesto::Descriptor(QCoreApplication::arguments().last().toInt()));
  const auto tellEnd = [&] { tell({{u"closed"_s, true}}); };
  QObject::connect(channel.get(), &kesto::PrintChannel::received,
                   [&](QJsonObject message, const kesto::Descriptor& document) {
                     if (document) message.insert(u"document"_s, textOf(document));
                     tell(message);
                   });
  QObject::connect(channel.get(), &kesto::PrintChannel::closed, tellEnd);
  QObject::connect(&test, &QLocalSocket::readyRead, [&] {
    while (test.canReadLine()) {
      const QJsonObject line = QJsonDocument::fromJson(test.readLine()).object();
      if (line.contains(u"exit"_s)) ::_exit(line.value(u"exit"_s).toInt());
      if (line.contains(u"kill"_s)) std::raise(SIGKILL);
      if (line.contains(u"leave"_s)) {
        channel.reset();
        tellEnd();
      } else if (const kesto::Outcome sent = channel->send(line); !sent) {
        tell({{u"unsent"_s, sent.reason()}});
      }
    }
  });
  QObject::connect(&test, &QLocalSocket::disconnected, [] { ::_exit(0); });
  return QCoreApplication::exec();
}
