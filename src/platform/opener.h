// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

class QObject;

/// Starts a program that hands something on to another one, such as a browser or the e-mail program. Nobody
/// waits for it, and it may run on after this program's end. From the event loop `failed` is called when it
/// can't be started or soon ends without success, so that nothing was opened; not after the end of `context`.
void StartOpener(
    const QString &program, const QStringList &arguments, QObject &context, std::function<void()> failed);
