// Ctrl-C and the other signals that ask a program to end, as events of Qt's loop.
#pragma once

#include <QtCore/QObject>

namespace kesto {

/// While it exists, SIGINT, SIGTERM and SIGHUP quit the application's event loop instead of ending the
/// process, even if they arrive before the loop runs. Create one for a process, after the application object.
class StopSignal : public QObject {
  Q_OBJECT

 public:
  StopSignal();
};

}  // namespace kesto
