// SPDX-License-Identifier: MIT
#include "platform/ui/key_sender.h"

#include <QString>

#ifdef ORDELIN_X11

#include <QGuiApplication>
#include <QList>
#include <QTimer>

#include <algorithm>

// After the others: their macros have names like None and KeyPress.
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace {

KeySym KeySymOf(char32_t character)
{
    constexpr char32_t EndOfLatin1 = 0x100;
    constexpr KeySym Unicode = 0x01000000;
    return character < EndOfLatin1 ? KeySym(character) : Unicode + character;
}

}

/// A connection of its own to the display. A character that no key gives is lent a key that has no character;
/// the key is given back some time later, when the other program has read what it meant.
class CKeySender::CConnection
{
public:
    explicit CConnection(Display *display) : m_display(display), m_root(XDefaultRootWindow(display))
    {
        int major = 0, minor = 0, event = 0, error = 0;
        m_canType = XTestQueryExtension(display, &event, &error, &major, &minor);
        FindSpareKeys();
        m_wait.setInterval(20);
        QObject::connect(&m_wait, &QTimer::timeout, &m_wait, [this] { TypePending(); });
        m_giveBack.setInterval(1000);
        m_giveBack.setSingleShot(true);
        QObject::connect(&m_giveBack, &QTimer::timeout, &m_giveBack, [this] { GiveBack(); });
    }
    ~CConnection()
    {
        GiveBack();
        XCloseDisplay(m_display);
    }
    CConnection(const CConnection &) = delete;
    CConnection &operator=(const CConnection &) = delete;

    bool Send(const QString &text)
    {
        // Where the active window belongs to another display system, there is none here.
        if (!m_canType || m_spare.isEmpty() || ActiveWindow() == 0) {
            return false;
        }
        m_pending += text;
        m_attempts = 0;
        TypePending();
        return true;
    }
    void RememberWindow() { m_remembered = ActiveWindow(); }
    void ActivateRememberedWindow();

private:
    struct SpareKey
    {
        KeyCode code = 0;
        KeySym character = NoSymbol;
    };
    struct Key
    {
        KeyCode code = 0;
        bool shift = false;
    };

    Window ActiveWindow();
    void FindSpareKeys();
    XkbStateRec KeyboardState() const;
    void ReadLayoutChanges();
    void TypePending();
    void Type(const QString &text, const XkbStateRec &state);
    Key FindKey(KeySym character, const XkbStateRec &state);
    Key BorrowKey(KeySym character);
    void Press(KeyCode code) { XTestFakeKeyEvent(m_display, code, True, CurrentTime); }
    void Release(KeyCode code) { XTestFakeKeyEvent(m_display, code, False, CurrentTime); }
    void Assign(SpareKey &key, KeySym character);
    void GiveBack();

    Display *m_display;
    Window m_root;
    bool m_canType = false;
    Window m_remembered = 0;
    QList<SpareKey> m_spare; // The one used last stands last.
    QString m_pending;
    int m_attempts = 0;
    QTimer m_wait;
    QTimer m_giveBack;
};

Window CKeySender::CConnection::ActiveWindow()
{
    const Atom property = XInternAtom(m_display, "_NET_ACTIVE_WINDOW", False);
    Atom type = 0;
    int format = 0;
    unsigned long count = 0, left = 0;
    unsigned char *value = nullptr;
    XGetWindowProperty(
        m_display, m_root, property, 0, 1, False, XA_WINDOW, &type, &format, &count, &left, &value);
    Window window = 0;
    if (type == XA_WINDOW && count == 1) {
        window = *reinterpret_cast<Window *>(value);
    } else {
        // The window manager doesn't tell.
        int revert = 0;
        XGetInputFocus(m_display, &window, &revert);
    }
    if (value != nullptr) {
        XFree(value);
    }
    return window;
}

