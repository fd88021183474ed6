// The output of a program: JSON for scripts, and whether all of it was written.
#pragma once

#include <QtCore/QJsonDocument>

#include "platform/outcome.h"

namespace kesto {

/// For `qInstallMessageHandler` while the application is created. In a locale without UTF-8 Qt warns on
/// standard error, though what the programs print is UTF-8 everywhere.
void ignoreMessage(QtMsgType type, const QMessageLogContext& context, const QString& message);

/// JSON for standard output or a terminal, where characters that a terminal would obey are escaped as well.
QByteArray printableJson(const QJsonDocument& json,
                         QJsonDocument::JsonFormat format = QJsonDocument::Compact);

/// Fails when anything that was printed could not be written to standard output.
Outcome flushOutput();

/// The exit status of a program that would end with `code`: 1 instead of 0, with a message, when its output
/// could not be written.
int endOfOutput(const char* program, int code);

}  // namespace kesto
