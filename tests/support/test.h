// SPDX-License-Identifier: MIT
#pragma once

#include <QSignalSpy>
#include <QTest>

/// What every test begins with. Texts are written as u"..."_s.
using namespace Qt::StringLiterals;