void CKeySender::CConnection::ActivateRememberedWindow()
{
    if (m_remembered == 0) {
        return;
    }
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = m_remembered;
    event.xclient.message_type = XInternAtom(m_display, "_NET_ACTIVE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = 2; // The user asks for it, not the window.
    XSendEvent(m_display, m_root, False, SubstructureNotifyMask | SubstructureRedirectMask, &event);
    XFlush(m_display);
}

void CKeySender::CConnection::FindSpareKeys()
{
    int first = 0, last = 0, width = 0;
    XDisplayKeycodes(m_display, &first, &last);
    const int count = last - first + 1;
    KeySym *const symbols = XGetKeyboardMapping(m_display, KeyCode(first), count, &width);
    for (int key = 0; symbols != nullptr && key < count; ++key) {
        const KeySym *const own = symbols + qsizetype(key) * width;
        if (std::all_of(own, own + width, [](KeySym symbol) { return symbol == NoSymbol; })) {
            m_spare.append(SpareKey{.code = KeyCode(first + key)});
        }
    }
    if (symbols != nullptr) {
        XFree(symbols);
    }
}

XkbStateRec CKeySender::CConnection::KeyboardState() const
{
    XkbStateRec state = {};
    XkbGetState(m_display, XkbUseCoreKbd, &state);
    return state;
}

void CKeySender::CConnection::ReadLayoutChanges()
{
    while (XPending(m_display) > 0) {
        XEvent event;
        XNextEvent(m_display, &event);
        if (event.type == MappingNotify) {
            XRefreshKeyboardMapping(&event.xmapping);
        }
    }
}

void CKeySender::CConnection::TypePending()
{
    constexpr unsigned Harmless = ShiftMask | LockMask | Mod2Mask; // The last one is Num Lock.
    constexpr int MostAttempts = 500;
    const XkbStateRec state = KeyboardState();
    // A key that the user holds can't be released for him, and would make a shortcut of the character.
    if ((state.base_mods & ~Harmless) != 0 && ++m_attempts < MostAttempts) {
        m_wait.start();
        return;
    }
    m_wait.stop();
    if (m_attempts < MostAttempts) {
        Type(m_pending, state);
    }
    m_pending.clear();
}

void CKeySender::CConnection::Type(const QString &text, const XkbStateRec &state)
{
    ReadLayoutChanges();
    // Caps Lock would make capitals of letters, also of those on borrowed keys.
    const bool capsLock = (state.locked_mods & LockMask) != 0;
    if (capsLock) {
        XkbLockModifiers(m_display, XkbUseCoreKbd, LockMask, 0);
    }
    const KeyCode shift = XKeysymToKeycode(m_display, XK_Shift_L);
    for (const char32_t character : text.toUcs4()) {
        const Key key = FindKey(KeySymOf(character), state);
        if (key.shift) {
            Press(shift);
        }
        Press(key.code);
        Release(key.code);
        if (key.shift) {
            Release(shift);
        }
    }
    if (capsLock) {
        XkbLockModifiers(m_display, XkbUseCoreKbd, LockMask, LockMask);
    }
    XSync(m_display, False);
    m_giveBack.start();
}

CKeySender::CConnection::Key CKeySender::CConnection::FindKey(KeySym character, const XkbStateRec &state)
{
    int first = 0, last = 0;
    XDisplayKeycodes(m_display, &first, &last);
    // While the user holds Shift, only a key that gives the same with and without it will do.
    for (int code = first; code <= last && (state.mods & ShiftMask) == 0; ++code) {
        for (const unsigned level : {0U, 1U}) {
            if (XkbKeycodeToKeysym(m_display, KeyCode(code), state.group, level) == character) {
                return {.code = KeyCode(code), .shift = level == 1};
            }
        }
    }
    return BorrowKey(character);
}

CKeySender::CConnection::Key CKeySender::CConnection::BorrowKey(KeySym character)
{
    auto found = std::find_if(
        m_spare.begin(), m_spare.end(), [&](const SpareKey &key) { return key.character == character; });
    if (found == m_spare.end()) {
        found = m_spare.begin();
        Assign(*found, character);
    }
    std::rotate(found, found + 1, m_spare.end());
    return {.code = m_spare.last().code};
}

void CKeySender::CConnection::Assign(SpareKey &key, KeySym character)
{
    KeySym levels[] = {character, character};
    XChangeKeyboardMapping(m_display, key.code, 2, levels, 1);
    key.character = character;
    XSync(m_display, False);
}

void CKeySender::CConnection::GiveBack()
{
    for (SpareKey &key : m_spare) {
        if (key.character != NoSymbol) {
            Assign(key, NoSymbol);
        }
    }
}

CKeySender::CConnection *CKeySender::Connection()
{
    // Programs without windows on the screen may know a display of X11 all the same.
    if (m_connection == nullptr && QGuiApplication::platformName() == QStringLiteral("xcb")) {
        const auto *const x11 = qApp->nativeInterface<QNativeInterface::QX11Application>();
        Display *const own = x11 != nullptr ? x11->display() : nullptr;
        if (Display *const display = own != nullptr ? XOpenDisplay(XDisplayString(own)) : nullptr) {
            m_connection = std::make_unique<CConnection>(display);
        }
    }
    return m_connection.get();
}

#else

class CKeySender::CConnection
{
public:
    bool Send(const QString & /*text*/) { return false; }
    void RememberWindow() { }
    void ActivateRememberedWindow() { }
};

CKeySender::CConnection *CKeySender::Connection()
{
    return m_connection.get();
}

#endif

CKeySender::CKeySender() = default;
CKeySender::~CKeySender() = default;

bool CKeySender::Send(const QString &text)
{
    CConnection *const connection = Connection();
    return connection != nullptr && connection->Send(text);
}

void CKeySender::RememberWindow()
{
    if (CConnection *const connection = Connection()) {
        connection->RememberWindow();
    }
}

void CKeySender::ActivateRememberedWindow()
{
    if (CConnection *const connection = Connection()) {
        connection->ActivateRememberedWindow();
    }
}
