// The trace hooks of the panel. They log to the category "kesto.pde" in debug builds and compile to nothing
// in release builds.
//
// Formats use %@ (text or object), %p (address) and %s (C string), one argument each. No argument may contain
// a secret.
#pragma once

#ifndef NDEBUG

#include <QtCore/QStringList>

namespace kesto::trace {

QString textOf(const QString& text);
QString textOf(const char* text);
QString textOf(const void* address);

/// Logs `format` with its placeholders replaced by `arguments` in their order, for the object `self`.
void log(const void* self, const char* phase, const char* format, const QStringList& arguments);

}  // namespace kesto::trace

#define KESTO_TRACE(self, phase, format, ...) \
  ::kesto::trace::log(self, phase, format, ::kesto::trace::texts(__VA_ARGS__))

namespace kesto::trace {
template <class... Arguments>
QStringList texts(const Arguments&... arguments) {
  return {textOf(arguments)...};
}
}  // namespace kesto::trace

#else

#define KESTO_TRACE(self, phase, ...) static_cast<void>(0)

#endif

#define _PDEProlog(self, ...) KESTO_TRACE(self, "enter", __VA_ARGS__)
#define _PDEEpilog(self, ...) KESTO_TRACE(self, "leave", __VA_ARGS__)
#define _PDELog(self, ...) KESTO_TRACE(self, "note", __VA_ARGS__)
