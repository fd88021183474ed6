// Why a control of the panel cannot be used at the moment.
#pragma once

#include <QtCore/QString>

namespace kesto {

class Control;

/// A sentence for the tool tip of a dimmed control; null for a usable control and for an unknown reason.
QString dimmingReason(const Control& control);

}  // namespace kesto
