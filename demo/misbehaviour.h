// The ways in which the folder service can misbehave, so that people and tests can see how a panel reacts.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <span>

#include "demo/folder_list.h"

namespace kesto {

/// How an answer is delivered.
enum class Delivery : std::uint8_t {
  Whole,        ///< At once; then the connection ends.
  Endless,      ///< The body, then padding without end.
  Trickle,      ///< One byte a second.
  Reset,        ///< Half of it; then the connection is reset.
  Never,        ///< Not at all, and the connection stays open.
  CloseAtOnce,  ///< Not at all: the connection ends before the request is read.
};

/// One behaviour of the service: what it answers and how.
struct Misbehaviour {
  const char* name = nullptr;  ///< Null for the good behaviour.
  const char* description = nullptr;
  QByteArray (*body)(const DemoFolders& folders) = listOf;
  Delivery delivery = Delivery::Whole;
  const char* status = "200 OK";
  const char* header = "";  ///< One more header line, or none.
};

/// Every misbehaviour, in the order in which they are listed.
std::span<const Misbehaviour> misbehaviours();

/// The misbehaviour of that name, null when there is none.
const Misbehaviour* misbehaviourNamed(const QString& name);

}  // namespace kesto
