// Why a control of the panel cannot be used at the moment.
#pragma once

#include <QtCore/QString>

namespace kesto {

class Control;

/// A sentence for the tool tip of a dimmed control; null for one that can be used, or whose reason is not
/// known.
QString dimmingReason(const Control& control);

}  // namespace kesto
