#include "panel/model/simple_controls.h"
