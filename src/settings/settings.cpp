// SPDX-License-Identifier: MIT
#include "settings/settings.h"
