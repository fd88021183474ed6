#include "platform/panel.h"
