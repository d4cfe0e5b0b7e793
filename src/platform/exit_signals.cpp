// SPDX-License-Identifier: MIT
#include "platform/exit_signals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array Signals = {SIGTERM, SIGHUP, SIGINT};

/// The ends of a pair of sockets: the handler writes to the first. A handler can reach nothing but such a
/// variable, and may call hardly anything but write().
std::array<int, 2> sockets = {-1, -1};

void Handle(int /*signal*/)
{
    const int error = errno; // Of what was interrupted.
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(sockets[0], &byte, 1);
    errno = error;
}

}

CExitSignals::CExitSignals(QObject *parent) : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, sockets.data()) != 0) {
        return;
    }
    m_notifier = new QSocketNotifier(sockets[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (::read(sockets[1], &byte, 1) == 1) {
            Q_EMIT ExitRequested();
        }
    });
    struct sigaction action = {};
    action.sa_handler = Handle;
    action.sa_flags = SA_RESTART;
    for (const int signal : Signals) {
        struct sigaction before = {};
        ::sigaction(signal, &action, &before);
        if (before.sa_handler == SIG_IGN) {
            ::sigaction(signal, &before, nullptr); // Whoever started the program wants it to go on.
        }
    }
}

CExitSignals::~CExitSignals()
{
    if (m_notifier == nullptr) {
        return;
    }
    for (const int signal : Signals) {
        std::signal(signal, SIG_DFL);
    }
    for (int &socket : sockets) {
        ::close(socket);
        socket = -1;
    }
}
