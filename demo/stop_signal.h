// Ctrl-C and the other polite ways of ending a program, as an event of Qt's loop.
#pragma once

#include <QtCore/QObject>

namespace kesto {

/// From its creation on, SIGINT, SIGTERM and SIGHUP quit the application's event loop instead of ending the
/// process, also when one came before the loop ran. One for a process, made after the application object.
class StopSignal : public QObject {
  Q_OBJECT

 public:
  StopSignal();
};

}  // namespace kesto
