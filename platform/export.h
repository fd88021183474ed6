#pragma once

#include <QtCore/QtGlobal>

// What libkestopde exports. Its other symbols are hidden, so that they cannot meet those of a host.
#define KESTO_EXPORT Q_DECL_EXPORT
