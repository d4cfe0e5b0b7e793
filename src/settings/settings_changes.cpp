// SPDX-License-Identifier: MIT
#include "settings/settings_changes.h"
